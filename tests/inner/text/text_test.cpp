#include "text/text.h"

#include <gtest/gtest.h>

namespace {

using namespace qel::text;

TEST(FirstToken, EndsAtABlankATabOrAnEqualsSign) {
  EXPECT_EQ(first_token("Key Value"), "Key");
  EXPECT_EQ(first_token("Key\tValue"), "Key");
  EXPECT_EQ(first_token("Key=Value"), "Key");
  EXPECT_EQ(first_token("Key"), "Key");
}

TEST(FirstToken, OfAHeaderWithBlanksIsItsTextUpToTheFirst) {
  EXPECT_EQ(first_token("[SURFACE ELEMENT BOUNDARY CONDITION NAME]"), "[SURFACE");
}

TEST(FirstToken, IsEmptyWhereTheLineBeginsWithADelimiter) {
  EXPECT_EQ(first_token(" Key"), "");
  EXPECT_EQ(first_token("\tKey"), "");
  EXPECT_EQ(first_token("=Key"), "");
  EXPECT_EQ(first_token(""), "");
}

TEST(FirstToken, KeepsWhatIsNoDelimiter) { EXPECT_EQ(first_token("a,b;c:\rd = 1"), "a,b;c:\rd"); }

TEST(FirstTokenIs, MatchesTheWholeTokenOnly) {
  EXPECT_TRUE(first_token_is("Flow = 1", "Flow"));
  EXPECT_TRUE(first_token_is("Flow=1", "Flow"));
  EXPECT_TRUE(first_token_is("Flow\t= 1", "Flow"));
  EXPECT_TRUE(first_token_is("Flow", "Flow"));
  EXPECT_FALSE(first_token_is("FlowRate = 1", "Flow"));
  EXPECT_FALSE(first_token_is("FR-1 = 3", "FR"));
  EXPECT_FALSE(first_token_is("Flo", "Flow"));
}

TEST(FirstTokenIs, EndsAtTabBlankOrEqualsSign) {
  for (const char* line : {"FillTime", "FillTime = 1", "FillTime=1", "FillTime\t1"}) {
    EXPECT_TRUE(first_token_is(line, "FillTime")) << line;
  }
  for (const char* line :
       {" FillTime", "FillTimes", "FillTim", "fillTime", "\tFillTime", "=FillTime", ""}) {
    EXPECT_FALSE(first_token_is(line, "FillTime")) << line;
  }
  EXPECT_TRUE(first_token_is("[SURFACE ELEMENT BOUNDARY CONDITION NAME]", "[SURFACE"));
}

TEST(FirstTokenIs, TellsUpperFromLowerCase) { EXPECT_FALSE(first_token_is("flow = 1", "Flow")); }

TEST(FirstTokenIs, NeverMatchesAnEmptyText) {
  EXPECT_FALSE(first_token_is("", ""));
  EXPECT_FALSE(first_token_is(" indented", ""));
  EXPECT_FALSE(first_token_is("= 1", ""));
}

TEST(FirstTokenIs, NeverMatchesATextThatIsMoreThanAToken) {
  EXPECT_FALSE(first_token_is("a b = 1", "a b"));
  EXPECT_FALSE(first_token_is("a=b = 1", "a=b"));
  EXPECT_FALSE(first_token_is("[SURFACE ELEMENT]", "[SURFACE ELEMENT]"));
}

TEST(EntryValue, IsTheTextAfterTheFirstEqualsSign) {
  EXPECT_EQ(entry_value("Key = Value"), "Value");
  EXPECT_EQ(entry_value("Key=Value"), "Value");
  EXPECT_EQ(entry_value("Name = a = b"), "a = b");
  EXPECT_EQ(entry_value("Key with more = Value"), "Value");
}

TEST(EntryValue, LosesBlanksInFrontAndBlanksAndTabsBehind) {
  EXPECT_EQ(entry_value("Key =    1.5 \t  "), "1.5");
  EXPECT_EQ(entry_value("Key =a  b"), "a  b");
}

TEST(EntryValue, KeepsATabInFront) { EXPECT_EQ(entry_value("Key = \t1"), "\t1"); }

TEST(EntryValue, IsEmptyWithoutAnEqualsSign) {
  EXPECT_EQ(entry_value("Key Value"), "");
  EXPECT_EQ(entry_value("Key"), "");
  EXPECT_EQ(entry_value("Key ="), "");
  EXPECT_EQ(entry_value("Key =   \t"), "");
}

TEST(IndexValue, IsTheWholeLineTrimmed) {
  EXPECT_EQ(index_value("  a = b \t "), "a = b");
  EXPECT_EQ(index_value("\ta"), "\ta");
  EXPECT_EQ(index_value("   "), "");
}

TEST(IsHeader, WantsTheBracketsAtBothEnds) {
  EXPECT_TRUE(is_header("[Unit]"));
  EXPECT_TRUE(is_header("[]"));
  EXPECT_TRUE(is_header("[SURFACE ELEMENT BOUNDARY CONDITION NAME]"));
  EXPECT_TRUE(is_header("[a]b]"));
  EXPECT_FALSE(is_header("[Unit"));
  EXPECT_FALSE(is_header("Unit]"));
  EXPECT_FALSE(is_header("[Unit]x"));
  EXPECT_FALSE(is_header("["));
  EXPECT_FALSE(is_header("]"));
  EXPECT_FALSE(is_header(""));
}

TEST(IsHeader, LooksPastWhatTrails) {
  EXPECT_TRUE(is_header("[Unit] \t "));
  EXPECT_TRUE(is_header("[Unit]\n"));
}

TEST(IsHeader, DoesNotLookPastBlanksInFront) {
  EXPECT_FALSE(is_header(" [Unit]"));
  EXPECT_FALSE(is_header("\t[Unit]"));
}

TEST(TrimBlanks, TakesBlanksAlone) {
  EXPECT_EQ(trim_blanks("  a b  "), "a b");
  EXPECT_EQ(trim_blanks(" \ta\t "), "\ta\t");
  EXPECT_EQ(trim_blanks("   "), "");
  EXPECT_EQ(trim_blanks(""), "");
}

TEST(TrimEnd, TakesTheGivenCharactersFromTheEndAlone) {
  EXPECT_EQ(trim_end("\r\na\r\n", "\r\n"), "\r\na");
  EXPECT_EQ(trim_end("\r\n", "\r\n"), "");
  EXPECT_EQ(trim_end("a", ""), "a");
}

TEST(IsHeader, TakesWordsAfterTheBrackets) {
  for (const char* line : {"[A] # first inlet", "[A]\tnote", "[A] note = 5", "[A B] note",
                           "[a]b] c", "[A] = [B]", "[] x"}) {
    EXPECT_TRUE(is_header(line)) << line;
  }
  for (const char* line : {"[A] = 5", "[A]=5", "[A] \t= 5", "[A]note", "[A note", "[A=] b",
                           " [A] note", "A [B] c", "[A]x y"}) {
    EXPECT_FALSE(is_header(line)) << line;
  }
}

TEST(IsHeaderOf, NeedsTheNameAndAHeader) {
  EXPECT_TRUE(is_header_of("[A]", "[A]"));
  EXPECT_TRUE(is_header_of("[A] note", "[A]"));
  EXPECT_TRUE(is_header_of("[SURFACE ELEMENT] note", "[SURFACE"));
  EXPECT_FALSE(is_header_of("[A] = 5", "[A]"));
  EXPECT_FALSE(is_header_of("[AB]", "[A]"));
  EXPECT_FALSE(is_header_of("[A]", ""));
  EXPECT_TRUE(is_header_of("Unit", "Unit")) << "a lookup finds what no store writes";
}

TEST(WithoutEndMark, DropsItWithTheBlanksAroundIt) {
  EXPECT_EQ(without_end_mark("x = 1\x1A"), "x = 1");
  EXPECT_EQ(without_end_mark("x = 1  \x1A\x1A "), "x = 1");
  EXPECT_EQ(without_end_mark("x = 1  "), "x = 1  ");
  EXPECT_EQ(without_end_mark("x\x1A = 1"), "x\x1A = 1");
  EXPECT_EQ(without_end_mark("\x1A"), "");
}

TEST(IsSectionName, StandsInBrackets) {
  EXPECT_TRUE(is_section_name("[A]"));
  for (const char* name : {"", "[", "A", "[A", "A]", "[A B]", "[A]x", "Unit"}) {
    EXPECT_FALSE(is_section_name(name)) << name;
  }
}

TEST(IsKey, BeginsWithNoBracket) {
  EXPECT_TRUE(is_key("FR-1"));
  EXPECT_TRUE(is_key("x[1]"));
  for (const char* name : {"", "[A]", "[x", "a b", "a="}) {
    EXPECT_FALSE(is_key(name)) << name;
  }
}

TEST(IsFindable, NeedsANameThatIsAllFirstToken) {
  EXPECT_TRUE(is_findable("FR-1"));
  EXPECT_TRUE(is_findable("[Flow-1]"));
  for (const char* name : {"", " ", "a b", "a\tb", "a=b", "a\nb", "a\rb", "a "}) {
    EXPECT_FALSE(is_findable(name)) << '"' << name << '"';
  }
}

TEST(PaddedEntry, PutsTheKeyInTwentyColumns) {
  EXPECT_EQ(padded_entry("FillTime", "1.5"), "FillTime             = 1.5");
  EXPECT_EQ(padded_entry("1234567890123456789", "x"), "1234567890123456789  = x");
}

TEST(PaddedEntry, WritesAKeyOfTwentyColumnsOrMoreWhole) {
  EXPECT_EQ(padded_entry("12345678901234567890", "x"), "12345678901234567890 = x");
  EXPECT_EQ(padded_entry("123456789012345678901", "x"), "123456789012345678901 = x");
}

TEST(PlainEntry, HasNoPadding) { EXPECT_EQ(plain_entry("FillTime", "1.5"), "FillTime = 1.5"); }

TEST(WithoutEndMark, LeavesTheBlanksInFrontOfItToADialectThatKeepsThem) {
  const Dialect keeping{.keeps_blanks = true};
  EXPECT_EQ(without_end_mark("x = 1  \x1A\x1A ", keeping), "x = 1  ");
  EXPECT_EQ(without_end_mark("x = 1  ", keeping), "x = 1  ");
  EXPECT_EQ(without_end_mark("  \x1A", keeping), "  ");
}

TEST(UntrimmedValue, KeepsAllThatTrailsIt) {
  EXPECT_EQ(untrimmed_value("x =  1 \t"), "1 \t");
  EXPECT_EQ(untrimmed_value("x =\t1"), "\t1");
  EXPECT_EQ(untrimmed_value("x = a = b "), "a = b ");
  EXPECT_EQ(untrimmed_value("x"), "");
}

TEST(PaddedEntry, IsAsWideAsTheDialectHasIt) {
  EXPECT_EQ(padded_entry("Key", "1", {.key_columns = 6}), "Key    = 1");
  EXPECT_EQ(padded_entry("LongerKey", "1", {.key_columns = 6}), "LongerKey = 1");
}

}  // namespace
