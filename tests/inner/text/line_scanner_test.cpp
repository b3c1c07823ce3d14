#include "text/line_scanner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "inner/text/memory_file.h"
#include "text/text.h"

namespace {

using namespace qel;
using qelpro_test::MemoryFile;
using testing::ElementsAre;
using testing::IsEmpty;

struct Seen {
  std::int64_t start;
  std::int64_t end;
  std::string text;
  bool operator==(const Seen& other) const = default;
};

[[maybe_unused]] void PrintTo(const Seen& seen, std::ostream* out) {
  *out << seen.start << ".." << seen.end << ' ' << testing::PrintToString(seen.text.substr(0, 60));
}

std::vector<Seen> all(LineScanner& lines) {
  std::vector<Seen> result;
  for (Line line; lines.next(line);) {
    result.push_back({line.start, line.end, std::string(line.text)});
  }
  return result;
}

// The lines of a text, which have to be the same over a file, in blocks of any size, as over
// memory.
std::vector<Seen> lines_of(const std::string& contents) {
  LineScanner over_memory{std::string_view(contents)};
  std::vector<Seen> result = all(over_memory);
  for (const std::size_t block : {std::size_t{1}, std::size_t{7}, LineScanner::kFirstBlock}) {
    MemoryFile file(contents);
    LineScanner over_file(file, 0, block);
    EXPECT_EQ(all(over_file), result) << "in blocks of " << block;
  }
  return result;
}

std::vector<std::string> texts_of(const std::string& contents) {
  std::vector<std::string> result;
  for (const Seen& seen : lines_of(contents)) {
    result.push_back(seen.text);
  }
  return result;
}

TEST(LineScanner, EndsALineAtEitherLineBreak) {
  EXPECT_THAT(lines_of("one\ntwo\r\nthree\n"),
              ElementsAre(Seen{0, 4, "one"}, Seen{4, 9, "two"}, Seen{9, 15, "three"}));
}

TEST(LineScanner, KeepsACarriageReturnThatEndsNoLine) {
  EXPECT_THAT(texts_of("a\rb\r\r\nc\r"), ElementsAre("a\rb\r", "c\r"));
}

TEST(LineScanner, GivesALastLineWithoutALineBreak) {
  EXPECT_THAT(lines_of("one\ntwo"), ElementsAre(Seen{0, 4, "one"}, Seen{4, 7, "two"}));
}

TEST(LineScanner, CountsEmptyLines) { EXPECT_THAT(texts_of("\n\r\n\n"), ElementsAre("", "", "")); }

TEST(LineScanner, FindsNothingInAnEmptyFile) { EXPECT_THAT(lines_of(""), IsEmpty()); }

TEST(LineScanner, TakesAByteOrderMarkForNoLine) {
  EXPECT_THAT(lines_of("\xEF\xBB\xBF[A]\n"), ElementsAre(Seen{3, 7, "[A]"}));
  EXPECT_THAT(lines_of("\xEF\xBB\xBF"), IsEmpty());
}

TEST(LineScanner, KeepsAByteOrderMarkThatStandsElsewhere) {
  EXPECT_THAT(texts_of("a\n\xEF\xBB\xBF\n"), ElementsAre("a", "\xEF\xBB\xBF"));
}

TEST(LineScanner, TakesPartOfAByteOrderMarkForText) {
  EXPECT_THAT(texts_of("\xEF\xBBx\n"), ElementsAre("\xEF\xBBx"));
}

TEST(LineScanner, TakesBlanksAfterTheLastLineBreakForPadding) {
  EXPECT_THAT(texts_of("a\n     "), ElementsAre("a"));
  EXPECT_THAT(texts_of("a\n" + std::string(300000, ' ')), ElementsAre("a"));
}

TEST(LineScanner, TakesBlanksInFrontOfALineBreakForALine) {
  EXPECT_THAT(texts_of("a\n   \n"), ElementsAre("a", "   "));
  EXPECT_THAT(texts_of("a\n   b"), ElementsAre("a", "   b"));
  EXPECT_THAT(texts_of("a\n \t"), ElementsAre("a", " \t"));
}

TEST(LineScanner, LetsALineReachTheLimitWithItsLineBreak) {
  const std::string longest(text::kLongestLine - 1, 'x');
  EXPECT_THAT(texts_of(longest + "\nb\n"), ElementsAre(longest, "b"));
  EXPECT_THAT(texts_of(longest + "\r\nb\r\n"), ElementsAre(longest, "b"));
}

TEST(LineScanner, SplitsALineThatIsLongerThanTheLimit) {
  const std::string part(text::kLongestLine, 'x');
  EXPECT_THAT(texts_of(part + "\nb\n"), ElementsAre(part, "", "b"));
  EXPECT_THAT(texts_of(part + part + "tail\nb\n"), ElementsAre(part, part, "tail", "b"));
  EXPECT_THAT(texts_of("a\n" + part + part), ElementsAre("a", part, part));
}

TEST(LineScanner, DoesNotTakeTheBlankEndOfALongLineForPadding) {
  const std::string part(text::kLongestLine, 'x');
  EXPECT_THAT(texts_of(part + "   "), ElementsAre(part, "   "));
}

TEST(LineScanner, SplitsALineOfBlanksThatTextFollows) {
  const std::string part(text::kLongestLine, ' ');
  EXPECT_THAT(texts_of("a\n" + part + part + "b"), ElementsAre("a", part, part, "b"));
}

TEST(LineScanner, CutsALineAtANulByteAndGoesOnAfterIt) {
  EXPECT_THAT(lines_of(std::string("ab\0cd\nef\n", 9)),
              ElementsAre(Seen{0, 6, "ab"}, Seen{6, 9, "ef"}));
  EXPECT_THAT(texts_of(std::string("\0\n\0", 3)), ElementsAre("", ""));
}

TEST(LineScanner, BeginsAtTheOffsetItIsGiven) {
  MemoryFile file("one\ntwo\nthree\n");
  LineScanner lines(file, 4);
  EXPECT_THAT(all(lines), ElementsAre(Seen{4, 8, "two"}, Seen{8, 14, "three"}));
}

TEST(LineScanner, FindsNothingAfterTheEndOfTheFile) {
  MemoryFile file("one\n");
  LineScanner lines(file, 100);
  EXPECT_THAT(all(lines), IsEmpty());
  EXPECT_FALSE(lines.failed());
}

TEST(LineScanner, TellsAReadThatFailsFromTheEndOfTheFile) {
  MemoryFile file("one\ntwo\n");
  file.readable = 0;
  LineScanner lines(file, 0);
  Line line;
  EXPECT_FALSE(lines.next(line));
  EXPECT_TRUE(lines.failed());
}

TEST(LineScanner, StopsWhereAReadFailsFurtherOn) {
  MemoryFile file(std::string(LineScanner::kFirstBlock, '\n') + "behind\n");
  file.readable = LineScanner::kFirstBlock;
  LineScanner lines(file, 0);
  for (Line line; lines.next(line);) {
    EXPECT_TRUE(line.text.empty());
  }
  EXPECT_TRUE(lines.failed());
}

// What `next_starting_with` gives has to be what `next` gives, less the lines that begin with
// something else.
void expect_same_jumps(const std::string& contents, std::string_view prefix) {
  std::vector<Seen> expected;
  for (const Seen& seen : lines_of(contents)) {
    if (contents.compare(static_cast<std::size_t>(seen.start), prefix.size(), prefix) == 0) {
      expected.push_back(seen);
    }
  }
  for (const std::size_t block : {std::size_t{1}, std::size_t{5}, LineScanner::kFirstBlock}) {
    MemoryFile file(contents);
    LineScanner lines(file, 0, block);
    std::vector<Seen> jumps;
    for (Line line; lines.next_starting_with(prefix, line);) {
      jumps.push_back({line.start, line.end, std::string(line.text)});
    }
    EXPECT_EQ(jumps, expected) << "in blocks of " << block;
  }
}

TEST(NextStartingWith, FindsTheLinesThatBeginWithTheByte) {
  expect_same_jumps("[a]\nb [c]\n[d]\n\n\n[e", "[");
  expect_same_jumps("no bracket\nat all", "[");
  expect_same_jumps("x[\n[\r\n[[\n", "[");
  expect_same_jumps("", "[");
}

TEST(NextStartingWith, FindsThePartsOfALongLineThatBeginWithTheByte) {
  const std::string part(text::kLongestLine, 'x');
  expect_same_jumps(part + "[part]\n[a]\n", "[");
  expect_same_jumps("a\n" + part + part.substr(1) + "[not]" + part + "\n[b]\n", "[");
  expect_same_jumps(std::string(5 * text::kLongestLine, '[') + "\n[b]", "[");
}

TEST(NextStartingWith, FindsAPrefixWhereverABlockEnds) {
  for (std::size_t size = LineScanner::kFirstBlock - 12; size < LineScanner::kFirstBlock + 2;
       ++size) {
    const std::string before =
        std::string(size / 2, 'x') + "\n" + std::string(size - size / 2, 'y');
    expect_same_jumps(before + "\n[section]\nkey\n[other]\n[section]", "[section]");
    expect_same_jumps(before + "[section]\n", "[section]");
  }
}

TEST(NextStartingWith, FindsThePartsOfALongLineThatBeginWithAPrefix) {
  const std::string part(text::kLongestLine, 'x');
  for (const std::size_t length : {1U, 2U, 3U, 4094U, 4095U}) {
    expect_same_jumps(part + "[a]" + part.substr(length) + "[a]\n[a]\n", "[a]");
  }
  expect_same_jumps("[b]\n[a" + part + "\n[a]", "[a]");
}

// To look for the prefix again from every piece would take hours.
TEST(NextStartingWith, LooksOnceThroughALongLine) {
  const std::string contents = "x\n" + std::string(std::size_t{20} << 20U, 'y') + "[a]";
  LineScanner lines(contents, 0, true, {.longest_line = 127});
  Line line;
  EXPECT_FALSE(lines.next_starting_with("[a]", line));
}

TEST(NextStartingWith, PassesAByteOrderMark) { expect_same_jumps("\xEF\xBB\xBF[a]\n[b]\n", "["); }

TEST(NextStartingWith, AgreesOverBlocksOfManyLines) {
  std::string contents;
  for (int i = 0; i < 30000; ++i) {
    contents += i % 1000 == 999 ? "[section]\n" : (i % 7 == 0 ? "key = [value]\n" : "k\n");
  }
  expect_same_jumps(contents, "[");
}

TEST(NextStartingWith, PassesALineOfManyBlocks) {
  const std::string line(3 * LineScanner::kBlock, 'x');
  expect_same_jumps("[a]\n" + line + "\n[b]\n", "[");
  expect_same_jumps("[a]\n" + line, "[");
}

TEST(NextStartingWith, FindsNothingInPaddingOfManyBlocks) {
  expect_same_jumps("[a]\n" + std::string(3 * LineScanner::kBlock, ' '), "[");
}

TEST(NextStartingWith, FindsALineWhereverABlockEnds) {
  for (const std::size_t block :
       {LineScanner::kFirstBlock, LineScanner::kFirstBlock + LineScanner::kBlock}) {
    for (std::size_t size = block - 4; size < block + 4; ++size) {
      expect_same_jumps(
          std::string(size - 1, 'x').replace(block / 2, 1, "\n") + "\n[section]\nkey\n[other]\n",
          "[");
    }
  }
}

TEST(LengthWithoutPadding, TakesBlanksAtTheEndOfTheFileAway) {
  EXPECT_EQ(text::length_without_padding("a\n   "), 2U);
  EXPECT_EQ(text::length_without_padding("a\n"), 2U);
  EXPECT_EQ(text::length_without_padding("a\n b"), 4U);
  EXPECT_EQ(text::length_without_padding("a\n \t "), 4U);
  EXPECT_EQ(text::length_without_padding("a\n b  "), 4U);
  EXPECT_EQ(text::length_without_padding(""), 0U);
  EXPECT_EQ(text::length_without_padding("   "), 3U);
}

TEST(LengthWithoutPadding, CountsBlanksThatTrailALineWhereADialectKeepsThem) {
  constexpr text::Dialect kKeeping{.keeps_blanks = true};
  for (const std::size_t blanks : {0U, 1U, 4094U, 4095U, 4096U, 4097U, 9000U}) {
    const std::string padding(blanks, ' ');
    for (const std::string text : {"", "x\n", "x", "\n", "x\n y"}) {
      const bool is_padded = !text.empty() && text.back() == '\n';
      EXPECT_EQ(text::length_without_padding(text + padding, kKeeping),
                text.size() + (is_padded ? 0 : blanks))
          << testing::PrintToString(text) << ' ' << blanks;
    }
  }
  EXPECT_EQ(text::length_without_padding("a\n b  \x1A ", kKeeping), 6U);
  EXPECT_EQ(text::length_without_padding("a\n  \x1A ", kKeeping), 2U);
}

// The lines of a text as a dialect of short lines has them, over a file as over memory.
std::vector<Seen> short_lines_of(const std::string& contents) {
  constexpr text::Dialect kShort{.longest_line = 8, .keeps_blanks = true};
  LineScanner over_memory(contents, 0, true, kShort);
  std::vector<Seen> result = all(over_memory);
  for (const std::size_t block : {std::size_t{1}, std::size_t{7}, LineScanner::kFirstBlock}) {
    MemoryFile file(contents);
    LineScanner over_file(file, 0, block, kShort);
    EXPECT_EQ(all(over_file), result) << "in blocks of " << block;
  }
  return result;
}

TEST(Dialect, SaysWhatALongLineIs) {
  EXPECT_THAT(short_lines_of("1234567\n1234567\r\n"),
              ElementsAre(Seen{0, 8, "1234567"}, Seen{8, 17, "1234567"}));
  EXPECT_THAT(short_lines_of("12345678\n9"),
              ElementsAre(Seen{0, 8, "12345678"}, Seen{8, 9, ""}, Seen{9, 10, "9"}));
  EXPECT_THAT(short_lines_of("123456789"), ElementsAre(Seen{0, 8, "12345678"}, Seen{8, 9, "9"}));
}

TEST(Dialect, LeavesNoEndMarkInAPieceOfALongLine) {
  EXPECT_THAT(short_lines_of("x\n123456  \x1A"),
              ElementsAre(Seen{0, 2, "x"}, Seen{2, 10, "123456  "}));
  EXPECT_THAT(short_lines_of("123456\x1A          \x1A"), ElementsAre(Seen{0, 6, "123456"}));
  EXPECT_THAT(short_lines_of("123456  "), ElementsAre(Seen{0, 8, "123456  "}));
}

TEST(Line, TellsWhetherItsBreakFollowsIt) {
  using namespace std::string_literals;
  const std::string contents = "a\nb\r\nc\0\n"s + std::string(text::kLongestLine, 'x') + "\nd";
  LineScanner lines{std::string_view(contents)};
  std::vector<bool> breaks;
  std::vector<bool> pieces;
  for (Line line; lines.next(line);) {
    breaks.push_back(line.has_break);
    pieces.push_back(line.is_piece);
  }
  EXPECT_THAT(breaks, ElementsAre(true, true, false, false, true, false));
  EXPECT_THAT(pieces, ElementsAre(false, false, false, false, true, false));
}

}  // namespace
