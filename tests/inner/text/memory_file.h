#pragma once

#include <algorithm>
#include <cstring>
#include <limits>
#include <string>
#include <utility>

#include "platform/random_access.h"

namespace qelpro_test {

/// A file in memory whose calls fail as they are told to.
class MemoryFile : public qel::platform::RandomAccess {
 public:
  explicit MemoryFile(std::string contents = {}) : bytes(std::move(contents)) {}

  std::int64_t size() override { return size_fails ? -1 : static_cast<std::int64_t>(bytes.size()); }

  std::int64_t read_at(std::int64_t offset, char* to, std::size_t count) override {
    ++reads;
    if (static_cast<std::size_t>(offset) + count > readable) {
      return -1;
    }
    const std::size_t from = std::min(static_cast<std::size_t>(offset), bytes.size());
    const std::size_t got = std::min(count, bytes.size() - from);
    std::memcpy(to, bytes.data() + from, got);
    return static_cast<std::int64_t>(got);
  }

  /// A write that fails has put down as many bytes as `writable` allows.
  bool write_at(std::int64_t offset, const char* from, std::size_t count) override {
    ++writes;
    const bool fails = writes == failing_write;
    const std::size_t taken = fails ? std::min(count, writable) : count;
    const auto at = static_cast<std::size_t>(offset);
    if (bytes.size() < at + taken) {
      bytes.resize(at + taken);
    }
    std::memcpy(bytes.data() + at, from, taken);
    return !fails;
  }

  bool reserve(std::int64_t old_size, std::int64_t new_size) override {
    asked_growth = std::max(asked_growth, new_size - old_size);
    return new_size <= old_size || new_size <= room;
  }

  bool truncate(std::int64_t new_size) override {
    if (truncate_fails) {
      return false;
    }
    bytes.resize(static_cast<std::size_t>(new_size));
    return true;
  }

  bool flush() override { return true; }

  std::string bytes;
  int reads = 0;
  int writes = 0;
  std::int64_t asked_growth = 0;

  bool size_fails = false;
  bool truncate_fails = false;
  std::size_t readable = std::numeric_limits<std::size_t>::max();  // reads beyond fail
  int failing_write = 0;  // which write fails, counted from 1
  std::size_t writable = 0;
  std::int64_t room = std::numeric_limits<std::int64_t>::max();  // the longest the file may grow
};

}  // namespace qelpro_test
