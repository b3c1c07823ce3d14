#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    RamPosition, SectionReader,
    testing::Values(reads(READER(RamPosition_ReadRamDirection), "[RamPosition]", "RamDir", "128", 128),
                    reads(READER(RamPosition_ReadIsVPSwitch), "[RamPosition]", "IsVPswitch", "130", 130),
                    reads(READER(RamPosition_ReadVPSwitchRamPosition), "[RamPosition]", "VPswitchRam", "196.75", 196.75),
                    reads(READER(RamPosition_ReadSuckBack), "[RamPosition]", "SuckBack", "199.75", 199.75),
                    reads(READER(RamPosition_ReadRamFRSection), "[RamPosition]", "RP_FRSet", "136", 136),
                    reads("RamPosition_ReadRamFRProfile", Taking<double&, double&, int>::of(&CQELPROReader_Manipulator::RamPosition_ReadRamFRProfile),
                          "[RamPosition]", "RP_FR-7", "137.5\t1370", 137.5, 1370.0, 7),
                    reads("RamPosition_ReadRamFRProfile", Taking<double&, int>::of(&CQELPROReader_Manipulator::RamPosition_ReadRamFRProfile),
                          "[RamPosition]", "RP_FR-8", "207.25", 207.25, 8),
                    reads("RamPosition_ReadRamIPProfile", Taking<double&, double&, int>::of(&CQELPROReader_Manipulator::RamPosition_ReadRamIPProfile),
                          "[RamPosition]", "RP_IP-4", "141.5\t1410", 141.5, 1410.0, 4),
                    reads("RamPosition_ReadRamIPProfile", Taking<double&, int>::of(&CQELPROReader_Manipulator::RamPosition_ReadRamIPProfile),
                          "[RamPosition]", "RP_IP-5", "213.25", 213.25, 5)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    RamPosition, SectionWriter,
    testing::Values(writes(WRITER(RamPosition_WriteRamDirection), "[RamPosition]", "RamDir", "129", 129),
                    writes(WRITER(RamPosition_WriteIsVPSwitch), "[RamPosition]", "IsVPswitch", "131", 131),
                    writes(WRITER(RamPosition_WriteVPSwitchRamPosition), "[RamPosition]", "VPswitchRam", "198.25", 198.25),
                    writes(WRITER(RamPosition_WriteSuckBack), "[RamPosition]", "SuckBack", "201.25", 201.25),
                    writes(WRITER(RamPosition_WriteRamFRSection), "[RamPosition]", "RP_FRSet", "137", 137),
                    writes("RamPosition_WriteRamFRProfile",
                           Taking<double, double, int>::of(&CQELPROWriter_Manipulator::RamPosition_WriteRamFRProfile), "[RamPosition]", "RP_FR-9",
                           "139.5\t1390", 139.5, 1390.0, 9),
                    writes("RamPosition_WriteRamFRProfile", Taking<double, int>::of(&CQELPROWriter_Manipulator::RamPosition_WriteRamFRProfile),
                           "[RamPosition]", "RP_FR-3", "210.25", 210.25, 3),
                    writes("RamPosition_WriteRamIPProfile",
                           Taking<double, double, int>::of(&CQELPROWriter_Manipulator::RamPosition_WriteRamIPProfile), "[RamPosition]", "RP_IP-6",
                           "143.5\t1430", 143.5, 1430.0, 6),
                    writes("RamPosition_WriteRamIPProfile", Taking<double, int>::of(&CQELPROWriter_Manipulator::RamPosition_WriteRamIPProfile),
                           "[RamPosition]", "RP_IP-7", "216.25", 216.25, 7)),
    name_of_row);

TEST(RamPosition, SingleReadGivesTheFirstNumberOfAPoint) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.RamPosition_WriteRamFRProfile(10, 20, 1) && writer.RamPosition_WriteRamIPProfile(30, 40, 1));
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
  ASSERT_TRUE(writer.RamPosition_WriteRamFRProfile(10, 20, 1) && writer.RamPosition_WriteRamFRProfile(7, 1));
  EXPECT_EQ(bytes_of(path), "\n[RamPosition]\n" + padded("RP_FR-1", "7") + "\n    ");
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
