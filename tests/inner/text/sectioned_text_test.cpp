#include "text/sectioned_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace qel {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

std::vector<std::string> names_in(const std::string& contents) {
  const SectionedText text(contents);
  std::vector<std::string> names;
  for (const TextSection& section : text.sections()) {
    names.emplace_back(section.name);
  }
  return names;
}

TEST(SectionedText, NamesSectionsAsLookupsDo) {
  EXPECT_THAT(names_in("[A]\n[B] of words\n[C and D]\n[C and D] of words\n[E]\tof words\n"),
              ElementsAre("[A]", "[B]", "[C and D]", "[C and D]", "[E]"));
  EXPECT_THAT(names_in("[]\n[A B]\tof [C] words\n"), ElementsAre("[]", "[A B]"));
  EXPECT_THAT(names_in("[A]=1\n [B]\nA [B]\nA=[B]\n"), ElementsAre());
  EXPECT_THAT(names_in(""), ElementsAre());
}

TEST(SectionedText, TellsTheLinesOfASection) {
  const SectionedText text("before\n\n[A]\nKey = 1\n[B]\n[C]\nKey = 2\nmore");
  EXPECT_EQ(text.line_count(), 8U);
  EXPECT_EQ(text.lines_before_sections(), 2U);
  ASSERT_EQ(text.sections().size(), 3U);
  EXPECT_EQ(text.sections()[0].header, 2U);
  EXPECT_EQ(text.sections()[0].after, 4U);
  EXPECT_EQ(text.sections()[1].header, 4U);
  EXPECT_EQ(text.sections()[1].after, 5U);
  EXPECT_EQ(text.sections()[2].after, 8U);
  EXPECT_EQ(SectionedText("one\ntwo\n").lines_before_sections(), 2U);
}

TEST(SectionedText, FindsTheFirstSectionOfAName) {
  const SectionedText text("[B]\n[A]\n[B]\n[C]\n[SURFACE ELEMENT SET]\n[SURFACE ELEMENT]\n");
  ASSERT_NE(text.find("[B]"), nullptr);
  EXPECT_EQ(text.find("[B]")->header, 0U);
  EXPECT_EQ(text.find("[A]")->header, 1U);
  EXPECT_EQ(text.find("[C]")->header, 3U);
  EXPECT_EQ(text.find("[0]"), nullptr);
  EXPECT_EQ(text.find("[AA]"), nullptr);
  EXPECT_EQ(text.find("[T]"), nullptr);
  ASSERT_NE(text.find("[SURFACE OF ANY KIND]"), nullptr);
  EXPECT_EQ(text.find("[SURFACE OF ANY KIND]")->header, 4U);
  std::vector<bool> repeated;
  for (const TextSection& section : text.sections()) {
    repeated.push_back(section.repeated);
  }
  EXPECT_THAT(repeated, ElementsAre(false, false, true, false, false, true));
}

TEST(SectionedText, GivesEveryLineAsTheEngineSeesIt) {
  const SectionedText text("[A]\r\nKey = 1 \r\n\r\nends\ror not\nlast\x1A");
  ASSERT_EQ(text.line_count(), 5U);
  const TextLine key = text.line(1);
  EXPECT_EQ(key.whole, "Key = 1 ");
  EXPECT_EQ(key.text, "Key = 1 ");
  EXPECT_EQ(key.begin, 5U);
  EXPECT_EQ(key.end, 15U);
  EXPECT_EQ(key.number, 2U);
  EXPECT_FALSE(key.goes_on);
  EXPECT_EQ(text.line(2).whole, "");
  EXPECT_EQ(text.line(2).begin, 15U);
  EXPECT_EQ(text.line(3).whole, "ends\ror not");
  EXPECT_EQ(text.line(4).whole, "last");
  EXPECT_EQ(text.line(4).end, text.contents().size() - 1) << "the end mark is no part of it";
  EXPECT_FALSE(text.line(4).goes_on);
  EXPECT_EQ(SectionedText("\n").line(0).whole, "");
  EXPECT_EQ(SectionedText("\r\n").line(0).whole, "");
  EXPECT_EQ(SectionedText("x\n\x1A\n").line(1).text, "\x1A");
}

TEST(SectionedText, GivesALineThatIsTooLongInPieces) {
  const std::string longer = "Key = " + std::string(5000, 'v');
  const SectionedText text("[A]\r\n" + longer + "\r\nlast\n" + longer);
  ASSERT_EQ(text.line_count(), 6U);
  EXPECT_EQ(text.line(1).number, 2U);
  EXPECT_TRUE(text.line(1).goes_on);
  EXPECT_EQ(text.line(2).number, 2U);
  EXPECT_FALSE(text.line(2).goes_on);
  EXPECT_EQ(text.line(3).number, 3U);
  EXPECT_EQ(text.line(4).number, 4U);
  EXPECT_TRUE(text.line(4).goes_on);
  EXPECT_EQ(text.line(5).number, 4U);
  EXPECT_FALSE(text.line(5).goes_on) << "no line is after it";
  EXPECT_EQ(text.line(1).whole.size() + text.line(2).whole.size(), longer.size());
  EXPECT_EQ(text.to_line_break(text.line(1)), longer);
  EXPECT_EQ(text.to_line_break(text.line(4)), longer);
  EXPECT_EQ(text.to_line_break(text.line(3)), "last");
  EXPECT_EQ(SectionedText("\n").to_line_break(SectionedText("\n").line(0)), "");
}

TEST(SectionedText, EndsALineAtANulByte) {
  const SectionedText text("[A]\nKey = 1\0 and more\nOther = 2\n"s);
  ASSERT_EQ(text.line_count(), 3U);
  EXPECT_EQ(text.line(1).text, "Key = 1");
  EXPECT_EQ(text.line(1).whole, "Key = 1\0 and more"s);
  EXPECT_EQ(whole_value(text.line(1)), "1\0 and more"s);
  EXPECT_EQ(text.line(2).text, "Other = 2");
  const SectionedText behind("[A]\nKey\0 = 1\n"s);
  EXPECT_EQ(whole_value(behind.line(1)), "");
  const SectionedText plain("[A]\nKey = one two \nKey\n");
  EXPECT_EQ(whole_value(plain.line(1)), "one two");
  EXPECT_EQ(whole_value(plain.line(2)), "");
}

LineKind kind(const std::string& line) {
  TextLine text;
  text.whole = text.text = line;
  return kind_of(text);
}

TEST(SectionedText, TellsWhatALineIs) {
  EXPECT_EQ(kind(""), LineKind::blank);
  EXPECT_EQ(kind(" \t\x1A"), LineKind::blank);
  EXPECT_EQ(kind("; words = 1"), LineKind::comment);
  EXPECT_EQ(kind("# words = 1"), LineKind::comment);
  EXPECT_EQ(kind("// words = 1"), LineKind::comment);
  EXPECT_EQ(kind("/ words = 1"), LineKind::entry);
  EXPECT_EQ(kind("/"), LineKind::without_equals);
  EXPECT_EQ(kind(" Key = 1"), LineKind::indented);
  EXPECT_EQ(kind("= 1"), LineKind::indented);
  EXPECT_EQ(kind("Ke\ry = 1"), LineKind::indented);
  EXPECT_EQ(kind("Key 1"), LineKind::without_equals);
  EXPECT_EQ(kind("Key = 1"), LineKind::entry);
  EXPECT_EQ(kind("Key ="), LineKind::entry);
}

TEST(SectionedText, TellsTheSectionOfPositions) {
  EXPECT_TRUE(is_positional("[SURFACE ELEMENT BOUNDARY CONDITION NAME]"));
  EXPECT_TRUE(is_positional("[SURFACE"));
  EXPECT_TRUE(is_positional("[SURFACE\tanything"));
  EXPECT_FALSE(is_positional("[SURFACES"));
  EXPECT_FALSE(is_positional("[SURFACE]"));
  EXPECT_FALSE(is_positional("[SURF"));
  EXPECT_FALSE(is_positional("A [SURFACE ELEMENT]"));
}

TEST(SectionedText, TellsWhatIsUtf16) {
  EXPECT_TRUE(is_utf16("\xFF\xFE"));
  EXPECT_TRUE(is_utf16("\xFE\xFF["));
  EXPECT_TRUE(is_utf16("[\0A\0"s));
  EXPECT_TRUE(is_utf16("\0[\0A"s));
  EXPECT_FALSE(is_utf16("[\0A"s)) << "too short to tell";
  EXPECT_FALSE(is_utf16("[A]\n"));
  EXPECT_FALSE(is_utf16("\0\0\0\0"s));
  EXPECT_FALSE(is_utf16("[\0AB"s));
  EXPECT_FALSE(is_utf16("\0[AB"s));
  EXPECT_FALSE(is_utf16("A[\0B"s));
  EXPECT_FALSE(is_utf16("AB\0["s));
  EXPECT_FALSE(is_utf16(""));
}

}  // namespace
}  // namespace qel
