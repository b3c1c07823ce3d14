#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>

#include "platform/number.h"
#include "support/in_c_locale.h"

/// A number as the C library scans it, beside the same as the scanner does.
namespace qelpro_test {

struct Real {
  int fields;
  double value;
  std::size_t consumed;
};

inline Real by_scanf(const std::string& text) {
  double value = -7;
  int consumed = 0;
  const int fields =
      in_c_locale([&] { return std::sscanf(text.c_str(), "%lf%n", &value, &consumed); });
  return {fields == 1 ? 1 : 0, value, fields == 1 ? static_cast<std::size_t>(consumed) : 0};
}

inline Real by_scanner(const std::string& text) {
  double value = -7;
  const char* at = text.c_str();
  const bool done = qel::platform::scan_real(at, value);
  return {done ? 1 : 0, value, static_cast<std::size_t>(at - text.c_str())};
}

inline void expect_same_real(const std::string& text) {
  const Real expected = by_scanf(text);
  const Real actual = by_scanner(text);
  EXPECT_EQ(actual.fields, expected.fields) << '"' << text << '"';
  EXPECT_EQ(actual.consumed, expected.consumed) << '"' << text << '"';
  if (std::isnan(expected.value)) {
    EXPECT_TRUE(std::isnan(actual.value)) << text;
  } else {
    EXPECT_EQ(std::memcmp(&actual.value, &expected.value, sizeof(double)), 0)
        << text << ": " << actual.value << " for " << expected.value;
  }
}

}  // namespace qelpro_test
