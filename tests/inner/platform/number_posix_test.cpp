#include "platform/number.h"

#include <cstdint>
#include <cstdio>
#include <random>
#include <regex>
#include <string>

#include "inner/platform/scanned_number.h"

// The C library of the other platform scans odd texts its own way.

namespace qelpro_test {
namespace {

using namespace qel::platform;

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

TEST(ScanReal, AgreesWithTheScanFormatOnDecimalsOfAnyLength) {
  std::mt19937_64 random(20261122);
  constexpr std::uint64_t kLargestExact = std::uint64_t{1} << 53;
  for (int round = 0; round < 200000; ++round) {
    // Those of sixteen digits stand around the whole numbers that a double no longer holds.
    std::string text = std::to_string(round % 3 == 0 ? kLargestExact - 500 + random() % 1000
                                                     : random() >> (random() % 64));
    text.insert(0, random() % 4, '0');
    text.append(random() % 4, '0');
    text.insert(random() % (text.size() + 1), random() % 8 == 0 ? "" : ".");
    text.insert(0, random() % 4 == 0 ? "-" : "");
    text.append(random() % 8 == 0 ? "e-5" : "");
    expect_same_real(text);
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

}  // namespace
}  // namespace qelpro_test
