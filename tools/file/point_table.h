#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "file/profile.h"

namespace qelpro {

/// The points of a table as numbers, one row behind the other. A point that is not there, and a
/// field that its mode has not, are NaN.
struct PointTable {
  std::size_t count = 0;  ///< As many as the file promises.
  std::size_t width = 2;  ///< How many numbers a point has.
  std::vector<double> numbers;
};

/// The table of that name in a section: what its count is called ("FR"), or what its points' keys
/// begin with ("RP_IP"). Where one count counts several kinds of points, the first of which there
/// are some. It has neither count nor points where the file has none. A `Failure` of what is not
/// found where the catalogue knows no such table.
Profile profile_named(const std::string& file, const Entries& entries, const std::string& section,
                      const std::string& name);

/// The points of that table. A `Failure` of what is not found where the file does not say how many,
/// and of usage where a point is not read as numbers, or where points have more numbers than
/// others.
PointTable point_table(const std::string& file, const Entries& entries, const std::string& section,
                       const std::string& name);

}  // namespace qelpro
