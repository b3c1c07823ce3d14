#pragma once

#include <cstddef>
#include <string>

/// How the text of an entry becomes typed values and the reverse. Each encoding is one pair of functions:
///
/// - `scan` sets what the text supplies, in order, and leaves the rest as it was;
/// - `print` gives the text to store.
///
/// `kLimit` is the size of the text buffer that the format allows, terminator included; a longer text is not stored.
namespace qel {

inline constexpr std::size_t kScalarLimit = 4096;
inline constexpr std::size_t kCompoundLimit = 256;

/// "%d"
struct Integer {
  static constexpr const char* kName = "integer";
  static constexpr std::size_t kLimit = kScalarLimit;
  static void scan(const char* text, int& value);
  static std::string print(int value);
};

/// "%lf", written "%g"
struct Real {
  static constexpr const char* kName = "real";
  static constexpr std::size_t kLimit = kScalarLimit;
  static void scan(const char* text, double& value);
  static std::string print(double value);
};

/// The text as it stands. Reading one hands out the document's own buffer.
struct Text {
  static constexpr const char* kName = "text";
  static constexpr std::size_t kLimit = kScalarLimit;
  static void scan(char* text, char*& value) { value = text; }
  static std::string print(const char* value) { return value; }
};

/// "%d %d"; both are 0 before the text is scanned.
struct IntegerPair {
  static constexpr const char* kName = "integer pair";
  static constexpr std::size_t kLimit = kCompoundLimit;
  static void scan(const char* text, int& first, int& second);
};

/// "%d %d" of which the second number is read and dropped. A text that holds no number yields 0.
struct FirstOfIntegerPair {
  static constexpr const char* kName = "integer pair, first kept";
  static constexpr std::size_t kLimit = kCompoundLimit;
  static void scan(const char* text, int& first);
};

/// "%lf %lf", written "%g\t%g": a profile point, x before y.
struct RealPair {
  static constexpr const char* kName = "real pair";
  static constexpr std::size_t kLimit = kCompoundLimit;
  static void scan(const char* text, double& x, double& y);
  static std::string print(double x, double y);
};

/// "%lf %lf %lf", written "%g\t%g\t%g"
struct RealTriple {
  static constexpr const char* kName = "real triple";
  static constexpr std::size_t kLimit = kCompoundLimit;
  static void scan(const char* text, double& x, double& y, double& z);
  static std::string print(double x, double y, double z);
};

}  // namespace qel
