#include "text/page_layout.h"

#include <gtest/gtest.h>

#include <string>

#include "text/page_steps.h"
#include "text/text.h"

namespace qel {
namespace {

// Lines of exactly so many bytes, without a blank that could go.
std::string full_lines(std::size_t size) {
  std::string text;
  while (text.size() < size) {
    const std::size_t left = size - text.size();
    const std::size_t length = left < 40 ? left : 20;
    text += "K=" + std::string(length - 3, 'v') + "\n";
  }
  return text;
}

std::string with_blanks(std::size_t size, std::size_t blanks) {
  const std::string line = "Key" + std::string(blanks, ' ') + "=";
  return line + std::string(size - line.size() - 1, 'v') + "\n";
}

// A line became ten bytes longer, so that the first page has to have all lines up to `needed`
// bytes, of which 4,095 have room.
struct LongerLine {
  std::string first;  // line of the page
  std::size_t needed = 4107;
  std::string before = {};

  [[nodiscard]] std::optional<std::string> text() const {
    const std::string changed = "Changed=" + std::string(11, '#') + "\n";
    std::string contents = first + changed;
    contents += full_lines(needed - contents.size()) + full_lines(600);
    const std::size_t begin = first.size();
    return PageLayout({before, contents, begin, begin + changed.size(), 10, true}).text();
  }
};

TEST(PageLayout, TakesAsManyBlanksAsItNeeds) {
  EXPECT_TRUE(LongerLine{with_blanks(60, 12)}.text());
  EXPECT_FALSE(LongerLine{with_blanks(60, 11)}.text());
  EXPECT_TRUE((LongerLine{with_blanks(60, 13), 4108}.text()));
  EXPECT_FALSE((LongerLine{with_blanks(60, 12), 4108}.text()));
}

TEST(PageLayout, TakesTheBlanksOnBothSidesOfTheEqualsSign) {
  const std::string line = "Key" + std::string(5, ' ') + "=" + std::string(7, ' ') + "value\n";
  const auto text = LongerLine{line}.text();
  ASSERT_TRUE(text);
  EXPECT_EQ(text->substr(0, 10), "Key=value\n");
  EXPECT_FALSE(
      LongerLine{"Key" + std::string(5, ' ') + "=" + std::string(6, ' ') + "value\n"}.text());
}

// Those are what a kill leaves where blanks were.
TEST(PageLayout, TakesEmptyLines) {
  EXPECT_TRUE(LongerLine{std::string(12, '\n')}.text());
  EXPECT_FALSE(LongerLine{std::string(11, '\n')}.text());
  EXPECT_TRUE(LongerLine{"\r\n\r\n\r\n\r\n\r\n\r\n"}.text());
  EXPECT_FALSE(LongerLine{"\r\n\r\n\r\n\r\n\r\n \n"}.text());
  const std::string empty(12, '\n');
  EXPECT_TRUE(LongerLine{"[Flow-1]\n" + empty}.text());
  const std::string header = std::string(text::kPositionalHeader) + "\n";
  EXPECT_FALSE(LongerLine{header + empty + "[Flow-1]\n"}.text()) << "a line in front counts";
  EXPECT_TRUE(LongerLine{header + "[Flow-1]\n" + empty}.text());
  EXPECT_TRUE(LongerLine{empty + header + "[Flow-1]\n"}.text());
  EXPECT_FALSE((LongerLine{empty + "[Flow-1]\n", 4107, header}.text()));
}

// An empty line that begins a page ends the "=" in front of it: without it the next line would be
// hidden.
TEST(PageLayout, KeepsTheEmptyLineThatEndsAHiddenOne) {
  const std::string changed = "Changed=" + std::string(11, '#') + "\n";
  std::string contents = with_blanks(60, 40) + changed;
  contents += full_lines(kPageSize - contents.size()) + "\n" + with_blanks(60, 40);
  contents += full_lines(2 * kPageSize + 20 - contents.size());
  const auto text = PageLayout({{}, contents, 60, 60 + changed.size(), 10, true}).text();
  ASSERT_TRUE(text);
  EXPECT_EQ(text->substr(kPageSize - 1, 7), "=\nKey=v");
}

TEST(PageLayout, LeavesLongerLinesAsTheyAre) {
  EXPECT_TRUE(LongerLine{with_blanks(127, 60)}.text());
  EXPECT_FALSE(LongerLine{with_blanks(128, 60)}.text());
}

TEST(PageLayout, LeavesLinesWithoutAnEntryAsTheyAre) {
  EXPECT_FALSE(LongerLine{"Words" + std::string(40, ' ') + "of = somebody\n"}.text());
  EXPECT_FALSE(LongerLine{"Words" + std::string(40, ' ') + "\n"}.text());
  EXPECT_FALSE(LongerLine{std::string(40, ' ') + "= value\n"}.text());
}

TEST(PageLayout, TakesBlanksOfAPagesFirstLineWhereItBeginsThere) {
  EXPECT_TRUE((LongerLine{with_blanks(60, 12), 4107, "[Flow-1]\n"}.text()));
  EXPECT_FALSE((LongerLine{with_blanks(60, 12), 4107, "[Flow-1]\nBeg"}.text()));
}

TEST(PageLayout, HasAllOfTheLinesThatReplaceOthersInTheirPage) {
  const std::string first = with_blanks(100, 80);
  const std::string lines = "One=" + std::string(20, '1') + "\nTwo=2\nThree=3\n";
  const std::string contents =
      first + full_lines(4090 - first.size()) + lines + with_blanks(100, 80) + full_lines(4700);
  for (const std::ptrdiff_t shift : {10, -10, 0}) {
    const auto text = PageLayout({"", contents, 4090, 4090 + lines.size(), shift, true}).text();
    ASSERT_TRUE(text) << shift;
    EXPECT_NE(text->substr(0, 4096).find("\nThree=3\n"), std::string::npos) << shift;
    EXPECT_EQ(text->substr(4096 + 4096 - 1, 1), "=") << shift;
  }
}

// What a page ends with in front of lines that were there: nobody is to take the rest of a line
// that the page in between has whole for a line.
TEST(PageLayout, HidesWhatFollowsAPageOnlyWhereThatIsPartOfALine) {
  const std::string first = with_blanks(100, 80);
  // The changed line ended where the page did, and its line break is now the next page's first.
  const std::string changed = "Changed=" + std::string(12, '#') + "\n";
  const std::string contents =
      first + full_lines(4096 - 20 - first.size()) + changed + full_lines(500);
  const auto neutral = PageLayout({"", contents, 4076, 4097, 1, true}).text();
  ASSERT_TRUE(neutral);
  EXPECT_EQ((*neutral)[4095], '\n');
  const std::string longer =
      first + full_lines(4096 - 20 - first.size()) + "#" + changed + full_lines(500);
  const auto hidden = PageLayout({"", longer, 4076, 4098, 2, true}).text();
  ASSERT_TRUE(hidden);
  EXPECT_EQ((*hidden)[4095], '=');
}

TEST(PageLayout, MovesAHeaderByOneByteFirstThatBeganAPage) {
  // It moved back by 30 bytes; an empty line begins the page now.
  const std::string changed = "Changed=1\n";
  std::string contents = changed + full_lines(4096 - 30 - changed.size());
  contents += "[Flow-2]\n" + full_lines(21) + "\n" + full_lines(300);
  EXPECT_EQ(PageLayout({"", contents, 0, changed.size(), -30, true}).nearer(), 1U);
}

// Lines moved back by as many bytes as the last page has: it holds blanks alone now.
TEST(PageLayout, NeedsNoRoomForTheBlanksBehindTheLastLine) {
  const std::string changed = "Changed=1\n";
  for (const std::size_t end : {4090U, 4096U, 4097U, 4099U, 4100U, 4101U}) {
    const std::string contents = changed + with_blanks(100, 80) +
                                 full_lines(end - changed.size() - 100) +
                                 std::string(4102 - end, ' ');
    const auto text = PageLayout({"", contents, 0, changed.size(), -6, true}).text();
    ASSERT_TRUE(text) << end;
    EXPECT_EQ(text->size(), contents.size()) << end;
    EXPECT_EQ(text->back(), end > kPageSize ? ' ' : '\n') << end;
  }
}

// Lines that are known by their positions cannot be made to stand twice.
TEST(PageLayout, NeverPartsASectionOfPositions) {
  const std::string header = std::string(text::kPositionalHeader) + "\n";
  const auto has_way = [](const std::string& before, const std::string& first) {
    const std::string changed = "Changed=1234567\n";
    const std::string contents = first + changed + with_blanks(100, 80) + full_lines(5000);
    const std::size_t begin = first.size();
    return PageLayout({before, contents, begin, begin + changed.size(), 3, true})
        .text()
        .has_value();
  };
  EXPECT_TRUE(has_way("", "[Flow-1]\n"));
  EXPECT_FALSE(has_way("", header));
  EXPECT_FALSE(has_way("", "\n" + header));
  EXPECT_FALSE(has_way(header, "Key=1\n"));
  EXPECT_FALSE(has_way("[Flow-1]\n", header));
  EXPECT_TRUE(has_way("[Flow-1]\nKey=", header));
  EXPECT_TRUE(has_way(header, "[Flow-1]\n"));
  EXPECT_TRUE(has_way("", header + "[Flow-1]\n"));
  for (std::size_t part = 1; part < header.size(); ++part) {
    const std::string rest = header.substr(part);
    EXPECT_FALSE(has_way(header.substr(0, part), rest)) << part;
    EXPECT_FALSE(has_way("[Flow-1]\n" + header.substr(0, part), rest)) << part;
  }
  EXPECT_TRUE(has_way(header + "[Fl", "ow-1]\n"));
  EXPECT_FALSE(has_way(header + "[Flow-1] = 1\n", "Key=1\n"));
  EXPECT_FALSE(has_way(header + "Key=[Fl", "ow-1]\n"));
  EXPECT_FALSE(has_way(header, "Key=1\n[Flow-1] = 1\n"));
}

}  // namespace
}  // namespace qel
