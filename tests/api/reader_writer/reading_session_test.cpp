#include "support/raw_access.h"

// One lookup has one answer, whatever the session was asked before, and whoever wrote meanwhile.

namespace qelpro_test {
namespace {

class ReadingSession : public RawAccess {
 protected:
  void open(const std::string& contents) {
    path_ = scratch_.file(contents);
    ASSERT_TRUE(reader_.SetFilePath(path_.c_str()));
  }

  std::string path_;
  Reader reader_;
};

TEST_F(ReadingSession, FindsTheSameLineBeforeAndAfterOtherKeys) {
  open("[Flow-1]\nFillTime\nMeltTemp = 200\nFillTime = 2\n");
  double time = 7;
  double melt = 0;
  EXPECT_TRUE(reader_.FlowX_ReadFillingTime(time, 1));
  EXPECT_EQ(time, 7) << "the first line of the key has no value";
  EXPECT_TRUE(reader_.FlowX_ReadMeltTemperature(melt, 1));
  EXPECT_TRUE(reader_.FlowX_ReadFillingTime(time, 1));
  EXPECT_EQ(time, 7);
}

TEST_F(ReadingSession, FindsTheSameBoundaryConditionAgain) {
  open("\n[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n  x = 1\n2 name 3\n4 other 5\n");
  int first = 0;
  int second = 0;
  char* name = nullptr;
  for (int time = 0; time < 2; ++time) {
    ASSERT_TRUE(reader_.MoldTemperatureBCX_ReadBC(first, name, second, 3));
    EXPECT_EQ(first, 4);
    EXPECT_STREQ(name, "other");
    EXPECT_EQ(second, 5);
  }
}

TEST_F(ReadingSession, ReadsWhatStandsInTheFileAfterAStoreOfTheSameProgram) {
  open(
      "[Flow-1]\nMaterial = a\nFillTime = 1\nMeltTemp = 200\n[Flow-2]\nFillTime = 2\nMeltTemp = "
      "300\n");
  double time = 0;
  double melt = 0;
  ASSERT_TRUE(reader_.FlowX_ReadFillingTime(time, 1));
  ASSERT_TRUE(reader_.FlowX_ReadMeltTemperature(melt, 1));
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path_.c_str()));
  ASSERT_TRUE(writer.WriteString("[Flow-1]", "Material", "another, whose name is longer"));
  time = melt = 0;
  EXPECT_TRUE(reader_.FlowX_ReadMeltTemperature(melt, 1));
  EXPECT_EQ(melt, 200);
  EXPECT_TRUE(reader_.FlowX_ReadFillingTime(time, 1));
  EXPECT_EQ(time, 1);
}

TEST_F(ReadingSession, ReadsWhatAnotherProgramMadeOfTheFile) {
  open("[Flow-1]\nMaterial = a\nFillTime = 1\nMeltTemp = 200\n");
  double time = 0;
  double melt = 0;
  ASSERT_TRUE(reader_.FlowX_ReadFillingTime(time, 1));
  ASSERT_TRUE(reader_.FlowX_ReadMeltTemperature(melt, 1));
  put_bytes(path_, "[Flow-1]\nMaterial = longer\nFillTime = 3\nMeltTemp = 400\n");
  EXPECT_TRUE(reader_.FlowX_ReadMeltTemperature(melt, 1));
  EXPECT_EQ(melt, 400);
  EXPECT_TRUE(reader_.FlowX_ReadFillingTime(time, 1));
  EXPECT_EQ(time, 3);
}

}  // namespace
}  // namespace qelpro_test
