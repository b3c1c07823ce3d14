#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <utility>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    MoldTemperatureBCX, SectionReader,
    testing::Values(reads(READER(MoldTemperatureBCX_ReadName), "[MoldTemperatureBC-3]", "BCName",
                          "any text 131", "any text 131", 3),
                    reads(READER(MoldTemperatureBCX_ReadDisplayType), "[MoldTemperatureBC-4]",
                          "BCDisplayType", "133", 133, 4),
                    reads(READER(MoldTemperatureBCX_ReadNodeCount), "[MoldTemperatureBC-5]",
                          "BCNodeCount", "134", 134, 5),
                    reads(READER(MoldTemperatureBCX_ReadBCProfile), "[MoldTemperatureBC-6]", "BC-4",
                          "134.5\t1340", 134.5, 1340.0, 4, 6)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    MoldTemperatureBCX, SectionWriter,
    testing::Values(writes(WRITER(MoldTemperatureBCX_WriteName), "[MoldTemperatureBC-2]", "BCName",
                           "any text 135", "any text 135", 2),
                    writes(WRITER(MoldTemperatureBCX_WriteDisplayType), "[MoldTemperatureBC-3]",
                           "BCDisplayType", "137", 137, 3),
                    writes(WRITER(MoldTemperatureBCX_WriteNodeCount), "[MoldTemperatureBC-4]",
                           "BCNodeCount", "138", 138, 4),
                    writes(WRITER(MoldTemperatureBCX_WriteBCProfile), "[MoldTemperatureBC-5]",
                           "BC-8", "138.5\t1380", 138.5, 1380.0, 8, 5)),
    name_of_row);

constexpr const char* kHeader = "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n";

struct Header {
  int first = -1;
  std::string name = "(none)";
  int second = -1;
};

Header header(Reader& reader, int line) {
  Header read;
  char* name = nullptr;
  if (reader.MoldTemperatureBCX_ReadBC(read.first, name, read.second, line)) {
    read.name = name != nullptr ? name : "(null)";
  }
  return read;
}

void expect_header(const std::string& line, int first, const char* name, int second) {
  const Scratch scratch;
  const std::string path = scratch.file("[A]\nx = 1\n" + (kHeader + line) + "\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  const Header read = header(reader, 1);
  EXPECT_EQ(read.first, first) << line;
  EXPECT_EQ(read.name, name) << line;
  EXPECT_EQ(read.second, second) << line;
}

TEST(BoundaryConditionHeader, NameMayHoldBlanks) {
  expect_header("5\tCavity Surface A\t1", 5, "Cavity Surface A", 1);
  expect_header("5 Cavity  Surface\tA 1", 5, "Cavity  Surface\tA", 1);
  expect_header("5 Core 1", 5, "Core", 1);
}

TEST(BoundaryConditionHeader, FieldsThatTheLineLacksAreZero) {
  expect_header("5 Core", 5, "Core", 0);
  expect_header("5", 5, "", 0);
  expect_header("Core", 0, "", 0);
}

TEST(BoundaryConditionHeader, LinesCountFromOne) {
  const Scratch scratch;
  const std::string path = scratch.file(std::string("[A]\n") + kHeader + "1 One 1\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_EQ(header(reader, 0).first, -1);
  EXPECT_EQ(header(reader, -1).first, -1);
  EXPECT_EQ(header(reader, 2).first, -1);
  Reader fresh;
  ASSERT_TRUE(fresh.SetFilePath(path.c_str()));
  EXPECT_EQ(header(fresh, 1).first, 1);
}

TEST(BoundaryConditionHeader, SecondLookupOfOneReaderGivesTheFirstLineAgain) {
  const Scratch scratch;
  const std::string path = scratch.file(std::string("[A]\n") + kHeader + "1 One 1\n2 Two 2\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_EQ(header(reader, 2).name, "Two");
  EXPECT_EQ(header(reader, 1).name, "Two");
}

TEST(BoundaryConditionHeader, EveryLineIsReadThroughALentStream) {
  const Scratch scratch;
  const std::string path =
      scratch.file(std::string("[A]\n") + kHeader + "1 One 1\n2 Two 2\n3 Three 3\n");
  std::FILE* stream = std::fopen(path.c_str(), "r");
  ASSERT_NE(stream, nullptr);
  {
    Reader reader;
    ASSERT_TRUE(reader.SetFilePtr(stream));
    EXPECT_EQ(header(reader, 2).name, "Two");
    EXPECT_EQ(header(reader, 1).name, "One");
    EXPECT_EQ(header(reader, 3).name, "Three");
    EXPECT_EQ(header(reader, 4).first, -1);
  }
  std::fclose(stream);
}

TEST(BoundaryConditionHeader, LinesAreWrittenOneBelowTheOther) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char top[] = "Top Side";
  char side[] = "Side";
  EXPECT_TRUE(writer.MoldTemperatureBCX_WriteBC(3, top, 0, 1));
  EXPECT_TRUE(writer.MoldTemperatureBCX_WriteBC(2, side, 1, 2));
  EXPECT_TRUE(writer.MoldTemperatureBCX_WriteBCSetting(40, 60, 1, 1, 2));
  EXPECT_EQ(bytes_of(path),
            native("\n" + (kHeader + std::string("3\tTop Side\t0\n2\tSide\t1\n1 = 40\t60\n"))));
  EXPECT_TRUE(writer.MoldTemperatureBCX_WriteBC(4, side, 5, 1));
  EXPECT_EQ(bytes_of(path),
            native("\n" + (kHeader + std::string("4\tSide\t5\n2\tSide\t1\n1 = 40\t60\n    "))));
}

TEST(BoundaryConditionHeader, IsNotWrittenBelowLineOne) {
  const Scratch scratch;
  const std::string path = scratch.file("[A]\n");
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char name[] = "Top";
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBC(1, name, 0, 0));
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBC(1, name, 0, -1));
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBC(1, nullptr, 0, 1));
  EXPECT_EQ(bytes_of(path), "[A]\n");
}

std::string settings() {
  return std::string("[A]\nx = 1\n") + kHeader +
         "3\tTop\t0\n2\tSide\t0\n1 = 10\t11\n1 = 20\t21\n1 = 30\t31\n2 = 40\t41\n2 = 50\t51\n";
}

TEST(BoundaryConditionSetting, LiesAfterTheHeadersAndTheSettingsBefore) {
  const Scratch scratch;
  const std::string path = scratch.file(settings());
  const struct {
    int p;
    int q;
    double a;
  } rows[] = {{1, 2, 40}, {1, 1, 10}, {3, 1, 30}, {2, 2, 50}};
  for (const auto& row : rows) {
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    double a = -1;
    double b = -1;
    EXPECT_TRUE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, row.p, row.q, 2));
    EXPECT_EQ(a, row.a);
    EXPECT_EQ(b, row.a + 1);
  }
}

TEST(BoundaryConditionSetting, IsReadAgainAndAgainByOneReaderAndThroughALentStream) {
  const Scratch scratch;
  const std::string path = scratch.file(settings());
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double a = -1;
  double b = -1;
  EXPECT_TRUE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, 1, 2, 2));
  EXPECT_EQ(a, 40);
  EXPECT_TRUE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, 2, 1, 2));
  EXPECT_EQ(a, 20);
  std::FILE* stream = std::fopen(path.c_str(), "r");
  ASSERT_NE(stream, nullptr);
  {
    Reader lent;
    ASSERT_TRUE(lent.SetFilePtr(stream));
    EXPECT_TRUE(lent.MoldTemperatureBCX_ReadBCSetting(a, b, 2, 2, 2));
    EXPECT_EQ(a, 50);
  }
  std::fclose(stream);
}

TEST(BoundaryConditionSetting, NeedsPositiveNumbersAndEveryHeader) {
  const Scratch scratch;
  const std::string path = scratch.file(settings());
  for (const auto& [p, q] : {std::pair(0, 1), {1, 0}, {-1, 1}, {1, -1}, {1, 30}, {9, 1}}) {
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    double a = -1;
    double b = -1;
    EXPECT_FALSE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, p, q, 2)) << p << ' ' << q;
    EXPECT_EQ(a, -1);
    EXPECT_EQ(b, -1);
  }
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBCSetting(1, 2, 0, 1, 2));
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBCSetting(1, 2, 1, 0, 2));
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBCSetting(1, 2, 1, 30, 2));
  EXPECT_EQ(bytes_of(path), settings());
}

TEST(BoundaryConditionSetting, IsWrittenWithTheNumberOfItsBoundaryCondition) {
  const Scratch scratch;
  const std::string path = scratch.file(settings());
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.MoldTemperatureBCX_WriteBCSetting(77, 78, 2, 2, 2));
  std::string expected = settings();
  expected.replace(expected.find("2 = 50\t51"), 9, "2 = 77\t78");
  EXPECT_EQ(bytes_of(path), expected);
}

TEST(BoundaryConditionSetting, TakesAnyCharacterForTheEqualsSign) {
  const Scratch scratch;
  const std::string path = scratch.file(std::string("[A]\n") + kHeader + "1 One 1\n1 : 10 11\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double a = -1;
  double b = -1;
  EXPECT_TRUE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, 1, 1, 1));
  EXPECT_EQ(a, 10);
  EXPECT_EQ(b, 11);
}

// A section of two conditions with no settings of the second, and another section after it.
std::string settings_before_another_section() {
  return std::string("[A]\nx = 1\n") + kHeader +
         "1\tTop\t0\n1\tSide\t0\n1 = 10\t11\n[Cool]\n7 = 8 9\n2 = 40\t41\n";
}

// Over the path and over a lent stream.
void expect_no_setting(const std::string& path, int p, int q, int r) {
  std::FILE* stream = std::fopen(path.c_str(), "r");
  ASSERT_NE(stream, nullptr);
  {
    Reader reader;
    Reader lent;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()) && lent.SetFilePtr(stream));
    for (Reader* each : {&reader, &lent}) {
      double a = -1;
      double b = -1;
      EXPECT_FALSE(each->MoldTemperatureBCX_ReadBCSetting(a, b, p, q, r))
          << p << ' ' << q << ' ' << r;
      EXPECT_EQ(a, -1);
      EXPECT_EQ(b, -1);
    }
  }
  std::fclose(stream);
}

TEST(BoundaryConditionSetting, IsNotFoundAfterTheNextHeader) {
  const Scratch scratch;
  const std::string path = scratch.file(settings_before_another_section());
  expect_no_setting(path, 1, 2, 2);
  expect_no_setting(path, 2, 2, 2);
  expect_no_setting(path, 3, 2, 2);
  expect_no_setting(path, 1, 1, 3);
}

TEST(BoundaryConditionSetting, TakesNoHeaderLineFromALaterSection) {
  const Scratch scratch;
  const std::string path = scratch.file(settings_before_another_section());
  expect_no_setting(path, 1, 5, -2);
  expect_no_setting(path, 1, 6, -8);
  const std::string before = bytes_of(path);
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBCSetting(1, 2, 1, 5, -2));
  EXPECT_EQ(bytes_of(path), before);
}

TEST(BoundaryConditionSetting, EndsAtAHeaderWithWordsAfterItToo) {
  const Scratch scratch;
  for (const char* header : {"[Cool] note", "[Cool Section]", "[Cool]\t# 7"}) {
    std::string contents = settings_before_another_section();
    contents.replace(contents.find("[Cool]"), 6, header);
    const std::string path = scratch.file(contents);
    expect_no_setting(path, 1, 2, 2);
    expect_no_setting(path, 1, 5, -2);
    Writer writer;
    ASSERT_TRUE(writer.SetFilePath(path.c_str()));
    EXPECT_TRUE(writer.MoldTemperatureBCX_WriteBCSetting(40, 60, 1, 2, 2));
    contents.insert(contents.find(header), "2 = 40\t60\n");
    EXPECT_EQ(bytes_of(path), contents);
  }
  std::string entry = settings_before_another_section();
  entry.replace(entry.find("[Cool]"), 6, "[7] = 1 2");
  const std::string path = scratch.file(entry);
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double a = -1;
  double b = -1;
  EXPECT_TRUE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, 2, 2, 2))
      << "no header, but a line like any other";
  EXPECT_EQ(a, 8);
}

TEST(BoundaryConditionSetting, AfterTheLastLineBecomesTheSectionsNewLastLine) {
  const Scratch scratch;
  const std::string path = scratch.file(settings_before_another_section());
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.MoldTemperatureBCX_WriteBCSetting(40, 60, 9, 2, 2));
  std::string expected = settings_before_another_section();
  expected.insert(expected.find("[Cool]"), "2 = 40\t60\n");
  EXPECT_EQ(bytes_of(path), expected);
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double a = -1;
  double b = -1;
  EXPECT_TRUE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, 1, 2, 2));
  EXPECT_EQ(a, 40);
  EXPECT_EQ(b, 60);
}

TEST(BoundaryConditionBlock, RenamesItselfForTheRestOfTheSession) {
  const Scratch scratch;
  const std::string path = scratch.file(settings() + "[MoldTemperatureBC-1]\nBCName = Top\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* name = nullptr;
  ASSERT_TRUE(reader.MoldTemperatureBCX_ReadName(name, 1));
  EXPECT_STREQ(name, "Top");
  EXPECT_EQ(header(reader, 1).first, -1);
  double a = -1;
  double b = -1;
  EXPECT_FALSE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, 1, 1, 2));
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_EQ(header(reader, 1).first, -1) << "a new file, the same session";
  Reader fresh;
  ASSERT_TRUE(fresh.SetFilePath(path.c_str()));
  EXPECT_EQ(header(fresh, 1).name, "Top");
}

TEST(BoundaryConditionBlock, WritesANewPositionalSectionOnceItIsRenamed) {
  const Scratch scratch;
  const std::string path = scratch.file(settings());
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.MoldTemperatureBCX_WriteNodeCount(7, 1));
  const std::string before = bytes_of(path);
  char name[] = "New";
  EXPECT_TRUE(writer.MoldTemperatureBCX_WriteBC(9, name, 8, 1));
  EXPECT_EQ(bytes_of(path), before + "\n" + kHeader + "9\tNew\t8\n");
}

TEST(BoundaryConditionBlock, PositionalMembersFailWhereNoFileCouldBeOpened) {
  const Scratch scratch;
  const std::string path = scratch.path("missing/file.pro");
  Reader reader;
  EXPECT_FALSE(reader.SetFilePath(path.c_str()));
  EXPECT_EQ(header(reader, 1).first, -1);
  double a = -1;
  double b = -1;
  EXPECT_FALSE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, 1, 1, 1));
  EXPECT_EQ(a, -1);
  Writer writer;
  EXPECT_FALSE(writer.SetFilePath(path.c_str()));
  char name[] = "Top";
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBC(1, name, 2, 1));
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBCSetting(1, 2, 1, 1, 1));
}

TEST(BoundaryConditionSetting, OfNumbersBeyondAllLinesIsNotThere) {
  const Scratch scratch;
  const std::string contents =
      std::string("[A]\n") + kHeader + "2147483647\tTop\t0\n2147483647\tSide\t0\n";
  const std::string path = scratch.file(contents);
  Reader reader;
  Writer writer;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()) && writer.SetFilePath(path.c_str()));
  double a = -1;
  double b = -1;
  EXPECT_FALSE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, 2147483647, 3, 2147483647));
  EXPECT_FALSE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, 1, 1, -5));
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBCSetting(a, b, 2147483647, 3, 2147483647));
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBCSetting(a, b, 1, 1, -5));
  EXPECT_EQ(a, -1);
  EXPECT_EQ(bytes_of(path), contents);
}

TEST(BoundaryConditionBlock, PositionalMembersNeedAFile) {
  Reader reader;
  EXPECT_EQ(header(reader, 1).first, -1);
  double a = -1;
  double b = -1;
  EXPECT_FALSE(reader.MoldTemperatureBCX_ReadBCSetting(a, b, 1, 1, 1));
  Writer writer;
  char name[] = "Top";
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBC(1, name, 2, 1));
  EXPECT_FALSE(writer.MoldTemperatureBCX_WriteBCSetting(1, 2, 1, 1, 1));
}

}  // namespace
}  // namespace qelpro_test
