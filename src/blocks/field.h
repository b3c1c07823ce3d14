#pragma once

#include <string>
#include <tuple>
#include <variant>
#include <vector>

namespace qel {

/// One field of a value; nothing where a name is missing.
using Field = std::variant<std::monostate, int, double, std::string>;

inline Field to_field(int value) { return value; }
inline Field to_field(double value) { return value; }
inline Field to_field(const std::string& value) { return value; }
inline Field to_field(const char* value) {
  return value != nullptr ? Field(std::string(value)) : Field();
}

/// Scans a text as the encoding does, into outputs that start at 0. `number` is the number of the
/// entry's key.
template <class Encoding>
std::vector<Field> fields_of(const char* text, int number) {
  std::string copy(text);
  typename Encoding::Values values{};
  return std::apply(
      [&](auto&... outputs) {
        if constexpr (requires { Encoding::scan(copy.data(), number, outputs...); }) {
          Encoding::scan(copy.data(), number, outputs...);
        } else {
          Encoding::scan(copy.data(), outputs...);
        }
        return std::vector<Field>{to_field(outputs)...};
      },
      values);
}

}  // namespace qel
