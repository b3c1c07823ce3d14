#include "system/visible.h"

namespace qelpro {

namespace {

unsigned char byte_at(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

std::string escape_of(unsigned char byte) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  switch (byte) {
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default:
      return {'\\', 'x', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
  }
}

bool is_control(unsigned char byte, Controls controls) {
  constexpr unsigned char kDelete = 0x7F;
  switch (controls) {
    case Controls::line_breaks:
      return byte == '\n' || byte == '\r';
    case Controls::all:
      return byte < ' ' || byte == kDelete;
    case Controls::all_but_layout:
      return (byte < ' ' && byte != '\n' && byte != '\t') || byte == kDelete;
  }
  return false;
}

// 0x80 to 0x9F: control characters in the eight-bit character sets and, as numbers of characters,
// in Unicode.
bool is_high_control(unsigned char byte) { return byte >= 0x80 && byte <= 0x9F; }

}  // namespace

std::string in_quotes(std::string_view text) { return "\"" + std::string(text) + "\""; }

std::size_t utf8_length(std::string_view text) {
  constexpr std::size_t kLongest = 4;
  if (text.empty()) {
    return 0;
  }
  const unsigned char first = byte_at(text, 0);
  if (first < 0x80) {
    return 1;
  }
  const std::size_t length = first >= 0xC2 && first <= 0xDF   ? 2
                             : first >= 0xE0 && first <= 0xEF ? 3
                             : first >= 0xF0 && first <= 0xF4 ? kLongest
                                                              : 0;
  if (length == 0 || text.size() < length) {
    return 0;
  }
  for (std::size_t at = 1; at < length; ++at) {
    if ((byte_at(text, at) & 0xC0U) != 0x80U) {
      return 0;
    }
  }
  // No longer spelling than needed, no surrogate, nothing beyond the last character.
  const unsigned char second = byte_at(text, 1);
  const bool refused = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                       (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
  return refused ? 0 : length;
}

std::string visible(std::string_view text, Controls controls) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const unsigned char byte = byte_at(text, at);
    const std::size_t length = utf8_length(text.substr(at));
    const bool high = controls != Controls::line_breaks &&
                      ((length == 0 && is_high_control(byte)) ||
                       (length == 2 && byte == 0xC2 && is_high_control(byte_at(text, at + 1))));
    if (high) {
      result += escape_of(byte_at(text, at + (length == 2 ? 1 : 0)));
    } else if (length <= 1 && is_control(byte, controls)) {
      result += escape_of(byte);
    } else {
      result += text.substr(at, length == 0 ? 1 : length);
    }
    at += length == 0 ? 1 : length;
  }
  return result;
}

}  // namespace qelpro
