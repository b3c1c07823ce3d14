#pragma once

#include <sys/types.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <string>

namespace qelpro_test {

/// A stream whose medium fails behind a number of bytes.
struct BrokenMedium {
  std::string contents;
  std::size_t readable = 0;
  std::size_t at = 0;

  static ssize_t read(void* cookie, char* to, std::size_t size) {
    auto& medium = *static_cast<BrokenMedium*>(cookie);
    if (medium.at >= medium.readable && medium.readable < medium.contents.size()) {
      errno = EIO;
      return -1;
    }
    const std::size_t count =
        std::min(size, std::min(medium.readable, medium.contents.size()) - medium.at);
    medium.contents.copy(to, count, medium.at);
    medium.at += count;
    return static_cast<ssize_t>(count);
  }
  static int seek(void* cookie, off64_t* offset, int whence) {
    auto& medium = *static_cast<BrokenMedium*>(cookie);
    const off64_t from = whence == SEEK_SET   ? 0
                         : whence == SEEK_CUR ? static_cast<off64_t>(medium.at)
                                              : static_cast<off64_t>(medium.contents.size());
    *offset += from;
    medium.at = static_cast<std::size_t>(*offset);
    return 0;
  }
};

/// The stream, without a buffer of its own.
inline std::FILE* opened(BrokenMedium& medium) {
  std::FILE* const stream =
      ::fopencookie(&medium, "r+", {&BrokenMedium::read, nullptr, &BrokenMedium::seek, nullptr});
  std::setvbuf(stream, nullptr, _IONBF, 0);
  return stream;
}

}  // namespace qelpro_test
