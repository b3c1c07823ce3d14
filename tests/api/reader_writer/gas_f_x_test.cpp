#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    GasFX, SectionReader,
    testing::Values(
        reads(READER(GasFX_ReadGasTime), "[GasF-5]", "GasTime", "222.25", 222.25, 5),
        reads(READER(GasFX_ReadGasPressure), "[GasF-2]", "GasPres", "225.25", 225.25, 2),
        reads(READER(GasFX_ReadGasSwitch), "[GasF-4]", "GasSwch", "228.25", 228.25, 4),
        reads(READER(GasFX_ReadDelayTime), "[GasF-6]", "DelayTime", "231.25", 231.25, 6),
        reads(READER(GasFX_ReadGRDisplayType), "[GasF-3]", "GRDisplayType", "157", 157, 3),
        reads(READER(GasFX_ReadGRProfileType), "[GasF-5]", "GRProfileType", "159", 159, 5),
        reads(READER(GasFX_ReadGPDisplayType), "[GasF-2]", "GPDisplayType", "161", 161, 2),
        reads(READER(GasFX_ReadGPProfileType), "[GasF-4]", "GPProfileType", "163", 163, 4),
        reads(READER(GasFX_ReadGRSection), "[GasF-6]", "GRSet", "165", 165, 6),
        reads(READER(GasFX_ReadGRProfile), "[GasF-2]", "GR-7", "165.5\t1650", 165.5, 1650.0, 7, 2),
        reads(READER(GasFX_ReadUserGRSection), "[GasF-5]", "GRSet", "169", 169, 5),
        reads(READER(GasFX_ReadUserGRProfile), "[GasF-6]", "GR-4", "169.5\t1690", 169.5, 1690.0, 4,
              6),
        reads(READER(GasFX_ReadGPSection), "[GasF-4]", "GPSet", "173", 173, 4),
        reads(READER(GasFX_ReadGPProfile), "[GasF-5]", "GP-8", "173.5\t1730", 173.5, 1730.0, 8, 5),
        reads(READER(GasFX_ReadUserGPSection), "[GasF-3]", "GPSet", "177", 177, 3),
        reads(READER(GasFX_ReadUserGPProfile), "[GasF-4]", "GP-5", "177.5\t1770", 177.5, 1770.0, 5,
              4)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    GasFX, SectionWriter,
    testing::Values(
        writes(WRITER(GasFX_WriteGasTime), "[GasF-6]", "GasTime", "223.75", 223.75, 6),
        writes(WRITER(GasFX_WriteGasPressure), "[GasF-3]", "GasPres", "226.75", 226.75, 3),
        writes(WRITER(GasFX_WriteGasSwitch), "[GasF-5]", "GasSwch", "229.75", 229.75, 5),
        writes(WRITER(GasFX_WriteDelayTime), "[GasF-2]", "DelayTime", "232.75", 232.75, 2),
        writes(WRITER(GasFX_WriteGRDisplayType), "[GasF-4]", "GRDisplayType", "158", 158, 4),
        writes(WRITER(GasFX_WriteGRProfileType), "[GasF-6]", "GRProfileType", "160", 160, 6),
        writes(WRITER(GasFX_WriteGPDisplayType), "[GasF-3]", "GPDisplayType", "162", 162, 3),
        writes(WRITER(GasFX_WriteGPProfileType), "[GasF-5]", "GPProfileType", "164", 164, 5),
        writes(WRITER(GasFX_WriteGRSection), "[GasF-3]", "GRSet", "167", 167, 3),
        writes(WRITER(GasFX_WriteGRProfile), "[GasF-4]", "GR-9", "167.5\t1670", 167.5, 1670.0, 9,
               4),
        writes(WRITER(GasFX_WriteUserGRSection), "[GasF-2]", "UserGRSet", "171", 171, 2),
        writes(WRITER(GasFX_WriteUserGRProfile), "[GasF-3]", "UserGR-6", "171.5\t1710", 171.5,
               1710.0, 6, 3),
        writes(WRITER(GasFX_WriteGPSection), "[GasF-6]", "GPSet", "175", 175, 6),
        writes(WRITER(GasFX_WriteGPProfile), "[GasF-2]", "GP-3", "175.5\t1750", 175.5, 1750.0, 3,
               2),
        writes(WRITER(GasFX_WriteUserGPSection), "[GasF-5]", "UserGPSet", "179", 179, 5),
        writes(WRITER(GasFX_WriteUserGPProfile), "[GasF-6]", "USerGP-7", "179.5\t1790", 179.5,
               1790.0, 7, 6)),
    name_of_row);

TEST(GasFX, UserReadersReadThePlainKeysWhateverTheUserWritersWrote) {
  const Scratch scratch;
  const std::string path = scratch.file("[GasF-1]\nGPSet = 4\nGP-1 = 5 6\nGRSet = 7\nGR-1 = 8 9\n");
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.GasFX_WriteUserGPProfile(1, 2, 1, 1) &&
              writer.GasFX_WriteUserGPSection(1, 1) &&
              writer.GasFX_WriteUserGRProfile(1, 2, 1, 1) && writer.GasFX_WriteUserGRSection(1, 1));
  EXPECT_EQ(bytes_of(path),
            "[GasF-1]\nGPSet = 4\nGP-1 = 5 6\nGRSet = 7\nGR-1 = 8 9\nUSerGP-1 = 1\t2\nUserGPSet = "
            "1\nUserGR-1 = 1\t2\nUserGRSet = 1\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double x = 0;
  double y = 0;
  int count = 0;
  EXPECT_TRUE(reader.GasFX_ReadUserGPProfile(x, y, 1, 1));
  EXPECT_EQ(x, 5);
  EXPECT_EQ(y, 6);
  EXPECT_TRUE(reader.GasFX_ReadUserGRProfile(x, y, 1, 1));
  EXPECT_EQ(x, 8);
  EXPECT_EQ(y, 9);
  EXPECT_TRUE(reader.GasFX_ReadUserGPSection(count, 1));
  EXPECT_EQ(count, 4);
  EXPECT_TRUE(reader.GasFX_ReadUserGRSection(count, 1));
  EXPECT_EQ(count, 7);
}

TEST(GasFX, BothCountReadersAgreeOnEveryFile) {
  const Scratch scratch;
  for (const char* contents :
       {"[GasF-1]\nGRSet = 3\nUserGRSet = 5\n", "[GasF-1]\nUserGRSet = 5\n", ""}) {
    const std::string path = scratch.file(contents);
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    int count = -1;
    int user = -1;
    EXPECT_EQ(reader.GasFX_ReadGRSection(count, 1), reader.GasFX_ReadUserGRSection(user, 1))
        << contents;
    EXPECT_EQ(count, user) << contents;
  }
}

}  // namespace
}  // namespace qelpro_test
