#pragma once

#include <vector>

#include "color.h"
#include "compare/difference.h"

namespace qelpro {

/// A line each: what is gone in red, what came in green.
void print_differences(const std::vector<Difference>& differences, const Painter& painter);

}  // namespace qelpro
