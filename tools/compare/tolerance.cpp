#include "compare/tolerance.h"

#include <algorithm>
#include <cmath>

namespace qelpro {

bool is_same(double before, double after, const Tolerances& tolerances, double slack) {
  if (before == after || (std::isnan(before) && std::isnan(after))) {
    return true;
  }
  if (!std::isfinite(before) || !std::isfinite(after)) {
    return false;
  }
  const double magnitude = std::max(std::abs(before), std::abs(after));
  return std::abs(before - after) <= slack + tolerances.absolute + tolerances.relative * magnitude;
}

}  // namespace qelpro
