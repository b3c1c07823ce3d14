#include "text/key_table.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using qel::KeyTable;

TEST(NumberedKey, EndsWithANumberAsItIsPrinted) {
  const auto number_of = [](std::string_view key) { return qel::numbered_key(key).number; };
  EXPECT_EQ(number_of("FR-1"), 1);
  EXPECT_EQ(number_of("FR-0"), 0);
  EXPECT_EQ(number_of("12"), 12);
  EXPECT_EQ(number_of("FR-2147483647"), 2147483647);
  for (const char* key :
       {"FR-", "", "FR-01", "FR-00", "FR-2147483648", "FR-1x", "FR-10000000000"}) {
    EXPECT_LT(number_of(key), 0) << key;
  }
  EXPECT_EQ(qel::numbered_key("FR--12").prefix, "FR--");
}

TEST(NumberBehind, IsThatOfAKeyWithThisPrefix) {
  EXPECT_EQ(qel::number_behind("FR-", "FR-1"), 1);
  EXPECT_EQ(qel::number_behind("FR-", "FR-0"), 0);
  EXPECT_EQ(qel::number_behind("FR-", "FR-123456789"), 123456789);
  for (const char* key : {"FR-", "FR", "", "IR-1", "FR-01", "FR-1x", "FR-1234567890", "xFR-1"}) {
    EXPECT_LT(qel::number_behind("FR-", key), 0) << key;
  }
  EXPECT_LT(qel::number_behind("", "1"), 0);
}

TEST(KeyTable, FindsWhatWasEnteredAndNothingElse) {
  // Texts of every length around one and two words, which differ in one character alone.
  std::vector<std::string> texts;
  for (std::size_t length = 0; length < 24; ++length) {
    const std::string text(length, 'x');
    texts.push_back(text);
    for (std::size_t at = 0; at < length; ++at) {
      texts.push_back(text);
      texts.back()[at] = 'y';
    }
  }
  KeyTable<600> table;
  for (std::size_t text = 0; text < texts.size(); text += 2) {
    EXPECT_EQ(table.enter(text % 3, texts[text], text % 4 == 0), text / 2);
    EXPECT_EQ(table.enter(text % 3, texts[text], text % 4 == 0), text / 2);
  }
  for (std::size_t text = 0; text < texts.size(); ++text) {
    for (std::size_t owner = 0; owner < 3; ++owner) {
      for (const bool is_numbered : {false, true}) {
        const bool is_there = text % 2 == 0 && owner == text % 3 && is_numbered == (text % 4 == 0);
        EXPECT_EQ(table.find(owner, texts[text], is_numbered), is_there ? text / 2 : table.kNone)
            << texts[text];
      }
    }
  }
}

}  // namespace
