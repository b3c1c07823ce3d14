#pragma once

#include <cstring>
#include <string>

#include "platform/number.h"

/// The parts of which encodings are made: fields scanned one after another, and printed with tabs
/// between them.
namespace qel::fields {

inline bool scan_one(const char*& at, int& value) { return platform::scan_int(at, value); }
inline bool scan_one(const char*& at, double& value) { return platform::scan_real(at, value); }
inline bool scan_one(const char*& at, char& value) { return platform::scan_char(at, value); }

/// A real that is never hexadecimal: one after which an "x" may stand.
struct Decimal {
  double& value;
};
inline bool scan_one(const char*& at, const Decimal& decimal) {
  return platform::scan_decimal_real(at, decimal.value);
}

/// " %c": a character after white space, which is skipped.
struct Separator {};
inline bool scan_one(const char*& at, Separator& /*dropped*/) {
  char character = 0;
  const char* next = at + std::strspn(at, " \t\n\v\f\r");
  const bool found = platform::scan_char(next, character);
  at = found ? next : at;
  return found;
}

inline bool scan_one(const char*& at, std::string& value) { return platform::scan_word(at, value); }

/// Scans as one scan format does: the first field that does not scan ends it, and the rest keep
/// their values.
template <class... Values>
bool scan(const char* text, Values&&... values) {
  return (scan_one(text, values) && ...);
}

template <class... Values>
void clear(Values&... values) {
  ((values = Values{}), ...);
}

inline std::string print_one(int value) { return platform::print_int(value); }
inline std::string print_one(double value) { return platform::print_real(value); }
inline std::string print_one(const char* value) { return value; }

template <class First, class... Rest>
std::string print([[maybe_unused]] const char* separator, First first, Rest... rest) {
  std::string text = print_one(first);
  ((text += separator, text += print_one(rest)), ...);
  return text;
}

}  // namespace qel::fields
