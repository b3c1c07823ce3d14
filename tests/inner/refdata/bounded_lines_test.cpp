#include "refdata/bounded_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/os_file.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

using Lines = std::vector<std::string>;

Lines all(qel::refdata::BoundedLines lines) {
  Lines found;
  for (std::string line; lines.next(line);) {
    found.push_back(line);
  }
  return found;
}

// The lines of a file, and of the same contents in memory.
Lines lines_of(const std::string& contents) {
  const Scratch scratch;
  qel::platform::OsFile file;
  EXPECT_TRUE(file.open_for_reading(scratch.file(contents).c_str()));
  const Lines lines = all(qel::refdata::BoundedLines(file));
  EXPECT_EQ(all(qel::refdata::BoundedLines(contents)), lines);
  return lines;
}

TEST(BoundedLines, EndAtEitherLineBreak) {
  EXPECT_EQ(lines_of("a\nb\r\n\nc"), Lines({"a", "b", "", "c"}));
  EXPECT_EQ(lines_of(""), Lines());
  EXPECT_EQ(lines_of("\xEF\xBB\xBF"
                     "a\n"),
            Lines({"a"}));
}

TEST(BoundedLines, FinalControlZIsNoLine) {
  EXPECT_EQ(lines_of("a\n\x1A"), Lines({"a"}));
  EXPECT_EQ(lines_of("a\r\n\x1A\x1A\x1A"), Lines({"a"}));
  EXPECT_EQ(lines_of("a\x1A"), Lines({"a"}));
  EXPECT_EQ(lines_of("\x1A"), Lines());
  EXPECT_EQ(lines_of("a\n\x1A\n"), Lines({"a", "\x1A"})) << "not the last byte";
  const std::string long_tail(200000, '\x1A');
  EXPECT_EQ(lines_of("a\n" + long_tail), Lines({"a"}));
}

TEST(BoundedLines, BlanksAroundAFinalControlZAreNoLineEither) {
  EXPECT_EQ(lines_of("a\n  \x1A "), Lines({"a"}));
  EXPECT_EQ(lines_of("a\n" + std::string(100, ' ') + "\x1A" + std::string(100, ' ')), Lines({"a"}));
  EXPECT_EQ(lines_of("a\n  "), Lines({"a", "  "})) << "blanks alone";
}

TEST(BoundedLines, ComeInPiecesOverTheBlocksOfAFile) {
  std::string contents;
  Lines expected;
  for (int line = 0; line < 3000; ++line) {
    expected.emplace_back(static_cast<std::size_t>(line % 90), static_cast<char>('a' + line % 26));
    contents += expected.back() + (line % 3 == 0 ? "\r\n" : "\n");
  }
  EXPECT_EQ(lines_of(contents), expected);
  EXPECT_EQ(lines_of(std::string(1023, 'x') + "yz\n"), Lines({std::string(1023, 'x'), "yz"}));
}

}  // namespace
}  // namespace qelpro_test
