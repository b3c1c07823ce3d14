#pragma once

#include <cstddef>
#include <optional>
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

/// The tables of that name: what its count is called ("FR"), or what its points' keys begin with
/// ("RP_IP"). Several where one count counts several kinds of points. A `Failure` of what is not
/// found where the section, which is `known` to the catalogue or null, has none.
std::vector<ProfileKind> kinds_of(const std::string& file, const std::string& section,
                                  const qel::SectionInfo* known, const std::string& name);

/// Of these tables the first of which the section has points, or else the first that it has.
std::optional<Profile> profile_of(const Entries& entries, const TextSection& section,
                                  const std::vector<ProfileKind>& kinds);

/// Of several kinds of points the first of which there are some. A `Failure` of what is not found
/// where the file does not say how many, and of usage where a point is not read as numbers, or
/// where points have more numbers than others.
PointTable point_table(const std::string& file, const Entries& entries, const std::string& section,
                       const std::string& name);

}  // namespace qelpro
