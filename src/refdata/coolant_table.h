#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/read_access.h"

namespace qel::refdata {

inline constexpr std::size_t kProperties = 4;

/// One coolant's rows. Only the rows that the file gives are kept; the others, up to the count, are
/// all 0.
struct Coolant {
  using Row = std::array<double, 1 + kProperties>;  ///< The argument, then the properties.

  bool valid = false;  ///< Its count has been read.
  int number = 0;
  std::string name;
  int row_count = 0;
  std::map<int, Row> rows;  ///< By row number, from 0.

  /// The four properties at an argument; the coolant is valid.
  [[nodiscard]] std::array<double, kProperties> properties_at(double argument) const;
};

/// The coolants of a settings file, in its order; nothing when it cannot be read to its end: the
/// rows that are missing would be taken for 0.
std::optional<std::vector<Coolant>> read_coolants(platform::ReadAccess& file);

}  // namespace qel::refdata
