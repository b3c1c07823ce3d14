#include "platform/number.h"

#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <system_error>

#include "platform/rounding.h"

namespace qel::platform {
namespace {

bool is_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool is_digit(char c) { return c >= '0' && c <= '9'; }
char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
bool is_hex_digit(char c) { return is_digit(c) || (lower(c) >= 'a' && lower(c) <= 'f'); }

void skip_space(const char*& at) {
  while (is_space(*at)) {
    ++at;
  }
}

bool take_word(const char*& at, const char* word) {
  const char* p = at;
  for (; *word != '\0'; ++word, ++p) {
    if (lower(*p) != *word) {
      return false;
    }
  }
  at = p;
  return true;
}

// The stretch of a number: what a scan format consumes, and where the part that has a value ends.
struct Mantissa {
  const char* begin;
  const char* value_end;
  const char* consumed_end;
  bool hexadecimal;
};

template <bool hexadecimal>
bool lex_digits(const char* at, Mantissa& number) {
  const auto digit = [](char c) { return hexadecimal ? is_hex_digit(c) : is_digit(c); };
  number.begin = at;
  bool any = false;
  for (; digit(*at); ++at) {
    any = true;
  }
  if (*at == '.') {
    ++at;
    for (; digit(*at); ++at) {
      any = true;
    }
  }
  if (!any) {
    return false;
  }
  number.value_end = number.consumed_end = at;
  if (lower(*at) == (hexadecimal ? 'p' : 'e')) {
    // An exponent without digits is consumed and counts as none.
    ++at;
    if (*at == '+' || *at == '-') {
      ++at;
    }
    const bool has_digits = is_digit(*at);
    while (is_digit(*at)) {
      ++at;
    }
    number.consumed_end = at;
    if (has_digits) {
      number.value_end = at;
    }
  }
  return true;
}

enum class Radix { any, decimal };

bool lex_number(const char* at, Radix radix, Mantissa& number) {
  number.hexadecimal = radix == Radix::any && at[0] == '0' && lower(at[1]) == 'x';
  return number.hexadecimal ? lex_digits<true>(at + 2, number) : lex_digits<false>(at, number);
}

// Whether a number beyond the range of a double is too large rather than too small.
bool is_huge(const Mantissa& number) {
  const int digit_weight = number.hexadecimal ? 4 : 1;
  const auto digit = number.hexadecimal ? is_hex_digit : is_digit;
  std::int64_t magnitude = 0;
  bool significant = false;
  bool after_point = false;
  const char* at = number.begin;
  for (; at != number.value_end && (digit(*at) || *at == '.'); ++at) {
    if (*at == '.') {
      after_point = true;
      continue;
    }
    significant = significant || *at != '0';
    if (significant && !after_point) {
      magnitude += digit_weight;
    } else if (!significant && after_point) {
      magnitude -= digit_weight;
    }
  }
  if (at == number.value_end) {
    return magnitude > 0;
  }
  ++at;
  const bool negative = *at == '-';
  if (*at == '+' || *at == '-') {
    ++at;
  }
  constexpr std::int64_t kEnough = std::int64_t{1} << 40;
  std::int64_t exponent = 0;
  for (; at != number.value_end && exponent < kEnough; ++at) {
    exponent = exponent * 10 + (*at - '0');
  }
  return magnitude + (negative ? -exponent : exponent) > 0;
}

// The powers of ten that a double holds exactly.
constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The usual number: few digits, perhaps with a point among them, and no exponent. Its digits as a
// whole number and the power of ten are exact doubles, so that their quotient is the nearest one to
// the number. False, and nothing is moved, for any other.
bool scan_short_decimal(const char*& at, double& value) {
  constexpr std::size_t kMostDigits = 18;  // a whole number of so many fits into 64 bits
  constexpr std::uint64_t kLargestExact = std::uint64_t{1} << 53;
  static_assert(kMostDigits < std::size(kPowersOfTen));
  if (FLT_EVAL_METHOD != 0) {
    return false;  // the quotient would be rounded twice
  }
  const char* p = at;
  std::uint64_t digits = 0;
  const auto take_digits = [&p, &digits] {
    for (unsigned digit = 0; (digit = static_cast<unsigned char>(*p) - unsigned{'0'}) < 10U; ++p) {
      digits = digits * 10 + digit;
    }
  };
  take_digits();
  auto count = static_cast<std::size_t>(p - at);
  std::size_t after_point = 0;
  if (*p == '.') {
    const char* const fraction = ++p;
    take_digits();
    after_point = static_cast<std::size_t>(p - fraction);
    count += after_point;
  }
  const char next = lower(*p);
  if (count == 0 || count > kMostDigits || digits > kLargestExact || next == 'e' || next == 'x') {
    return false;
  }
  const auto whole = static_cast<double>(static_cast<std::int64_t>(digits));
  value = after_point == 0 ? whole : whole / kPowersOfTen[after_point];
  at = p;
  return true;
}

bool scan_real(const char*& at, Radix radix, double& value) {
  const char* p = at;
  skip_space(p);
  const bool negative = *p == '-';
  if (*p == '+' || *p == '-') {
    ++p;
  }
  double result = 0;
  if (scan_short_decimal(p, result)) {
    value = negative ? -result : result;
    at = p;
    return true;
  }
  if (take_word(p, "inf")) {
    // "inf" may go on to "infinity" only: a scan that has begun the longer word does not fall back
    // to the shorter one.
    if (lower(*p) == 'i' && !take_word(p, "inity")) {
      return false;
    }
    result = std::numeric_limits<double>::infinity();
  } else if (take_word(p, "nan")) {
    result = std::numeric_limits<double>::quiet_NaN();
  } else {
    Mantissa number{};
    if (!lex_number(p, radix, number)) {
      return false;
    }
    const auto format = number.hexadecimal ? std::chars_format::hex : std::chars_format::general;
    const auto parsed = std::from_chars(number.begin, number.value_end, result, format);
    if (parsed.ec == std::errc::result_out_of_range) {
      result = is_huge(number) ? HUGE_VAL : 0.0;
    }
    p = number.consumed_end;
  }
  value = negative ? -result : result;
  at = p;
  return true;
}

}  // namespace

bool scan_int64(const char*& at, std::int64_t& value) {
  const char* p = at;
  skip_space(p);
  const bool negative = *p == '-';
  if (*p == '+' || *p == '-') {
    ++p;
  }
  if (!is_digit(*p)) {
    return false;
  }
  constexpr std::uint64_t kLargest = std::numeric_limits<std::int64_t>::max();
  const std::uint64_t limit = negative ? kLargest + 1 : kLargest;
  std::uint64_t magnitude = 0;
  for (; is_digit(*p); ++p) {
    const auto digit = static_cast<std::uint64_t>(*p - '0');
    magnitude = magnitude > (limit - digit) / 10 ? limit : magnitude * 10 + digit;
  }
  value = static_cast<std::int64_t>(negative ? 0 - magnitude : magnitude);
  at = p;
  return true;
}

bool scan_int(const char*& at, int& value) {
  std::int64_t wide = 0;
  if (!scan_int64(at, wide)) {
    return false;
  }
  value = static_cast<int>(static_cast<std::uint32_t>(wide));
  return true;
}

bool scan_real(const char*& at, double& value) {
  const NearestRounding rounding;
  return scan_real(at, Radix::any, value);
}

bool scan_decimal_real(const char*& at, double& value) {
  const NearestRounding rounding;
  return scan_real(at, Radix::decimal, value);
}

bool scan_char(const char*& at, char& value) {
  if (*at == '\0') {
    return false;
  }
  value = *at++;
  return true;
}

bool scan_word(const char*& at, std::string& value) {
  std::string_view word;
  if (!scan_word(at, word)) {
    return false;
  }
  value.assign(word);
  return true;
}

bool scan_word(const char*& at, std::string_view& value) {
  const char* p = at;
  skip_space(p);
  const char* begin = p;
  while (*p != '\0' && !is_space(*p)) {
    ++p;
  }
  if (p == begin) {
    return false;
  }
  value = {begin, static_cast<std::size_t>(p - begin)};
  at = p;
  return true;
}

int to_int(const char* text) {
  int value = 0;
  scan_int(text, value);
  return value;
}

double to_real(const char* text) {
  double value = 0;
  scan_real(text, value);
  return value;
}

std::string print_int(int value) { return std::to_string(value); }

std::string print_real(double value) {
  constexpr int kSignificantDigits = 6;
  constexpr std::size_t kExponentDigits = 3;
  std::array<char, 32> buffer{};
  const auto printed = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                     std::chars_format::general, kSignificantDigits);
  std::string text(buffer.data(), printed.ptr);
  const std::size_t e = text.find('e');
  if (e != std::string::npos) {
    const std::size_t digits = text.size() - (e + 2);
    if (digits < kExponentDigits) {
      text.insert(e + 2, kExponentDigits - digits, '0');
    }
  }
  return text;
}

}  // namespace qel::platform
