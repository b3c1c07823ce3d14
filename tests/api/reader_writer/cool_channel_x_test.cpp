#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    CoolChannelX, SectionReader,
    testing::Values(
        reads(READER(CoolChannelX_ReadDiameter), "[CoolChannel-4]", "Diameter", "385.75", 385.75,
              4),
        reads(READER(CoolChannelX_ReadGroupID), "[CoolChannel-6]", "GroupID", "260", 260, 6),
        reads(READER(CoolChannelX_ReadTimeSection), "[CoolChannel-3]", "TimeSet", "262", 262, 3),
        zeroing(reads(READER(CoolChannelX_ReadControlPointSetting), "[CoolChannel-5]", "TCP-7",
                      "0.5\t2\t60\t8.5\t1", 0.5, 2, 60.0, 8.5, 1, 7, 5)),
        zeroing(reads(READER(CoolChannelX_ReadPressureControlPointSetting), "[CoolChannel-2]",
                      "TCPP-9", "0.5\t2\t60\t8.5\t1", 0.5, 2, 60.0, 8.5, 1, 9, 2))),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    CoolChannelX, SectionWriter,
    testing::Values(
        writes(WRITER(CoolChannelX_WriteDiameter), "[CoolChannel-5]", "Diameter", "387.25", 387.25,
               5),
        writes(WRITER(CoolChannelX_WriteGroupID), "[CoolChannel-2]", "GroupID", "261", 261, 2),
        writes(WRITER(CoolChannelX_WriteTimeSection), "[CoolChannel-4]", "TimeSet", "263", 263, 4),
        writes(WRITER(CoolChannelX_WriteControlPointSetting), "[CoolChannel-6]", "TCP-8",
               "0.5\t2\t60\t8.5\t1", 0.5, 2, 60.0, 8.5, 1, 8, 6),
        writes(WRITER(CoolChannelX_WritePressureControlPointSetting), "[CoolChannel-3]", "TCPP-3",
               "0.5\t2\t60\t8.5\t1", 0.5, 2, 60.0, 8.5, 1, 3, 3)),
    name_of_row);

// The first field of the control point that a channel hands out; -1 when there is none.
double first_field(bool (Reader::*member)(double&, int&, double&, double&, int&, int, int),
                   const std::string& path) {
  Reader reader;
  double first = -1;
  int second = 0;
  double third = 0;
  double fourth = 0;
  int fifth = 0;
  return reader.SetFilePath(path.c_str()) &&
                 (reader.*member)(first, second, third, fourth, fifth, 1, 1)
             ? first
             : -1;
}

TEST(CoolChannelX, ControlPointIsChosenByTheControlTypeOfCooling) {
  const Scratch scratch;
  const std::string points = "[CoolChannel-1]\nTCP-1 = 1 0 0 0 0\nTCPP-1 = 2 0 0 0 0\n";
  const struct {
    const char* control;
    double first;
  } rows[] = {{"[Cool]\nControlType = 1\n", 2},
              {"[Cool]\nControlType = 0\n", 1},
              {"[Cool]\nControlType = 2\n", 1},
              {"[Cool]\nCoolTime = 1\n", 1},
              {"", 1},
              {"[MoldPreheat]\nControlType = 1\n", 1},
              {"[Cool]\nControlType = x\n", 1}};
  for (const auto& row : rows) {
    const std::string path = scratch.file(row.control + points);
    EXPECT_EQ(first_field(&Reader::CoolChannelX_ReadControlPointSetting, path), row.first)
        << row.control;
    EXPECT_EQ(first_field(&Reader::CoolChannelX_ReadPressureControlPointSetting, path), 2)
        << row.control;
  }
}

TEST(CoolChannelX, PressureControlledPointIsNotReplacedByTheOther) {
  const Scratch scratch;
  const std::string path =
      scratch.file("[Cool]\nControlType = 1\n[CoolChannel-1]\nTCP-1 = 1 0 0 0 0\n");
  EXPECT_EQ(first_field(&Reader::CoolChannelX_ReadControlPointSetting, path), -1);
}

TEST(CoolChannelX, WritersDoNotLookAtTheControlType) {
  const Scratch scratch;
  const std::string before = "[Cool]\nControlType = 1\n";
  const std::string path = scratch.file(before);
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.CoolChannelX_WriteControlPointSetting(1, 2, 3, 4, 5, 1, 1));
  EXPECT_EQ(bytes_of(path),
            before + "\n[CoolChannel-1]\n" + padded("TCP-1", "1\t2\t3\t4\t5") + "\n");
}

TEST(CoolChannelX, TimeSectionStandsUnderTimeSet) {
  const Scratch scratch;
  const std::string path =
      scratch.file("[CoolChannel-1]\nTimeSet = 1\n[CoolChannel-2]\nTimeSet = 3\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int count = 0;
  EXPECT_TRUE(reader.CoolChannelX_ReadTimeSection(count, 2));
  EXPECT_EQ(count, 3);
}

}  // namespace
}  // namespace qelpro_test
