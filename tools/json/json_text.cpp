#include "json/json_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "system/visible.h"

namespace qelpro {

namespace {

std::string escape_of(unsigned int unit) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "\\u%04x", unit);
  return text.data();
}

// How many characters in front are what they are.
std::size_t plain_length(std::string_view text) {
  const auto* const special = std::find_if(text.begin(), text.end(), [](char c) {
    return c < ' ' || c == '"' || c == '\\' || c == '\x7F' || static_cast<signed char>(c) < 0;
  });
  return static_cast<std::size_t>(special - text.begin());
}

std::string escaped(std::string_view text) {
  constexpr unsigned int kLoneSurrogates = 0xDC00;
  constexpr unsigned char kDelete = 0x7F;
  std::string result = "\"";
  for (std::size_t at = 0; at < text.size();) {
    if (const std::size_t plain = plain_length(text.substr(at)); plain != 0) {
      result += text.substr(at, plain);
      at += plain;
      continue;
    }
    const std::size_t length = utf8_length(text.substr(at));
    const auto byte = static_cast<unsigned char>(text[at]);
    if (length == 0) {
      result += escape_of(kLoneSurrogates + byte);
    } else if (length == 1 && (byte == '"' || byte == '\\')) {
      result += {'\\', text[at]};
    } else if (length == 1 && byte == '\t') {
      result += "\\t";
    } else if (length == 1 && (byte < ' ' || byte == kDelete)) {
      result += escape_of(byte);
    } else if (byte == 0xC2 && static_cast<unsigned char>(text[at + 1]) < 0xA0) {
      result += escape_of(static_cast<unsigned char>(text[at + 1]));
    } else {
      result += text.substr(at, length);
    }
    at += length == 0 ? 1 : length;
  }
  return result + "\"";
}

std::string number_text(double value) {
  if (std::isnan(value)) {
    return "nan";
  }
  return value > 0 ? "inf" : "-inf";
}

constexpr Json::binary_t::subtype_type kNumber = 1;

bool is_beyond_json(const Json& value) {
  return value.is_number_float() && !std::isfinite(value.get<double>());
}

}  // namespace

void append_member(Json& object, std::string name, Json value) {
  std::vector<std::pair<const std::string, Json>>& members = object.get_ref<Json::object_t&>();
  members.emplace_back(std::move(name), std::move(value));
}

Json number_of_text(std::string_view text) {
  return Json::binary({text.begin(), text.end()}, kNumber);
}

bool is_number_text(const Json& value) {
  return value.is_binary() && value.get_binary().has_subtype() &&
         value.get_binary().subtype() == kNumber;
}

std::string number_text(const Json& value) {
  if (is_number_text(value)) {
    const Json::binary_t& bytes = value.get_binary();
    return {bytes.begin(), bytes.end()};
  }
  return is_beyond_json(value) ? number_text(value.get<double>()) : value.dump();
}

void write_json(Sink& output, const Json& value, std::size_t indent) {
  if (is_number_text(value)) {
    output << number_text(value);
    return;
  }
  if (value.is_string()) {
    output << escaped(value.get_ref<const std::string&>());
    return;
  }
  if (is_beyond_json(value)) {
    output << '"' << number_text(value.get<double>()) << '"';
    return;
  }
  if (!value.is_structured() || value.empty()) {
    output << value.dump();
    return;
  }
  const std::string deeper(indent + 2, ' ');
  output << (value.is_object() ? '{' : '[');
  bool first = true;
  for (const auto& item : value.items()) {
    output << (first ? "\n" : ",\n") << deeper;
    first = false;
    if (value.is_object()) {
      output << escaped(item.key()) << ": ";
    }
    write_json(output, item.value(), indent + 2);
  }
  output << '\n' << std::string(indent, ' ') << (value.is_object() ? '}' : ']');
}

std::string plain_text(const Json& value) {
  if (value.is_string()) {
    return value.get<std::string>();
  }
  return number_text(value);
}

}  // namespace qelpro
