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
  /// Whether the stream is of the C runtime that the library has, as far as that can be told:
  /// another one's would be taken for a file that it is not, or waited for without end.
  static bool is_of_this_runtime(std::FILE* stream);
  /// Of a stream for which that holds.
  explicit CallerStream(std::FILE* stream);

  std::int64_t size() override;
  std::int64_t read_at(std::int64_t offset, char* to, std::size_t count) override;
  bool write_at(std::int64_t offset, const char* from, std::size_t count) override;
  bool reserve(std::int64_t old_size, std::int64_t end) override;
  bool truncate(std::int64_t size) override;
  bool flush() override;
  bool lock() override;
  void unlock() override;
  bool begins_read() override;
  ReadEnd ends_read() override;
  [[nodiscard]] bool lasts() const override { return watch_.lasts(); }
  void lock_for_read() override;
  void unlock_after_read() override;

 private:
  std::FILE* stream_;
  bool has_contents_ = false;
  ChangeCount changes_;
  StoreWatch watch_;
  bool is_locked_ = false;
};

}  // namespace qel::platform
