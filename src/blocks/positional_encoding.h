#pragma once

#include "blocks/encoding.h"

/// The lines of the positional section.
namespace qel {

/// An integer, a name that may hold blanks, an integer, written "%d\t%s\t%d". Clears its outputs. A
/// line of fewer than four words has a name of one word. The name stands in a buffer of the thread
/// until the next line is read.
struct PositionalHeader {
  static constexpr const char* kName = "line of integer, name, integer";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<int, char*, int>;
  static constexpr Argument kArguments[] = {
      {"first", "the number of settings"}, {"name", "the name"}, {"second", "the integer"}};
  static void scan(const char* text, int& first, char*& name, int& second);
  static std::string print(int first, const char* name, int second) {
    return fields::print("\t", first, name, second);
  }
};

/// An integer, a character, two reals: the integer and the character, an "=", are dropped. Written
/// "%d = %g\t%g".
struct PositionalSetting {
  static constexpr const char* kName = "line of integer = two reals, the integer dropped";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double, double>;
  static constexpr Argument kArguments[] = {{"a", "the two reals"}, {"b", "the two reals"}};
  static void scan(const char* text, double& a, double& b) {
    int number = 0;
    fields::Separator separator;
    fields::scan(text, number, separator, a, b);
  }
  static std::string print(int number, double a, double b) {
    return fields::print_one(number) + " = " + fields::print("\t", a, b);
  }
};

}  // namespace qel
