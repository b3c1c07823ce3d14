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

inline Field to_field(int value) { return value; }
inline Field to_field(double value) { return value; }
inline Field to_field(const std::string& value) { return value; }
inline Field to_field(const char* value) {
  return value != nullptr ? Field(std::string(value)) : Field();
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
  return std::apply(
      [&](auto&... outputs) {
        scan_entry<Encoding>(copy.data(), number, outputs...);
        std::vector<Field> fields;
        fields.reserve(sizeof...(outputs));
        (fields.push_back(to_field(outputs)), ...);
        return fields;
      },
      values);
}

/// The fields of a text that is nothing but its numbers with blanks and tabs between them, finite
/// and in range, as most are. False for any other, which may be read all the same.
template <class Encoding>
bool plain_fields_of(const char* text, std::vector<Field>& fields) {
  const auto ends = [](char c) { return c == '\0' || c == ' ' || c == '\t'; };
  const auto take = [&](auto& value) {
    using Value = std::remove_reference_t<decltype(value)>;
    if constexpr (std::is_same_v<Value, int>) {
      std::int64_t wide = 0;
      if (!platform::scan_int64(text, wide) || wide < std::numeric_limits<int>::min() ||
          wide > std::numeric_limits<int>::max()) {
        return false;
      }
      value = static_cast<int>(wide);
    } else if (!platform::scan_real(text, value) || !std::isfinite(value)) {
      return false;
    }
    fields.emplace_back(value);
    return ends(*text);
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
