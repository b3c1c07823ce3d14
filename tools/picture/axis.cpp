#include "picture/axis.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace qelpro {

namespace {

// The least extent that is looked at as one: below it the digits of a double run out.
constexpr double kLeastExtent = 1e-290;
constexpr double kLeastPart = 1e-9;
constexpr double kGreatest = 1e308;

// A step of an axis: `leading` times ten to the `exponent`.
struct Step {
  std::int64_t leading = 1;
  int exponent = 0;

  [[nodiscard]] double times(std::int64_t count) const {
    const auto whole = static_cast<double>(count * leading);
    // A division by a power of ten that is exact gives the double nearest to the decimal number.
    return exponent >= 0     ? whole * std::pow(10, exponent)
           : exponent > -300 ? whole / std::pow(10, -exponent)
                             : whole / std::pow(10, 300) / std::pow(10, -exponent - 300);
  }
  void grow() {
    leading = leading == 1 ? 2 : leading == 2 ? 5 : 1;
    exponent += leading == 1 ? 1 : 0;
  }
};

// count * step in decimal digits: no double has its say.
std::string label_of(std::int64_t count, const Step& step) {
  std::int64_t number = count * step.leading;
  if (number == 0) {
    return "0";
  }
  int exponent = step.exponent;
  while (number % 10 == 0) {
    number /= 10;
    ++exponent;
  }
  std::string digits = std::to_string(std::abs(number));
  const std::string sign = number < 0 ? "-" : "";
  const int length = static_cast<int>(digits.size());
  const int before_point = length + exponent;
  constexpr int kMost = 6;
  constexpr int kLeast = -3;
  if (before_point > kMost || before_point < kLeast) {
    if (length > 1) {
      digits.insert(1, ".");
    }
    return sign + digits + "e" + std::to_string(before_point - 1);
  }
  if (exponent >= 0) {
    return sign + digits + std::string(static_cast<std::size_t>(exponent), '0');
  }
  if (before_point <= 0) {
    return sign + "0." + std::string(static_cast<std::size_t>(-before_point), '0') + digits;
  }
  digits.insert(static_cast<std::size_t>(before_point), ".");
  return sign + digits;
}

// With room where there is no extent.
Range widened(Range range) {
  if (range.is_empty) {
    return {0, 1, false};
  }
  range.low = std::clamp(range.low, -kGreatest, kGreatest);
  range.high = std::clamp(range.high, -kGreatest, kGreatest);
  const double size = std::max(std::abs(range.low), std::abs(range.high));
  if (size < kLeastExtent) {
    return {0, 1, false};
  }
  if (range.high / 2 - range.low / 2 < size * kLeastPart) {
    return range.low > 0 ? Range{0, range.high, false} : Range{range.low, 0, false};
  }
  constexpr double kNear = 0.7;
  if (range.low > 0 && range.low < range.high * kNear) {
    range.low = 0;
  } else if (range.high < 0 && range.high > range.low * kNear) {
    range.high = 0;
  }
  return range;
}

}  // namespace

void Range::add(double value) {
  if (!std::isfinite(value)) {
    return;
  }
  low = is_empty ? value : std::min(low, value);
  high = is_empty ? value : std::max(high, value);
  is_empty = false;
}

double Axis::part(double value) const {
  // In halves: the difference of two doubles may be none.
  return std::clamp((value / 2 - low / 2) / (high / 2 - low / 2), 0.0, 1.0);
}

Axis axis_over(Range range, int steps) {
  range = widened(range);
  steps = std::max(steps, 2);
  const double least = range.high / steps - range.low / steps;
  Step step{1, static_cast<int>(std::floor(std::log10(least))) - 1};
  const auto count_at = [&](double value, bool up) {
    const double count = value / step.times(1);
    // What is a tick but for the last digits of the division is that tick.
    const double nearest = std::round(count);
    constexpr double kAsGood = 1e-7;
    if (std::abs(count - nearest) < kAsGood) {
      return static_cast<std::int64_t>(nearest);
    }
    return static_cast<std::int64_t>(up ? std::ceil(count) : std::floor(count));
  };
  while (step.times(1) < least * (1 - kLeastPart) ||
         count_at(range.high, true) - count_at(range.low, false) > steps) {
    step.grow();
  }
  Axis axis;
  const std::int64_t last = count_at(range.high, true);
  for (std::int64_t count = count_at(range.low, false); count <= last; ++count) {
    axis.ticks.push_back({step.times(count), label_of(count, step)});
  }
  while (axis.ticks.size() > 2 && !std::isfinite(axis.ticks.back().value)) {
    axis.ticks.pop_back();
  }
  while (axis.ticks.size() > 2 && !std::isfinite(axis.ticks.front().value)) {
    axis.ticks.erase(axis.ticks.begin());
  }
  axis.low = axis.ticks.front().value;
  axis.high = axis.ticks.back().value;
  return axis;
}

}  // namespace qelpro
