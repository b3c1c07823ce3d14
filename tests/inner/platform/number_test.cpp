#include "platform/number.h"

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>
#include <regex>

#include "inner/platform/scanned_number.h"
#include "support/comma_locale.h"
#include "support/in_c_locale.h"

namespace qelpro_test {
namespace {

using namespace qel::platform;

TEST(ScanReal, AcceptsWhatTheScanFormatAccepts) {
  for (const char* text : {"1.5",
                           " \t\n\v\f\r2",
                           "+3",
                           "-4.25e1",
                           ".5",
                           "5.",
                           ".",
                           "",
                           "-",
                           "+-1",
                           "1e5",
                           "1e",
                           "1e+",
                           "1e-",
                           "1.e3",
                           "0x1F",
                           "0x",
                           "0x.8p1",
                           "0x1p",
                           "0x1p+",
                           "0x1.8p-3",
                           "0xg",
                           "inf",
                           "-inf",
                           "INFINITY",
                           "infi",
                           "infinit",
                           "nan",
                           "NaN",
                           "-nan",
                           "nan(1)",
                           "i",
                           "n",
                           "1e400",
                           "-1e400",
                           "1e-400",
                           "4e-320",
                           "0e999999999999",
                           "1.5x900",
                           "1,5",
                           "- 1",
                           "1..2",
                           "00012",
                           "0x0p9999",
                           "1e99999999999999999999",
                           "0.0000001e310",
                           "0.0001e400",
                           "0.0001e-400",
                           "-.00001e-999"}) {
    expect_same_real(text);
  }
}

TEST(ScanInt, StopsAtTheDecimalPoint) {
  int value = 0;
  const char* text = "2.9";
  EXPECT_TRUE(scan_int(text, value));
  EXPECT_EQ(value, 2);
  EXPECT_STREQ(text, ".9");
}

TEST(ScanWord, TakesTheCharactersUpToWhiteSpace) {
  std::string word = "kept";
  const char* text = "  Water 5";
  EXPECT_TRUE(scan_word(text, word));
  EXPECT_EQ(word, "Water");
  EXPECT_STREQ(text, " 5");
  const char* blank = " \t";
  EXPECT_FALSE(scan_word(blank, word));
  EXPECT_EQ(word, "Water");
}

TEST(ScanChar, TakesTheVeryNextCharacter) {
  char c = '?';
  const char* text = " x";
  EXPECT_TRUE(scan_char(text, c));
  EXPECT_EQ(c, ' ');
  const char* end = "";
  EXPECT_FALSE(scan_char(end, c));
}

TEST(ToNumber, IsZeroForATextThatHoldsNone) {
  EXPECT_EQ(to_int("x"), 0);
  EXPECT_EQ(to_real("x"), 0.0);
  EXPECT_EQ(to_int("-5 m"), -5);
  EXPECT_EQ(to_real("2.5 m"), 2.5);
}

TEST(PrintReal, KeepsSixSignificantDigits) {
  EXPECT_EQ(print_real(0.1), "0.1");
  EXPECT_EQ(print_real(2.0), "2");
  EXPECT_EQ(print_real(3.14159265), "3.14159");
  EXPECT_EQ(print_real(0.0001234567), "0.000123457");
  EXPECT_EQ(print_real(-0.0), "-0");
}

TEST(PrintReal, WritesAtLeastThreeDigitsOfTheExponent) {
  EXPECT_EQ(print_real(0.00000012), "1.2e-007");
  EXPECT_EQ(print_real(1.5e10), "1.5e+010");
  EXPECT_EQ(print_real(-1e100), "-1e+100");
  EXPECT_EQ(print_real(DBL_MAX), "1.79769e+308");
}

TEST(PrintReal, WritesInfinityAndNanAsThePrintFormatDoes) {
  EXPECT_EQ(print_real(HUGE_VAL), "inf");
  EXPECT_EQ(print_real(-HUGE_VAL), "-inf");
  EXPECT_EQ(print_real(std::nan("")), "nan");
}

TEST(PrintReal, AgreesWithThePrintFormatButForTheExponentsWidth) {
  std::mt19937_64 random(7);
  const std::regex two_digits("e([+-])([0-9]{2})$");
  for (int round = 0; round < 100000; ++round) {
    const std::uint64_t bits = random();
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    if (round % 2 == 0) {
      value = static_cast<double>(static_cast<std::int64_t>(bits)) / 1e15;
    }
    if (std::isnan(value)) {
      continue;
    }
    const std::string expected = printed("%g", value);
    EXPECT_EQ(print_real(value), std::regex_replace(expected, two_digits, "e$010$2")) << value;
  }
}

TEST(Numbers, DoNotDependOnTheLocale) {
  const CommaLocale comma;
  if (!comma.is_set()) {
    GTEST_SKIP() << "the machine has no locale with a decimal comma";
  }
  char printed[16];
  std::snprintf(printed, sizeof printed, "%g", 1.5);
  EXPECT_STREQ(printed, "1,5");
  EXPECT_EQ(print_real(1.5), "1.5");
  EXPECT_EQ(to_real("1.5"), 1.5);
  EXPECT_EQ(to_real("1,5"), 1.0);
}

TEST(ScanDecimalReal, TakesTheZeroOfAHexadecimalNumber) {
  for (const char* text : {"0x900", "-0X1p3", " 0x"}) {
    const char* at = text;
    double value = -7;
    EXPECT_TRUE(scan_decimal_real(at, value));
    EXPECT_EQ(value, 0);
    EXPECT_EQ(*at | 0x20, 'x') << text;
  }
}

TEST(ScanDecimalReal, IsTheSameForAnyOtherText) {
  for (const char* text : {"1.5e3x", "-inf", "nan", " +.5", "1e+x", "", "x", "1x0x2", "infi"}) {
    const char* at = text;
    const char* decimal_at = text;
    double value = -7;
    double decimal = -7;
    EXPECT_EQ(scan_decimal_real(decimal_at, decimal), scan_real(at, value)) << text;
    EXPECT_EQ(decimal_at, at) << text;
    EXPECT_TRUE(decimal == value || (std::isnan(decimal) && std::isnan(value))) << text;
  }
}

}  // namespace
}  // namespace qelpro_test
