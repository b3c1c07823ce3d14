#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

namespace qel::platform {

/// A file as an array of bytes. Every call names its own offset; there is no current position.
class RandomAccess {
 public:
  RandomAccess() = default;
  RandomAccess(const RandomAccess&) = delete;
  RandomAccess& operator=(const RandomAccess&) = delete;
  virtual ~RandomAccess() = default;

  /// The length in bytes, or -1 when it cannot be told.
  virtual std::int64_t size() = 0;

  /// The length of a file that is to be held in memory whole; -1 also for one of more than 2 GiB,
  /// which no process file has.
  std::int64_t size_in_memory() { return in_memory(size()); }
  static std::int64_t in_memory(std::int64_t size) {
    return size <= std::numeric_limits<std::int32_t>::max() ? size : -1;
  }

  /// Reads up to `count` bytes; fewer only at the end of the file. -1 on failure.
  virtual std::int64_t read_at(std::int64_t offset, char* to, std::size_t count) = 0;

  /// Writes all of `count` bytes, or fails.
  virtual bool write_at(std::int64_t offset, const char* from, std::size_t count) = 0;

  /// Makes sure that the file, which is `old_size` long, can be written up to `end`, before any old
  /// byte is touched. The length that `size` tells stays `old_size`.
  virtual bool reserve(std::int64_t old_size, std::int64_t end) = 0;

  virtual bool truncate(std::int64_t size) = 0;

  /// Hands everything written to the operating system; false when that failed.
  virtual bool flush() = 0;

  /// Keeps other stores out of a file that is open already; false when another one does not end.
  virtual bool lock() { return true; }
  virtual void unlock() {}
};

}  // namespace qel::platform
