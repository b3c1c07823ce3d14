#include "platform/utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using qel::platform::to_utf8;

TEST(ToUtf8, KeepsAscii) {
  EXPECT_EQ(to_utf8(L""), "");
  EXPECT_EQ(to_utf8(L"C:/run 1/Default.pro"), "C:/run 1/Default.pro");
}

TEST(ToUtf8, WritesOneToFourBytes) {
  EXPECT_EQ(to_utf8(L"\x7F"), "\x7F");
  EXPECT_EQ(to_utf8(L"\x80"), "\xC2\x80");
  EXPECT_EQ(to_utf8(L"\x7FF"), "\xDF\xBF");
  EXPECT_EQ(to_utf8(L"\x800"), "\xE0\xA0\x80");
  EXPECT_EQ(to_utf8(L"\xFFFF"), "\xEF\xBF\xBF");
  EXPECT_EQ(to_utf8(L"\U0001F600"), "\xF0\x9F\x98\x80");
  EXPECT_EQ(to_utf8(L"\U0010FFFF"), "\xF4\x8F\xBF\xBF");
}

TEST(ToUtf8, JoinsAPairOfSurrogates) {
  const wchar_t pair[] = {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00), L'x', L'\0'};
  EXPECT_EQ(to_utf8(pair), "\xF0\x9F\x98\x80x");
}

TEST(ToUtf8, ReplacesWhatIsNoCharacter) {
  const wchar_t high_alone[] = {static_cast<wchar_t>(0xD83D), L'x', L'\0'};
  const wchar_t low_alone[] = {static_cast<wchar_t>(0xDE00), L'\0'};
  const wchar_t high_at_end[] = {static_cast<wchar_t>(0xD83D), L'\0'};
  EXPECT_EQ(to_utf8(high_alone), "\xEF\xBF\xBDx");
  EXPECT_EQ(to_utf8(low_alone), "\xEF\xBF\xBD");
  EXPECT_EQ(to_utf8(high_at_end), "\xEF\xBF\xBD");
}

}  // namespace
