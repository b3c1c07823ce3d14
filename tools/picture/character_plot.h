#pragma once

#include <string>

#include "picture/chart.h"

namespace qelpro {

/// A chart in lines of ASCII characters (its texts as they are), none wider than `width` as far as
/// the names of its curves allow.
std::string character_plot(const Chart& chart, std::size_t width, std::size_t rows = 18);

}  // namespace qelpro
