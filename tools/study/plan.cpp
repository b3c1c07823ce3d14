#include "study/plan.h"

#include <numeric>
#include <utility>

#include "system/failure.h"

namespace qelpro {
namespace {

void check_size(std::uint64_t size, bool is_more) {
  if (is_more || size > kMostFiles) {
    throw Failure(kUsage, "the plan has " + std::string(is_more ? "more than " : "") +
                              std::to_string(size) + " files, and at most " +
                              std::to_string(kMostFiles) +
                              " are made; give fewer values; --sample N makes N files");
  }
}

}  // namespace

Plan::Plan(std::vector<Range> ranges) : ranges_(std::move(ranges)), size_(1) {
  bool is_more = false;
  for (const Range& range : ranges_) {
    if (range.is_continuous()) {
      throw Failure(kUsage,
                    "a range FROM:TO has no values of its own; give FROM:TO:STEP; "
                    "--sample N draws from it");
    }
    is_more = is_more || size_ > UINT64_MAX / range.count();
    size_ = is_more ? UINT64_MAX : size_ * range.count();
  }
  check_size(size_, is_more);
  strides_.resize(ranges_.size());
  std::uint64_t stride = 1;
  for (std::size_t at = ranges_.size(); at-- != 0;) {
    strides_[at] = stride;
    stride *= ranges_[at].count();
  }
}

Plan::Plan(std::vector<Range> ranges, std::uint64_t samples, std::uint64_t seed)
    : ranges_(std::move(ranges)), size_(samples) {
  check_size(samples, false);
  if (samples == 0) {
    throw Failure(kUsage, "a plan of no samples; give 1 or more");
  }
  Generator generator(seed);
  for (const Range& range : ranges_) {
    std::vector<std::uint64_t> parts(samples);
    std::iota(parts.begin(), parts.end(), std::uint64_t{0});
    for (std::uint64_t last = samples; last > 1; --last) {
      std::swap(parts[last - 1], parts[generator.below(last)]);
    }
    std::vector<std::string>& values = samples_.emplace_back();
    values.reserve(samples);
    for (const std::uint64_t part : parts) {
      values.push_back(range.draw(part, samples, generator));
    }
  }
}

std::string Plan::value(std::uint64_t file, std::size_t range) const {
  return samples_.empty() ? ranges_[range].value(file / strides_[range] % ranges_[range].count())
                          : samples_[range][file];
}

std::uint64_t Plan::value_count(std::size_t range) const {
  return samples_.empty() ? ranges_[range].count() : size_;
}

std::string Plan::any_value(std::size_t range, std::uint64_t index) const {
  return samples_.empty() ? ranges_[range].value(index) : samples_[range][index];
}

}  // namespace qelpro
