#pragma once

#include "blocks/encoding.h"

/// Encodings of several fields. Unless they say otherwise, they clear their outputs before they
/// scan.
namespace qel {

/// "%lf %lf %lf %lf %d", written with tabs.
struct FourRealsAndInteger {
  static constexpr const char* kName = "four reals and an integer";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double, double, double, double, int>;
  static constexpr Argument kArguments[] = {{"f1", "four reals"},
                                            {"f2", "four reals"},
                                            {"f3", "four reals"},
                                            {"f4", "four reals"},
                                            {"f5", "the integer"}};
  static constexpr const char* kReading = "What the text lacks is 0.";
  static void scan(const char* text, double& f1, double& f2, double& f3, double& f4, int& f5) {
    fields::clear(f1, f2, f3, f4, f5);
    fields::scan(text, f1, f2, f3, f4, f5);
  }
  static std::string print(double f1, double f2, double f3, double f4, int f5) {
    return fields::print("\t", f1, f2, f3, f4, f5);
  }
};

/// "%lf %d %lf %lf %d", written with tabs: a control point of a cooling channel.
struct ControlPoint {
  static constexpr const char* kName = "control point (real, integer, real, real, integer)";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double, int, double, double, int>;
  static constexpr Argument kArguments[] = {{"f1", "the real"},
                                            {"system", "the coolant system"},
                                            {"temperature", "the temperature"},
                                            {"flow", "the flow rate or pressure"},
                                            {"f5", "the integer"}};
  static constexpr const char* kReading = "What the text lacks is 0.";
  static void scan(const char* text, double& f1, int& system, double& temperature, double& flow,
                   int& f5) {
    fields::clear(f1, system, temperature, flow, f5);
    fields::scan(text, f1, system, temperature, flow, f5);
  }
  static std::string print(double f1, int system, double temperature, double flow, int f5) {
    return fields::print("\t", f1, system, temperature, flow, f5);
  }
};

/// "%d %lf %lf %lf", written with tabs.
struct IntegerAndThreeReals {
  static constexpr const char* kName = "integer and three reals";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<int, double, double, double>;
  static constexpr Argument kArguments[] = {{"number", "the integer"},
                                            {"f2", "three reals"},
                                            {"f3", "three reals"},
                                            {"f4", "three reals"}};
  static constexpr const char* kReading = "What the text lacks is 0.";
  static void scan(const char* text, int& number, double& f2, double& f3, double& f4) {
    fields::clear(number, f2, f3, f4);
    fields::scan(text, number, f2, f3, f4);
  }
  static std::string print(int number, double f2, double f3, double f4) {
    return fields::print("\t", number, f2, f3, f4);
  }
};

/// "%d %lf", written with a tab. Outputs that the text does not supply keep their values.
struct IntegerAndReal {
  static constexpr const char* kName = "integer and real";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<int, double>;
  static constexpr Argument kArguments[] = {{"node", "the node"}, {"value", "the value"}};
  static void scan(const char* text, int& number, double& value) {
    fields::scan(text, number, value);
  }
  static std::string print(int number, double value) { return fields::print("\t", number, value); }
};

/// Two sizes with any one character between them, written "%gx%g". They are decimal: "0x900" is 0
/// and 900.
struct SizePair {
  static constexpr const char* kName = "pair of sizes (1200x900)";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double, double>;
  static constexpr Argument kArguments[] = {{"first", "the horizontal size"},
                                            {"second", "the vertical size"}};
  static constexpr const char* kReading =
      "What the text lacks is 0. Any one character may stand between the sizes.";
  static void scan(const char* text, double& first, double& second) {
    char separator = 0;
    fields::clear(first, second);
    fields::scan(text, fields::Decimal{first}, separator, fields::Decimal{second});
  }
  static std::string print(double first, double second) {
    return fields::print("x", first, second);
  }
};

/// Three sizes with any one character between them, written "%gx%gx%g". They are decimal.
struct SizeTriple {
  static constexpr const char* kName = "triple of sizes (5.2x1.4x2.1)";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double, double, double>;
  static constexpr Argument kArguments[] = {
      {"length", "the length"}, {"width", "the width"}, {"height", "the height"}};
  static constexpr const char* kReading =
      "What the text lacks is 0. Any one character may stand between the sizes.";
  static void scan(const char* text, double& length, double& width, double& height) {
    char separator = 0;
    fields::clear(length, width, height);
    fields::scan(text, fields::Decimal{length}, separator, fields::Decimal{width}, separator,
                 fields::Decimal{height});
  }
  static std::string print(double length, double width, double height) {
    return fields::print("x", length, width, height);
  }
};

/// "%d"; a text with a "+" in it is the sum of two numbers, with any one character between them:
/// "4+2" reads as 6.
struct ZoneCount {
  static constexpr const char* kName = "integer, or a sum of two (4+2)";
  static constexpr std::size_t kLimit = kScalarLimit;
  using Values = std::tuple<int>;
  static constexpr Argument kArguments[] = {{"value", "the value"}};
  static constexpr const char* kReading = "A sum is added up: 4+2 reads as 6.";
  static void scan(const char* text, int& value);
  static std::string print(int value) { return fields::print_one(value); }
};

/// "%lf", written "%g\t(%s)" with a note that reading passes over. A text that does not scan leaves
/// the output alone.
struct RealWithNote {
  static constexpr const char* kName = "real, with a note in parentheses";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double>;
  static constexpr Argument kArguments[] = {{"value", "the value"}};
  static constexpr const char* kReading = "The note is passed over.";
  static constexpr const char* kWriting = "The note, such as W/m^2.K, is put in parentheses.";
  using Written = std::tuple<double, const char*>;
  static constexpr Argument kWrittenArguments[] = {{"value", "the coefficient"},
                                                   {"note", "the note"}};
  static void scan(const char* text, double& value) { fields::scan(text, value); }
  static std::string print(double value, const char* note) {
    return fields::print_one(value) + "\t(" + note + ")";
  }
};

/// A control point of a valve gate: a real, an integer, the mode and, for modes 2 and 3, a further
/// integer. For modes 1 and 4 the last is -1, whatever the text holds.
struct GatePoint {
  static constexpr const char* kName = "gate control point (real, integer, mode, integer)";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double, int, int, int>;
  static constexpr Argument kArguments[] = {{"value", "the value"},
                                            {"number", "the integer"},
                                            {"mode", "the mode"},
                                            {"last", "the last integer"}};
  static constexpr const char* kReading =
      "For modes 1 and 4 the last integer is -1. What the text lacks is 0.";
  static void scan(const char* text, double& value, int& number, int& mode, int& last);
  /// Empty for a mode that is none of 1 to 4.
  static std::string print(double value, int number, int mode, int last);
};

/// The same without its last integer; the mode does not matter.
struct GatePointShort {
  static constexpr const char* kName = "gate control point (real, integer, mode)";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double, int, int>;
  static constexpr Argument kArguments[] = {
      {"value", "the value"}, {"number", "the integer"}, {"mode", "the mode"}};
  static constexpr const char* kReading = "What the text lacks is 0.";
  static void scan(const char* text, double& value, int& number, int& mode) {
    int dropped = 0;
    GatePoint::scan(text, value, number, mode, dropped);
  }
  static std::string print(double value, int number, int mode) {
    return fields::print("\t", value, number, mode);
  }
};

}  // namespace qel
