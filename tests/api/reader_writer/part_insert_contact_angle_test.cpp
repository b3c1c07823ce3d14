#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(PartInsertContactAngle, SectionReader,
                         testing::Values(reads(READER(PartInsertContactAngle_ReadGroupCount),
                                               "[PartInsertContactAngle]", "GroupCount", "130",
                                               130)),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(
    PartInsertContactAngle, SectionWriter,
    testing::Values(writes(WRITER(PartInsertContactAngle_WriteGroupCount),
                           "[PartInsertContactAngle]", "GroupCount", "131", 131),
                    writes(WRITER(PartInsertContactAngle_WriteGroup), "[PartInsertContactAngle]",
                           "2", "\"Rib A\"\t40.5", 2, "Rib A", 40.5)),
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

TEST_F(ContactAngle, StandsAfterTheQuotedName) {
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
  ASSERT_TRUE(writer.PartInsertContactAngle_WriteGroupCount(1) &&
              writer.PartInsertContactAngle_WriteGroup(1, "Boss", 30) &&
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

TEST_F(ContactAngle, IsFoundByANameThatAnotherReadHandedOut) {
  open("GroupCount = 2\n1 = \"Boss\"\t1\n2 = \"Rib\"\t2\nChosen = Rib\n");
  char* name = nullptr;
  ASSERT_TRUE(reader_.ReadString("[PartInsertContactAngle]", "Chosen", name, nullptr, 0));
  EXPECT_EQ(by_name(name), 2);
  std::FILE* stream = std::fopen(path_.c_str(), "r");
  ASSERT_NE(stream, nullptr);
  {
    Reader lent;
    ASSERT_TRUE(lent.SetFilePtr(stream));
    ASSERT_TRUE(lent.ReadString("[PartInsertContactAngle]", "Chosen", name, nullptr, 0));
    double angle = -1;
    EXPECT_TRUE(lent.PartInsertContactAngle_ReadAngle(name, angle));
    EXPECT_EQ(angle, 2);
  }
  std::fclose(stream);
}

// The search by name as the lookups of one key after another make it.
std::optional<double> by_lookups(Reader& reader, const std::string& name) {
  const auto value = [&reader](const std::string& key) -> std::optional<std::string> {
    char* text = nullptr;
    return reader.ReadString("[PartInsertContactAngle]", key.c_str(), text, nullptr, 0)
               ? std::optional<std::string>(text)
               : std::nullopt;
  };
  const int count = std::atoi(value("GroupCount").value_or("0").c_str());
  for (int group = 1; group <= count; ++group) {
    const std::optional<std::string> text = value(std::to_string(group));
    const std::size_t open = text ? text->find('"') : std::string::npos;
    const std::size_t close =
        open != std::string::npos ? text->find('"', open + 1) : std::string::npos;
    if (close == std::string::npos) {
      return std::nullopt;
    }
    if (text->substr(open + 1, close - open - 1) == name) {
      return std::atof(text->c_str() + close + 1);
    }
  }
  return std::nullopt;
}

TEST_F(ContactAngle, IsFoundByNameAsByOneLookupAfterAnother) {
  std::mt19937 random(20261);
  const auto below = [&random](unsigned int limit) { return static_cast<int>(random() % limit); };
  int found = 0;
  for (int round = 0; round < 400; ++round) {
    std::vector<std::string> lines = {"GroupCount = " + std::to_string(below(7))};
    for (int line = below(9); line > 0; --line) {
      const std::string name(1, static_cast<char>('A' + below(4)));
      const char* const keys[] = {"", "0", "+", " "};
      lines.push_back((below(8) == 0 ? keys[below(4)] : "") + std::to_string(1 + below(6)) +
                      (below(9) == 0 ? " = A 5" : " = \"" + name + "\" ") +
                      std::to_string(10 + below(80)));
    }
    std::shuffle(lines.begin(), lines.end(), random);
    if (below(3) == 0) {
      lines.insert(lines.begin() + below(static_cast<unsigned int>(lines.size())), "[Later]");
    }
    std::string contents = "1 = \"A\" 1\n[PartInsertContactAngle]\n";
    for (const std::string& line : lines) {
      contents += line + "\n";
    }
    const std::string path = scratch_.file(contents);
    std::FILE* stream = std::fopen(path.c_str(), "r");
    ASSERT_NE(stream, nullptr);
    {
      Reader lent;
      Reader held;
      ASSERT_TRUE(lent.SetFilePtr(stream) && held.SetFilePath(path.c_str()));
      for (const char* name : {"A", "B", "C", "D", "E"}) {
        for (Reader* reader : {&lent, &held}) {
          double angle = -1;
          const std::optional<double> expected = by_lookups(*reader, name);
          EXPECT_EQ(reader->PartInsertContactAngle_ReadAngle(name, angle), expected.has_value())
              << name << " in\n"
              << contents;
          EXPECT_EQ(angle, expected.value_or(-1)) << name << " in\n" << contents;
          found += expected ? 1 : 0;
        }
      }
    }
    std::fclose(stream);
  }
  EXPECT_GT(found, 200);
}

TEST_F(ContactAngle, SearchForAnAbsentNameReadsALentStreamOnce) {
  constexpr int kGroups = 30000;
  std::string entries = "GroupCount = " + std::to_string(kGroups) + "\n";
  for (int group = kGroups; group > 0; --group) {
    entries += std::to_string(group) + " = \"Group " + std::to_string(group) + "\"\t40\n";
  }
  open(entries);
  std::FILE* stream = std::fopen(path_.c_str(), "r");
  ASSERT_NE(stream, nullptr);
  {
    Reader lent;
    ASSERT_TRUE(lent.SetFilePtr(stream));
    const auto begin = std::chrono::steady_clock::now();
    double angle = -1;
    EXPECT_FALSE(lent.PartInsertContactAngle_ReadAngle("Absent", angle));
    EXPECT_FALSE(reader_.PartInsertContactAngle_ReadAngle("Absent", angle));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(8))
        << "a scan for each group takes minutes";
    EXPECT_TRUE(lent.PartInsertContactAngle_ReadAngle("Group 29999", angle));
  }
  std::fclose(stream);
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
