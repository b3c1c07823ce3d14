#include "platform/os_file.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <algorithm>

#include "platform/handle_windows.h"

namespace qel::platform {
// To ask for a file's number takes as long as to open it: all files share one counter here.

namespace {

// Whoever else has the file open, for whatever: the C runtime's own streams share as freely.
constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kReading = GENERIC_READ;
constexpr DWORD kUpdating = GENERIC_READ | GENERIC_WRITE;

std::intptr_t open_existing(const char* path, DWORD access) {
  return handle_number(
      ::CreateFileA(path, access, kShared, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

std::intptr_t open_existing(const wchar_t* path, DWORD access) {
  return handle_number(
      ::CreateFileW(path, access, kShared, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

}  // namespace

OsFile::~OsFile() { close(); }

bool OsFile::adopt(std::intptr_t handle) {
  close();
  if (handle == kClosed) {
    return false;
  }
  if (!is_disk_file(to_handle(handle))) {
    ::CloseHandle(to_handle(handle));
    return false;
  }
  handle_ = handle;
  size_when_opened_ = size();
  changes_ = ChangeCount(0, 0);
  return true;
}

bool OsFile::open_for_reading(const char* path) { return adopt(open_existing(path, kReading)); }

bool OsFile::open_for_reading(const wchar_t* path) { return adopt(open_existing(path, kReading)); }

bool OsFile::open_for_update(const char* path) { return adopt(open_existing(path, kUpdating)); }

bool OsFile::open_for_update(const wchar_t* path) { return adopt(open_existing(path, kUpdating)); }

bool OsFile::create(const char* path) {
  return adopt(handle_number(::CreateFileA(path, kUpdating, kShared, nullptr, OPEN_ALWAYS,
                                           FILE_ATTRIBUTE_NORMAL, nullptr)));
}

bool OsFile::close() {
  if (!is_open()) {
    return true;
  }
  const BOOL closed = ::CloseHandle(to_handle(handle_));
  handle_ = kClosed;
  return closed != 0;
}

std::int64_t OsFile::size() { return size_of(to_handle(handle_)); }

std::int64_t OsFile::read_at(std::int64_t offset, char* to, std::size_t count) {
  return read_from(to_handle(handle_), offset, to, count);
}

std::int64_t OsFile::read_some(std::int64_t offset, char* to, std::size_t count) {
  return read_at(offset, to, count);
}

bool OsFile::write_at(std::int64_t offset, const char* from, std::size_t count) {
  const CountedChange change(changes_);
  return write_to(to_handle(handle_), offset, from, count);
}

bool OsFile::reserve(std::int64_t old_size, std::int64_t end) {
  return end <= old_size || reserve_length(to_handle(handle_), end);
}

bool OsFile::truncate(std::int64_t size) {
  const CountedChange change(changes_);
  return set_size(to_handle(handle_), size);
}

std::FILE* OsFile::duplicate_as_stream() {
  // A duplicate of the handle would share its position, which every read moves.
  const HANDLE own = ::ReOpenFile(to_handle(handle_), kReading, kShared, 0);
  if (own == INVALID_HANDLE_VALUE) {
    return nullptr;
  }
  const int descriptor =
      ::_open_osfhandle(reinterpret_cast<std::intptr_t>(own), _O_RDONLY | _O_TEXT | _O_NOINHERIT);
  if (descriptor < 0) {
    ::CloseHandle(own);
    return nullptr;
  }
  std::FILE* stream = ::_fdopen(descriptor, "rt");
  if (stream == nullptr) {
    ::_close(descriptor);
  }
  return stream;
}

}  // namespace qel::platform
