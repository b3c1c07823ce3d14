#pragma once

#include <cstddef>
#include <string>
#include <tuple>

#include "blocks/argument.h"
#include "blocks/scan_and_print.h"

/// How the text of an entry becomes typed values and the reverse. Each encoding is one pair of
/// functions:
///
/// - `scan` sets what the text supplies, in order. What it does not supply keeps its value, or is 0
///   where the encoding says that it clears its outputs;
/// - `print` gives the text to store.
///
/// `Values` are the types that `scan` sets, and `kArguments` how members name them; `Written` and
/// `kWrittenArguments` are those of `print` where they differ. `kReading` and `kWriting` say in
/// sentences what a caller of such a member should know. `kIsPlain` marks those that read numbers
/// with blanks between them, and nothing else. `kLimit` is the size of the text buffer that the
/// format allows, terminator included; a longer text is not stored.
namespace qel {

inline constexpr std::size_t kScalarLimit = 4096;
inline constexpr std::size_t kCompoundLimit = 256;

/// "%d"
struct Integer {
  static constexpr const char* kName = "integer";
  static constexpr bool kIsPlain = true;
  static constexpr std::size_t kLimit = kScalarLimit;
  using Values = std::tuple<int>;
  static constexpr Argument kArguments[] = {{"value", "the value"}};
  static void scan(const char* text, int& value) { fields::scan(text, value); }
  static std::string print(int value) { return fields::print_one(value); }
};

/// "%lf", written "%g"
struct Real {
  static constexpr const char* kName = "real";
  static constexpr bool kIsPlain = true;
  static constexpr std::size_t kLimit = kScalarLimit;
  using Values = std::tuple<double>;
  static constexpr Argument kArguments[] = {{"value", "the value"}};
  static void scan(const char* text, double& value) { fields::scan(text, value); }
  static std::string print(double value) { return fields::print_one(value); }
};

/// The text as it stands. Reading one hands out the document's own buffer.
struct Text {
  static constexpr const char* kName = "text";
  static constexpr std::size_t kLimit = kScalarLimit;
  using Values = std::tuple<char*>;
  static constexpr Argument kArguments[] = {{"text", "the text"}};
  static void scan(char* text, char*& value) { value = text; }
  static std::string print(const char* value) { return value; }
};

/// "%d %d"; clears its outputs.
struct IntegerPair {
  static constexpr const char* kName = "integer pair";
  static constexpr bool kIsPlain = true;
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<int, int>;
  static constexpr Argument kArguments[] = {{"first", "the first code"},
                                            {"second", "the second code"}};
  static constexpr const char* kReading = "What the text lacks is 0.";
  static void scan(const char* text, int& first, int& second) {
    fields::clear(first, second);
    fields::scan(text, first, second);
  }
};

/// "%d %d" of which the second number is read and dropped; clears its output.
struct FirstOfIntegerPair {
  static constexpr const char* kName = "integer pair, first kept";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<int>;
  static constexpr Argument kArguments[] = {{"value", "the value"}};
  static void scan(const char* text, int& first) {
    int dropped = 0;
    IntegerPair::scan(text, first, dropped);
  }
};

/// "%lf %lf", written "%g\t%g": a profile point, x before y.
struct RealPair {
  static constexpr const char* kName = "real pair";
  static constexpr bool kIsPlain = true;
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double, double>;
  static constexpr Argument kArguments[] = {{"x", "x"}, {"y", "y"}};
  static void scan(const char* text, double& x, double& y) { fields::scan(text, x, y); }
  static std::string print(double x, double y) { return fields::print("\t", x, y); }
};

/// "%lf %lf %lf", written "%g\t%g\t%g"
struct RealTriple {
  static constexpr const char* kName = "real triple";
  static constexpr bool kIsPlain = true;
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double, double, double>;
  static constexpr Argument kArguments[] = {{"x", "x"}, {"y", "y"}, {"z", "z"}};
  static void scan(const char* text, double& x, double& y, double& z) {
    fields::scan(text, x, y, z);
  }
  static std::string print(double x, double y, double z) { return fields::print("\t", x, y, z); }
};

}  // namespace qel
