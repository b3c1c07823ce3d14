#include "support/comma_locale.h"

#include <clocale>

namespace qelpro_test {

CommaLocale::CommaLocale() : before_(std::setlocale(LC_ALL, nullptr)) {
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "German_Germany.1252", "fr_FR.UTF-8"}) {
    is_set_ = is_set_ ||
              (std::setlocale(LC_ALL, name) != nullptr && *std::localeconv()->decimal_point == ',');
  }
}

CommaLocale::CommaLocale(const std::string& name)
    : before_(std::setlocale(LC_ALL, nullptr)),
      is_set_(std::setlocale(LC_ALL, name.c_str()) != nullptr &&
              *std::localeconv()->decimal_point == ',') {}

CommaLocale::~CommaLocale() { std::setlocale(LC_ALL, before_.c_str()); }

}  // namespace qelpro_test
