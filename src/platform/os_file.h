#pragma once

#include <cstdint>
#include <cstdio>

#include "platform/change_count.h"
#include "platform/random_access.h"

namespace qel::platform {

/// A regular file that this library opened itself. Anything else under the path (a directory, a
/// pipe, a device) counts as a file that cannot be opened. Bytes are never translated.
class OsFile final : public RandomAccess {
 public:
  OsFile() = default;
  ~OsFile() override;

  bool open_for_reading(const char* path);
  bool open_for_reading(const wchar_t* path);
  /// Opens an existing file for reading and writing; never creates one.
  bool open_for_update(const char* path);
  bool open_for_update(const wchar_t* path);
  /// Creates the file; an existing one is opened with its contents as they are.
  bool create(const char* path);

  /// For a store: no other one works on the file until it is closed. False, too, when another one
  /// does not end.
  bool open_for_store(const char* path);
  bool open_for_store(const wchar_t* path);
  bool open_or_create_for_store(const char* path);

  [[nodiscard]] bool is_open() const { return handle_ != kClosed; }
  /// False when the operating system reports that something written earlier was lost.
  bool close();

  std::int64_t size() override;
  /// The length that the file had when it was opened: known without asking again.
  [[nodiscard]] std::int64_t size_when_opened() const { return size_when_opened_; }
  /// Tells this file from others, where the operating system says so without being asked again; 0
  /// elsewhere.
  [[nodiscard]] std::uint64_t identity() const { return identity_; }
  /// Moves with everything that this program writes to the file, through whatever object.
  [[nodiscard]] std::uint32_t change_count() const { return changes_.value(); }
  std::int64_t read_at(std::int64_t offset, char* to, std::size_t count) override;
  std::int64_t read_some(std::int64_t offset, char* to, std::size_t count) override;
  bool write_at(std::int64_t offset, const char* from, std::size_t count) override;
  bool reserve(std::int64_t old_size, std::int64_t end) override;
  bool truncate(std::int64_t size) override;
  bool flush() override { return true; }

  bool begins_read() override { return watch_.begins_read(handle_); }
  ReadEnd ends_read() override { return watch_.ends_read(handle_); }
  [[nodiscard]] bool lasts() const override { return watch_.lasts(); }
  void lock_for_read() override { watch_.lock(handle_); }
  void unlock_after_read() override { watch_.unlock(handle_); }

  /// A stream over the same file with a position of its own, for a caller that asks for one. The
  /// caller closes it.
  std::FILE* duplicate_as_stream();

 private:
  static constexpr std::intptr_t kClosed = -1;
  enum class Purpose { use, store };
  bool adopt(std::intptr_t handle, Purpose purpose = Purpose::use);
  template <class Character>
  bool open_locked(const Character* path, bool creates);

  std::intptr_t handle_ = kClosed;
  int reads_ = 0;  // counted up to where they no longer stamp the file
  std::int64_t size_when_opened_ = -1;
  std::int64_t room_when_opened_ = 0;
  std::uint64_t identity_ = 0;
  ChangeCount changes_;
  StoreWatch watch_;
  bool is_locked_ = false;
  bool may_be_replaced_ = false;  // its name may have gone to another file meanwhile
};

}  // namespace qel::platform
