#pragma once

#include <cstdint>
#include <functional>

namespace qel::refdata {

/// A column of numbers by row, from 0.
using Column = std::function<double(std::int64_t row)>;

/// The value at argument `t` between rows whose arguments `x` ascend: linear between two rows, the
/// first or last row's outside of them. 0 when no two neighbouring rows enclose `t` (rows out of
/// order, or `t` is not a number). `rows` is at least 1.
double interpolate(const Column& x, const Column& y, std::int64_t rows, double t);

}  // namespace qel::refdata
