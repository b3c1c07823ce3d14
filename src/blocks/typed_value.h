#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <tuple>
#include <type_traits>
#include <variant>
#include <vector>

#include "platform/number.h"

namespace qel {

/// One field of a value; nothing where a name is missing.
using Field = std::variant<std::monostate, int, double, std::string>;

inline void add_field(std::vector<Field>& fields, int value) { fields.emplace_back(value); }
inline void add_field(std::vector<Field>& fields, double value) { fields.emplace_back(value); }
inline void add_field(std::vector<Field>& fields, const std::string& value) {
  fields.emplace_back(value);
}
inline void add_field(std::vector<Field>& fields, const char* value) {
  if (value != nullptr) {
    fields.emplace_back(std::string(value));
  } else {
    fields.emplace_back();
  }
}

/// Scans as the encoding does. `number` is the number of the entry's key, which some lines lean on.
template <class Encoding, class Text, class... Values>
void scan_entry(Text* text, [[maybe_unused]] const int number, Values&... outputs) {
  if constexpr (requires { Encoding::scan(text, number, outputs...); }) {
    Encoding::scan(text, number, outputs...);
  } else {
    Encoding::scan(text, outputs...);
  }
}

/// The same into all outputs together: they keep their values where there is no memory for a name
/// among them.
template <class Encoding, class... Values>
void scan_together(char* text, const int number, Values&... values) {
  std::tuple<Values...> scanned(values...);
  std::apply([&](Values&... each) { scan_entry<Encoding>(text, number, each...); }, scanned);
  std::tie(values...) = scanned;
}

/// The fields of a text, as the encoding scans them into outputs that start at 0.
template <class Encoding>
std::vector<Field> fields_of(const char* text, int number) {
  std::string copy(text);
  typename Encoding::Values values{};
  std::vector<Field> fields;
  std::apply(
      [&](auto&... outputs) {
        scan_entry<Encoding>(copy.data(), number, outputs...);
        (add_field(fields, outputs), ...);
      },
      values);
  return fields;
}

inline bool scan_plain(const char*& text, int& value) {
  std::int64_t wide = 0;
  if (!platform::scan_int64(text, wide) || wide < std::numeric_limits<int>::min() ||
      wide > std::numeric_limits<int>::max()) {
    return false;
  }
  value = static_cast<int>(wide);
  return true;
}

inline bool scan_plain(const char*& text, double& value) {
  return platform::scan_real(text, value) && std::isfinite(value);
}

inline bool ends_plain(const char* text) { return *text == '\0' || *text == ' ' || *text == '\t'; }

/// The fields of a text that is nothing but its numbers with blanks and tabs between them, finite
/// and in range, as most are. False for any other, which may be read all the same.
template <class Encoding>
bool plain_fields_of(const char* text, std::vector<Field>& fields) {
  const auto take = [&](auto& value) {
    if (!scan_plain(text, value)) {
      return false;
    }
    fields.emplace_back(value);
    return ends_plain(text);
  };
  fields.clear();
  typename Encoding::Values values{};
  const bool all = std::apply([&](auto&... each) { return (take(each) && ...); }, values);
  while (*text == ' ' || *text == '\t') {
    ++text;
  }
  return all && *text == '\0';
}

}  // namespace qel
