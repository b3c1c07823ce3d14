#pragma once

namespace qelpro {

/// How far two reals may lie from each other that count as the same.
struct Tolerances {
  double relative = 0;  ///< Of the larger magnitude of the two.
  double absolute = 0;  ///< Adds to it.
  bool points = false;  ///< Profiles are compared point by point.
};

/// NaN is the same as NaN, and an infinity the same as itself alone. `slack` is what a computation
/// may have lost.
bool is_same(double before, double after, const Tolerances& tolerances, double slack = 0);

}  // namespace qelpro
