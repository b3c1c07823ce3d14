#include "blocks/name_encoding.h"

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
}

}  // namespace
