#include "study/decimal.h"

#include <charconv>
#include <system_error>

namespace qelpro {
namespace {

constexpr std::int64_t kTen = 10;
// Sums of two such numbers fit.
constexpr std::int64_t kLargest = INT64_MAX / 4;

bool is_digit(char character) { return character >= '0' && character <= '9'; }

}  // namespace

std::optional<Decimal> decimal_of(std::string_view text) {
  constexpr int kLargestExponent = 300;
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) {
    text.remove_prefix(1);
  }
  Decimal number;
  bool any = false;
  bool behind_point = false;
  for (; !text.empty(); text.remove_prefix(1)) {
    if (text.front() == '.' && !behind_point) {
      behind_point = true;
      continue;
    }
    if (!is_digit(text.front())) {
      break;
    }
    const int digit = text.front() - '0';
    if (number.digits > (kLargest - digit) / kTen) {
      return std::nullopt;
    }
    any = true;
    number.digits = number.digits * kTen + digit;
    number.exponent -= behind_point ? 1 : 0;
  }
  if (!any) {
    return std::nullopt;
  }
  if (!text.empty()) {
    if (text.front() != 'e' && text.front() != 'E') {
      return std::nullopt;
    }
    text.remove_prefix(text.size() > 1 && text[1] == '+' ? 2 : 1);
    int exponent = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), exponent);
    if (parsed.ec != std::errc() || parsed.ptr != text.data() + text.size() ||
        exponent > kLargestExponent || exponent < -kLargestExponent) {
      return std::nullopt;
    }
    number.exponent += exponent;
  }
  number.digits *= negative ? -1 : 1;
  return number;
}

std::string text_of(Decimal number) {
  constexpr int kMostZeros = 20;
  if (number.digits == 0) {
    return "0";
  }
  while (number.digits % kTen == 0) {
    number.digits /= kTen;
    ++number.exponent;
  }
  const std::string sign = number.digits < 0 ? "-" : "";
  std::string digits = std::to_string(number.digits).substr(sign.size());
  if (number.exponent >= 0) {
    return number.exponent <= kMostZeros
               ? sign + digits + std::string(static_cast<std::size_t>(number.exponent), '0')
               : sign + digits + "e+" + std::to_string(number.exponent);
  }
  const auto behind = static_cast<std::size_t>(-number.exponent);
  if (behind >= digits.size()) {
    if (behind - digits.size() > kMostZeros) {
      return sign + digits + "e" + std::to_string(number.exponent);
    }
    digits.insert(0, behind - digits.size() + 1, '0');
  }
  return sign + digits.insert(digits.size() - behind, ".");
}

std::optional<std::int64_t> digits_at(const Decimal& number, int exponent) {
  std::int64_t digits = number.digits;
  for (int at = number.exponent; at > exponent && digits != 0; --at) {
    if (digits > kLargest / kTen || digits < -kLargest / kTen) {
      return std::nullopt;
    }
    digits *= kTen;
  }
  return digits;
}

}  // namespace qelpro
