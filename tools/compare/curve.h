#pragma once

#include <array>
#include <optional>
#include <vector>

#include "compare/tolerance.h"

namespace qelpro {

/// Points in the order of a profile, x before y, with a straight line between two of them. Two
/// points of one x are a jump. Before its first point and behind its last one a curve holds their
/// values.
using Curve = std::vector<std::array<double, 2>>;

/// Whether the points are the same, one by one.
bool has_same_points(const Curve& before, const Curve& after, const Tolerances& tolerances);

/// Whether both are curves over one direction of x: it rises in both, or falls in both, as that of
/// a ram's stroke does; no more than two points have one x; and every number is finite and of a
/// size that can be computed with.
bool are_comparable(const Curve& before, const Curve& after);

/// How far two curves lie apart where that is the most.
struct LargestDifference {
  double difference = 0;
  double at = 0;
};

/// Of what the tolerances do not let pass, anywhere in the ranges of both curves; nothing where
/// they are the same. The curves are comparable and have points.
std::optional<LargestDifference> largest_difference(const Curve& before, const Curve& after,
                                                    const Tolerances& tolerances);

}  // namespace qelpro
