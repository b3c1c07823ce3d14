#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    GateValveX, SectionReader,
    testing::Values(reads(READER(GeteValveX_ReadValveGateID), "[GateValve-2]", "GCId", "96", 96, 2),
                    reads(READER(GateValveX_ReadControlPoint), "[GateValve-3]", "GCSet", "97", 97,
                          3),
                    zeroing(reads("GateValveX_ReadGateSetting",
                                  Taking<double&, int&, int&, int, int>::of(
                                      &CQELPROReader_Manipulator::GateValveX_ReadGateSetting),
                                  "[GateValve-4]", "GC-9", "5.5\t1\t2\t7", 5.5, 1, 2, 9, 4)),
                    zeroing(reads("GateValveX_ReadGateSetting",
                                  Taking<double&, int&, int&, int&, int, int>::of(
                                      &CQELPROReader_Manipulator::GateValveX_ReadGateSetting),
                                  "[GateValve-5]", "GC-3", "5.5\t1\t3\t118", 5.5, 1, 3, 118, 3, 5)),
                    zeroing(reads("GateValveX_ReadGateSetting",
                                  Taking<double&, int&, int&, int&, int, int>::of(
                                      &CQELPROReader_Manipulator::GateValveX_ReadGateSetting),
                                  "[GateValve-6]", "GC-4", "5.5\t1\t4\t7", 5.5, 1, 4, -1, 4, 6)),
                    zeroing(reads("GateValveX_ReadGateSetting",
                                  Taking<double&, int&, int&, int&, int, int>::of(
                                      &CQELPROReader_Manipulator::GateValveX_ReadGateSetting),
                                  "[GateValve-2]", "GC-5", "5.5 1 1", 5.5, 1, 1, -1, 5, 2)),
                    zeroing(reads("GateValveX_ReadGateSetting",
                                  Taking<double&, int&, int&, int&, int, int>::of(
                                      &CQELPROReader_Manipulator::GateValveX_ReadGateSetting),
                                  "[GateValve-3]", "GC-6", "5.5 1 2", 5.5, 1, 2, 0, 6, 3))),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(GateValveX, SectionWriter,
                         testing::Values(writes(WRITER(GateValveX_WriteGateValveID),
                                                "[GateValve-4]", "GCId", "103", 103, 4),
                                         writes(WRITER(GateValveX_WriteControlPoint),
                                                "[GateValve-5]", "GCSet", "104", 104, 5)),
                         name_of_row);

class GateSetting : public testing::Test {
 protected:
  void begin(const std::string& contents) {
    path_ = scratch_.file(contents);
    ASSERT_TRUE(writer_.SetFilePath(path_.c_str()));
  }
  [[nodiscard]] std::string bytes() const { return bytes_of(path_); }

  Scratch scratch_;
  std::string path_;
  Writer writer_;
};

TEST_F(GateSetting, FirstPointNeedsNoCount) {
  begin("");
  EXPECT_TRUE(writer_.GateValveX_WriteGateSetting(5.5, 1, 2, 1, 1));
  EXPECT_EQ(bytes(), native("\n[GateValve-1]\nGC-1 = 5.5\t1\t2\n"));
}

TEST_F(GateSetting, CountGrowsWithThePointsAndNeverShrinks) {
  begin("[GateValve-1]\nGC-1 = 0 0 1\n");
  EXPECT_TRUE(writer_.GateValveX_WriteGateSetting(5.5, 1, 2, 1, 1));
  EXPECT_EQ(bytes().find("GCSet"), std::string::npos);
  EXPECT_TRUE(writer_.GateValveX_WriteGateSetting(6.5, 1, 2, 3, 1));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path_.c_str()));
  int count = 0;
  EXPECT_TRUE(reader.GateValveX_ReadControlPoint(count, 1));
  EXPECT_EQ(count, 3);
  const std::string with_three = bytes();
  EXPECT_TRUE(writer_.GateValveX_WriteGateSetting(7.5, 1, 2, 2, 1));
  Reader again;
  ASSERT_TRUE(again.SetFilePath(path_.c_str()));
  EXPECT_TRUE(again.GateValveX_ReadControlPoint(count, 1));
  EXPECT_EQ(count, 3);
}

TEST_F(GateSetting, IsPutInThePlaceOfItsLineAndOfNoLongerKey) {
  begin("[GateValve-1]\nGCSet = 10\nGC-10 = 1\t1\t1\nGC-1 = 2\t2\t2\n[Other]\nx = 1\n");
  EXPECT_TRUE(writer_.GateValveX_WriteGateSetting(5.5, 1, 2, 1, 1));
  EXPECT_EQ(bytes(),
            "[GateValve-1]\nGCSet = 10\nGC-10 = 1\t1\t1\nGC-1 = 5.5\t1\t2\n[Other]\nx = 1\n");
}

TEST_F(GateSetting, ModeSaysHowManyFieldsAreWritten) {
  const struct {
    int mode;
    const char* text;
  } rows[] = {{1, "5.5\t1\t1"},
              {2, "5.5\t1\t2\t118"},
              {3, "5.5\t1\t3\t118"},
              {4, "5.5\t1\t4"},
              {0, ""},
              {5, ""},
              {-1, ""}};
  for (const auto& row : rows) {
    begin("");
    EXPECT_TRUE(writer_.GateValveX_WriteGateSetting(5.5, 1, row.mode, 118, 1, 2)) << row.mode;
    EXPECT_EQ(bytes(), native("\n[GateValve-2]\nGC-1 = " + std::string(row.text) + "\n"))
        << row.mode;
    begin("[Summary]\nTotalGateCTL = 1\n[GateValve-1]\nGCId = 9\n");
    EXPECT_TRUE(writer_.GateValveX_WriteGateSettingByValveGateID(5.5, 1, row.mode, 118, 1, 9))
        << row.mode;
    EXPECT_NE(bytes().find("GC-1 = " + std::string(row.text) + "\n"), std::string::npos) << bytes();
  }
}

TEST_F(GateSetting, PointOfAnUnknownModeReadsBackAsZeros) {
  begin("");
  ASSERT_TRUE(writer_.GateValveX_WriteGateSetting(5.5, 1, 0, 118, 1, 1));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path_.c_str()));
  double value = -1;
  int second = -1;
  int mode = -1;
  int fourth = -1;
  EXPECT_TRUE(reader.GateValveX_ReadGateSetting(value, second, mode, fourth, 1, 1));
  EXPECT_EQ(value, 0);
  EXPECT_EQ(second, 0);
  EXPECT_EQ(mode, 0);
  EXPECT_EQ(fourth, 0);
}

TEST_F(GateSetting, ThreeFieldsAreWrittenWhateverTheMode) {
  begin("");
  EXPECT_TRUE(writer_.GateValveX_WriteGateSetting(5.5, 1, 7, 1, 1));
  EXPECT_EQ(bytes(), native("\n[GateValve-1]\nGC-1 = 5.5\t1\t7\n"));
}

TEST_F(GateSetting, RealHasAnExponentOfThreeDigits) {
  begin("");
  EXPECT_TRUE(writer_.GateValveX_WriteGateSetting(1.5e-7, 1, 1, 1, 1));
  EXPECT_EQ(bytes(), native("\n[GateValve-1]\nGC-1 = 1.5e-007\t1\t1\n"));
}

TEST_F(GateSetting, ByIdentifierGoesToTheValveThatBearsIt) {
  const std::string before =
      "[Summary]\nTotalGateCTL = 2\n[GateValve-1]\nGCId = 4\n[GateValve-2]\nGCId = 9\n";
  begin(before);
  EXPECT_TRUE(writer_.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 1, 9));
  EXPECT_NE(bytes().find("[GateValve-2]\nGCId = 9\nGC-1 = 5.5\t1\t2"), std::string::npos)
      << bytes();
  EXPECT_EQ(bytes().find("GCSet"), std::string::npos);
  EXPECT_TRUE(writer_.GateValveX_WriteGateSettingByValveGateID(6.5, 1, 2, 2, 9));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path_.c_str()));
  int count = 0;
  EXPECT_TRUE(reader.GateValveX_ReadControlPoint(count, 2));
  EXPECT_EQ(count, 2);
  EXPECT_FALSE(reader.GateValveX_ReadControlPoint(count, 1));
}

TEST_F(GateSetting, ByAnUnknownIdentifierChangesNothing) {
  for (const char* before :
       {"[Summary]\nTotalGateCTL = 1\n[GateValve-1]\nGCId = 4\n[GateValve-2]\nGCId = 9\n",
        "[GateValve-2]\nGCId = 9\n", "[Summary]\nTotalGateCTL = 0\n[GateValve-1]\nGCId = 9\n",
        "[Summary]\nTotalGateCTL = -3\n[GateValve-1]\nGCId = 9\n"}) {
    begin(before);
    EXPECT_FALSE(writer_.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 1, 9)) << before;
    EXPECT_FALSE(writer_.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 118, 1, 9)) << before;
    EXPECT_EQ(bytes(), before);
  }
}

TEST_F(GateSetting, ByIdentifierZeroGoesToTheFirstValveWithoutOne) {
  begin(
      "[Summary]\nTotalGateCTL = 3\n[GateValve-1]\nGCId = 4\n[GateValve-2]\nGCSet = "
      "1\n[GateValve-3]\nGCId = 0\n");
  EXPECT_TRUE(writer_.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 1, 0));
  EXPECT_NE(bytes().find("[GateValve-2]\nGCSet = 1\nGC-1 = 5.5\t1\t2"), std::string::npos)
      << bytes();
}

TEST_F(GateSetting, ByIdentifierZeroIsUnknownWhereEveryValveBearsOne) {
  const std::string before =
      "[Summary]\nTotalGateCTL = 2\n[GateValve-1]\nGCId = 4\n[GateValve-2]\nGCId = 9\n";
  begin(before);
  EXPECT_FALSE(writer_.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 1, 0));
  EXPECT_EQ(bytes(), before);
}

TEST_F(GateSetting, IsNotWrittenWhereNoFileCouldBeOpened) {
  EXPECT_FALSE(writer_.SetFilePath(scratch_.path("missing/file.pro").c_str()));
  EXPECT_FALSE(writer_.GateValveX_WriteGateSetting(5.5, 1, 2, 1, 1));
  EXPECT_FALSE(writer_.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 1, 0));
  EXPECT_FALSE(exists(scratch_.path("missing")));
}

constexpr const char* kFivePoints =
    "[Summary]\nTotalGateCTL = 1\n[GateValve-1]\nGCId = 9\nGCSet = 5\n";

TEST_F(GateSetting, IsCountedInTheFileItIsWrittenIntoAfterAPathThatFailed) {
  begin(kFivePoints);
  EXPECT_FALSE(writer_.SetFilePath(scratch_.path("missing/file.pro").c_str()));
  EXPECT_TRUE(writer_.GateValveX_WriteGateSetting(5.5, 1, 2, 3, 1));
  EXPECT_TRUE(writer_.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 4, 9));
  EXPECT_NE(bytes().find("\nGCSet = 5\n"), std::string::npos) << bytes();
}

TEST_F(GateSetting, IsCountedInTheFileItIsWrittenIntoThroughACopyToo) {
  const std::string other = scratch_.file(kFivePoints, "other.pro");
  begin("[GateValve-1]\nGCSet = 1\n");
  Writer copy = writer_;
  ASSERT_TRUE(writer_.SetFilePath(other.c_str()));
  EXPECT_TRUE(copy.GateValveX_WriteGateSetting(5.5, 1, 2, 3, 1)) << "copies share the file";
  EXPECT_EQ(bytes_of(other), std::string(kFivePoints) + "GC-3 = 5.5\t1\t2\n");
  EXPECT_EQ(bytes(), "[GateValve-1]\nGCSet = 1\n");
}

TEST_F(GateSetting, ByIdentifierSeesWhatTheSameWriterWroteBefore) {
  begin("");
  ASSERT_TRUE(writer_.Summary_WriteTotalValveGate(2) && writer_.GateValveX_WriteGateValveID(3, 1) &&
              writer_.GateValveX_WriteGateValveID(8, 2));
  EXPECT_TRUE(writer_.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 1, 8));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path_.c_str()));
  double value = 0;
  int second = 0;
  int mode = 0;
  EXPECT_TRUE(reader.GateValveX_ReadGateSetting(value, second, mode, 1, 2));
  EXPECT_EQ(value, 5.5);
}

TEST_F(GateSetting, HugeTotalsCostNoMoreThanTheFile) {
  begin("[Summary]\nTotalGateCTL = 2000000000\n[GateValve-1]\nGCId = 4\n");
  EXPECT_FALSE(writer_.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 1, 9));
  EXPECT_TRUE(writer_.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 1, 0));
  EXPECT_NE(bytes().find("[GateValve-2]"), std::string::npos);
}

TEST_F(GateSetting, NeedsAFile) {
  Writer none;
  EXPECT_FALSE(none.GateValveX_WriteGateSetting(5.5, 1, 2, 1, 1));
  EXPECT_FALSE(none.GateValveX_WriteGateSetting(5.5, 1, 2, 118, 1, 1));
  EXPECT_FALSE(none.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 1, 1));
  EXPECT_FALSE(none.GateValveX_WriteGateSettingByValveGateID(5.5, 1, 2, 118, 1, 1));
}

}  // namespace
}  // namespace qelpro_test
