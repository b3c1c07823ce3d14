#pragma once

#include <span>
#include <string_view>

#include "check/finding.h"

namespace qelpro {

/// A code, how severe it is, and what it finds.
struct Rule {
  const char* code;
  Severity severity;
  const char* finds;
};

inline constexpr Rule kRules[] = {
    {"P001", Severity::error, "a line of more than 4095 characters"},
    {"P002", Severity::warning, "an entry before the first section"},
    {"P003", Severity::warning, "an entry line that begins with a blank or tab: never found"},
    {"P004", Severity::error, "a second section of a name"},
    {"P005", Severity::error, "a second entry of a key in its section"},
    {"P006", Severity::warning,
     "in a section of the catalogue that is read by keys: a line that is no header, no entry, not "
     "blank and no comment"},
    {"P007", Severity::warning, "words behind a header"},
    {"P008", Severity::note, "no line break at the end of the last line"},
    {"P009", Severity::warning, R"(line breaks "\n" and "\r\n" mixed)"},
    {"P010", Severity::error, "a NUL byte"},
    {"P101", Severity::warning, "a section that the catalogue does not know"},
    {"P102", Severity::warning, "a key that its section does not know"},
    {"P103", Severity::warning, "a key that its section does not know and another does"},
    {"P104", Severity::error, "a section number that is not 1 or more"},
    {"P201", Severity::error, "a value that its encoding does not read"},
    {"P202", Severity::warning, "text behind what the encoding reads"},
    {"P203", Severity::error, "fields missing in a value of several"},
    {"P204", Severity::error, "a decimal comma"},
    {"P205", Severity::error, "a real that is not finite"},
    {"P301", Severity::error, "a point that its count promises and that is missing"},
    {"P302", Severity::warning, "a point beyond its count"},
    {"P303", Severity::error, "a negative count, or one beyond what the section can hold"},
    {"P304", Severity::warning,
     "a profile whose first coordinate falls from one point to the next"},
    {"P305", Severity::error,
     "an inlet, gate valve or cooling channel that a count of the file promises and that has no "
     "section"},
    {"P306", Severity::warning,
     "the section of an inlet, gate valve or cooling channel beyond its count"},
    {"P401", Severity::warning, "a V/P switch-over criterion whose own value is missing"},
};

/// The codes in their order.
std::span<const Rule> rules();

/// The rule of a code. A code that is not there does not compile.
consteval const Rule& rule(std::string_view code) {
  for (const Rule& each : kRules) {
    if (each.code == code) {
      return each;
    }
  }
  throw "no rule of that code";
}

}  // namespace qelpro
