#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/read_access.h"

namespace qel::refdata {

/// Grades by maker; makers in the order of their bytes, grades in the order of the file, repeats
/// included. A maker is looked up without a copy of its name.
using Makers = std::map<std::string, std::vector<std::string>, std::less<>>;

inline constexpr int kBankVersion = 7007;

/// Adds the machines of a bank to the makers. `version` takes the version that the bank's header
/// gives; machines count only while it is 7007. False when the header holds a "TotalNo" line, which
/// ends the reading; and, without a maker, when the file cannot be read to its end.
bool read_machine_bank(platform::ReadAccess& file, int& version, Makers& makers);

/// What a bank's lines come to, for a program that is to say why it lists no machine.
struct BankReport {
  bool has_header = false;  ///< A line with "[Header]".
  bool has_data = false;    ///< A line with "Database]".
  bool has_total = false;   ///< A line with "TotalNo" after the header, which ends the reading.
  int version = 0;  ///< As `read_machine_bank` gives it to a new object: 0 without a version line.
  std::string unread_version_line;  ///< The last version line of which no number could be read
                                    ///< ("Version=7007"), as it stands.
  std::size_t machines = 0;         ///< The machines that count.
  std::size_t machines_passed_over =
      0;  ///< The lines that would be machines in a bank of version 7007.
};

/// Reads the contents of a bank, as `read_machine_bank` reads them.
BankReport examine_machine_bank(std::string_view contents);

}  // namespace qel::refdata
