#include "core/scan_value.h"

#include <gtest/gtest.h>

#include <string>

#include "inner/text/memory_file.h"

namespace {

using qelpro_test::MemoryFile;

constexpr const char* kNothing = "(nothing)";

std::string scan(const std::string& file_contents, std::string_view section, std::string_view key) {
  MemoryFile file(file_contents);
  std::string contents;
  const auto text = qel::scan_value(file, section, key, contents);
  return text ? std::string(*text) : kNothing;
}

TEST(ScanValue, FindsAValue) {
  EXPECT_EQ(scan("[A]\nx = 1\n", "[A]", "x"), "1");
  EXPECT_EQ(scan("[A]\nx=a = b\n", "[A]", "x"), "a = b");
  EXPECT_EQ(scan("[A]\nx = 1", "[A]", "x"), "1");
}

TEST(ScanValue, StripsTheValueAtBothEnds) {
  EXPECT_EQ(scan("[A]\nx =    1 2\t\f\v\r\n", "[A]", "x"), "1 2");
  EXPECT_EQ(scan("[A]\nx =   \n", "[A]", "x"), "");
}

TEST(ScanValue, StripsWhatStandsBetweenKeyAndEqualsSign) {
  EXPECT_EQ(scan("[A]\nx \t\f\v= 1\n", "[A]", "x"), "1");
  EXPECT_EQ(scan("[A]\nx y = 1\n", "[A]", "x"), kNothing);
  EXPECT_EQ(scan("[A]\nx y = 1\n", "[A]", "x y"), "1");
}

TEST(ScanValue, NeverFindsALineWithLeadingBlanks) {
  EXPECT_EQ(scan("[A]\n  x = 1\n", "[A]", "x"), kNothing);
}

TEST(ScanValue, MatchesTheKeyOverItsWholeLength) {
  EXPECT_EQ(scan("[A]\nFR-1 = 3\nFR = 4\n", "[A]", "FR"), "4");
  EXPECT_EQ(scan("[A]\nFR-1 = 3\n", "[A]", "FR"), kNothing);
}

TEST(ScanValue, BeginsTheSectionAtALineThatMerelyMentionsIt) {
  EXPECT_EQ(scan("see [A] below\nx = 1\n[A]\nx = 2\n", "[A]", "x"), "1");
  EXPECT_EQ(scan("  [A]\nx = 1\n", "[A]", "x"), "1");
}

TEST(ScanValue, DoesNotStopAtTheNextSection) {
  EXPECT_EQ(scan("[A]\nx = 1\n[B]\ny = 2\n", "[A]", "y"), "2");
}

TEST(ScanValue, PassesALineWithoutAnEqualsSign) {
  EXPECT_EQ(scan("[A]\nx\nx = 2\n", "[A]", "x"), "2");
}

TEST(ScanValue, ReadsALineOfAnyLength) {
  const std::string value(10000, 'v');
  EXPECT_EQ(scan("[A]\nx = " + value + "\ny = 1\n", "[A]", "x"), value);
}

TEST(ScanValue, CutsALineAtANulByte) {
  EXPECT_EQ(scan(std::string("[A]\nx = 1\0002\ny = 3\n", 18), "[A]", "x"), "1");
  EXPECT_EQ(scan(std::string("[A]\nx = 1\0002\ny = 3\n", 18), "[A]", "y"), "3");
}

TEST(ScanValue, FindsNothingWithoutAKeyOrASection) {
  EXPECT_EQ(scan("[A]\n= 1\n", "[A]", ""), kNothing);
  EXPECT_EQ(scan("[A]\nx = 1\n", "", "x"), kNothing);
  EXPECT_EQ(scan("", "[A]", "x"), kNothing);
}

TEST(ScanValue, FindsNothingInAFileThatCannotBeRead) {
  std::string contents;
  MemoryFile unreadable("[A]\nx = 1\n");
  unreadable.readable = 0;
  EXPECT_FALSE(qel::scan_value(unreadable, "[A]", "x", contents));
  MemoryFile unmeasured("[A]\nx = 1\n");
  unmeasured.size_fails = true;
  EXPECT_FALSE(qel::scan_value(unmeasured, "[A]", "x", contents));
}

}  // namespace
