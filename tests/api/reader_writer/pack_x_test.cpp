#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    PackX, SectionReader,
    testing::Values(
        reads(READER(PackX_ReadPackTime), "[Pack-3]", "PackTime", "121.75", 121.75, 3),
        reads(READER(PackX_ReadPackPressure), "[Pack-5]", "PackPres", "124.75", 124.75, 5),
        reads(READER(PackX_ReadPackSwitch), "[Pack-2]", "PackSwch", "127.75", 127.75, 2),
        reads(READER(PackX_ReadIgnoreLimitation), "[Pack-4]", "IgnoreLimitation", "88", 88, 4),
        reads(READER(PackX_ReadMaxEOFRatio), "[Pack-6]", "MaxEOFRatio", "133.75", 133.75, 6),
        reads(READER(PackX_ReadPPDisplayType), "[Pack-3]", "PPDisplayType", "92", 92, 3),
        reads(READER(PackX_ReadPPProfileType), "[Pack-5]", "PPProfileType", "94", 94, 5),
        reads(READER(PackX_ReadPPSection), "[Pack-2]", "PPSet", "96", 96, 2),
        reads(READER(PackX_ReadPPProfile), "[Pack-4]", "PP-9", "97.5\t970", 97.5, 970.0, 9, 4),
        reads(READER(PackX_ReadUserPPSection), "[Pack-6]", "UserPPSet", "100", 100, 6),
        reads(READER(PackX_ReadUserPPProfile), "[Pack-3]", "UserPP-6", "101.5\t1010", 101.5, 1010.0,
              6, 3)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    PackX, SectionWriter,
    testing::Values(
        writes(WRITER(PackX_WritePackTime), "[Pack-4]", "PackTime", "123.25", 123.25, 4),
        writes(WRITER(PackX_WritePackPressure), "[Pack-6]", "PackPres", "126.25", 126.25, 6),
        writes(WRITER(PackX_WritePackSwitch), "[Pack-3]", "PackSwch", "129.25", 129.25, 3),
        writes(WRITER(PackX_WriteIgnoreLimitation), "[Pack-5]", "IgnoreLimitation", "89", 89, 5),
        writes(WRITER(PackX_WriteMaxEOFRatio), "[Pack-2]", "MaxEOFRatio", "135.25", 135.25, 2),
        writes(WRITER(PackX_WritePPDisplayType), "[Pack-4]", "PPDisplayType", "93", 93, 4),
        writes(WRITER(PackX_WritePPProfileType), "[Pack-6]", "PPProfileType", "95", 95, 6),
        writes(WRITER(PackX_WritePPSection), "[Pack-3]", "PPSet", "97", 97, 3),
        writes(WRITER(PackX_WritePPProfile), "[Pack-5]", "PP-3", "98.5\t980", 98.5, 980.0, 3, 5),
        writes(WRITER(PackX_WriteUserPPSection), "[Pack-2]", "UserPPSet", "101", 101, 2),
        writes(WRITER(PackX_WriteUserPPProfile), "[Pack-4]", "UserPP-7", "102.5\t1020", 102.5,
               1020.0, 7, 4)),
    name_of_row);

TEST(PackX, ProfilePointIsTwoNumbersWithATabBetween) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.PackX_WritePPProfile(1.5, 80, 1, 2));
  EXPECT_EQ(bytes_of(path), native("\n[Pack-2]\n" + padded("PP-1", "1.5\t80") + "\n"));
}

}  // namespace
}  // namespace qelpro_test
