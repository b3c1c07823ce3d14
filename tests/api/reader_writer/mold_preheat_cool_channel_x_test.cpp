#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    MoldPreheatCoolChannelX, SectionReader,
    testing::Values(reads(READER(MoldPreheat_CoolChannelX_ReadDiameter), "[MPreheat_CoolChannel-4]",
                          "Diameter", "408.25", 408.25, 4),
                    reads(READER(MoldPreheat_CoolChannelX_ReadGroupID), "[MPreheat_CoolChannel-5]",
                          "GroupID", "274", 274, 5),
                    reads(READER(MoldPreheat_CoolChannelX_ReadTimeSection),
                          "[MPreheat_CoolChannel-6]", "TimeSet", "275", 275, 6),
                    zeroing(reads(READER(MoldPreheat_CoolChannelX_ReadControlPointSetting),
                                  "[MPreheat_CoolChannel-2]", "TCP-5", "0.5\t2\t60\t8.5\t1", 0.5, 2,
                                  60.0, 8.5, 1, 5, 2)),
                    zeroing(reads(READER(MoldPreheat_CoolChannelX_ReadPressureControlPointSetting),
                                  "[MPreheat_CoolChannel-3]", "TCPP-6", "0.5\t2\t60\t8.5\t1", 0.5,
                                  2, 60.0, 8.5, 1, 6, 3))),
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

TEST(MoldPreheatCoolChannelX, ControlPointIsChosenByTheControlTypeOfPreheating) {
  const Scratch scratch;
  const std::string points =
      "[CoolChannel-1]\nTCP-1 = 1 0 0 0 0\nTCPP-1 = 2 0 0 0 0\n[MPreheat_CoolChannel-1]\nTCP-1 = 3 "
      "0 0 0 0\nTCPP-1 = 4 0 0 0 0\n";
  const std::string preheat_by_pressure =
      scratch.file("[MoldPreheat]\nControlType = 1\n[Cool]\nControlType = 0\n" + points, "a.pro");
  EXPECT_EQ(
      first_field(&Reader::MoldPreheat_CoolChannelX_ReadControlPointSetting, preheat_by_pressure),
      4);
  EXPECT_EQ(first_field(&Reader::CoolChannelX_ReadControlPointSetting, preheat_by_pressure), 1);
  const std::string cool_by_pressure =
      scratch.file("[MoldPreheat]\nControlType = 0\n[Cool]\nControlType = 1\n" + points, "b.pro");
  EXPECT_EQ(
      first_field(&Reader::MoldPreheat_CoolChannelX_ReadControlPointSetting, cool_by_pressure), 3);
  EXPECT_EQ(first_field(&Reader::CoolChannelX_ReadControlPointSetting, cool_by_pressure), 2);
  EXPECT_EQ(first_field(&Reader::MoldPreheat_CoolChannelX_ReadPressureControlPointSetting,
                        cool_by_pressure),
            4);
}

TEST(MoldPreheatCoolChannelX, IsApartFromTheCoolingChannels) {
  const Scratch scratch;
  const std::string path = scratch.file(
      "[CoolChannel-2]\nDiameter = 8\n[MPreheat_CoolChannel-2]\nDiameter = "
      "10\n[CoolChannel-3]\nDiameter = 6\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double diameter = 0;
  EXPECT_TRUE(reader.MoldPreheat_CoolChannelX_ReadDiameter(diameter, 2));
  EXPECT_EQ(diameter, 10);
  EXPECT_FALSE(reader.MoldPreheat_CoolChannelX_ReadDiameter(diameter, 3));
}

}  // namespace
}  // namespace qelpro_test
