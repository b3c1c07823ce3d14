#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <string_view>

#include "platform/caller_stream.h"
#include "platform/random_access.h"
#include "support/scratch.h"

namespace qelpro_test {

/// What stands at an offset; "failed" where it cannot be read.
inline std::string read(qel::platform::RandomAccess& file, std::int64_t offset, std::size_t count) {
  std::string bytes(count, '?');
  const std::int64_t got = file.read_at(offset, bytes.data(), count);
  return got < 0 ? "failed" : bytes.substr(0, static_cast<std::size_t>(got));
}

/// A stream over a file of its own.
class Lent : public testing::Test {
 protected:
  ~Lent() override {
    if (stream != nullptr) {
      std::fclose(stream);
    }
  }
  qel::platform::CallerStream lend(std::string_view contents, const char* mode) {
    path = scratch.file(contents);
    stream = std::fopen(path.c_str(), mode);
    return qel::platform::CallerStream(stream);
  }

  Scratch scratch;
  std::string path;
  std::FILE* stream = nullptr;
};

}  // namespace qelpro_test
