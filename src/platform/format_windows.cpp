#include <clocale>
#include <cstdio>

#include "platform/format.h"

namespace qel::platform {
namespace {

_locale_t c_numbers() {
  static const _locale_t locale = ::_create_locale(LC_ALL, "C");
  return locale;
}

}  // namespace

std::optional<std::string> format(const char* format, std::va_list arguments) {
  std::va_list again;
  va_copy(again, arguments);
  const int length = ::_vscprintf_l(format, c_numbers(), again);
  va_end(again);
  if (length < 0) {
    return std::nullopt;
  }
  std::string text(static_cast<std::size_t>(length), '\0');
  ::_vsnprintf_l(text.data(), text.size() + 1, format, c_numbers(), arguments);
  return text;
}

}  // namespace qel::platform
