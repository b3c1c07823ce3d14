#include "picture/markup.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "system/visible.h"

namespace qelpro {

namespace {

std::string hexadecimal(std::uint32_t number, int digits) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string result;
  for (int at = digits - 1; at >= 0; --at) {
    result += kDigits[(number >> (4U * static_cast<unsigned>(at))) & 0xFU];
  }
  return result;
}

std::uint32_t code_point(std::string_view character) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(character[at]); };
  if (character.size() == 1) {
    return byte(0);
  }
  std::uint32_t result = byte(0) & (0x7FU >> character.size());
  for (std::size_t at = 1; at < character.size(); ++at) {
    result = (result << 6U) | (byte(at) & 0x3FU);
  }
  return result;
}

bool is_between(std::uint32_t code, std::uint32_t first, std::uint32_t last) {
  return code >= first && code <= last;
}

bool is_control(std::uint32_t code) {
  return (code < 0x20 && code != '\t') || is_between(code, 0x7F, 0x9F);
}

// Marks of the writing direction, breaks of lines, and what Unicode keeps free of characters.
bool is_unwanted(std::uint32_t code) {
  return code == 0x61C || is_between(code, 0x200E, 0x200F) || is_between(code, 0x2028, 0x202E) ||
         is_between(code, 0x2066, 0x2069) || is_between(code, 0xFDD0, 0xFDEF) || code == 0xFEFF ||
         (code & 0xFFFEU) == 0xFFFE;
}

std::string escaped(std::string_view text) {
  std::string result;
  for (const char character : printable(text)) {
    switch (character) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      case '\'':
        result += "&#39;";
        break;
      default:
        result += character;
    }
  }
  return result;
}

// Elements within a line, around which a line break would be a blank.
bool is_in_line(std::string_view element) {
  constexpr std::array<std::string_view, 9> kNames{"a",    "b",    "bdi",   "code", "small",
                                                   "span", "text", "title", "br"};
  return std::ranges::find(kNames, element) != kNames.end();
}

bool is_void_of_html(std::string_view element) {
  return element == "meta" || element == "br" || element == "col";
}

}  // namespace

std::string printable(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = utf8_length(text);
    const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
    text.remove_prefix(character.size());
    const std::uint32_t code =
        length == 0 ? static_cast<unsigned char>(character.front()) : code_point(character);
    if (length == 0 || (length == 1 && is_control(code))) {
      result += "\\x" + hexadecimal(code, 2);
    } else if (is_control(code) || is_unwanted(code)) {
      result += code > 0xFFFF ? "\\U" + hexadecimal(code, 8) : "\\u" + hexadecimal(code, 4);
    } else {
      result += character;
    }
  }
  return result;
}

std::size_t character_count(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }));
}

std::string_view first_characters(std::string_view text, std::size_t count) {
  std::size_t at = 0;
  while (count > 0 && at < text.size()) {
    at += std::max<std::size_t>(utf8_length(text.substr(at)), 1);
    --count;
  }
  return text.substr(0, at);
}

std::string_view last_characters(std::string_view text, std::size_t count) {
  const std::size_t all = character_count(text);
  return text.substr(first_characters(text, all - std::min(all, count)).size());
}

void Markup::begin(std::string_view element, Attributes attributes) {
  if (!is_in_line(element)) {
    output_ << '\n';
  }
  output_ << '<' << element;
  for (const Attribute& attribute : attributes) {
    output_ << ' ' << attribute.name << "=\"" << escaped(attribute.value) << '"';
  }
}

Markup& Markup::open(std::string_view element, Attributes attributes) {
  begin(element, attributes);
  output_ << '>';
  open_.emplace_back(element);
  return *this;
}

Markup& Markup::close() {
  output_ << "</" << open_.back() << '>';
  open_.pop_back();
  return *this;
}

Markup& Markup::empty(std::string_view element, Attributes attributes) {
  begin(element, attributes);
  output_ << (is_void_of_html(element) ? ">" : "/>");
  return *this;
}

Markup& Markup::text(std::string_view text) {
  output_ << escaped(text);
  return *this;
}

Markup& Markup::element(std::string_view name, Attributes attributes, std::string_view content) {
  return open(name, attributes).text(content).close();
}

Markup& Markup::verbatim(std::string_view markup) {
  output_ << markup;
  return *this;
}

std::string coordinate(double value) {
  constexpr int kHundredths = 100;
  const auto scaled = static_cast<std::int64_t>(std::llround(value * kHundredths));
  const std::uint64_t size =
      scaled < 0 ? static_cast<std::uint64_t>(-scaled) : static_cast<std::uint64_t>(scaled);
  std::string result = (scaled < 0 ? "-" : "") + std::to_string(size / kHundredths);
  if (const auto rest = size % kHundredths; rest != 0) {
    result += rest < 10 ? ".0" : ".";
    result += std::to_string(rest % 10 == 0 ? rest / 10 : rest);
  }
  return result;
}

}  // namespace qelpro
