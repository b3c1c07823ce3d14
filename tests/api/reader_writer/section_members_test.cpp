#include "support/section_members.h"
#include "support/line_break.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "support/scratch.h"

// What every section member does. The section test files instantiate these with their rows.

namespace qelpro_test {

namespace {

using Outcome = ReaderRow::Outcome;
using Given = WriterRow::Given;

// Entries that a careless search would take for the key's.
std::string lookalikes(const ReaderRow& row) {
  return padded(row.key + "0", row.text) + "\n " + padded(row.key, row.text) + "\nx" +
         padded(row.key, row.text) + "\n";
}

TEST_P(SectionReader, ReadsTheEntryOfItsSection) {
  const ReaderRow& row = GetParam();
  const Scratch scratch;
  const std::string path =
      scratch.file("[Before]\n" + padded(row.key, "81") + "\n" + row.section + "\n" +
                   lookalikes(row) + padded(row.key, row.text) + "\n" + padded(row.key, "82") +
                   "\n[Behind]\n" + padded(row.key, "83") + "\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_TRUE(row.call(reader, Outcome::read));
  EXPECT_TRUE(row.call(reader, Outcome::read)) << "the second time";
}

TEST_P(SectionReader, ReadsThroughALentStream) {
  const ReaderRow& row = GetParam();
  const Scratch scratch;
  const std::string path =
      scratch.file("\n" + row.section + "\n" + row.key + "=" + row.text + "\n");
  std::FILE* stream = std::fopen(path.c_str(), "r");
  ASSERT_NE(stream, nullptr);
  {
    Reader reader;
    ASSERT_TRUE(reader.SetFilePtr(stream));
    EXPECT_TRUE(row.call(reader, Outcome::read));
  }
  std::fclose(stream);
}

TEST_P(SectionReader, YieldsFalseWithoutTheKeyAndLeavesTheOutputsAlone) {
  const ReaderRow& row = GetParam();
  const Scratch scratch;
  const std::string path = scratch.file(row.section + "\n" + lookalikes(row) + "[Behind]\n" +
                                        padded(row.key, row.text) + "\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_FALSE(row.call(reader, Outcome::untouched));
}

TEST_P(SectionReader, YieldsFalseWithoutTheSectionAndLeavesTheOutputsAlone) {
  const ReaderRow& row = GetParam();
  const Scratch scratch;
  const std::string path =
      scratch.file(padded(row.key, row.text) + "\n[Other]\n" + padded(row.key, row.text) + "\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_FALSE(row.call(reader, Outcome::untouched));
}

TEST_P(SectionReader, YieldsFalseWithoutAFileAndLeavesTheOutputsAlone) {
  const Scratch scratch;
  Reader reader;
  EXPECT_FALSE(GetParam().call(reader, Outcome::untouched)) << "no file was ever set";
  EXPECT_FALSE(reader.SetFilePath(scratch.path("missing.pro").c_str()));
  EXPECT_FALSE(GetParam().call(reader, Outcome::untouched)) << "the file does not exist";
}

TEST_P(SectionReader, YieldsFalseAfterTheFileIsClosed) {
  const ReaderRow& row = GetParam();
  const Scratch scratch;
  const std::string path = scratch.file(row.section + "\n" + padded(row.key, row.text) + "\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  reader.CloseFile();
  EXPECT_FALSE(row.call(reader, Outcome::untouched));
}

Outcome outcome_of(Unscanned unscanned) {
  switch (unscanned) {
    case Unscanned::kept:
      return Outcome::untouched;
    case Unscanned::zero:
      return Outcome::zero;
    case Unscanned::any:
      break;
  }
  return Outcome::any;
}

TEST_P(SectionReader, YieldsTrueForATextThatDoesNotScan) {
  const ReaderRow& row = GetParam();
  const Scratch scratch;
  for (const char* text : {"unknown", ""}) {
    const std::string path = scratch.file(row.section + "\n" + padded(row.key, text) + "\n");
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    EXPECT_TRUE(row.call(reader, outcome_of(row.unscanned))) << '"' << text << '"';
  }
}

TEST_P(SectionWriter, BeginsItsSectionInANewFile) {
  const WriterRow& row = GetParam();
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(row.call(writer, Given::values));
  EXPECT_EQ(bytes_of(path), native("\n" + row.section + "\n" + padded(row.key, row.text) + "\n"));
}

TEST_P(SectionWriter, AddsItsSectionAfterTheOthers) {
  const WriterRow& row = GetParam();
  const Scratch scratch;
  const std::string before = "[Before]\n" + padded(row.key, "81") + "\n";
  const std::string path = scratch.file(before);
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(row.call(writer, Given::values));
  EXPECT_EQ(bytes_of(path), before + "\n" + row.section + "\n" + padded(row.key, row.text) + "\n");
}

TEST_P(SectionWriter, AddsANewKeyAtTheEndOfItsSection) {
  const WriterRow& row = GetParam();
  const Scratch scratch;
  const std::string before = row.section + "\n" + padded(row.key + "0", "81") + "\n";
  const std::string after = "[Behind]\nOther                = 82\n";
  const std::string path = scratch.file(before + after);
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(row.call(writer, Given::values));
  EXPECT_EQ(bytes_of(path), before + row.key + " = " + row.text + "\n" + after);
}

TEST_P(SectionWriter, ReplacesItsEntryWhereItStands) {
  const WriterRow& row = GetParam();
  const Scratch scratch;
  const std::string before = row.section + "\n" + padded(row.key + "0", "81") + "\n";
  const std::string after = "Other                = 82\n[Behind]\n" + padded(row.key, "83") + "\n";
  const std::string old_line =
      row.key +
      "=a value that is longer than the new one will be, by far, so that the file would shrink\n";
  const std::string new_line = padded(row.key, row.text) + "\n";
  ASSERT_GT(old_line.size(), new_line.size());
  const std::string path = scratch.file(before + old_line + after);
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(row.call(writer, Given::values));
  const std::string written =
      before + new_line + after + std::string(old_line.size() - new_line.size(), ' ');
  EXPECT_EQ(bytes_of(path), written);
  EXPECT_TRUE(row.call(writer, Given::values));
  EXPECT_EQ(bytes_of(path), written) << "the same value again";
}

TEST_P(SectionWriter, WritesTheSameBytesThroughALentStream) {
  const WriterRow& row = GetParam();
  const Scratch scratch;
  const std::string path = scratch.file("");
  std::FILE* stream = std::fopen(path.c_str(), "r+");
  ASSERT_NE(stream, nullptr);
  {
    Writer writer;
    ASSERT_TRUE(writer.SetFilePtr(stream));
    EXPECT_TRUE(row.call(writer, Given::values));
  }
  std::fclose(stream);
  EXPECT_EQ(bytes_of(path), native("\n" + row.section + "\n" + padded(row.key, row.text) + "\n"));
}

TEST_P(SectionWriter, YieldsFalseWithoutAFile) {
  Writer writer;
  EXPECT_FALSE(GetParam().call(writer, Given::values));
}

TEST_P(SectionWriter, YieldsFalseWhenTheFileCannotBeOpenedAnyMore) {
  const Scratch scratch;
  const std::string path = scratch.file("");
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  std::filesystem::remove(path);
  std::filesystem::create_directory(path);
  EXPECT_FALSE(GetParam().call(writer, Given::values));
  EXPECT_TRUE(std::filesystem::is_empty(path));
}

TEST_P(SectionWriter, RefusesOnlyTextsThatCouldNotBeReadBackAndKeepsTheFile) {
  const WriterRow& row = GetParam();
  const Scratch scratch;
  const std::string before = row.section + "\n" + row.key + "=8\n";
  for (const Given given : {Given::null_texts, Given::broken_texts, Given::overlong_texts}) {
    const std::string path = scratch.file(before);
    Writer writer;
    ASSERT_TRUE(writer.SetFilePath(path.c_str()));
    EXPECT_EQ(row.call(writer, given), !row.takes_text);
    EXPECT_EQ(bytes_of(path),
              row.takes_text ? before : row.section + "\n" + padded(row.key, row.text) + "\n");
  }
}

}  // namespace
}  // namespace qelpro_test
