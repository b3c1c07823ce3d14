#pragma once

#include <string>
#include <vector>

#include "file/entries.h"
#include "file/profile.h"
#include "picture/chart.h"

namespace qelpro {

/// The chart that shows a profile's kind, without curves.
Chart chart_of(const ProfileKind& kind);

/// The profiles that are asked for ("Flow-1.FR", "Flow-1.FRSet", "Flow-*.FR"), overlaid: in one
/// chart where they count the same in the same unit, otherwise in one each. A `Failure` that names
/// the profiles that are there where one is not, or where it is no curve.
std::vector<Chart> plot_of(const std::string& file, const Entries& entries,
                           const std::vector<std::string>& words);

/// The charts as a file of SVG.
std::string svg_of(const std::vector<Chart>& charts, const std::string& title);

/// The charts in characters, as wide as that.
std::string characters_of(const std::vector<Chart>& charts, std::size_t width);

}  // namespace qelpro
