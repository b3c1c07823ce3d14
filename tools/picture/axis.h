#pragma once

#include <string>
#include <vector>

namespace qelpro {

/// A mark of an axis.
struct Tick {
  double value = 0;
  std::string label;  ///< The number in full, or with an exponent where it is huge or small.
};

/// A range of numbers, from the least to the greatest of those that are finite.
struct Range {
  double low = 0;
  double high = 0;
  bool is_empty = true;

  void add(double value);
};

/// An axis that begins and ends with a tick; the steps are 1, 2 or 5 times a power of ten.
struct Axis {
  double low = 0;
  double high = 1;
  std::vector<Tick> ticks;

  /// Where a number stands: 0 at the low end and below, 1 at the high end and above.
  [[nodiscard]] double part(double value) const;
};

/// An axis of at most so many steps (2 or more) around a range. A range of one number, or of none,
/// gets room around it; a range of one sign that reaches near 0 is drawn from 0.
/// None goes beyond 1e308.
Axis axis_over(Range range, int steps);

}  // namespace qelpro
