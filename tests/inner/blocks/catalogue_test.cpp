#include "blocks/catalogue.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <string_view>

#include "platform/number.h"

namespace {

using namespace qel;

// Whether the text is the pattern with a number as it is printed in its place.
bool matches(std::string_view pattern, const std::string& text, int& number) {
  number = 0;
  const std::size_t percent = pattern.find('%');
  if (percent == std::string_view::npos) {
    return pattern == text;
  }
  const std::string prefix(pattern.substr(0, percent));
  const std::string suffix(pattern.substr(pattern.find('d', percent) + 1));
  if (text.size() <= prefix.size() + suffix.size()) {
    return false;
  }
  number = platform::to_int(text.c_str() + prefix.size());
  return prefix + std::to_string(number) + suffix == text;
}

const KeyInfo* row_of(const SectionInfo& section, const std::string& key, int& number) {
  for (const KeyInfo& row : section.keys) {
    if (matches(row.text, key, number)) {
      return &row;
    }
  }
  return nullptr;
}

// Every key with every odd number behind it, in every section.
TEST(Catalogue, FindsAKeyAsALookAtEachRowDoes) {
  std::set<std::string> keys{"", "-", "1", "-1", "0", "%d", "FR-%d"};
  for (const SectionInfo* section : Catalogue()) {
    for (const KeyInfo& row : section->keys) {
      const std::string_view text = row.text;
      const std::string prefix(text.substr(0, text.find('%')));
      for (const char* number :
           {"", "1", "0", "-1", "-0", "01", "12", "+1", "2147483647", "2147483648", "-2147483648",
            "-2147483649", "-", "1]", "x", "1x", "99999999999999999999"}) {
        keys.insert(prefix + number);
      }
      keys.insert("x" + prefix);
    }
  }
  for (const SectionInfo* section : Catalogue()) {
    for (const std::string& key : keys) {
      int number = 0;
      int expected_number = 0;
      const KeyInfo* const expected = row_of(*section, key, expected_number);
      ASSERT_EQ(find_key(*section, key, number), expected) << section->name << ' ' << key;
      if (expected != nullptr) {
        EXPECT_EQ(number, expected_number) << section->name << ' ' << key;
      }
    }
  }
}

TEST(Catalogue, FindsASectionByItsNameAndNumber) {
  int number = -1;
  const SectionInfo* const flow = find_section("[Flow-12]", number);
  ASSERT_NE(flow, nullptr);
  EXPECT_STREQ(flow->name, "[Flow-%ld]");
  EXPECT_EQ(number, 12);
  EXPECT_STREQ(find_section("[Flow-2-Skin]", number)->name, "[Flow-%d-Skin]");
  EXPECT_EQ(number, 2);
  EXPECT_STREQ(find_section("[Machine]", number)->name, "[Machine]");
  EXPECT_EQ(number, 0);
  for (const char* name :
       {"[Flow-]", "[Flow-01]", "[Flow-x]", "Flow-1", "[Flow-1", "", "[flow-1]"}) {
    EXPECT_EQ(find_section(name, number), nullptr) << name;
  }
}

}  // namespace
