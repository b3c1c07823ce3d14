#include "blocks/name_encoding.h"
#include "blocks/compound_encoding.h"
#include "blocks/positional_encoding.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// What the caller had in the output stays nowhere.
TEST(IntegerAndQuotedNameEncoding, IsZeroWhereTheTextHasNoNumber) {
  for (const char* const text : {"\"P 20\"", "x\t\"P 20\"", "-\"P 20\""}) {
    int number = 7;
    char* name = nullptr;
    qel::IntegerAndQuotedName::scan(text, number, name);
    EXPECT_EQ(number, 0) << text;
    EXPECT_STREQ(name, "P 20") << text;
  }
}

TEST(ContactAngleEncoding, IsANameBetweenTheFirstTwoQuotesAndANumberBehind) {
  std::string name = "before";
  double angle = -7;
  for (const char* const text : {"", "30", "\"Steel 30", "\""}) {
    EXPECT_FALSE(qel::ContactAngle::scan(text, name, angle)) << text;
    EXPECT_EQ(name, "before") << text;
    EXPECT_EQ(angle, -7) << text;
  }
  EXPECT_TRUE(qel::ContactAngle::scan("x \"Steel\"\t30.5 \"y\" 4", name, angle));
  EXPECT_EQ(name, "Steel");
  EXPECT_EQ(angle, 30.5);
  EXPECT_TRUE(qel::ContactAngle::scan("\"\" 7", name, angle));
  EXPECT_EQ(name, "");
  EXPECT_EQ(angle, 7);
  EXPECT_TRUE(qel::ContactAngle::scan("\"Steel\"15", name, angle));
  EXPECT_EQ(angle, 15) << "right behind the quote";
}

// Up to three words the name is one; of more, all between the first and the last.
TEST(PositionalHeaderEncoding, HasANameOfAllWordsBetweenItsNumbers) {
  struct {
    const char* text;
    const char* name;
    int second;
  } const lines[] = {{"1 Top 2", "Top", 2},
                     {"1 Top side 2", "Top side", 2},
                     {" 1\tTop  left side\t2\n", "Top  left side", 2},
                     {"1 Top", "Top", 0},
                     {"1", "", 0}};
  for (const auto& line : lines) {
    int first = -7;
    int second = -7;
    char* name = nullptr;
    qel::PositionalHeader::scan(line.text, first, name, second);
    EXPECT_EQ(first, 1) << line.text;
    EXPECT_STREQ(name, line.name) << line.text;
    EXPECT_EQ(second, line.second) << line.text;
  }
}

TEST(ZoneCountEncoding, AddsWhatItCanReadOfBothNumbers) {
  const auto count_in = [](const char* text) {
    int count = -7;
    qel::ZoneCount::scan(text, count);
    return count;
  };
  EXPECT_EQ(count_in("2+3"), 5);
  EXPECT_EQ(count_in("2 + 3"), 2) << "one character stands between them";
  EXPECT_EQ(count_in("2+x"), 2);
  EXPECT_EQ(count_in("x+3"), 0);
  EXPECT_EQ(count_in("4"), 4);
  EXPECT_EQ(count_in("x"), -7);
}

}  // namespace
