#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "study/ranges.h"

namespace qelpro {

/// How many files one plan may have.
inline constexpr std::uint64_t kMostFiles = 10'000'000;

/// What a study varies and how: a value of each range for each file.
class Plan {
 public:
  /// Every combination of the ranges' values. The last range is the fastest: 1 1, 1 2, 2 1, 2 2.
  /// A `Failure` of usage for more than `kMostFiles`.
  explicit Plan(std::vector<Range> ranges);

  /// A Latin hypercube: each range is cut into as many parts as there are samples, and each part
  /// has one of them. For one range after the other the generator first shuffles the parts, from
  /// the last one down to the second each changes places with one that is drawn from those up to
  /// it; then it draws a value in the part of each sample, from the first sample to the last.
  Plan(std::vector<Range> ranges, std::uint64_t samples, std::uint64_t seed);

  [[nodiscard]] std::uint64_t size() const { return size_; }
  [[nodiscard]] std::size_t range_count() const { return ranges_.size(); }
  [[nodiscard]] std::string value(std::uint64_t file, std::size_t range) const;

  /// How many different values a range may have in the plan, and each of them.
  [[nodiscard]] std::uint64_t value_count(std::size_t range) const;
  [[nodiscard]] std::string any_value(std::size_t range, std::uint64_t index) const;

 private:
  std::vector<Range> ranges_;
  std::uint64_t size_ = 0;
  std::vector<std::uint64_t> strides_;             // of combinations
  std::vector<std::vector<std::string>> samples_;  // of each range
};

}  // namespace qelpro
