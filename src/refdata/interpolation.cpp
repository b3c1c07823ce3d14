#include "refdata/interpolation.h"

namespace qel::refdata {

double interpolate(const Column& x, const Column& y, std::int64_t rows, double t) {
  constexpr std::int64_t kFewRows = 8;
  if (t <= x(0)) {
    return y(0);
  }
  if (t >= x(rows - 1)) {
    return y(rows - 1);
  }
  std::int64_t low = 0;
  std::int64_t high = rows;
  while (high - low > kFewRows) {
    const std::int64_t middle = (low - 1 + high) / 2;
    if (x(middle) > t) {
      high = middle + 1;
    } else {
      low = middle;
    }
  }
  for (std::int64_t row = low + 1; row < high; ++row) {
    const double before = x(row - 1);
    const double after = x(row);
    if (before <= t && after >= t) {
      const double value = y(row - 1);
      if (t == before) {
        return value;
      }
      return t == after ? y(row) : value + (y(row) - value) * (t - before) / (after - before);
    }
  }
  return 0;
}

}  // namespace qel::refdata
