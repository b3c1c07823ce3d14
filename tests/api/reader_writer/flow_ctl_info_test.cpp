#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    FlowCTLInfo, SectionReader,
    testing::Values(
        reads(READER(FlowCTLInfo_ReadTotalInlet), "[FlowCTLInfo]", "TotalInlet", "2", 2),
        zeroing(reads(READER(FlowCTLInfo_ReadFlowCTL), "[FlowCTLInfo]", "FlowCTL-1", "1 3", 1, 3,
                      1)),
        zeroing(reads(READER(FlowCTLInfo_ReadFlowCTL), "[FlowCTLInfo]", "FlowCTL-2", "-4\t5", -4, 5,
                      2)),
        zeroing(reads(READER(FlowCTLInfo_ReadFlowCTL), "[FlowCTLInfo]", "FlowCTL-3", "1", 1, 0, 3)),
        zeroing(reads(READER(FlowCTLInfo_ReadFlowCTL), "[FlowCTLInfo]", "FlowCTL-4", "6.5 7", 6, 0,
                      4)),
        zeroing(reads(READER(FlowCTLInfo_ReadFlowCTL), "[FlowCTLInfo]", "FlowCTL-0", "8 9", 8, 9,
                      0)),
        zeroing(reads(READER(FlowCTLInfo_ReadFlowCTL), "[FlowCTLInfo]", "FlowCTL--1", "8 9", 8, 9,
                      -1))),
    name_of_row);

TEST(FlowCTLInfo, KeyWithABracketIsNotTheInletsKey) {
  const Scratch scratch;
  const std::string path = scratch.file("[FlowCTLInfo]\nFlowCTL-1] = 1 2\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int first = 7;
  int second = 8;
  EXPECT_FALSE(reader.FlowCTLInfo_ReadFlowCTL(first, second, 1));
  EXPECT_EQ(first, 7);
  EXPECT_EQ(second, 8);
}

TEST(FlowCTLInfo, EntriesAreWrittenRaw) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.WriteString("[FlowCTLInfo]", "TotalInlet", "1"));
  ASSERT_TRUE(writer.WriteItems("[FlowCTLInfo]", "FlowCTL-1", "%d %d", 2, 4));
  EXPECT_EQ(bytes_of(path), native("\n[FlowCTLInfo]\nTotalInlet           = 1\nFlowCTL-1 = 2 4\n"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int total = 0;
  int first = 0;
  int second = 0;
  EXPECT_TRUE(reader.FlowCTLInfo_ReadTotalInlet(total));
  EXPECT_TRUE(reader.FlowCTLInfo_ReadFlowCTL(first, second, 1));
  EXPECT_EQ(total, 1);
  EXPECT_EQ(first, 2);
  EXPECT_EQ(second, 4);
}

}  // namespace
}  // namespace qelpro_test
