#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/read_access.h"

namespace qel::platform {

/// A file to read and write as an array of bytes.
class RandomAccess : public ReadAccess {
 public:
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
