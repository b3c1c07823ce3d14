#include "platform/number.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>
#include <regex>

namespace {

using namespace qel::platform;

struct Real {
  int fields;
  double value;
  std::size_t consumed;
};

Real by_scanf(const std::string& text) {
  double value = -7;
  int consumed = 0;
  const int fields = std::sscanf(text.c_str(), "%lf%n", &value, &consumed);
  return {fields == 1 ? 1 : 0, value, fields == 1 ? static_cast<std::size_t>(consumed) : 0};
}

Real by_scanner(const std::string& text) {
  double value = -7;
  const char* at = text.c_str();
  const bool done = scan_real(at, value);
  return {done ? 1 : 0, value, static_cast<std::size_t>(at - text.c_str())};
}

void expect_same_real(const std::string& text) {
  const Real expected = by_scanf(text);
  const Real actual = by_scanner(text);
  EXPECT_EQ(actual.fields, expected.fields) << '"' << text << '"';
  EXPECT_EQ(actual.consumed, expected.consumed) << '"' << text << '"';
  if (std::isnan(expected.value)) {
    EXPECT_TRUE(std::isnan(actual.value)) << text;
  } else {
    EXPECT_EQ(std::memcmp(&actual.value, &expected.value, sizeof(double)), 0) << text << ": " << actual.value << " for " << expected.value;
  }
}

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
                           "0.0000001e310"}) {
    expect_same_real(text);
  }
}

TEST(ScanReal, AgreesWithTheScanFormatOnRandomTexts) {
  std::mt19937 random(20261120);
  const std::string letters = "0123456789..eE+-xXpPaAfF infty(\t";
  for (int round = 0; round < 200000; ++round) {
    std::string text;
    for (std::size_t length = random() % 12; text.size() < length;) {
      text += letters[random() % letters.size()];
    }
    // "0x." without a digit is no number here; the C library at hand makes 0 of it.
    static const std::regex no_digits("0[xX]\\.([^0-9a-fA-F]|$)");
    if (!std::regex_search(text, no_digits)) {
      expect_same_real(text);
    }
  }
}

TEST(ScanInt, AgreesWithTheScanFormatOnRandomTexts) {
  std::mt19937 random(20261121);
  const std::string letters = "0123456789012345678901234567890123456789+- x\t";
  for (int round = 0; round < 100000; ++round) {
    std::string text;
    for (std::size_t length = random() % 24; text.size() < length;) {
      text += letters[random() % letters.size()];
    }
    int expected = -7;
    int expected_end = 0;
    std::sscanf(text.c_str(), "%d%n", &expected, &expected_end);
    int actual = -7;
    const char* at = text.c_str();
    scan_int(at, actual);
    EXPECT_EQ(actual, expected) << '"' << text << '"';
    EXPECT_EQ(at - text.c_str(), expected_end) << '"' << text << '"';
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
    char expected[64];
    std::snprintf(expected, sizeof expected, "%g", value);
    EXPECT_EQ(print_real(value), std::regex_replace(expected, two_digits, "e$010$2")) << value;
  }
}

TEST(Numbers, DoNotDependOnTheLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
    GTEST_SKIP() << "the machine has no German locale";
  }
  char printed[16];
  std::snprintf(printed, sizeof printed, "%g", 1.5);
  EXPECT_STREQ(printed, "1,5");
  EXPECT_EQ(print_real(1.5), "1.5");
  EXPECT_EQ(to_real("1.5"), 1.5);
  EXPECT_EQ(to_real("1,5"), 1.0);
  std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
