#pragma once

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>

/// Numbers by the C library as in the "C" locale, whatever locale a test runs in.
namespace qelpro_test {

template <class Work>
auto in_c_locale(Work work) {
  struct Everything {
    std::string before = std::setlocale(LC_ALL, nullptr);
    Everything() { std::setlocale(LC_ALL, "C"); }
    Everything(const Everything&) = delete;
    Everything& operator=(const Everything&) = delete;
    ~Everything() { std::setlocale(LC_ALL, before.c_str()); }
  };
  const Everything everything;
  return work();
}

inline std::string printed(const char* format, double value) {
  return in_c_locale([&] {
    char text[512];
    std::snprintf(text, sizeof text, format, value);  // NOLINT(clang-diagnostic-format-nonliteral)
    return std::string(text);
  });
}

inline double to_double(const std::string& text) {
  return in_c_locale([&] { return std::strtod(text.c_str(), nullptr); });
}

}  // namespace qelpro_test
