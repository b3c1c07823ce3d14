#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(GasFX, SectionReader,
                         testing::Values(reads(READER(GasFX_ReadGasTime), "[GasF-2]", "GasTime", "217.75", 217.75, 2),
                                         reads(READER(GasFX_ReadGasPressure), "[GasF-4]", "GasPres", "220.75", 220.75, 4),
                                         reads(READER(GasFX_ReadGasSwitch), "[GasF-6]", "GasSwch", "223.75", 223.75, 6),
                                         reads(READER(GasFX_ReadDelayTime), "[GasF-3]", "DelayTime", "226.75", 226.75, 3),
                                         reads(READER(GasFX_ReadGRDisplayType), "[GasF-5]", "GRDisplayType", "154", 154, 5),
                                         reads(READER(GasFX_ReadGRProfileType), "[GasF-2]", "GRProfileType", "156", 156, 2),
                                         reads(READER(GasFX_ReadGPDisplayType), "[GasF-4]", "GPDisplayType", "158", 158, 4),
                                         reads(READER(GasFX_ReadGPProfileType), "[GasF-6]", "GPProfileType", "160", 160, 6),
                                         reads(READER(GasFX_ReadGRSection), "[GasF-3]", "GRSet", "162", 162, 3),
                                         reads(READER(GasFX_ReadGRProfile), "[GasF-4]", "GR-4", "162.5\t1620", 162.5, 1620.0, 4, 4),
                                         reads(READER(GasFX_ReadUserGRSection), "[GasF-2]", "GRSet", "166", 166, 2),
                                         reads(READER(GasFX_ReadUserGRProfile), "[GasF-3]", "GR-8", "166.5\t1660", 166.5, 1660.0, 8, 3),
                                         reads(READER(GasFX_ReadGPSection), "[GasF-6]", "GPSet", "170", 170, 6),
                                         reads(READER(GasFX_ReadGPProfile), "[GasF-2]", "GP-5", "170.5\t1700", 170.5, 1700.0, 5, 2),
                                         reads(READER(GasFX_ReadUserGPSection), "[GasF-5]", "GPSet", "174", 174, 5),
                                         reads(READER(GasFX_ReadUserGPProfile), "[GasF-6]", "GP-9", "174.5\t1740", 174.5, 1740.0, 9, 6)),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(GasFX, SectionWriter,
                         testing::Values(writes(WRITER(GasFX_WriteGasTime), "[GasF-3]", "GasTime", "219.25", 219.25, 3),
                                         writes(WRITER(GasFX_WriteGasPressure), "[GasF-5]", "GasPres", "222.25", 222.25, 5),
                                         writes(WRITER(GasFX_WriteGasSwitch), "[GasF-2]", "GasSwch", "225.25", 225.25, 2),
                                         writes(WRITER(GasFX_WriteDelayTime), "[GasF-4]", "DelayTime", "228.25", 228.25, 4),
                                         writes(WRITER(GasFX_WriteGRDisplayType), "[GasF-6]", "GRDisplayType", "155", 155, 6),
                                         writes(WRITER(GasFX_WriteGRProfileType), "[GasF-3]", "GRProfileType", "157", 157, 3),
                                         writes(WRITER(GasFX_WriteGPDisplayType), "[GasF-5]", "GPDisplayType", "159", 159, 5),
                                         writes(WRITER(GasFX_WriteGPProfileType), "[GasF-2]", "GPProfileType", "161", 161, 2),
                                         writes(WRITER(GasFX_WriteGRSection), "[GasF-5]", "GRSet", "164", 164, 5),
                                         writes(WRITER(GasFX_WriteGRProfile), "[GasF-6]", "GR-6", "164.5\t1640", 164.5, 1640.0, 6, 6),
                                         writes(WRITER(GasFX_WriteUserGRSection), "[GasF-4]", "UserGRSet", "168", 168, 4),
                                         writes(WRITER(GasFX_WriteUserGRProfile), "[GasF-5]", "UserGR-3", "168.5\t1680", 168.5, 1680.0, 3, 5),
                                         writes(WRITER(GasFX_WriteGPSection), "[GasF-3]", "GPSet", "172", 172, 3),
                                         writes(WRITER(GasFX_WriteGPProfile), "[GasF-4]", "GP-7", "172.5\t1720", 172.5, 1720.0, 7, 4),
                                         writes(WRITER(GasFX_WriteUserGPSection), "[GasF-2]", "UserGPSet", "176", 176, 2),
                                         writes(WRITER(GasFX_WriteUserGPProfile), "[GasF-3]", "USerGP-4", "176.5\t1760", 176.5, 1760.0, 4, 3)),
                         name_of_row);

TEST(GasFX, UserReadersReadThePlainKeysWhateverTheUserWritersWrote) {
  const Scratch scratch;
  const std::string path = scratch.file("[GasF-1]\nGPSet = 4\nGP-1 = 5 6\nGRSet = 7\nGR-1 = 8 9\n");
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.GasFX_WriteUserGPProfile(1, 2, 1, 1) && writer.GasFX_WriteUserGPSection(1, 1) && writer.GasFX_WriteUserGRProfile(1, 2, 1, 1) &&
              writer.GasFX_WriteUserGRSection(1, 1));
  EXPECT_EQ(bytes_of(path),
            "[GasF-1]\nGPSet = 4\nGP-1 = 5 6\nGRSet = 7\nGR-1 = 8 9\nUSerGP-1 = 1\t2\nUserGPSet = 1\nUserGR-1 = 1\t2\nUserGRSet = 1\n");
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
  for (const char* contents : {"[GasF-1]\nGRSet = 3\nUserGRSet = 5\n", "[GasF-1]\nUserGRSet = 5\n", ""}) {
    const std::string path = scratch.file(contents);
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    int count = -1;
    int user = -1;
    EXPECT_EQ(reader.GasFX_ReadGRSection(count, 1), reader.GasFX_ReadUserGRSection(user, 1)) << contents;
    EXPECT_EQ(count, user) << contents;
  }
}

}  // namespace
}  // namespace qelpro_test
