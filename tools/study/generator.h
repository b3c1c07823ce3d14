#pragma once

#include <cstdint>

namespace qelpro {

/// The random numbers of a study: the same ones for a seed on every platform. The generator is
/// SplitMix64: a counter in steps of 2^64 divided by the golden ratio, whose bits are mixed.
class Generator {
 public:
  explicit Generator(std::uint64_t seed) : state_(seed) {}

  std::uint64_t next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31U);
  }

  /// One of 0 to count - 1, all of them alike: what lies above the last whole multiple of `count`
  /// is drawn again.
  std::uint64_t below(std::uint64_t count) {
    const std::uint64_t excess = (UINT64_MAX % count + 1) % count;
    std::uint64_t drawn = next();
    while (drawn > UINT64_MAX - excess) {
      drawn = next();
    }
    return drawn % count;
  }

 private:
  std::uint64_t state_;
};

}  // namespace qelpro
