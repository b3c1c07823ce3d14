#pragma once

#include <cstdint>
#include <cstdio>

#include "platform/change_count.h"
#include "platform/random_access.h"

namespace qel::platform {

/// A stream that the caller opened and keeps. Its position afterwards is unspecified; what was
/// written is flushed. A stream over a device or a pipe can neither be read nor measured.
class CallerStream final : public RandomAccess {
 public:
  explicit CallerStream(std::FILE* stream);

  std::int64_t size() override;
  std::int64_t read_at(std::int64_t offset, char* to, std::size_t count) override;
  bool write_at(std::int64_t offset, const char* from, std::size_t count) override;
  bool reserve(std::int64_t old_size, std::int64_t end) override;
  bool truncate(std::int64_t size) override;
  bool flush() override;
  bool lock() override;
  void unlock() override;

 private:
  std::FILE* stream_;
  bool has_contents_ = false;
  ChangeCount changes_;
  bool is_locked_ = false;
};

}  // namespace qel::platform
