#include "core/store.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <vector>

#include "inner/text/memory_file.h"
#include "support/line_break.h"
#include "text/text.h"

namespace {

using namespace qel;
using qelpro_test::MemoryFile;
using qelpro_test::native;

Result set(MemoryFile& file, const char* section, const char* key, const std::string& value,
           int index = Target::kByKey) {
  const Entry entry{{section, key, index}, value};
  return is_refused(entry) ? Result::no_open : Store(file).set(entry, true);
}

Result insert(MemoryFile& file, const char* section, const char* key, const std::string& value) {
  const Entry entry{{section, key}, value};
  return is_refused(entry) ? Result::no_open : Store(file).insert(entry);
}

Result replace(MemoryFile& file, const char* section, const char* key, const std::string& value) {
  const Entry entry{{section, key}, value};
  return is_refused(entry) ? Result::no_open : Store(file).replace(entry);
}

std::string after_set(const std::string& contents, const char* section, const char* key,
                      const std::string& value, int index = Target::kByKey) {
  MemoryFile file(contents);
  EXPECT_EQ(set(file, section, key, value, index), Result::done);
  return file.bytes;
}

std::string after_insert(const std::string& contents, const char* section, const char* key,
                         const std::string& value) {
  MemoryFile file(contents);
  EXPECT_EQ(insert(file, section, key, value), Result::done);
  return file.bytes;
}

std::string after_replace(const std::string& contents, const char* section, const char* key,
                          const std::string& value) {
  MemoryFile file(contents);
  EXPECT_EQ(replace(file, section, key, value), Result::done);
  return file.bytes;
}

void expect_refused(const char* section, const char* key, const std::string& value,
                    int index = Target::kByKey) {
  const std::string contents = "[A]\nx                    = 1\n[B]\n";
  MemoryFile file(contents);
  EXPECT_EQ(set(file, section, key, value, index), Result::no_open);
  EXPECT_EQ(file.bytes, contents);
  EXPECT_EQ(file.writes, 0);
}

std::string found(const std::string& contents, const char* section, const char* key) {
  LineScanner lines{std::string_view(contents)};
  const auto line = find_plainly(lines, {section, key});
  return line ? std::string(text::entry_value(line->text)) : "(nothing)";
}

constexpr const char* kX1 = "x                    = 1\n";
constexpr const char* kX2 = "x                    = 2\n";

std::string x(const std::string& value) { return "x                    = " + value + "\n"; }

TEST(Store, WritesASectionAndAPaddedEntryIntoANewFile) {
  EXPECT_EQ(after_set("", "[Flow-1]", "FillTime", "1.5"),
            native("\n[Flow-1]\nFillTime             = 1.5\n"));
}

TEST(Store, AppendsAMissingSection) {
  EXPECT_EQ(after_set("\n[A]\nx = 1\n", "[B]", "x", "2"),
            std::string("\n[A]\nx = 1\n\n[B]\n") + kX2);
}

TEST(Store, AddsANewKeyToItsSectionWithoutPadding) {
  EXPECT_EQ(after_set("\n[A]\nx = 1\n", "[A]", "y", "2"), "\n[A]\nx = 1\ny = 2\n");
  EXPECT_EQ(after_set("[A]\nx = 1\n[B]\ny = 2\n", "[A]", "z", "3"),
            "[A]\nx = 1\nz = 3\n[B]\ny = 2\n");
}

TEST(Store, AddsANewKeyRightBeforeTheNextHeaderAfterEmptyLines) {
  EXPECT_EQ(after_set("[A]\nx = 1\n\n[B]\n", "[A]", "y", "2"), "[A]\nx = 1\n\ny = 2\n[B]\n");
}

TEST(Store, RewritesAnEntryWithPadding) {
  EXPECT_EQ(after_set("[A]\nx = 1                 \n", "[A]", "x", "2"),
            std::string("[A]\n") + kX2);
}

TEST(Store, WritesALongKeyWhole) {
  EXPECT_EQ(after_set("", "[A]", "12345678901234567890", "1"),
            native("\n[A]\n12345678901234567890 = 1\n"));
  EXPECT_EQ(after_set("", "[A]", "123456789012345678901234", "1"),
            native("\n[A]\n123456789012345678901234 = 1\n"));
}

TEST(Store, MovesTheRestWhereTheLineGrows) {
  EXPECT_EQ(after_set("[A]\nx = 1\ny = 2\n[B]\nz = 3\n", "[A]", "x", "long"),
            "[A]\n" + x("long") + "y = 2\n[B]\nz = 3\n");
}

TEST(Store, LeavesBlanksWhereTheValueGotShorter) {
  const std::string before = "[A]\n" + x("12345") + "y = 2\n";
  const std::string after = after_set(before, "[A]", "x", "1");
  EXPECT_EQ(after, std::string("[A]\n") + kX1 + "y = 2\n    ");
  EXPECT_EQ(after.size(), before.size());
}

TEST(Store, UsesTheBlanksOfAnEarlierStoreAgain) {
  MemoryFile file("[A]\n" + x("12345") + "y = 2\n");
  for (int i = 0; i < 100; ++i) {
    ASSERT_EQ(set(file, "[A]", "x", "1"), Result::done);
    ASSERT_EQ(set(file, "[A]", "x", "123"), Result::done);
  }
  EXPECT_EQ(file.bytes, "[A]\n" + x("123") + "y = 2\n  ");
}

TEST(Store, UsesTheBlanksAfterALastLineWithoutALineBreakAgain) {
  MemoryFile file("[A]\n" + x("12345") + "y = 2");
  for (int i = 0; i < 100; ++i) {
    ASSERT_EQ(set(file, "[A]", "x", "1"), Result::done);
    ASSERT_EQ(set(file, "[A]", "x", "12345"), Result::done);
  }
  EXPECT_EQ(file.bytes, "[A]\n" + x("12345") + "y = 2");
  EXPECT_EQ(after_set("[A]\nx = 1   ", "[A]", "y", "2"), "[A]\nx = 1\ny = 2\n");
}

TEST(Store, PutsANewEntryInThePlaceOfPadding) {
  EXPECT_EQ(after_set("[A]\nx = 1\n    ", "[A]", "y", "2"), "[A]\nx = 1\ny = 2\n");
  EXPECT_EQ(after_set("[A]\nx = 1\n          ", "[A]", "y", "2"), "[A]\nx = 1\ny = 2\n    ");
  EXPECT_EQ(after_set("[A]\nx = 1\n    ", "[B]", "x", "2"),
            std::string("[A]\nx = 1\n\n[B]\n") + kX2);
}

TEST(Store, WritesALineBreakAfterALastLineThatHasNone) {
  EXPECT_EQ(after_set("[A]\nx = 1", "[A]", "y", "2"), "[A]\nx = 1\ny = 2\n");
  EXPECT_EQ(after_set("[A]", "[A]", "y", "2"), native("[A]\ny = 2\n"));
  EXPECT_EQ(after_set("[A]\nx = 1", "[A]", "", "line", 2), "[A]\nx = 1\nline\n");
}

TEST(Store, RewritesALastLineThatHasNoLineBreak) {
  EXPECT_EQ(after_set("[A]\nx = 1", "[A]", "x", "2"), std::string("[A]\n") + kX2);
}

TEST(Store, OverwritesAKeyThatOnlyALaterSectionHolds) {
  EXPECT_EQ(after_set("[A]\ny = 1\n[B]\n" + x("5"), "[A]", "x", "2"),
            std::string("[A]\ny = 1\n[B]\n") + kX2);
}

TEST(Store, WritesTheFirstOfTwoSectionsAlone) {
  EXPECT_EQ(after_set(std::string("[A]\n") + kX1 + "[A]\n" + kX1, "[A]", "x", "2"),
            std::string("[A]\n") + kX2 + "[A]\n" + kX1);
}

TEST(Store, WritesTheFirstOfTwoEntriesAlone) {
  EXPECT_EQ(after_set(std::string("[A]\n") + kX1 + kX1, "[A]", "x", "2"),
            std::string("[A]\n") + kX2 + kX1);
}

TEST(Store, DoesNotTakeALongerOrShorterKeyForTheSame) {
  EXPECT_EQ(after_set("[A]\nFR-1 = 3\nF = 1\n", "[A]", "FR", "2"),
            "[A]\nFR-1 = 3\nF = 1\nFR = 2\n");
}

TEST(Store, GivesALineWithoutAnEqualsSignItsValue) {
  EXPECT_EQ(after_set("[A]\nx\n", "[A]", "x", "1"), std::string("[A]\n") + kX1);
}

TEST(Store, FindsASectionOnTheFirstByte) {
  EXPECT_EQ(after_set(std::string("[A]\n") + kX1, "[A]", "x", "2"), std::string("[A]\n") + kX2);
}

TEST(Store, KeepsAByteOrderMark) {
  EXPECT_EQ(after_set(std::string("\xEF\xBB\xBF[A]\n") + kX1, "[A]", "x", "2"),
            std::string("\xEF\xBB\xBF[A]\n") + kX2);
  EXPECT_EQ(after_set("\xEF\xBB\xBF[A]\n", "[A]", "y", "2"), "\xEF\xBB\xBF[A]\ny = 2\n");
  EXPECT_EQ(after_set("\xEF\xBB\xBF", "[A]", "x", "1"),
            native(std::string("\xEF\xBB\xBF\n[A]\n") + kX1));
}

TEST(Store, WritesTheLineBreakOfTheFilesFirstLine) {
  EXPECT_EQ(after_set("[A]\r\nx = 1\r\n", "[A]", "y", "2"), "[A]\r\nx = 1\r\ny = 2\r\n");
  EXPECT_EQ(after_set("[A]\r\nx = 1\r\n", "[A]", "x", "2"), "[A]\r\nx                    = 2\r\n");
  EXPECT_EQ(after_set("[A]\r\nx = 1\r\n", "[B]", "x", "2"),
            "[A]\r\nx = 1\r\n\r\n[B]\r\nx                    = 2\r\n");
  EXPECT_EQ(after_set("[A]\r\nx = 1", "[A]", "y", "2"), "[A]\r\nx = 1\r\ny = 2\r\n");
}

TEST(Store, LeavesTheLineBreaksOfOtherLinesAlone) {
  EXPECT_EQ(after_set("[A]\r\nx = 1\r\ny = 2\nz = 3\r\n", "[A]", "x", "long"),
            "[A]\r\nx                    = long\r\ny = 2\nz = 3\r\n");
  EXPECT_EQ(after_set("[A]\nx = 1\r\ny = 2\r\n", "[A]", "x", "long"),
            "[A]\n" + x("long") + "y = 2\r\n");
}

TEST(Store, WritesBytesItDoesNotOwnBackAsTheyWere) {
  using namespace std::string_literals;
  const std::string rest = "y = \0\x01\xFF\r\r\n\0\n[B]\n\t \nlast"s;
  EXPECT_EQ(after_set("[A]\nx = 1\n" + rest, "[A]", "x", "long"), "[A]\n" + x("long") + rest);
}

TEST(Store, KeepsARestOfAnyLength) {
  std::string rest;
  for (int i = 0; i < 70000; ++i) {
    rest += "k = v\n";
  }
  rest += "long = " + std::string(20000, 'v') + "\n";
  EXPECT_TRUE(after_set("[A]\nx = 1\n" + rest, "[A]", "x", "long") == "[A]\n" + x("long") + rest);
}

TEST(Store, DropsLineBreaksAtTheEndOfAValue) {
  EXPECT_EQ(after_set("", "[A]", "x", "1\r\n\n"), native(std::string("\n[A]\n") + kX1));
  EXPECT_EQ(after_set("[A]\nfirst\n", "[A]", "", "2nd\n", 2), "[A]\nfirst\n2nd\n");
}

TEST(Store, RefusesALineBreakInsideAText) {
  expect_refused("[A]", "x", "1\n2");
  expect_refused("[A]", "x", "1\r2");
  expect_refused("[A]", "x", "\n1");
  expect_refused("[A]", "x\n", "1");
  expect_refused("[A]\n", "x", "1");
  expect_refused("[A]", "", "a\nb", 1);
}

TEST(Store, RefusesANameThatCouldNeverBeFound) {
  for (const char* name : {"", "a b", "a\tb", "a=b", " a", "a "}) {
    expect_refused("[A]", name, "1");
    expect_refused(name, "x", "1");
  }
  expect_refused("[A B]", "x", "1");
  expect_refused("[SURFACE ELEMENT BOUNDARY CONDITION NAME]", "", "line", 1);
}

TEST(Store, RefusesToAppendASectionThatReadsAsNoHeader) {
  expect_refused("C", "x", "1");
  expect_refused("[C", "x", "1");
}

TEST(Store, RefusesALineThatWouldReadAsAHeader) {
  expect_refused("[A]", "", "[C]", 1);
  expect_refused("[A]", "[C", "1]");
}

TEST(Store, WritesALineOfTheGreatestLength) {
  const std::string value(text::kLongestLine - 1 - 23, 'v');
  MemoryFile file("[A]\n" + x("0"));
  EXPECT_EQ(set(file, "[A]", "x", value), Result::done);
  EXPECT_EQ(found(file.bytes, "[A]", "x"), value);
  EXPECT_EQ(set(file, "[A]", "x", value + "v"), Result::no_open);
  EXPECT_EQ(found(file.bytes, "[A]", "x"), value);
}

TEST(Store, WritesALineByIndexOfTheGreatestLength) {
  const std::string line(text::kLongestLine - 1, 'v');
  EXPECT_EQ(after_set("[A]\r\nold\r\n", "[A]", "", line, 1), "[A]\r\n" + line + "\r\n");
  expect_refused("[A]", "", line + "v", 1);
}

TEST(Store, MeasuresTheLineInTheLayoutThatItIsWrittenIn) {
  const std::string value(text::kLongestLine - 1 - 4, 'v');
  EXPECT_EQ(after_set("[A]\n", "[A]", "x", value), "[A]\nx = " + value + "\n");
  EXPECT_EQ(after_insert("", "[A]", "x", value), native("\n[A]\nx = " + value + "\n"));
  EXPECT_EQ(after_replace("[A]\nx = 1\n", "[A]", "x", value), "[A]\nx = " + value + "\n");
  MemoryFile file("[A]\n");
  EXPECT_EQ(set(file, "[A]", "x", value + "v"), Result::no_open);
  EXPECT_EQ(insert(file, "[A]", "x", value + "v"), Result::no_open);
  EXPECT_EQ(replace(file, "[A]", "x", value + "v"), Result::no_open);
  EXPECT_EQ(set(file, "[B]", "x", value), Result::no_open) << "a padded line would be too long";
  EXPECT_EQ(file.writes, 0);
}

TEST(StoreByIndex, ReplacesALineWhole) {
  EXPECT_EQ(after_set("[A]\nfirst\nsecond\n[B]\n", "[A]", "", "one", 1),
            "[A]\none\nsecond\n[B]\n  ");
  EXPECT_EQ(after_set("[A]\nfirst\n\nthird\n", "[A]", "", "two", 2), "[A]\nfirst\ntwo\nthird\n");
}

TEST(StoreByIndex, RefusesIndexZeroWhichAddressesNoLine) {
  expect_refused("[A]", "x", "1", 0);
  expect_refused("[C]", "", "line", 0);
}

TEST(StoreByIndex, AlwaysCreatesThePositionalHeader) {
  const std::string created = "\n[SURFACE ELEMENT BOUNDARY CONDITION NAME]\nline\n";
  EXPECT_EQ(after_set("", "[SURFACE", "", "line", 1), native(created));
  EXPECT_EQ(after_set("", "[Other]", "", "line", 1), native(created));
  EXPECT_EQ(after_set("", "[Other]", "", "line", 7), native(created));
}

TEST(StoreByIndex, AddsALastLineAfterTheSectionsLastLine) {
  EXPECT_EQ(after_set("[A]\nfirst\n[B]\nx = 1\n", "[A]", "", "2nd", 2),
            "[A]\nfirst\n2nd\n[B]\nx = 1\n");
  EXPECT_EQ(after_set("[A]\nfirst\n[B]\nx = 1\n", "[A]", "", "2nd", 9),
            "[A]\nfirst\n2nd\n[B]\nx = 1\n");
  EXPECT_EQ(after_set("[A]\nfirst\n", "[A]", "", "2nd", 9), "[A]\nfirst\n2nd\n");
}

TEST(StoreByIndex, PutsLinesThatComeInOrderOneBelowTheOther) {
  MemoryFile file("\n[Z]\nz = 1\n");
  for (int i = 1; i <= 5; ++i) {
    ASSERT_EQ(set(file, "[SURFACE", "", "line " + std::to_string(i), i), Result::done);
  }
  ASSERT_EQ(set(file, "[Y]", "y", "1"), Result::done);
  ASSERT_EQ(set(file, "[SURFACE", "", "line 6", 6), Result::done);
  EXPECT_EQ(file.bytes,
            "\n[Z]\nz = 1\n\n[SURFACE ELEMENT BOUNDARY CONDITION NAME]\nline 1\nline 2\nline "
            "3\nline 4\nline 5\nline 6\n"
            "[Y]\ny                    = 1\n");
}

TEST(Insert, WritesBeforeALineOfTheSameKeyThatStays) {
  EXPECT_EQ(after_insert("[A]\nw = 0\nx = 1\ny = 2\n", "[A]", "x", "5"),
            "[A]\nw = 0\nx = 5\nx = 1\ny = 2\n");
}

TEST(Insert, WritesBeforeAnIndentedLineOfTheSameKey) {
  EXPECT_EQ(after_insert("[A]\n  x = 1\ny = 2\n", "[A]", "x", "5"), "[A]\nx = 5\n  x = 1\ny = 2\n");
  EXPECT_EQ(after_set("[A]\n  x = 1\ny = 2\n", "[A]", "x", "5"), "[A]\nx = 5\n  x = 1\ny = 2\n");
}

TEST(Insert, PassesALineOfTheSameKeyThatHoldsNoValue) {
  EXPECT_EQ(after_insert("[A]\n  x =\n  x\ny = 2\n", "[A]", "x", "5"),
            "[A]\n  x =\n  x\ny = 2\nx = 5\n");
  EXPECT_EQ(after_insert("[A]\n  x =\r\ny = 2\r\n", "[A]", "x", "5"),
            "[A]\n  x =\r\ny = 2\r\nx = 5\n");
}

TEST(Insert, WritesBeforeTheNextHeader) {
  EXPECT_EQ(after_insert("[A]\nw = 0\n[B]\nx = 1\n", "[A]", "x", "5"),
            "[A]\nw = 0\nx = 5\n[B]\nx = 1\n");
  EXPECT_EQ(after_insert("[A]\nw = 0\n[B] \t\nx = 1\n", "[A]", "x", "5"),
            "[A]\nw = 0\nx = 5\n[B] \t\nx = 1\n");
  EXPECT_EQ(after_insert("[A]\nw = 0\n[B]", "[A]", "x", "5"), "[A]\nw = 0\nx = 5\n[B]");
}

TEST(Insert, WritesAtTheEndOfTheFileInTheLastSection) {
  EXPECT_EQ(after_insert("[A]\nw = 0", "[A]", "x", "5"), "[A]\nw = 0\nx = 5\n");
}

TEST(Insert, AppendsAMissingSectionWithAnUnpaddedEntry) {
  EXPECT_EQ(after_insert("[A]\nw = 0\n", "[B]", "x", "5"), "[A]\nw = 0\n\n[B]\nx = 5\n");
  EXPECT_EQ(after_insert("", "[B]", "x", "5"), native("\n[B]\nx = 5\n"));
}

TEST(Insert, NeverLandsInASectionThatMerelyMentionsTheName) {
  EXPECT_EQ(after_insert("[A]\nsee = [B]\n[B]\ny = 1\n", "[B]", "x", "5"),
            "[A]\nsee = [B]\n[B]\ny = 1\nx = 5\n");
  EXPECT_EQ(after_insert("[A]\nsee = [B]\n", "[B]", "x", "5"), "[A]\nsee = [B]\n\n[B]\nx = 5\n");
}

TEST(Replace, PutsTheEntryInThePlaceOfItsLine) {
  EXPECT_EQ(after_replace("[A]\nGC-1 = 1\nGC-2 = 2\n", "[A]", "GC-1", "longer"),
            "[A]\nGC-1 = longer\nGC-2 = 2\n");
}

TEST(Replace, LeavesNoPaddingBehind) {
  EXPECT_EQ(after_replace("[A]\nGC-1 = 123456\ny = 2\n", "[A]", "GC-1", "1"),
            "[A]\nGC-1 = 1\ny = 2\n");
  EXPECT_EQ(after_replace("[A]\nGC-1 = 1\ny = 2\n      ", "[A]", "GC-1", "2"),
            "[A]\nGC-1 = 2\ny = 2\n");
}

TEST(Replace, LeavesALongerKeyAlone) {
  EXPECT_EQ(after_replace("[A]\nGC-10 = 1\n", "[A]", "GC-1", "2"), "[A]\nGC-10 = 1\nGC-1 = 2\n");
}

TEST(Replace, SetsANewEntryOffFromTheNextSectionByAnEmptyLine) {
  EXPECT_EQ(after_replace("[A]\ny = 1\n[B]\nGC-1 = 1\n", "[A]", "GC-1", "2"),
            "[A]\ny = 1\nGC-1 = 2\n\n[B]\nGC-1 = 1\n");
}

TEST(Replace, TakesAnyBracketForTheNextSection) {
  EXPECT_EQ(after_replace("[A]\ny = [1\nGC-1 = 1\n", "[A]", "GC-1", "2"),
            "[A]\nGC-1 = 2\n\ny = [1\nGC-1 = 1\n");
}

TEST(Replace, EndsEveryLineWithALineBreak) {
  EXPECT_EQ(after_replace("[A]\nGC-1 = 1\ny = 2", "[A]", "GC-1", "5"), "[A]\nGC-1 = 5\ny = 2\n");
  EXPECT_EQ(after_replace("[A]\nGC-1 = 1", "[A]", "GC-1", "5"), "[A]\nGC-1 = 5\n");
}

TEST(Replace, AppendsWhatIsMissing) {
  EXPECT_EQ(after_replace("[A]\ny = 1", "[A]", "GC-1", "2"), "[A]\ny = 1\nGC-1 = 2\n");
  EXPECT_EQ(after_replace("[A]\ny = 1\n", "[B]", "GC-1", "2"), "[A]\ny = 1\n\n[B]\nGC-1 = 2\n");
}

// Every kind of store over a file on which it has to grow.
using Work = Result (*)(MemoryFile&);
constexpr Work kGrowing[] = {
    [](MemoryFile& file) { return set(file, "[A]", "x", "much longer than before"); },
    [](MemoryFile& file) { return set(file, "[A]", "z", "new"); },
    [](MemoryFile& file) { return set(file, "[C]", "x", "new"); },
    [](MemoryFile& file) { return set(file, "[A]", "", "a new line of some length", 1); },
    [](MemoryFile& file) { return insert(file, "[A]", "x", "1"); },
    [](MemoryFile& file) { return replace(file, "[A]", "GC-1", "longer"); },
};
constexpr Work kShrinking[] = {
    [](MemoryFile& file) { return set(file, "[A]", "", "s", 1); },
    [](MemoryFile& file) { return replace(file, "[A]", "GC-1", "s"); },
};
const std::string kOld = "[A]\nGC-1 = 12345\nx = 1\ny = 2\n[B]\nx = 1\n";

TEST(FailingStore, LeavesTheFileAloneWhereThereIsNoRoomToGrow) {
  for (const Work work : kGrowing) {
    MemoryFile file(kOld);
    file.room = static_cast<std::int64_t>(kOld.size());
    EXPECT_EQ(work(file), Result::no_open);
    EXPECT_EQ(file.bytes, kOld);
    EXPECT_EQ(file.writes, 0) << "the room is asked for before anything is written";
    EXPECT_GT(file.asked_growth, 0);
  }
}

TEST(FailingStore, NeedsNoRoomWhereTheFileDoesNotGrow) {
  for (const Work work : kShrinking) {
    MemoryFile file(kOld);
    file.room = 0;
    EXPECT_EQ(work(file), Result::done);
  }
}

TEST(FailingStore, PutsTheOldBytesBackAfterAShortWrite) {
  for (const std::size_t taken :
       {std::size_t{0}, std::size_t{1}, std::size_t{9}, std::size_t{1000}}) {
    for (const auto& works : {std::vector<Work>(std::begin(kGrowing), std::end(kGrowing)),
                              std::vector<Work>(std::begin(kShrinking), std::end(kShrinking))}) {
      for (const Work work : works) {
        MemoryFile file(kOld);
        file.failing_write = 1;
        file.writable = taken;
        EXPECT_EQ(work(file), Result::no_open);
        EXPECT_EQ(file.bytes, kOld);
      }
    }
  }
}

TEST(FailingStore, PutsNoMoreThanTheOldBytesBack) {
  MemoryFile file(kOld);
  file.failing_write = 1;
  file.writable = 3;
  file.truncate_fails = true;
  EXPECT_EQ(set(file, "[A]", "y", "3"), Result::no_open);
  EXPECT_EQ(file.bytes, kOld);
}

TEST(FailingStore, PutsTheOldBytesBackWhereTheFileCannotBeShortened) {
  MemoryFile file(kOld);
  file.truncate_fails = true;
  EXPECT_EQ(replace(file, "[A]", "GC-1", "s"), Result::no_open);
  EXPECT_EQ(file.bytes, kOld);
}

TEST(FailingStore, WritesNothingOverAFileThatCannotBeRead) {
  for (const Work work : kGrowing) {
    MemoryFile file(kOld);
    file.readable = 10;
    EXPECT_EQ(work(file), Result::no_open);
    EXPECT_EQ(file.writes, 0);
    file.size_fails = true;
    EXPECT_EQ(work(file), Result::no_open);
    EXPECT_EQ(file.writes, 0);
  }
}

TEST(Store, PutsANewTextDownWithOneWrite) {
  for (const Work work : kGrowing) {
    MemoryFile file(kOld);
    EXPECT_EQ(work(file), Result::done);
    EXPECT_EQ(file.writes, 1);
  }
}

TEST(Store, ReportsAnAbsentKeyWhereItMayNotInsert) {
  MemoryFile file("[A]\nx = 1\n");
  EXPECT_EQ(Store(file).set({{"[A]", "y"}, "2"}, false), Result::absent);
  EXPECT_EQ(file.bytes, "[A]\nx = 1\n");
  EXPECT_EQ(Store(file).set({{"[B]", "y"}, "2"}, false), Result::done);
}

// Wherever the line stands: what moves up leaves blanks behind, and nothing else.
TEST(Store, NeitherShortensNorLengthensAFileOfManyPagesForAShorterValue) {
  std::string contents = "[A]\n";
  for (int key = 100; key < 500; ++key) {
    contents += "K" + std::to_string(key) + "                 = 0123456789\n";
  }
  for (const char* key : {"K101", "K230", "K350", "K498"}) {
    const std::string line = key + std::string("                 = 0123456789\n");
    std::string expected = contents;
    expected.replace(expected.find(line), line.size(), key + std::string("                 = 5\n"));
    expected.append(9, ' ');
    EXPECT_EQ(after_set(contents, "[A]", key, "5"), expected) << key;
  }
}

}  // namespace
