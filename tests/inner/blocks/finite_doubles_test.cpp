#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "blocks/encoding.h"
#include "platform/number.h"
#include "support/comma_locale.h"
#include "support/in_c_locale.h"

// Every finite double survives what the format allows: six digits are those that "%g" gives, they
// read back as the double that is nearest to them, and to store that one changes nothing. What is
// written with seventeen digits reads back as it was. In every locale.

namespace qelpro_test {
namespace {

double of_bits(std::uint64_t bits) {
  double value = 0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

// Every exponent, subnormal numbers among them, with the first and the last mantissa and random
// ones, of both signs; and what is near numbers that people write.
std::vector<double> finite_doubles() {
  constexpr int kExponents = 2047;
  constexpr int kMantissas = 12;
  constexpr unsigned int kMantissaBits = 52;
  constexpr std::uint64_t kMantissaMask = (std::uint64_t{1} << kMantissaBits) - 1;
  std::mt19937_64 random(16);
  std::vector<double> values;
  for (std::uint64_t exponent = 0; exponent < kExponents; ++exponent) {
    for (int number = 0; number < kMantissas; ++number) {
      const std::uint64_t mantissa = number == 0   ? 0
                                     : number == 1 ? kMantissaMask
                                     : number == 2 ? 1
                                                   : random() & kMantissaMask;
      const std::uint64_t sign = random() << 63U;
      values.push_back(of_bits(sign | exponent << kMantissaBits | mantissa));
    }
  }
  for (const double near :
       {0.0, 1e-5, 1e-4, 0.1, 1.0, 9.99999, 99999.95, 999999.5, 1e6, 1e15, 1e22, 1e23, 123456.5,
        0.000123456, 5e-324, 2.2250738585072014e-308, std::numeric_limits<double>::max()}) {
    values.insert(values.end(),
                  {near, -near, std::nextafter(near, 0), std::nextafter(near, 1e300)});
  }
  return values;
}

double scanned(const std::string& text, bool (*scan)(const char*&, double&)) {
  const char* at = text.c_str();
  double value = std::nan("");
  EXPECT_TRUE(scan(at, value)) << text;
  EXPECT_EQ(*at, '\0') << text;
  return value;
}

bool same(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

std::string with_three_digits(std::string text) {
  const std::size_t exponent = text.find('e');
  if (exponent != std::string::npos && text.size() - exponent == 4) {
    text.insert(exponent + 2, "0");
  }
  return text;
}

class FiniteDoubles : public testing::TestWithParam<const char*> {};

TEST_P(FiniteDoubles, SurviveWhatTheFormatAllows) {
  const std::string name = GetParam();
  const CommaLocale locale(name);
  if (!name.empty() && !locale.is_set()) {
    GTEST_SKIP() << "the machine has no locale " << name;
  }
  int kept = 0;
  for (const double value : finite_doubles()) {
    const std::string text = qel::Real::print(value);
    ASSERT_EQ(text, with_three_digits(printed("%g", value)));
    const double read = scanned(text, &qel::platform::scan_real);
    ASSERT_TRUE(same(read, to_double(text))) << text;
    ASSERT_TRUE(same(scanned(text, &qel::platform::scan_decimal_real), read)) << text;
    double field = 0;
    qel::Real::scan(text.c_str(), field);
    ASSERT_TRUE(same(field, read)) << text;
    ASSERT_EQ(qel::Real::print(read), text);
    double x = 0;
    double y = 0;
    double z = 0;
    qel::RealTriple::scan(qel::RealTriple::print(value, 1.5, -value).c_str(), x, y, z);
    ASSERT_TRUE(same(x, read) && y == 1.5 && same(z, -read)) << text;
    const std::string whole = printed("%.17g", value);
    ASSERT_TRUE(same(scanned(whole, &qel::platform::scan_real), value)) << whole;
    kept += same(read, value) ? 1 : 0;
  }
  EXPECT_GT(kept, 20) << "those of six digits";
}

INSTANTIATE_TEST_SUITE_P(Locales, FiniteDoubles,
                         testing::Values("", "de_DE.UTF-8", "fr_FR.UTF-8", "tr_TR.UTF-8",
                                         "ru_RU.UTF-8"));

}  // namespace
}  // namespace qelpro_test
