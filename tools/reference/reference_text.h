#pragma once

#include <string>
#include <vector>

namespace qelpro {

/// What the two reference files say, for messages: the library hands out answers and no reasons.

/// A coolant of a settings file.
struct ListedCoolant {
  int number = 0;  ///< Of its section, [Coolant-3].
  std::string name;
  bool has_rows = false;
};
std::vector<ListedCoolant> coolants_of(const std::string& contents);

/// The identifier by which a coolant is asked for, of its section's number.
int coolant_identifier(int section_number);

enum class BankProblem { none, holds_total, no_version_line, unreadable_version, other_version };
struct BankVersion {
  BankProblem problem = BankProblem::none;
  std::size_t line = 0;  ///< Where it says so.
  std::string text;      ///< That line.
};
/// Whether the header of a machine bank gives the version that is read.
BankVersion bank_version_of(const std::string& contents);

}  // namespace qelpro
