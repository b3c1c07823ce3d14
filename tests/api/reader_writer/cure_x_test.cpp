#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    CureX, SectionReader,
    testing::Values(
        reads(READER(CureX_ReadCureTime), "[Cure-5]", "CureTime", "154.75", 154.75, 5),
        reads(READER(CureX_ReadCurePressure), "[Cure-2]", "CurePres", "157.75", 157.75, 2),
        reads(READER(CureX_ReadCureTemperature), "[Cure-4]", "CureTemp", "160.75", 160.75, 4),
        reads(READER(CureX_ReadCureSwitch), "[Cure-5]", "CureSwch", "162.25", 162.25, 5),
        reads(READER(CureX_ReadCPDisplayType), "[Cure-2]", "CPDisplayType", "111", 111, 2),
        reads(READER(CureX_ReadCPProfileType), "[Cure-4]", "PPProfileType", "113", 113, 4),
        reads(READER(CureX_ReadCPSection), "[Cure-6]", "CPSet", "115", 115, 6),
        reads(READER(CureX_ReadCPProfile), "[Cure-3]", "CP-7", "116.5\t1160", 116.5, 1160.0, 7, 3),
        reads(READER(CureX_ReadUserCPSection), "[Cure-5]", "UserCPSet", "119", 119, 5),
        reads(READER(CureX_ReadUserCPProfile), "[Cure-2]", "UserCP-4", "120.5\t1200", 120.5, 1200.0,
              4, 2),
        reads(READER(CureX_ReadCTDisplayType), "[Cure-4]", "CTDisplayType", "123", 123, 4),
        reads(READER(CureX_ReadCTProfileType), "[Cure-5]", "CTProfileType", "124", 124, 5),
        reads(READER(CureX_ReadCTSection), "[Cure-6]", "CTSet", "125", 125, 6),
        reads(READER(CureX_ReadCTProfile), "[Cure-2]", "CT-9", "125.5\t1250", 125.5, 1250.0, 9, 2),
        reads(READER(CureX_ReadUserCTSection), "[Cure-3]", "UserCTSet", "127", 127, 3),
        reads(READER(CureX_ReadUserCTProfile), "[Cure-4]", "UserCT-4", "127.5\t1270", 127.5, 1270.0,
              4, 4)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    CureX, SectionWriter,
    testing::Values(
        writes(WRITER(CureX_WriteCureTime), "[Cure-6]", "CureTime", "156.25", 156.25, 6),
        writes(WRITER(CureX_WriteCurePressure), "[Cure-3]", "CurePres", "159.25", 159.25, 3),
        writes(WRITER(CureX_WriteCureSwitch), "[Cure-6]", "CureSwch", "163.75", 163.75, 6),
        writes(WRITER(CureX_WriteCPDisplayType), "[Cure-3]", "CPDisplayType", "112", 112, 3),
        writes(WRITER(CureX_WriteCPProfileType), "[Cure-5]", "PPProfileType", "114", 114, 5),
        writes(WRITER(CureX_WriteCPSection), "[Cure-2]", "CPSet", "116", 116, 2),
        writes(WRITER(CureX_WriteCPProfile), "[Cure-4]", "CP-8", "117.5\t1170", 117.5, 1170.0, 8,
               4),
        writes(WRITER(CureX_WriteUserCPSection), "[Cure-6]", "UserCPSet", "120", 120, 6),
        writes(WRITER(CureX_WriteUserCPProfile), "[Cure-3]", "UserCP-5", "121.5\t1210", 121.5,
               1210.0, 5, 3)),
    name_of_row);

TEST(CureX, ProfileTypeStandsUnderTheKeyOfPacking) {
  const Scratch scratch;
  const std::string path = scratch.file("[Pack-1]\nPPProfileType = 1\n");
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.CureX_WriteCPProfileType(2, 1));
  EXPECT_EQ(bytes_of(path),
            "[Pack-1]\nPPProfileType = 1\n\n[Cure-1]\n" + padded("PPProfileType", "2") + "\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int type = 0;
  EXPECT_TRUE(reader.PackX_ReadPPProfileType(type, 1));
  EXPECT_EQ(type, 1);
  EXPECT_TRUE(reader.CureX_ReadCPProfileType(type, 1));
  EXPECT_EQ(type, 2);
}

TEST(CureX, KeyNamedAfterTheCuringProfileIsNotRead) {
  const Scratch scratch;
  const std::string path = scratch.file("[Cure-1]\nCPProfileType = 2\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int type = -1;
  EXPECT_FALSE(reader.CureX_ReadCPProfileType(type, 1));
  EXPECT_EQ(type, -1);
}

TEST(CureX, TemperatureProfileComesFromOtherPrograms) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.WriteString("[Cure-1]", "CTSet", "1") &&
              writer.WriteItems("[Cure-1]", "CT-1", "%g %g", 2.5, 175.0));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int count = 0;
  double x = 0;
  double y = 0;
  EXPECT_TRUE(reader.CureX_ReadCTSection(count, 1));
  EXPECT_TRUE(reader.CureX_ReadCTProfile(x, y, 1, 1));
  EXPECT_EQ(count, 1);
  EXPECT_EQ(x, 2.5);
  EXPECT_EQ(y, 175);
}

}  // namespace
}  // namespace qelpro_test
