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

// The blocks in which a file comes are 64 KiB. Wherever the end of one falls among the bytes of a
// line, the lines are those of the contents in memory.
TEST(BoundedLines, AreTheSameWhereverABlockEnds) {
  constexpr std::size_t kBlock = std::size_t{64} * 1024;
  for (const char* const line_break : {"\n", "\r\n", "\r\r\n", "\n\r", "\r"}) {
    for (std::size_t first = kBlock - 6; first <= kBlock + 2; ++first) {
      std::string contents;
      Lines expected;
      // Lines of up to 1000 bytes in front, the last of which ends where the break begins.
      while (contents.size() + 2000 < first) {
        expected.emplace_back(999, 'a');
        contents += expected.back() + "\n";
      }
      expected.emplace_back(1, 'b');
      contents += "b\n";
      expected.emplace_back((first - contents.size()) / 2, 'c');
      contents += expected.back() + "\n";
      expected.emplace_back(first - contents.size(), 'd');
      contents += expected.back();
      ASSERT_EQ(contents.size(), first);
      ASSERT_LT(expected.back().size(), qel::refdata::BoundedLines::kLongestLine);
      contents += std::string(line_break) + "after\r\nlast";
      const std::string breaks = line_break;
      if (breaks == "\n" || breaks == "\r\n") {
        expected.insert(expected.end(), {"after", "last"});
      } else if (breaks == "\r\r\n") {
        expected.back() += "\r";
        expected.insert(expected.end(), {"after", "last"});
      } else if (breaks == "\n\r") {
        expected.insert(expected.end(), {"\rafter", "last"});
      } else {
        expected.back() += "\rafter";
        expected.emplace_back("last");
      }
      EXPECT_EQ(lines_of(contents), expected) << first << " " << breaks.size();
    }
  }
}

// A line of the longest length, and of one byte more, whose break stands across the end of a block.
TEST(BoundedLines, OfTheLongestLengthMayEndAcrossBlocks) {
  constexpr std::size_t kBlock = std::size_t{64} * 1024;
  constexpr std::size_t kLongest = qel::refdata::BoundedLines::kLongestLine;
  for (std::size_t length = kLongest - 2; length <= kLongest + 2; ++length) {
    for (std::size_t end = kBlock - 2; end <= kBlock + 2; ++end) {
      const std::size_t before = end - length;
      std::string contents;
      Lines expected;
      while (contents.size() + 512 < before) {
        expected.emplace_back(511, 'a');
        contents += expected.back() + "\n";
      }
      expected.emplace_back(before - contents.size() - 1, 'b');
      contents += expected.back() + "\n";
      std::string line(length, 'x');
      contents += line + "\r\nlast";
      for (; line.size() >= kLongest; line.erase(0, kLongest)) {
        expected.emplace_back(kLongest, 'x');
      }
      expected.push_back(line);
      expected.emplace_back("last");
      EXPECT_EQ(lines_of(contents), expected) << length << " " << end;
    }
  }
}

}  // namespace
}  // namespace qelpro_test
