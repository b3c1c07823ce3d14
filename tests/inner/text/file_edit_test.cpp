#include "text/file_edit.h"

#include <gtest/gtest.h>

#include <string>

#include "inner/text/memory_file.h"
#include "support/line_break.h"

namespace qelpro_test {
namespace {

using qel::FileEdit;

constexpr const char* kFile = "[A]\nx = 1\ny = 2\n";  // x begins at 4, y at 10

TEST(FileEdit, HoldsWhatStandsInFrontOfThePadding) {
  MemoryFile file("[A]\r\nx = 1\r\n   \x1A");
  FileEdit edit(file);
  ASSERT_TRUE(edit.load());
  EXPECT_EQ(edit.contents(), "[A]\r\nx = 1\r\n");
  EXPECT_EQ(edit.line_break(), "\r\n");
}

TEST(FileEdit, TakesThePlatformsLineBreakWhereTheFileHasNone) {
  MemoryFile file("");
  FileEdit edit(file);
  ASSERT_TRUE(edit.load());
  EXPECT_EQ(edit.line_break(), native("\n"));
}

TEST(FileEdit, IsNotMadeOfAFileThatCannotBeReadWhole) {
  MemoryFile unreadable(kFile);
  unreadable.readable = 3;
  EXPECT_FALSE(FileEdit(unreadable).load());
  MemoryFile unsized(kFile);
  unsized.size_fails = true;
  EXPECT_FALSE(FileEdit(unsized).load());
}

std::string replaced(std::size_t begin, std::size_t end, const std::string& lines) {
  MemoryFile file(kFile);
  FileEdit edit(file);
  EXPECT_TRUE(edit.load());
  EXPECT_TRUE(edit.replace(begin, end, lines));
  EXPECT_EQ(file.writes, 1);
  return file.bytes;
}

TEST(FileEdit, ReplacesLinesWithOneWrite) {
  EXPECT_EQ(replaced(4, 10, "z = 3\n"), "[A]\nz = 3\ny = 2\n");
  EXPECT_EQ(replaced(4, 10, "longer = 3\n"), "[A]\nlonger = 3\ny = 2\n");
  EXPECT_EQ(replaced(4, 10, "z\n"), "[A]\nz\ny = 2\n    ");
  EXPECT_EQ(replaced(4, 4, "z\n"), "[A]\nz\nx = 1\ny = 2\n");
}

TEST(FileEdit, TakesLinesThatAreLongerThanItsRoom) {
  const std::string line = std::string(qel::FileImage::kReserve, 'z') + "\n";
  EXPECT_EQ(replaced(4, 10, line), "[A]\n" + line + "y = 2\n");
  MemoryFile file("[A]\n" + line + "y = 2\n");
  FileEdit edit(file);
  ASSERT_TRUE(edit.load());
  ASSERT_TRUE(edit.replace(4, 4 + line.size(), "z\n"));
  EXPECT_EQ(file.bytes, "[A]\nz\ny = 2\n" + std::string(line.size() - 2, ' '));
}

TEST(FileEdit, InsertsAfterALastLineWithoutALineBreak) {
  MemoryFile file("[A]\nx = 1");
  FileEdit edit(file);
  ASSERT_TRUE(edit.load());
  ASSERT_TRUE(edit.insert(edit.contents().size(), "y = 2\n"));
  EXPECT_EQ(file.bytes, "[A]\nx = 1\ny = 2\n");
}

TEST(FileEdit, AppendsASectionOverThePadding) {
  MemoryFile file("[A]\nx = 1\n                ");
  FileEdit edit(file);
  ASSERT_TRUE(edit.load());
  ASSERT_TRUE(edit.append_section("[B]", "y = 2\n"));
  EXPECT_EQ(file.bytes, "[A]\nx = 1\n\n[B]\ny = 2\n     ");
}

TEST(FileEdit, EndsTheFileWithItsContentsWherePaddingIsDropped) {
  MemoryFile file("[A]\nx = 100\ny = 2    \x1A");
  FileEdit edit(file);
  ASSERT_TRUE(edit.load());
  edit.drop_padding();
  ASSERT_TRUE(edit.replace(4, 12, "x = 1\n"));
  EXPECT_EQ(file.bytes, "[A]\nx = 1\ny = 2\n");
}

TEST(FileEdit, LeavesAFileThatCannotTakeAllOfItAsItWas) {
  for (const std::size_t written : {0U, 1U, 9U, 14U}) {
    MemoryFile file(kFile);
    file.failing_write = 1;
    file.writable = written;
    FileEdit edit(file);
    ASSERT_TRUE(edit.load());
    EXPECT_FALSE(edit.replace(4, 10, "longer = 3\n"));
    EXPECT_EQ(file.bytes, kFile) << written;
  }
  MemoryFile full(kFile);
  full.room = static_cast<std::int64_t>(full.bytes.size());
  FileEdit edit(full);
  ASSERT_TRUE(edit.load());
  EXPECT_FALSE(edit.insert(4, "z = 3\n"));
  EXPECT_EQ(full.bytes, kFile);
  EXPECT_EQ(full.writes, 0);
}

TEST(FileEdit, LeavesAFileThatCannotBeShortenedAsItWas) {
  const std::string contents = "[A]\nx = 100\ny = 2\n     ";
  MemoryFile file(contents);
  file.truncate_fails = true;
  FileEdit edit(file);
  ASSERT_TRUE(edit.load());
  edit.drop_padding();
  EXPECT_FALSE(edit.replace(4, 12, "x = 1\n"));
  EXPECT_EQ(file.bytes, contents);
}

}  // namespace
}  // namespace qelpro_test
