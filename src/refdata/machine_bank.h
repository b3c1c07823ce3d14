#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/random_access.h"

namespace qel::refdata {

/// Grades by maker; makers in the order of their bytes, grades in the order of the file, repeats included.
using Makers = std::map<std::string, std::vector<std::string>>;

inline constexpr int kBankVersion = 7007;

/// Adds the machines of a bank to the makers. `version` takes the version that the bank's header gives; machines count only
/// while it is 7007. False when the header holds a "TotalNo" line, which ends the reading.
bool read_machine_bank(platform::RandomAccess& file, int& version, Makers& makers);

}  // namespace qel::refdata
