#include "file/json_value.h"

#include <limits>
#include <optional>
#include <vector>

#include "blocks/catalogue.h"
#include "file/typed.h"
#include "platform/number.h"
#include "system/failure.h"

namespace qelpro {
namespace {

bool is_number(const Json& value) { return value.is_number() || is_number_text(value); }

double real_of(const std::string& digits) {
  const char* at = digits.c_str();
  double value = 0;
  qel::platform::scan_real(at, value);
  return value;
}

GivenField field_of(const Json& value) {
  if (value.is_string()) {
    return {value.get<std::string>(), ""};
  }
  if (!is_number(value)) {
    refuse_usage("a field is a number or a text");
  }
  if (value.is_number_integer()) {
    const bool fits = value.is_number_unsigned()
                          ? value.get<std::uint64_t>() <= std::numeric_limits<int>::max()
                          : value.get<std::int64_t>() >= std::numeric_limits<int>::min() &&
                                value.get<std::int64_t>() <= std::numeric_limits<int>::max();
    if (fits) {
      return {value.get<int>(), ""};
    }
  }
  const std::string digits = number_text(value);
  return {real_of(digits), digits};
}

}  // namespace

std::string text_of_json(const qel::SectionInfo* section, std::string_view key, const Json& value) {
  if (value.is_string()) {
    return value.get<std::string>();
  }
  if (!is_number(value) && !value.is_array()) {
    refuse_usage("a value is a number, a text or a list of them");
  }
  int number = 0;
  const qel::KeyInfo* const known =
      section != nullptr ? qel::find_key(*section, std::string(key).c_str(), number) : nullptr;
  if (known == nullptr) {
    if (value.is_array()) {
      refuse_usage(
          "the catalogue does not know how the fields of this key are written: give a text");
    }
    return number_text(value);
  }
  std::vector<GivenField> fields;
  for (const Json& field : value.is_array() ? value : Json::array({value})) {
    fields.push_back(field_of(field));
  }
  std::optional<Failure> first;
  for (const qel::KeyInfo& row : section->keys) {
    try {
      if (std::string_view(row.text) == known->text) {
        return text_of(row, number, fields);
      }
    } catch (const Failure& failure) {
      first = first ? first : std::optional(failure);
    }
  }
  throw Failure(*first);
}

}  // namespace qelpro
