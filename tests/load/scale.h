#pragma once

#include <cstdlib>

namespace qelpro_test {

/// A load: small in every run of the tests, whole where QELPRO_LOAD is set, as `./dev load` and
/// `./dev test --memory` do.
template <class Number>
Number load(Number small, Number whole) {
  return std::getenv("QELPRO_LOAD") != nullptr ? whole : small;
}

inline constexpr std::size_t kMiB = std::size_t{1} << 20U;

}  // namespace qelpro_test
