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
        return std::vector<Field>{to_field(outputs)...};
      },
      values);
}

}  // namespace qel
