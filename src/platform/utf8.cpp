#include "platform/utf8.h"

#include <cstdint>

namespace qel::platform {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

void append(std::string& to, char32_t c) {
  const auto byte = [&to](char32_t value) {
    to.push_back(static_cast<char>(static_cast<unsigned char>(value)));
  };
  if (c < 0x80) {
    byte(c);
  } else if (c < 0x800) {
    byte(0xC0 | (c >> 6));
    byte(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    byte(0xE0 | (c >> 12));
    byte(0x80 | ((c >> 6) & 0x3F));
    byte(0x80 | (c & 0x3F));
  } else {
    byte(0xF0 | (c >> 18));
    byte(0x80 | ((c >> 12) & 0x3F));
    byte(0x80 | ((c >> 6) & 0x3F));
    byte(0x80 | (c & 0x3F));
  }
}

bool is_high_surrogate(char32_t c) { return c >= 0xD800 && c < 0xDC00; }
bool is_low_surrogate(char32_t c) { return c >= 0xDC00 && c < 0xE000; }

}  // namespace

std::string to_utf8(const wchar_t* text) {
  std::string result;
  for (; *text != L'\0'; ++text) {
    // wchar_t holds UTF-16 units on one platform and whole characters on the other; pairs occur on
    // the first only.
    auto c = static_cast<char32_t>(*text);
    if (is_high_surrogate(c) && is_low_surrogate(static_cast<char32_t>(text[1]))) {
      ++text;
      c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(*text) - 0xDC00);
    }
    const bool valid = c < 0x110000 && !is_high_surrogate(c) && !is_low_surrogate(c);
    append(result, valid ? c : kReplacement);
  }
  return result;
}

}  // namespace qel::platform
