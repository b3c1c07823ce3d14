#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

#include "platform/store_watch.h"

namespace qel::platform {

/// A file to read as an array of bytes. Every call names its own offset; there is no current
/// position.
class ReadAccess {
 public:
  ReadAccess() = default;
  ReadAccess(const ReadAccess&) = delete;
  ReadAccess& operator=(const ReadAccess&) = delete;
  virtual ~ReadAccess() = default;

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

  /// The same in one call of the operating system, which may give fewer bytes for whatever reason.
  virtual std::int64_t read_some(std::int64_t offset, char* to, std::size_t count) {
    return read_at(offset, to, count);
  }

  /// What `read_steadily` asks: see StoreWatch.
  virtual bool begins_read() { return true; }
  virtual ReadEnd ends_read() { return ReadEnd::undisturbed; }
  [[nodiscard]] virtual bool lasts() const { return false; }
  virtual void lock_for_read() {}
  virtual void unlock_after_read() {}
};

}  // namespace qel::platform
