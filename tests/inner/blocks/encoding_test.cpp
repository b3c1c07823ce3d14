#include "blocks/encoding.h"
#include "support/comma_locale.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using namespace qel;

int integer_in(const char* text) {
  int value = -777;
  Integer::scan(text, value);
  return value;
}

double real_in(const char* text) {
  double value = -777.5;
  Real::scan(text, value);
  return value;
}

TEST(IntegerEncoding, ScansAsFarAsAnIntegerGoes) {
  EXPECT_EQ(integer_in("7"), 7);
  EXPECT_EQ(integer_in("  -5 bar"), -5);
  EXPECT_EQ(integer_in("+3"), 3);
  EXPECT_EQ(integer_in("2.9"), 2);
  EXPECT_EQ(integer_in("0x10"), 0);
  EXPECT_EQ(integer_in("2147483647"), std::numeric_limits<int>::max());
  EXPECT_EQ(integer_in("-2147483648"), std::numeric_limits<int>::min());
}

TEST(IntegerEncoding, KeepsTheValueForATextWithoutANumber) {
  for (const char* text : {"", "x", "-", ".5", " \t"}) {
    EXPECT_EQ(integer_in(text), -777) << '"' << text << '"';
  }
}

TEST(IntegerEncoding, PrintsDecimally) {
  EXPECT_EQ(Integer::print(-5), "-5");
  EXPECT_EQ(Integer::print(0), "0");
  EXPECT_EQ(Integer::print(std::numeric_limits<int>::min()), "-2147483648");
}

TEST(RealEncoding, ScansAsFarAsARealGoes) {
  EXPECT_EQ(real_in("0.1"), 0.1);
  EXPECT_EQ(real_in(" -2.5e1 oC"), -25);
  EXPECT_EQ(real_in("1.2e-007"), 1.2e-7);
  EXPECT_EQ(real_in("1.2e-7"), 1.2e-7);
  EXPECT_EQ(real_in("1.5E+010"), 1.5e10);
  EXPECT_EQ(real_in("1,5"), 1);
}

TEST(RealEncoding, KeepsTheValueForATextWithoutANumber) {
  for (const char* text : {"", "warm", ".", "-", "e5"}) {
    EXPECT_EQ(real_in(text), -777.5) << '"' << text << '"';
  }
}

TEST(RealEncoding, PrintsSixSignificantDigits) {
  EXPECT_EQ(Real::print(0.1), "0.1");
  EXPECT_EQ(Real::print(2.0), "2");
  EXPECT_EQ(Real::print(3.14159265), "3.14159");
  EXPECT_EQ(Real::print(0.0001234567), "0.000123457");
  EXPECT_EQ(Real::print(123456.7), "123457");
  EXPECT_EQ(Real::print(-0.0), "-0");
}

TEST(RealEncoding, PrintsAtLeastThreeDigitsOfExponent) {
  EXPECT_EQ(Real::print(0.00000012), "1.2e-007");
  EXPECT_EQ(Real::print(1.5e10), "1.5e+010");
  EXPECT_EQ(Real::print(1234567), "1.23457e+006");
  EXPECT_EQ(Real::print(1e100), "1e+100");
  EXPECT_EQ(Real::print(-1e-300), "-1e-300");
}

TEST(TextEncoding, HandsOutTheTextItself) {
  char text[] = "  as it stands = so ";
  char* value = nullptr;
  Text::scan(text, value);
  EXPECT_EQ(value, text);
  EXPECT_EQ(Text::print("  as it stands = so "), "  as it stands = so ");
}

TEST(IntegerPairEncoding, ScansTwoIntegers) {
  int first = 8;
  int second = 9;
  IntegerPair::scan("1\t-2", first, second);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, -2);
}

TEST(IntegerPairEncoding, SetsWhatIsMissingToZero) {
  int first = 8;
  int second = 9;
  IntegerPair::scan("1", first, second);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 0);
  first = 8;
  second = 9;
  IntegerPair::scan("x 2", first, second);
  EXPECT_EQ(first, 0);
  EXPECT_EQ(second, 0);
  IntegerPair::scan("2.5 7", first, second);
  EXPECT_EQ(first, 2);
  EXPECT_EQ(second, 0);
}

TEST(FirstOfIntegerPairEncoding, DropsTheSecond) {
  int first = 9;
  FirstOfIntegerPair::scan("3 1", first);
  EXPECT_EQ(first, 3);
  FirstOfIntegerPair::scan("x", first);
  EXPECT_EQ(first, 0);
}

TEST(RealPairEncoding, ScansTwoReals) {
  double x = 8;
  double y = 9;
  RealPair::scan("0.5\t30", x, y);
  EXPECT_EQ(x, 0.5);
  EXPECT_EQ(y, 30);
  RealPair::scan("1 2 3", x, y);
  EXPECT_EQ(x, 1);
  EXPECT_EQ(y, 2);
}

TEST(RealPairEncoding, KeepsWhatIsMissing) {
  double x = 8;
  double y = 9;
  RealPair::scan("7", x, y);
  EXPECT_EQ(x, 7);
  EXPECT_EQ(y, 9);
  RealPair::scan("none 5", x, y);
  EXPECT_EQ(x, 7);
  EXPECT_EQ(y, 9);
}

TEST(RealPairEncoding, PrintsATabBetween) {
  EXPECT_EQ(RealPair::print(0.5, 30), "0.5\t30");
  EXPECT_EQ(RealPair::print(-1e-9, 1234567), "-1e-009\t1.23457e+006");
}

TEST(RealTripleEncoding, ScansThreeReals) {
  double x = 7;
  double y = 8;
  double z = 9;
  RealTriple::scan("0\t-0.5  1", x, y, z);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, -0.5);
  EXPECT_EQ(z, 1);
}

TEST(RealTripleEncoding, KeepsWhatIsMissing) {
  double x = 7;
  double y = 8;
  double z = 9;
  RealTriple::scan("1 2", x, y, z);
  EXPECT_EQ(x, 1);
  EXPECT_EQ(y, 2);
  EXPECT_EQ(z, 9);
  RealTriple::scan("3 y 5", x, y, z);
  EXPECT_EQ(x, 3);
  EXPECT_EQ(y, 2);
  EXPECT_EQ(z, 9);
}

TEST(RealTripleEncoding, PrintsTabsBetween) {
  EXPECT_EQ(RealTriple::print(0, -0.5, 1e-5), "0\t-0.5\t1e-005");
}

TEST(Encodings, DoNotDependOnTheLocale) {
  const qelpro_test::CommaLocale comma;
  if (!comma.is_set()) {
    GTEST_SKIP() << "the machine has no locale with a decimal comma";
  }
  const double scanned = real_in("1.5");
  const std::string printed = RealTriple::print(0.5, 1e-7, 1234.5);
  EXPECT_EQ(scanned, 1.5);
  EXPECT_EQ(printed, "0.5\t1e-007\t1234.5");
}

}  // namespace
