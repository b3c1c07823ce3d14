#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    AdvancedSetting, SectionReader,
    testing::Values(reads(READER(AdvancedSetting_ReadOpenDirection), "[AdvancedSetting]",
                          "OpenDirection", "222.5\t-444\t0.125", 222.5, -444.0, 0.125),
                    reads(READER(AdvancedSetting_ReadClampForce), "[AdvancedSetting]", "ClampForce",
                          "336.25", 336.25)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    AdvancedSetting, SectionWriter,
    testing::Values(writes(WRITER(AdvancedSetting_WriteOpenDirection), "[AdvancedSetting]",
                           "OpenDirection", "223.5\t-446\t0.125", 223.5, -446.0, 0.125),
                    writes(WRITER(AdvancedSetting_WriteClampForce), "[AdvancedSetting]",
                           "ClampForce", "337.75", 337.75)),
    name_of_row);

TEST(CycleTime, IsTheNumberThatTheTextBeginsWith) {
  const Scratch scratch;
  const struct {
    const char* text;
    double time;
  } rows[] = {{"32.5", 32.5}, {"  4e1 sec", 40}, {"unknown", 0}, {"", 0}};
  for (const auto& row : rows) {
    const std::string path = scratch.file(
        "[AdvancedSetting]\nCycleTime = " + std::string(row.text) + "\n[Other]\nCycleTime = 9\n");
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    double time = -1;
    EXPECT_TRUE(reader.AdvancedSetting_ReadCycleTime(time)) << row.text;
    EXPECT_EQ(time, row.time) << row.text;
  }
}

TEST(CycleTime, IsLeftAloneWhereItIsMissing) {
  const Scratch scratch;
  double time = -1;
  Reader none;
  EXPECT_FALSE(none.AdvancedSetting_ReadCycleTime(time));
  for (const char* contents : {"", "[AdvancedSetting]\nClampForce = 3\n[Other]\nCycleTime = 9\n"}) {
    const std::string path = scratch.file(contents);
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    EXPECT_FALSE(reader.AdvancedSetting_ReadCycleTime(time));
  }
  EXPECT_EQ(time, -1);
}

TEST(CycleTime, IsReadRawAndSoSeesAChangeAtOnce) {
  const Scratch scratch;
  const std::string path = scratch.file("[AdvancedSetting]\nCycleTime = 1\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double time = 0;
  EXPECT_TRUE(reader.AdvancedSetting_ReadCycleTime(time));
  put_bytes(path, "[Other]\nx = 1\n[AdvancedSetting]\nCycleTime = 2\n");
  EXPECT_TRUE(reader.AdvancedSetting_ReadCycleTime(time));
  EXPECT_EQ(time, 2);
  reader.CloseFile();
  EXPECT_TRUE(reader.AdvancedSetting_ReadCycleTime(time)) << "it opens the file by its path";
}

}  // namespace
}  // namespace qelpro_test
