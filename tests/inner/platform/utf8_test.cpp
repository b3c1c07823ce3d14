#include "platform/utf8.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
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

constexpr char32_t kReplacement = 0xFFFD;

// The characters of UTF-8, by a reading of its own; what is not well-formed fails.
std::u32string characters_of(const std::string& utf8) {
  std::u32string result;
  for (std::size_t at = 0; at < utf8.size();) {
    const auto byte = [&](std::size_t n) { return static_cast<unsigned char>(utf8.at(n)); };
    const unsigned first = byte(at);
    const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    char32_t character = length == 1 ? first : first & (0x7FU >> length);
    for (std::size_t n = 1; n < length; ++n) {
      EXPECT_EQ(byte(at + n) & 0xC0U, 0x80U);
      character = (character << 6U) | (byte(at + n) & 0x3FU);
    }
    EXPECT_TRUE(length == 1 || character >= (length == 2   ? 0x80U
                                             : length == 3 ? 0x800U
                                                           : 0x10000U))
        << "more bytes than it needs";
    EXPECT_TRUE(character < 0xD800 || (character > 0xDFFF && character < 0x110000));
    result.push_back(character);
    at += length;
  }
  return result;
}

// Any wide text of this platform: characters of all lengths, surrogates in any order, numbers that
// are no character. What is one comes back, what is none is U+FFFD.
TEST(ToUtf8, KeepsEveryCharacterOfRandomTexts) {
  std::mt19937 random(7);
  const char32_t kinds[][2] = {{0x01, 0x7F},        {0x80, 0x7FF},         {0x800, 0xD7FF},
                               {0xD800, 0xDBFF},    {0xDC00, 0xDFFF},      {0xE000, 0xFFFF},
                               {0x10000, 0x10FFFF}, {0x110000, 0x7FFFFFFF}};
  for (int round = 0; round < 20000; ++round) {
    std::wstring text;
    std::u32string expected;
    char32_t high = 0;  // a surrogate that waits for the other one
    const auto end_high = [&] {
      if (high != 0) {
        expected.push_back(kReplacement);
      }
      high = 0;
    };
    for (auto n = random() % 12; n > 0; --n) {
      const auto& kind = kinds[random() % std::size(kinds)];
      const auto c = static_cast<char32_t>(kind[0] + random() % (kind[1] - kind[0] + 1));
      if (sizeof(wchar_t) == 2 && c > 0x10FFFF) {
        continue;
      }
      if (sizeof(wchar_t) == 2 && c > 0xFFFF) {
        end_high();
        text.push_back(static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10U)));
        text.push_back(static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FFU)));
        expected.push_back(c);
        continue;
      }
      text.push_back(static_cast<wchar_t>(c));
      if (c >= 0xDC00 && c < 0xE000 && high != 0) {
        expected.push_back(0x10000 + ((high - 0xD800) << 10U) + (c - 0xDC00));
        high = 0;
        continue;
      }
      end_high();
      if (c >= 0xD800 && c < 0xDC00) {
        high = c;
      } else {
        expected.push_back(c < 0x110000 && (c < 0xDC00 || c > 0xDFFF) ? c : kReplacement);
      }
    }
    end_high();
    ASSERT_EQ(characters_of(to_utf8(text.c_str())), expected) << round;
  }
}

}  // namespace
