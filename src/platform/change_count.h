#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace qel::platform {

/// Counts what this program writes, by file: a reader that learnt where lines stand sees that a
/// writer beside it may have moved them. Files share counters, so that now and then a count moves
/// although its file did not change.
class ChangeCount {
 public:
  ChangeCount() = default;
  /// Of the file of this number on this device, however the operating system tells them.
  ChangeCount(std::uint64_t device, std::uint64_t file);

  [[nodiscard]] std::uint32_t value() const;
  void add();

 private:
  std::atomic<std::uint32_t>* counter_ = nullptr;
};

/// A change is counted when it is over, however it ended.
class CountedChange {
 public:
  explicit CountedChange(ChangeCount& changes) : changes_(changes) {}
  ~CountedChange() { changes_.add(); }
  CountedChange(const CountedChange&) = delete;
  CountedChange& operator=(const CountedChange&) = delete;

 private:
  ChangeCount& changes_;
};

}  // namespace qel::platform
