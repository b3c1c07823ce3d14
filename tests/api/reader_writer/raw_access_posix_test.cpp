#include <filesystem>
#include <string>

#include "support/raw_access.h"

namespace qelpro_test {
namespace {

TEST_F(RawAccess, ReadStringFindsAFileThatWasReplacedByAnother) {
  const std::string path = scratch_.file(kFile);
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  std::filesystem::rename(scratch_.file("[Flow-2]\nFillTime = 4.5\n", "new.pro"), path);
  EXPECT_EQ(read_string(reader, "[Flow-2]", "FillTime"), "4.5");
}

TEST_F(RawAccess, SectionMembersKeepTheFileThatWasOpenedUntilThePathIsSetAgain) {
  const std::string path = scratch_.file("[Flow-2]\nFillTime = 2.5\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  std::filesystem::rename(scratch_.file("[Flow-2]\nFillTime = 4.5\n", "new.pro"), path);
  double time = 0;
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(time, 2));
  EXPECT_EQ(time, 2.5);
  EXPECT_EQ(read_string(reader, "[Flow-2]", "FillTime"), "4.5");
  EXPECT_EQ(read_value(reader, "[Flow-2]", "FillTime"), "4.5");
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(time, 2));
  EXPECT_EQ(time, 4.5);
}

// What was learnt of the file that stood there before stands in this one, too, in a section that is
// not the first of its name any more.
TEST_F(RawAccess, LearnsAFileAnewThatTookTheOthersPlace) {
  const std::string path = scratch_.file("[Flow-1]\nFillTime = 1.5\n[Flow-2]\nFillTime = 2.5\n");
  Reader reader;
  double time = 0;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(time, 2));
  EXPECT_EQ(time, 2.5);
  std::filesystem::rename(
      scratch_.file("[Flow-2]\nFillTime = 3.5\n[Flow-2]\nFillTime = 2.5\n", "new.pro"), path);
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(time, 2));
  EXPECT_EQ(time, 3.5);
}

TEST_F(RawAccess, FailsOnAFileThatIsGone) {
  const std::string path = scratch_.file(kFile);
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  std::filesystem::remove(path);
  EXPECT_EQ(read_string(reader, "[Flow-2]", "FillTime"), "(false)");
  EXPECT_EQ(read_value(reader, "[Flow-2]", "FillTime"), "(false)");
}

TEST_F(RawAccess, WritesItemsWithThePlatformsOwnExponent) {
  const std::string path = scratch_.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.WriteItems("[A]", "Small", "%e", 1.5e-7));
  EXPECT_EQ(bytes_of(path), "\n[A]\nSmall                = 1.500000e-07\n");
}

}  // namespace
}  // namespace qelpro_test
