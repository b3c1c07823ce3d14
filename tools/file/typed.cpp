#include "file/typed.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <type_traits>
#include <variant>

#include "file/positional.h"
#include "file/value_check.h"
#include "platform/number.h"
#include "system/visible.h"
#include "text/text.h"

namespace qelpro {
namespace {

// A text that JSON takes for a number as it stands.
bool is_json_number(std::string_view text) {
  const auto digits = [&text] {
    const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(count);
    return count;
  };
  const auto take = [&text](std::string_view any) {
    const bool taken = !text.empty() && any.find(text.front()) != std::string_view::npos;
    text.remove_prefix(taken ? 1 : 0);
    return taken;
  };
  take("-");
  const bool has_zero = text.starts_with('0');
  const std::size_t whole = digits();
  if (whole == 0 || (has_zero && whole > 1) || (take(".") && digits() == 0)) {
    return false;
  }
  if (take("eE")) {
    take("+-");
    if (digits() == 0) {
      return false;
    }
  }
  return text.empty();
}

// With every digit that stands in the file, and a point, so that a real stays one.
Json json_of_real(double value, std::string_view text) {
  if (!std::isfinite(value)) {
    return value;
  }
  std::string digits = is_json_number(text) ? std::string(text) : shortest(value);
  if (digits.find_first_of(".eE") == std::string::npos) {
    digits += ".0";
  }
  return number_of_text(digits);
}

Json json_of_field(const qel::Field& field, std::string_view text) {
  return std::visit(
      [text]<class Value>(const Value& value) -> Json {
        if constexpr (std::is_same_v<Value, std::monostate>) {
          return nullptr;
        } else if constexpr (std::is_same_v<Value, double>) {
          return json_of_real(value, text);
        } else {
          return value;
        }
      },
      field);
}

bool is_same(const qel::Field& a, const qel::Field& b) {
  const auto* const real = std::get_if<double>(&a);
  const auto* const other = std::get_if<double>(&b);
  if (real != nullptr && other != nullptr) {
    return *real == *other || (std::isnan(*real) && std::isnan(*other));
  }
  return a == b;
}

[[noreturn]] void refuse(std::size_t field, const std::string& what) {
  throw Failure(kUsage, "field " + std::to_string(field + 1) + " " + what);
}

// The number that a text such as "nan" stands for, which JSON has no number for.
qel::Field with_number_of_text(const qel::Field& field, bool wants_text) {
  const auto* const text = std::get_if<std::string>(&field);
  double value = 0;
  if (text == nullptr || wants_text) {
    return field;
  }
  const char* at = text->c_str();
  return qel::platform::scan_real(at, value) && *at == '\0' && !std::isfinite(value)
             ? qel::Field(value)
             : field;
}

// A real in the place of a whole number and the reverse, where nothing is lost.
qel::Field as_kind(const qel::Field& given, char kind, std::size_t index) {
  qel::Field field = with_number_of_text(given, kind == 'w' || kind == 'q');
  const auto* const whole = std::get_if<int>(&field);
  const auto* const real = std::get_if<double>(&field);
  const bool wants_text = kind == 'w' || kind == 'q';
  if (wants_text != std::holds_alternative<std::string>(field)) {
    refuse(index, wants_text ? "is a name, a text" : "is a number");
  }
  if (kind != 'd' && kind != 'g' && kind != 'o' && whole != nullptr) {
    return static_cast<double>(*whole);
  }
  if ((kind == 'd' || kind == 'g' || kind == 'o') && real != nullptr) {
    const auto number =
        static_cast<int>(std::isfinite(*real) && std::abs(*real) < 0x1p31 ? *real : 0);
    if (static_cast<double>(number) != *real) {
      refuse(index, "is a whole number of 32 bits");
    }
    return number;
  }
  return field;
}

// Of a gate's control point, whose last field two of its modes have.
bool has_last_field(std::span<const qel::Field> fields) {
  const int* const mode = fields.size() == 4 ? std::get_if<int>(&fields[2]) : nullptr;
  return mode == nullptr || *mode == 2 || *mode == 3;
}

// The fields of an encoding in its layout.
std::string composed(std::string_view kinds, std::span<const GivenField> fields,
                     std::vector<qel::Field>& taken) {
  std::string text;
  bool is_separated = true;
  std::size_t next = 0;
  for (const char kind : kinds) {
    if (kind == 'c' || kind == 'e') {
      text += kind == 'c' ? "x" : " = ";
      is_separated = true;
      continue;
    }
    if (kind == 'n' || kind == 'o' || (kind == 'g' && next >= fields.size())) {
      continue;
    }
    if (next >= fields.size()) {
      refuse(next, "is missing");
    }
    const GivenField& given = fields[next];
    taken.push_back(as_kind(given.value, kind, next));
    ++next;
    if (kind == 'g' && !has_last_field(taken)) {
      continue;
    }
    const bool has_digits = !given.digits.empty() && std::holds_alternative<double>(taken.back());
    const std::string field = has_digits ? given.digits : text_of(taken.back());
    text += (is_separated ? "" : "\t") + (kind == 'q' ? "\"" + field + "\"" : field);
    is_separated = false;
  }
  if (next < fields.size()) {
    refuse(next, "is one too many");
  }
  return text;
}

template <class... Format>
std::string printed(double value, Format... format) {
  std::array<char, 32> buffer{};
  return {buffer.data(),
          std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format...).ptr};
}

// How many digits a number is written with: up to its exponent, without zeros at the end.
std::size_t digits_of(std::string_view text) {
  text = text.substr(0, text.find('e'));
  text = text.substr(0, text.find_last_not_of('0') + 1);
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char c) { return c >= '0' && c <= '9'; }));
}

}  // namespace

void read_typed(const qel::SectionInfo* section, std::string_view key, std::string_view value,
                TypedValue& typed) {
  Reading reading = reading_of(section, key, value, typed.fields);
  typed.key = reading.key;
  typed.number = reading.number;
  typed.unread = std::move(reading.unread);
  if (typed.key != nullptr && typed.fields.empty()) {
    // Behind a NUL byte nothing is read, and then blanks in front of it trail the value.
    const std::string text(qel::text::index_value(value.substr(0, value.find('\0'))));
    typed.fields = typed.key->encoding->fields(text.c_str(), typed.number);
  }
}

void read_typed(const Entries& entries, const FileEntry& entry, TypedValue& typed) {
  const TextSection& section = entries.document().sections()[entry.section];
  if (!qel::is_positional(section.name)) {
    read_typed(entries.known_section(section), entry.key, entry.value, typed);
    return;
  }
  const qel::KeyInfo& kind = positional_kind(entry.value);
  typed = {&kind, 0, {}, unread_part(kind, entry.value, 0)};
  typed.fields = kind.encoding->fields(std::string(entry.value).c_str(), 0);
}

TypedValue typed_value(const qel::SectionInfo* section, std::string_view key,
                       std::string_view value) {
  TypedValue typed;
  read_typed(section, key, value, typed);
  return typed;
}

TypedValue typed_value(const Entries& entries, const FileEntry& entry) {
  TypedValue typed;
  read_typed(entries, entry, typed);
  return typed;
}

Failure unread_failure(const std::string& file, const Entries& entries, const FileEntry& entry,
                       const TypedValue& typed) {
  return {kUsage,
          at({file, entries.line_number(entry), std::string(entries.section_of(entry)), entry.key},
             in_quotes(entry.value) + " is not read whole: " + typed.unread.value_or(""))};
}

Json json_of(const TypedValue& typed, std::string_view text) {
  if (typed.key == nullptr || typed.unread || typed.fields.empty()) {
    return std::string(text);
  }
  if (typed.fields.size() == 1) {
    return json_of_field(typed.fields.front(), text);
  }
  // Where every field is a word of the text, it is told with the digits that stand there.
  std::vector<std::string_view> words;
  for (std::string_view rest = text; !rest.empty();) {
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    const std::size_t end = std::min(rest.find_first_of(" \t"), rest.size());
    words.push_back(rest.substr(0, end));
    rest.remove_prefix(end);
  }
  Json fields = Json::array();
  for (std::size_t index = 0; index < typed.fields.size(); ++index) {
    fields.push_back(json_of_field(typed.fields[index], words.size() == typed.fields.size()
                                                            ? words[index]
                                                            : std::string_view()));
  }
  return fields;
}

Json json_of(const Entries& entries, const FileEntry& entry) {
  return json_of(typed_value(entries, entry), entry.value);
}

std::string shortest(double value) {
  constexpr std::size_t kExponentDigits = 3;
  std::string text = printed(value);
  const std::string with_exponent = printed(value, std::chars_format::scientific);
  // Without an exponent a large number has digits that say nothing.
  if (text.find_first_of(".e") == std::string::npos && digits_of(with_exponent) < digits_of(text)) {
    text = with_exponent;
  }
  const std::size_t e = text.find('e');
  if (e != std::string::npos && text.size() < e + 2 + kExponentDigits) {
    text.insert(e + 2, e + 2 + kExponentDigits - text.size(), '0');
  }
  return text;
}

std::string text_of(const qel::Field& field) {
  return std::visit(
      []<class Value>(const Value& value) -> std::string {
        if constexpr (std::is_same_v<Value, std::monostate>) {
          return "";
        } else if constexpr (std::is_same_v<Value, double>) {
          return shortest(value);
        } else if constexpr (std::is_same_v<Value, int>) {
          return std::to_string(value);
        } else {
          return value;
        }
      },
      field);
}

std::string text_of(const qel::KeyInfo& key, int number, std::span<const GivenField> fields) {
  const std::string_view kinds = fields_of_encoding(key.encoding->name);
  if (kinds.empty()) {
    if (fields.size() != 1) {
      throw Failure(kUsage, "the value is one text");
    }
    const GivenField& given = fields.front();
    return given.digits.empty() ? text_of(given.value) : given.digits;
  }
  std::vector<qel::Field> wanted;
  std::string text = composed(kinds, fields, wanted);
  const std::vector<qel::Field> read = key.encoding->fields(text.c_str(), number);
  for (std::size_t index = 0; index < wanted.size(); ++index) {
    if (index >= read.size() || !is_same(read[index], wanted[index])) {
      refuse(index, "would be read as \"" + (index < read.size() ? text_of(read[index]) : "") +
                        "\" (the value is read as: " + key.encoding->name + ")");
    }
  }
  return text;
}

}  // namespace qelpro
