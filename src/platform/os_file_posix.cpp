#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/file_length_posix.h"
#include "platform/os_file.h"
#include "platform/patience.h"
#include "platform/store_lock.h"
#include "platform/utf8.h"

namespace qel::platform {
namespace {

int open_retrying(const char* path, int flags) {
  constexpr int kAlways = O_CLOEXEC | O_NOCTTY;
  constexpr mode_t kCreateMode = 0666;
  int fd = -1;
  do {
    fd = ::open(path, flags | kAlways, kCreateMode);
  } while (fd < 0 && errno == EINTR);
  return fd;
}

// Whether something stands there that is no regular file.
bool is_something_else(const char* path) {
  struct stat status {};
  return ::stat(path, &status) == 0 && !S_ISREG(status.st_mode);
}

// What takes a regular file's place meanwhile may not stop the caller, so that nothing is waited
// for at first. A regular file then has to be waited for only while another program holds a lease
// on it, which the system asks back.
int open_waiting_for_a_lease(const char* path, int flags) {
  const int fd = open_retrying(path, flags | O_NONBLOCK);
  return fd < 0 && errno == EWOULDBLOCK && !is_something_else(path) ? open_retrying(path, flags)
                                                                    : fd;
}

// A named pipe is not opened at all: even that would be noticed at its other end.
int open_file(const char* path, int flags) {
  return is_something_else(path) ? -1 : open_waiting_for_a_lease(path, flags);
}

std::uint64_t identity_of(std::uint64_t device, std::uint64_t file) {
  return (device << 40U) ^ file;
}

int descriptor(std::intptr_t handle) { return static_cast<int>(handle); }

// Whether somebody has put another file into the place of an open one.
bool is_replaced(int fd, const char* path) {
  struct stat held {};
  struct stat named {};
  return ::fstat(fd, &held) != 0 || ::stat(path, &named) != 0 || named.st_dev != held.st_dev ||
         named.st_ino != held.st_ino;
}

}  // namespace

OsFile::~OsFile() { close(); }

bool OsFile::adopt(std::intptr_t handle, Purpose purpose) {
  close();
  if (handle < 0) {
    return false;
  }
  const LockAnswer lock = purpose == Purpose::store ? lock_for_store(handle) : LockAnswer::none;
  struct stat status {};
  if (lock == LockAnswer::busy || ::fstat(descriptor(handle), &status) != 0 ||
      !S_ISREG(status.st_mode)) {
    ::close(descriptor(handle));
    return false;
  }
  handle_ = handle;
  size_when_opened_ = static_cast<std::int64_t>(status.st_size);
  identity_ = identity_of(status.st_dev, status.st_ino);
  changes_ = ChangeCount(status.st_dev, status.st_ino);
  is_locked_ = lock == LockAnswer::held;
  may_be_replaced_ = status.st_nlink != 1;
  return true;
}

// Who waited for another store may find that its file is no longer the one under the path.
template <>
bool OsFile::open_locked(const char* path, bool creates) {
  Patience patience;
  do {
    int fd = open_file(path, O_RDWR);
    if (fd < 0 && creates) {
      fd = open_file(path, O_RDWR | O_CREAT);
    }
    if (!adopt(fd, Purpose::store)) {
      return false;
    }
    if (!may_be_replaced_ || !is_replaced(descriptor(handle_), path)) {
      return true;
    }
  } while (patience.waits());
  close();
  return false;
}

// A reader needs no more of the file than what the look before the opening told: should another one
// have come under the path since, its reads tell.
bool OsFile::open_for_reading(const char* path) {
  close();
  struct stat status {};
  if (::stat(path, &status) != 0 || !S_ISREG(status.st_mode)) {
    return false;
  }
  const int fd = open_waiting_for_a_lease(path, O_RDONLY);
  if (fd < 0) {
    return false;
  }
  handle_ = fd;
  size_when_opened_ = static_cast<std::int64_t>(status.st_size);
  identity_ = identity_of(status.st_dev, status.st_ino);
  changes_ = ChangeCount(status.st_dev, status.st_ino);
  return true;
}

bool OsFile::open_for_reading(const wchar_t* path) {
  return open_for_reading(to_utf8(path).c_str());
}

bool OsFile::open_for_update(const char* path) { return adopt(open_file(path, O_RDWR)); }

bool OsFile::open_for_update(const wchar_t* path) { return open_for_update(to_utf8(path).c_str()); }

bool OsFile::create(const char* path) { return adopt(open_file(path, O_RDWR | O_CREAT)); }

bool OsFile::open_for_store(const char* path) { return open_locked(path, false); }

bool OsFile::open_for_store(const wchar_t* path) { return open_for_store(to_utf8(path).c_str()); }

bool OsFile::open_or_create_for_store(const char* path) { return open_locked(path, true); }

bool OsFile::close() {
  if (!is_open()) {
    return true;
  }
  if (is_locked_ && !is_unlocked_by_closing()) {
    unlock_after_store(handle_);
  }
  is_locked_ = false;
  const int result = ::close(descriptor(handle_));
  handle_ = kClosed;
  return result == 0 || errno == EINTR;
}

std::int64_t OsFile::size() {
  struct stat status {};
  return ::fstat(descriptor(handle_), &status) == 0 ? static_cast<std::int64_t>(status.st_size)
                                                    : -1;
}

std::int64_t OsFile::read_at(std::int64_t offset, char* to, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    const ssize_t got = ::pread(descriptor(handle_), to + done, count - done,
                                static_cast<off_t>(offset) + static_cast<off_t>(done));
    if (got < 0) {
      if (errno == EINTR) {
        continue;
      }
      return -1;
    }
    if (got == 0) {
      break;
    }
    done += static_cast<std::size_t>(got);
  }
  return static_cast<std::int64_t>(done);
}

bool OsFile::write_at(std::int64_t offset, const char* from, std::size_t count) {
  const CountedChange change(changes_);
  std::size_t done = 0;
  while (done < count) {
    const ssize_t put = ::pwrite(descriptor(handle_), from + done, count - done,
                                 static_cast<off_t>(offset) + static_cast<off_t>(done));
    if (put < 0 && errno == EINTR) {
      continue;
    }
    if (put <= 0) {
      return false;
    }
    done += static_cast<std::size_t>(put);
  }
  return true;
}

bool OsFile::reserve(std::int64_t old_size, std::int64_t end) {
  if (!is_within_limit(end)) {
    return false;
  }
  if (end <= old_size) {
    return true;
  }
  struct stat status {};
  if (::fstat(descriptor(handle_), &status) != 0) {
    return false;
  }
  constexpr std::int64_t kStatBlock = 512;
  if (static_cast<std::int64_t>(status.st_blocks) * kStatBlock >= end) {
    return true;
  }
  return reserve_blocks(descriptor(handle_), old_size, end);
}

bool OsFile::truncate(std::int64_t size) {
  const CountedChange change(changes_);
  return set_length(descriptor(handle_), size);
}

std::FILE* OsFile::duplicate_as_stream() {
  const int copy = ::fcntl(descriptor(handle_), F_DUPFD_CLOEXEC, 0);
  if (copy < 0) {
    return nullptr;
  }
  std::FILE* stream = ::fdopen(copy, "r");
  if (stream == nullptr) {
    ::close(copy);
  }
  return stream;
}

}  // namespace qel::platform
