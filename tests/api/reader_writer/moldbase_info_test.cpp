#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(MoldbaseInfo, SectionReader,
                         testing::Values(reads(READER(MoldbaseInfo_ReadMoldbaseInfo),
                                               "[MoldbaseInfo]", "MB-3", "3\t\"Base A\"", 3,
                                               "Base A", 3)),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(MoldbaseInfo, SectionWriter,
                         testing::Values(writes(WRITER(MoldbaseInfo_WriteMoldbaseInfo),
                                                "[MoldbaseInfo]", "MB-4", "3\t\"Base A\"", 3,
                                                "Base A", 4)),
                         name_of_row);

TEST(MoldbaseInfo, NameStandsBetweenTheFirstAndTheLastQuote) {
  const Scratch scratch;
  const struct {
    const char* text;
    int number;
    const char* name;
  } rows[] = {
      {"3\t\"Base A\"", 3, "Base A"}, {"4 \"a \"b\" c\" tail", 4, "a \"b\" c"}, {"5 \"\"", 5, ""}};
  for (const auto& row : rows) {
    const std::string path = scratch.file("[MoldbaseInfo]\nMB-1 = " + std::string(row.text) + "\n");
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    int number = -1;
    char* name = nullptr;
    EXPECT_TRUE(reader.MoldbaseInfo_ReadMoldbaseInfo(number, name, 1));
    EXPECT_EQ(number, row.number) << row.text;
    EXPECT_STREQ(name, row.name) << row.text;
  }
}

TEST(MoldbaseInfo, NameWithoutTwoQuotesIsEmpty) {
  const Scratch scratch;
  for (const char* text : {"6", "6 \"half", ""}) {
    const std::string path = scratch.file("[MoldbaseInfo]\nMB-1 = " + std::string(text) + "\n");
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    int number = -1;
    char* name = nullptr;
    EXPECT_TRUE(reader.MoldbaseInfo_ReadMoldbaseInfo(number, name, 1));
    EXPECT_STREQ(name, "") << text;
  }
}

}  // namespace
}  // namespace qelpro_test
