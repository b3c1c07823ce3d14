#include "compare/curve.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace qelpro {
namespace {

// Beyond it a difference of two numbers, or a product with one, may be none.
constexpr double kLargest = 1e150;

bool is_computable(const Curve& curve) {
  return std::ranges::all_of(curve, [](const std::array<double, 2>& point) {
    return std::abs(point[0]) <= kLargest && std::abs(point[1]) <= kLargest;
  });
}

bool has_three_of_one_x(const Curve& curve) {
  for (std::size_t index = 2; index < curve.size(); ++index) {
    if (curve[index - 2][0] == curve[index][0]) {
      return true;
    }
  }
  return false;
}

bool rises(const Curve& curve) {
  return std::ranges::is_sorted(curve, {}, [](const auto& point) { return point[0]; });
}

bool falls(const Curve& curve) {
  return std::ranges::is_sorted(curve, std::ranges::greater(),
                                [](const auto& point) { return point[0]; });
}

// A value of a curve, and by how much it may be off.
struct Value {
  double y = 0;
  double slack = 0;
};

// A number of a file is as near to what is written there as a double can be; so a point that was
// written down as one of a line need not lie on it to the last digit.
Value between(const std::array<double, 2>& a, const std::array<double, 2>& b, double x) {
  constexpr double kRoundings = 8;
  const double width = b[0] - a[0];
  const double y = std::lerp(a[1], b[1], (x - a[0]) / width);
  const double from_y = std::max(std::abs(a[1]), std::abs(b[1]));
  const double from_x = std::abs(b[1] - a[1]) * (std::max(std::abs(a[0]), std::abs(b[0])) / width);
  return {y, kRoundings * std::numeric_limits<double>::epsilon() * (from_y + from_x)};
}

// What the curve comes to from the left.
Value left_of(const Curve& curve, double x) {
  const auto next = std::ranges::lower_bound(curve, x, {}, [](const auto& p) { return p[0]; });
  if (next == curve.end()) {
    return {curve.back()[1]};
  }
  if (next == curve.begin() || (*next)[0] == x) {
    return {(*next)[1]};
  }
  return between(*(next - 1), *next, x);
}

// What it goes on with to the right.
Value right_of(const Curve& curve, double x) {
  const auto next = std::ranges::upper_bound(curve, x, {}, [](const auto& p) { return p[0]; });
  if (next == curve.begin()) {
    return {curve.front()[1]};
  }
  if (next == curve.end() || (*(next - 1))[0] == x) {
    return {(*(next - 1))[1]};
  }
  return between(*(next - 1), *next, x);
}

}  // namespace

bool has_same_points(const Curve& before, const Curve& after, const Tolerances& tolerances) {
  return std::ranges::equal(before, after, [&](const auto& a, const auto& b) {
    return is_same(a[0], b[0], tolerances) && is_same(a[1], b[1], tolerances);
  });
}

bool are_comparable(const Curve& before, const Curve& after) {
  return is_computable(before) && is_computable(after) && !has_three_of_one_x(before) &&
         !has_three_of_one_x(after) &&
         ((rises(before) && rises(after)) || (falls(before) && falls(after)));
}

std::optional<LargestDifference> largest_difference(const Curve& before, const Curve& after,
                                                    const Tolerances& tolerances) {
  const bool rising = rises(before) && rises(after);
  const Curve a = rising ? before : Curve(before.rbegin(), before.rend());
  const Curve b = rising ? after : Curve(after.rbegin(), after.rend());
  std::vector<double> places;
  for (const Curve* curve : {&a, &b}) {
    for (const std::array<double, 2>& point : *curve) {
      places.push_back(point[0]);
    }
  }
  std::ranges::sort(places);
  places.erase(std::ranges::unique(places).begin(), places.end());
  std::optional<LargestDifference> largest;
  const auto take = [&](double x, const Value& one, const Value& other) {
    const double difference = std::abs(one.y - other.y);
    if (!is_same(one.y, other.y, tolerances, one.slack + other.slack) &&
        (!largest || difference > largest->difference)) {
      largest = {difference, x};
    }
  };
  // Between two places both are straight, and so is their difference.
  for (const double x : places) {
    take(x, left_of(a, x), left_of(b, x));
    take(x, right_of(a, x), right_of(b, x));
  }
  return largest;
}

}  // namespace qelpro
