#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(PartInsertContactAngle, SectionReader,
                         testing::Values(reads(READER(PartInsertContactAngle_ReadGroupCount), "[PartInsertContactAngle]", "GroupCount", "130", 130)),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(PartInsertContactAngle, SectionWriter,
                         testing::Values(writes(WRITER(PartInsertContactAngle_WriteGroupCount), "[PartInsertContactAngle]", "GroupCount", "131", 131),
                                         writes(WRITER(PartInsertContactAngle_WriteGroup), "[PartInsertContactAngle]", "2", "\"Rib A\"\t40.5", 2,
                                                "Rib A", 40.5)),
                         name_of_row);

class ContactAngle : public testing::Test {
 protected:
  void open(const std::string& entries) {
    path_ = scratch_.file("[PartInsertContactAngle]\n" + entries);
    ASSERT_TRUE(reader_.SetFilePath(path_.c_str()));
  }
  double by_number(int group) {
    double angle = -1;
    const bool done = reader_.PartInsertContactAngle_ReadAngle(group, angle);
    EXPECT_TRUE(done || angle == -1) << "the output of a failed read";
    return angle;
  }
  double by_name(const char* name) {
    double angle = -1;
    const bool done = reader_.PartInsertContactAngle_ReadAngle(name, angle);
    EXPECT_TRUE(done || angle == -1) << "the output of a failed read";
    return angle;
  }

  Scratch scratch_;
  std::string path_;
  Reader reader_;
};

TEST_F(ContactAngle, StandsBehindTheQuotedName) {
  open("1 = \"Group A\"\t35.5\n2 =  \"x\"\t\v\f 40 deg\n3 = text \"\" 7 \"8\"\n");
  EXPECT_EQ(by_number(1), 35.5);
  EXPECT_EQ(by_number(2), 40);
  EXPECT_EQ(by_number(3), 7);
}

TEST_F(ContactAngle, TextThatIsNoNumberIsZero) {
  open("1 = \"A\" steep\n2 = \"B\"\n");
  EXPECT_EQ(by_number(1), 0);
  EXPECT_EQ(by_number(2), 0);
}

TEST_F(ContactAngle, NeedsTwoQuotes) {
  open("GroupCount = 3\n1 = 35\n2 = \"A 35\n3 = \"B\" 5\n");
  EXPECT_EQ(by_number(1), -1);
  EXPECT_EQ(by_number(2), -1);
  EXPECT_EQ(by_number(3), 5);
  EXPECT_EQ(by_name("B"), -1) << "a line without two quotes ends the search";
}

TEST_F(ContactAngle, IsFoundByNameUpToTheCount) {
  Writer writer;
  path_ = scratch_.path();
  ASSERT_TRUE(writer.SetFilePath(path_.c_str()));
  ASSERT_TRUE(writer.PartInsertContactAngle_WriteGroupCount(1) && writer.PartInsertContactAngle_WriteGroup(1, "Boss", 30) &&
              writer.PartInsertContactAngle_WriteGroup(2, "Rib", 40));
  ASSERT_TRUE(reader_.SetFilePath(path_.c_str()));
  EXPECT_EQ(by_name("Rib"), -1);
  EXPECT_EQ(by_name("Boss"), 30);
  ASSERT_TRUE(writer.PartInsertContactAngle_WriteGroupCount(2));
  Reader again;
  ASSERT_TRUE(again.SetFilePath(path_.c_str()));
  double angle = 0;
  EXPECT_TRUE(again.PartInsertContactAngle_ReadAngle("Rib", angle));
  EXPECT_EQ(angle, 40);
}

TEST_F(ContactAngle, NameIsComparedWholeAndByCase) {
  open("GroupCount = 3\n1 = \"Rib\"\t1\n2 = \"Rib \"\t2\n3 = \"Rib B\"\t3\n");
  EXPECT_EQ(by_name("rib"), -1);
  EXPECT_EQ(by_name("Ri"), -1);
  EXPECT_EQ(by_name(""), -1);
  EXPECT_EQ(by_name("Rib "), 2);
  EXPECT_EQ(by_name("Rib B"), 3);
}

TEST_F(ContactAngle, FirstGroupOfTheNameCounts) {
  open("GroupCount = 2\n1 = \"Rib\"\t1\n2 = \"Rib\"\t2\n");
  EXPECT_EQ(by_name("Rib"), 1);
}

TEST_F(ContactAngle, MissingGroupEndsTheSearch) {
  open("GroupCount = 3\n1 = \"A\"\t1\n3 = \"C\"\t3\n");
  EXPECT_EQ(by_name("A"), 1);
  EXPECT_EQ(by_name("C"), -1);
}

TEST_F(ContactAngle, NeedsACountForASearchByName) {
  for (const char* count : {"", "GroupCount = 0\n", "GroupCount = -4\n", "GroupCount = many\n"}) {
    open(std::string(count) + "1 = \"A\"\t1\n");
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path_.c_str()));
    double angle = -1;
    EXPECT_FALSE(reader.PartInsertContactAngle_ReadAngle("A", angle)) << count;
    EXPECT_EQ(angle, -1);
  }
}

TEST_F(ContactAngle, HugeCountsCostNoMoreThanTheFile) {
  open("GroupCount = 2147483647\n1 = \"A\"\t1\n2 = \"B\"\t2\n");
  EXPECT_EQ(by_name("Z"), -1);
  EXPECT_EQ(by_name("B"), 2);
}

TEST_F(ContactAngle, NullIsNoName) {
  open("GroupCount = 1\n1 = \"A\"\t1\n");
  EXPECT_EQ(by_name(nullptr), -1);
}

TEST_F(ContactAngle, MissingKeySectionOrFileLeavesTheOutputAlone) {
  EXPECT_EQ(by_number(1), -1);
  EXPECT_EQ(by_name("A"), -1);
  open("GroupCount = 1\n");
  EXPECT_EQ(by_number(1), -1);
  EXPECT_EQ(by_name("A"), -1);
}

}  // namespace
}  // namespace qelpro_test
