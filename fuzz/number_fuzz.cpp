#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string>

#include "platform/number.h"
#include "support.h"

// Any text: the numbers in it are those that the C library's formats read, and end where they end.

using qelpro_fuzz::fail;

namespace {

// The value and the characters that were taken; none where nothing was read.
template <class Value>
struct Scanned {
  Value value{};
  long length = -1;
};

bool is_same(double a, double b) {
  return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}
bool is_same(int a, int b) { return a == b; }

template <class Value>
Scanned<Value> by_library(const char* text, const char* format) {
  Scanned<Value> scanned;
  int length = 0;
  if (std::sscanf(text, format, &scanned.value, &length) == 1) {
    scanned.length = length;
  }
  return scanned;
}

template <class Value, class Scan>
Scanned<Value> by_engine(const char* text, Scan scan) {
  Scanned<Value> scanned;
  const char* at = text;
  if (scan(at, scanned.value)) {
    scanned.length = at - text;
  } else if (!is_same(scanned.value, Value{})) {
    fail("a number that is not read changed its output");
  }
  return scanned;
}

template <class Value>
void compare(const char* what, const std::string& text, const Scanned<Value>& engine,
             const Scanned<Value>& library) {
  if (engine.length != library.length ||
      (engine.length >= 0 && !is_same(engine.value, library.value))) {
    fail(std::string(what) + " of \"" + text + "\": " + std::to_string(engine.value) + ", " +
         std::to_string(engine.length) + " characters, and not " + std::to_string(library.value) +
         ", " + std::to_string(library.length));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  namespace platform = qel::platform;
  std::string text(qelpro_fuzz::text_of(data, size));
  text.resize(std::strlen(text.c_str()));
  const char* const begin = text.c_str();
  compare("the whole number", text, by_engine<int>(begin, platform::scan_int),
          by_library<int>(begin, "%d%n"));
  const auto real = by_engine<double>(begin, platform::scan_real);
  // This C library takes the point of a hexadecimal number that has no digits.
  const std::size_t number = text.find_first_not_of(" \t\n\v\f\r+-");
  const bool is_odd = number != std::string::npos &&
                      (text.compare(number, 3, "0x.") == 0 || text.compare(number, 3, "0X.") == 0);
  if (real.length >= 0 || !is_odd) {
    compare("the real", text, real, by_library<double>(begin, "%lf%n"));
  }
  if (real.length >= 0 && std::isfinite(real.value)) {
    const std::string printed = platform::print_real(real.value);
    char expected[64];
    std::snprintf(expected, sizeof expected, "%g", real.value);
    // Exponents have three digits at least.
    std::string wide = expected;
    const std::size_t e = wide.find('e');
    while (e != std::string::npos && wide.size() < e + 5) {
      wide.insert(e + 2, "0");
    }
    if (printed != wide) {
      fail("the number printed as " + printed + " and not as " + wide);
    }
  }
  std::string word;
  const char* at = begin;
  char expected[4096];
  int length = 0;
  if (text.size() < sizeof expected) {
    const bool found = std::sscanf(begin, "%s%n", expected, &length) == 1;
    if (platform::scan_word(at, word) != found ||
        (found && (word != expected || at != begin + length))) {
      fail("the word of \"" + text + "\"");
    }
  }
  return 0;
}
