#include "support/raw_access.h"

// A header with words after it is a header for readers and writers alike, so that no store lands
// where nobody finds it.

namespace qelpro_test {
namespace {

class WordsAfterHeaders : public RawAccess {
 protected:
  Writer& writing(const std::string& contents) {
    path_ = scratch_.file(contents);
    EXPECT_TRUE(writer_.SetFilePath(path_.c_str()));
    return writer_;
  }
  // What a new reader finds, of inlets; -1 for nothing.
  double filling_time(int inlet) {
    Reader reader;
    double time = -1;
    EXPECT_TRUE(reader.SetFilePath(path_.c_str()));
    reader.FlowX_ReadFillingTime(time, inlet);
    return time;
  }

  char name_[2] = "B";
  std::string path_;
  Writer writer_;
};

TEST_F(WordsAfterHeaders, HaveAStoreFoundByANewReader) {
  EXPECT_TRUE(writing("[Flow-1] # first inlet\nFillTime = 1\n").FlowX_WriteFillingTime(5, 1));
  EXPECT_EQ(filling_time(1), 5);
}

TEST_F(WordsAfterHeaders, KeepTheKeysOfTwoInletsApart) {
  Writer& writer = writing("[Flow-1] # a\nMeltTemp = 1\n[Flow-2] # b\nMeltTemp = 2\n");
  EXPECT_TRUE(writer.FlowX_WriteFillingTime(5, 1));
  EXPECT_EQ(bytes_of(path_),
            "[Flow-1] # a\nMeltTemp = 1\nFillTime = 5\n[Flow-2] # b\nMeltTemp = 2\n");
  EXPECT_TRUE(writer.FlowX_WriteMeltTemperature(6, 2));
  EXPECT_EQ(filling_time(1), 5);
  EXPECT_EQ(filling_time(2), -1);
}

TEST_F(WordsAfterHeaders, BoundThePositionalSection) {
  Writer& writer =
      writing("[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n[Cool] note\nCoolTime = 5\n");
  EXPECT_TRUE(writer.MoldTemperatureBCX_WriteBC(1, name_, 0, 2));
  EXPECT_EQ(bytes_of(path_),
            "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1\tB\t0\n[Cool] note\nCoolTime = 5\n");
}

TEST_F(WordsAfterHeaders, MayFollowThePositionalSectionsOwnBrackets) {
  Writer& writer = writing("\n[SURFACE ELEMENT BOUNDARY CONDITION NAME] # by hand\n1\tA\t0\n");
  EXPECT_TRUE(writer.MoldTemperatureBCX_WriteBC(2, name_, 0, 2));
  Reader reader;
  int first = 0;
  int second = 0;
  char* name = nullptr;
  ASSERT_TRUE(reader.SetFilePath(path_.c_str()));
  ASSERT_TRUE(reader.MoldTemperatureBCX_ReadBC(first, name, second, 2));
  EXPECT_EQ(first, 2);
}

TEST_F(WordsAfterHeaders, LeaveAGateItsControlPoints) {
  Writer& writer = writing("[GateValve-1] note\nGCSet = 5\n");
  EXPECT_TRUE(writer.GateValveX_WriteGateSetting(1.5, 1, 2, 3, 1));
  Reader reader;
  int points = 0;
  ASSERT_TRUE(reader.SetFilePath(path_.c_str()));
  EXPECT_TRUE(reader.GateValveX_ReadControlPoint(points, 1));
  EXPECT_EQ(points, 5);
}

TEST_F(WordsAfterHeaders, MakeNoHeaderOfAnEntryWithAnOddKey) {
  Writer& writer = writing("[Flow-1] = 3\nFillTime = 1\n");
  EXPECT_TRUE(writer.FlowX_WriteFillingTime(5, 1)) << "in a section of its own";
  EXPECT_EQ(filling_time(1), 5);
}

TEST_F(WordsAfterHeaders, AreRefusedAsNames) {
  Writer& writer = writing("Unit\nk = 1\n[A]\nk = 1\n");
  EXPECT_FALSE(writer.WriteString("Unit", "k", "2"));
  EXPECT_FALSE(writer.WriteString("[A]", "[B]", "1"));
  EXPECT_FALSE(writer.WriteItems("[A]", "[B]", "%d", 1));
  EXPECT_EQ(bytes_of(path_), "Unit\nk = 1\n[A]\nk = 1\n");
}

}  // namespace
}  // namespace qelpro_test
