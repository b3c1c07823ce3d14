#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    CoInjectionFlowX, SectionReader,
    testing::Values(
        reads(READER(FlowXSkin2nd_ReadFillingTime), "[Flow-5-Skin2nd]", "FillTime", "109.75",
              109.75, 5),
        reads(READER(FlowXSkin2nd_ReadFRSection), "[Flow-6-Skin2nd]", "FRSet", "75", 75, 6),
        reads(READER(FlowXSkin2nd_ReadFRProfile), "[Flow-2-Skin2nd]", "FR-8", "75.5\t750", 75.5,
              750.0, 8, 2),
        reads(READER(FlowXSkin2nd_ReadIPSection), "[Flow-3-Skin2nd]", "IPSet", "77", 77, 3),
        reads(READER(FlowXSkin2nd_ReadIPProfile), "[Flow-4-Skin2nd]", "IP-3", "77.5\t770", 77.5,
              770.0, 3, 4),
        reads(READER(FlowXSkin2nd_ReadSkin2ndEnterType), "[Flow-5-Skin2nd]", "Skin2ndEnterType",
              "79", 79, 5),
        reads(READER(FlowXSkin2nd_ReadSkin2ndEnterSwch), "[Flow-6-Skin2nd]", "Skin2ndEnterSwch",
              "118.75", 118.75, 6),
        reads(READER(FlowXSkin2nd_ReadSkin2ndEnterTime), "[Flow-2-Skin2nd]", "Skin2ndEnterTime",
              "120.25", 120.25, 2)),
    name_of_row);

TEST(CoInjectionFlowX, NeverFallsBackToTheFirstSkin) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nFillTime = 1\n[Flow-2-Skin2nd]\nFillTime = 2\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double time = -1;
  EXPECT_FALSE(reader.FlowXSkin2nd_ReadFillingTime(time, 1));
  EXPECT_EQ(time, -1);
  EXPECT_TRUE(reader.FlowXSkin2nd_ReadFillingTime(time, 2));
  EXPECT_EQ(time, 2);
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(time, 1));
  EXPECT_EQ(time, 1);
}

TEST(CoInjectionFlowX, IsWrittenRaw) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.WriteString("[Flow-1-Skin2nd]", "Skin2ndEnterTime", "1.25"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double time = 0;
  EXPECT_TRUE(reader.FlowXSkin2nd_ReadSkin2ndEnterTime(time, 1));
  EXPECT_EQ(time, 1.25);
}

}  // namespace
}  // namespace qelpro_test
