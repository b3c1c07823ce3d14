#pragma once

#include <cstdint>

namespace qel::platform {

/// What a store asks of a file: all but its times. Who asks for those makes the next write stamp
/// the file anew (Linux from 6.13 on), which costs as much as the write.
struct FileStatus {
  bool is_regular = false;
  std::uint64_t device = 0;
  std::uint64_t number = 0;  ///< Its own on the device.
  std::uint64_t names = 0;
  std::int64_t size = -1;
  std::int64_t room = 0;  ///< The bytes set aside for it: so long it may become without a request.

  [[nodiscard]] bool is_of_same_file(const FileStatus& other) const {
    return device == other.device && number == other.number;
  }
};

/// False where nothing stands under the path, or where it cannot be looked at.
bool look_at(const char* path, FileStatus& status);
bool look_at(int fd, FileStatus& status);

}  // namespace qel::platform
