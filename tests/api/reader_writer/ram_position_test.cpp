#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    RamPosition, SectionReader,
    testing::Values(
        reads(READER(RamPosition_ReadRamDirection), "[RamPosition]", "RamDir", "129", 129),
        reads(READER(RamPosition_ReadIsVPSwitch), "[RamPosition]", "IsVPswitch", "131", 131),
        reads(READER(RamPosition_ReadVPSwitchRamPosition), "[RamPosition]", "VPswitchRam", "198.25",
              198.25),
        reads(READER(RamPosition_ReadSuckBack), "[RamPosition]", "SuckBack", "201.25", 201.25),
        reads(READER(RamPosition_ReadRamFRSection), "[RamPosition]", "RP_FRSet", "137", 137),
        reads(READER(RamPosition_ReadRamIPSection), "[RamPosition]", "RP_IPSet", "139", 139),
        reads("RamPosition_ReadRamFRProfile",
              Taking<double&, double&, int>::of(
                  &CQELPROReader_Manipulator::RamPosition_ReadRamFRProfile),
              "[RamPosition]", "RP_FR-3", "140.5\t1400", 140.5, 1400.0, 3),
        reads("RamPosition_ReadRamFRProfile",
              Taking<double&, int>::of(&CQELPROReader_Manipulator::RamPosition_ReadRamFRProfile),
              "[RamPosition]", "RP_FR-4", "211.75", 211.75, 4),
        reads("RamPosition_ReadRamIPProfile",
              Taking<double&, double&, int>::of(
                  &CQELPROReader_Manipulator::RamPosition_ReadRamIPProfile),
              "[RamPosition]", "RP_IP-7", "144.5\t1440", 144.5, 1440.0, 7),
        reads("RamPosition_ReadRamIPProfile",
              Taking<double&, int>::of(&CQELPROReader_Manipulator::RamPosition_ReadRamIPProfile),
              "[RamPosition]", "RP_IP-8", "217.75", 217.75, 8)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    RamPosition, SectionWriter,
    testing::Values(
        writes(WRITER(RamPosition_WriteRamDirection), "[RamPosition]", "RamDir", "130", 130),
        writes(WRITER(RamPosition_WriteIsVPSwitch), "[RamPosition]", "IsVPswitch", "132", 132),
        writes(WRITER(RamPosition_WriteVPSwitchRamPosition), "[RamPosition]", "VPswitchRam",
               "199.75", 199.75),
        writes(WRITER(RamPosition_WriteSuckBack), "[RamPosition]", "SuckBack", "202.75", 202.75),
        writes(WRITER(RamPosition_WriteRamFRSection), "[RamPosition]", "RP_FRSet", "138", 138),
        writes(WRITER(RamPosition_WriteRamIPSection), "[RamPosition]", "RP_IPSet", "140", 140),
        writes("RamPosition_WriteRamFRProfile",
               Taking<double, double, int>::of(
                   &CQELPROWriter_Manipulator::RamPosition_WriteRamFRProfile),
               "[RamPosition]", "RP_FR-5", "142.5\t1420", 142.5, 1420.0, 5),
        writes("RamPosition_WriteRamFRProfile",
               Taking<double, int>::of(&CQELPROWriter_Manipulator::RamPosition_WriteRamFRProfile),
               "[RamPosition]", "RP_FR-6", "214.75", 214.75, 6),
        writes("RamPosition_WriteRamIPProfile",
               Taking<double, double, int>::of(
                   &CQELPROWriter_Manipulator::RamPosition_WriteRamIPProfile),
               "[RamPosition]", "RP_IP-9", "146.5\t1460", 146.5, 1460.0, 9),
        writes("RamPosition_WriteRamIPProfile",
               Taking<double, int>::of(&CQELPROWriter_Manipulator::RamPosition_WriteRamIPProfile),
               "[RamPosition]", "RP_IP-3", "220.75", 220.75, 3)),
    name_of_row);

TEST(RamPosition, SingleReadGivesTheFirstNumberOfAPoint) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.RamPosition_WriteRamFRProfile(10, 20, 1) &&
              writer.RamPosition_WriteRamIPProfile(30, 40, 1));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double x = 0;
  EXPECT_TRUE(reader.RamPosition_ReadRamFRProfile(x, 1));
  EXPECT_EQ(x, 10);
  EXPECT_TRUE(reader.RamPosition_ReadRamIPProfile(x, 1));
  EXPECT_EQ(x, 30);
}

TEST(RamPosition, SingleWriteTakesThePlaceOfThePair) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.RamPosition_WriteRamFRProfile(10, 20, 1) &&
              writer.RamPosition_WriteRamFRProfile(7, 1));
  EXPECT_EQ(bytes_of(path), native("\n[RamPosition]\n" + padded("RP_FR-1", "7") + "\n    "));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double x = -1;
  double y = -1;
  EXPECT_TRUE(reader.RamPosition_ReadRamFRProfile(x, y, 1));
  EXPECT_EQ(x, 7);
  EXPECT_EQ(y, -1);
}

}  // namespace
}  // namespace qelpro_test
