#pragma once

#include <cstdint>

#include "platform/store_watch.h"

namespace qel::platform {

/// Runs a read so that what it finds is the file before a store or after it, never anything
/// between. Readers ask and look; only one that met a store takes a lock, and repeats the read
/// under it, so that many readers do not keep a writer out. `forget` drops what a disturbed read
/// has learnt. Where nothing can be asked for, or a store does not end, the last look counts.
template <class File, class Read, class Forget>
auto read_steadily(File& file, Read read, Forget forget) {
  while (file.begins_read()) {
    auto result = read();
    const ReadEnd end = file.ends_read();
    if (end == ReadEnd::undisturbed) {
      return result;
    }
    forget();
    if (end == ReadEnd::disturbed) {
      break;
    }
  }
  struct Locked {
    File& file;
    explicit Locked(File& file_to_read) : file(file_to_read) { file.lock_for_read(); }
    ~Locked() { file.unlock_after_read(); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
  };
  const Locked locked(file);
  return read();
}

/// An open file of which no more than its handle is known, for `read_steadily`.
class WatchedHandle {
 public:
  explicit WatchedHandle(std::intptr_t handle) : handle_(handle) {}

  bool begins_read() { return watch_.begins_read(handle_); }
  ReadEnd ends_read() { return watch_.ends_read(handle_); }
  void lock_for_read() { watch_.lock(handle_); }
  void unlock_after_read() { watch_.unlock(handle_); }

 private:
  std::intptr_t handle_;
  StoreWatch watch_;
};

template <class File, class Read>
auto read_steadily(File& file, Read read) {
  return read_steadily(file, read, [] {});
}

}  // namespace qel::platform
