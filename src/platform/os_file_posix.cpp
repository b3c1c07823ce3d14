#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/file_length_posix.h"
#include "platform/file_stamp_posix.h"
#include "platform/file_status_posix.h"
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
  FileStatus status;
  return look_at(path, status) && !status.is_regular;
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

// To look whether the time of access has to be stamped is a fifth of what a read of one line costs.
constexpr int kStampingReads = 16;

// The reads so far have stamped it. The file's owner alone may do without.
void stamp_no_more([[maybe_unused]] int fd) {
#ifdef O_NOATIME
  const int before = errno;
  if (const int flags = ::fcntl(fd, F_GETFL); flags >= 0) {
    ::fcntl(fd, F_SETFL, flags | O_NOATIME);
  }
  errno = before;
#endif
}

// Whether somebody has put another file into the place of an open one.
bool is_replaced(int fd, const char* path) {
  FileStatus held;
  FileStatus named;
  return !look_at(fd, held) || !look_at(path, named) || !named.is_of_same_file(held);
}

}  // namespace

OsFile::~OsFile() { close(); }

bool OsFile::adopt(std::intptr_t handle, Purpose purpose) {
  close();
  if (handle < 0) {
    return false;
  }
  const LockAnswer lock = purpose == Purpose::store ? lock_for_store(handle) : LockAnswer::none;
  FileStatus status;
  if (lock == LockAnswer::busy || !look_at(descriptor(handle), status) || !status.is_regular) {
    ::close(descriptor(handle));
    return false;
  }
  handle_ = handle;
  reads_ = kStampingReads + 1;  // and go on: it may be written to
  size_when_opened_ = status.size;
  room_when_opened_ = status.room;
  identity_ = identity_of(status.device, status.number);
  changes_ = ChangeCount(status.device, status.number);
  watch_ = StoreWatch();
  is_locked_ = lock == LockAnswer::held;
  may_be_replaced_ = status.names != 1;
  return true;
}

// Who waited for another store may find that its file is no longer the one under the path.
template <>
bool OsFile::open_locked(const char* path, bool creates) {
  Patience patience(Patience::kOfStores);
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
  reads_ = 0;
  size_when_opened_ = static_cast<std::int64_t>(status.st_size);
  room_when_opened_ = 0;
  identity_ = identity_of(status.st_dev, status.st_ino);
  changes_ = ChangeCount(status.st_dev, status.st_ino);
  watch_.note(stamp_of(status));
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

std::int64_t OsFile::read_some(std::int64_t offset, char* to, std::size_t count) {
  if (reads_ <= kStampingReads && ++reads_ > kStampingReads) {
    stamp_no_more(descriptor(handle_));
  }
  ssize_t got = -1;
  do {
    got = ::pread(descriptor(handle_), to, count, static_cast<off_t>(offset));
  } while (got < 0 && errno == EINTR);
  return got;
}

std::int64_t OsFile::read_at(std::int64_t offset, char* to, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    const std::int64_t got =
        read_some(offset + static_cast<std::int64_t>(done), to + done, count - done);
    if (got < 0) {
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
  return end <= old_size || end <= room_when_opened_ ||
         reserve_blocks(descriptor(handle_), old_size, end);
}

bool OsFile::truncate(std::int64_t size) {
  const CountedChange change(changes_);
  room_when_opened_ = 0;  // what is cut off is given back
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
