#include "platform/os_file.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <algorithm>

#include "platform/handle_windows.h"
#include "platform/path_windows.h"
#include "platform/patience.h"
#include "platform/store_lock.h"

namespace qel::platform {
// To ask for a file's number takes as long as to open it: all files share one counter here.

namespace {

// Whoever else has the file open, for whatever: the C runtime's own streams share as freely.
constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kReading = GENERIC_READ;
constexpr DWORD kUpdating = GENERIC_READ | GENERIC_WRITE;

template <class Character>
std::intptr_t open_or_create(const Character* path, DWORD access, DWORD disposition) {
  return handle_number(::CreateFileW(system_path(path).c_str(), access, kShared, nullptr,
                                     disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

template <class Character>
std::intptr_t open_existing(const Character* path, DWORD access) {
  return open_or_create(path, access, OPEN_EXISTING);
}

}  // namespace

OsFile::~OsFile() { close(); }

bool OsFile::adopt(std::intptr_t handle, Purpose purpose) {
  close();
  if (handle == kClosed) {
    return false;
  }
  const bool is_file = is_disk_file(to_handle(handle));
  const LockAnswer lock =
      is_file && purpose == Purpose::store ? lock_for_store(handle) : LockAnswer::none;
  if (!is_file || lock == LockAnswer::busy) {
    ::CloseHandle(to_handle(handle));
    return false;
  }
  handle_ = handle;
  size_when_opened_ = size();
  changes_ = ChangeCount(0, 0);
  watch_ = {};
  is_locked_ = lock == LockAnswer::held;
  FILE_STANDARD_INFO names{};
  may_be_replaced_ = purpose == Purpose::store &&
                     ::GetFileInformationByHandleEx(to_handle(handle), FileStandardInfo, &names,
                                                    sizeof names) != 0 &&
                     (names.DeletePending != 0 || names.NumberOfLinks == 0);
  return true;
}

// Who waited for another store may find that its file is no longer the one under the path.
template <class Character>
bool OsFile::open_locked(const Character* path, bool creates) {
  Patience patience(Patience::kOfStores);
  do {
    if (!adopt(open_or_create(path, kUpdating, creates ? OPEN_ALWAYS : OPEN_EXISTING),
               Purpose::store)) {
      return false;
    }
    if (!may_be_replaced_) {
      return true;
    }
  } while (patience.waits());
  close();
  return false;
}

bool OsFile::open_for_reading(const char* path) { return adopt(open_existing(path, kReading)); }

bool OsFile::open_for_reading(const wchar_t* path) { return adopt(open_existing(path, kReading)); }

bool OsFile::open_for_update(const char* path) { return adopt(open_existing(path, kUpdating)); }

bool OsFile::open_for_update(const wchar_t* path) { return adopt(open_existing(path, kUpdating)); }

bool OsFile::create(const char* path) {
  return adopt(open_or_create(path, kUpdating, OPEN_ALWAYS));
}

bool OsFile::open_for_store(const char* path) { return open_locked(path, false); }

bool OsFile::open_for_store(const wchar_t* path) { return open_locked(path, false); }

bool OsFile::open_or_create_for_store(const char* path) { return open_locked(path, true); }

bool OsFile::close() {
  if (!is_open()) {
    return true;
  }
  if (is_locked_ && !is_unlocked_by_closing()) {
    unlock_after_store(handle_);
  }
  is_locked_ = false;
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
