#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/file_length_posix.h"
#include "platform/os_file.h"
#include "platform/utf8.h"

namespace qel::platform {
namespace {

int open_retrying(const char* path, int flags) {
  // O_NONBLOCK keeps a named pipe from stopping the caller; it means nothing for a regular file.
  constexpr int kAlways = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  constexpr mode_t kCreateMode = 0666;
  int fd = -1;
  do {
    fd = ::open(path, flags | kAlways, kCreateMode);
  } while (fd < 0 && errno == EINTR);
  return fd;
}

int descriptor(std::intptr_t handle) { return static_cast<int>(handle); }

}  // namespace

OsFile::~OsFile() { close(); }

bool OsFile::adopt(std::intptr_t handle) {
  close();
  if (handle < 0) {
    return false;
  }
  struct stat status {};
  if (::fstat(descriptor(handle), &status) != 0 || !S_ISREG(status.st_mode)) {
    ::close(descriptor(handle));
    return false;
  }
  handle_ = handle;
  size_when_opened_ = static_cast<std::int64_t>(status.st_size);
  return true;
}

bool OsFile::open_for_reading(const char* path) { return adopt(open_retrying(path, O_RDONLY)); }

bool OsFile::open_for_reading(const wchar_t* path) { return open_for_reading(to_utf8(path).c_str()); }

bool OsFile::open_for_update(const char* path) { return adopt(open_retrying(path, O_RDWR)); }

bool OsFile::open_for_update(const wchar_t* path) { return open_for_update(to_utf8(path).c_str()); }

bool OsFile::create(const char* path) { return adopt(open_retrying(path, O_RDWR | O_CREAT)); }

bool OsFile::close() {
  if (!is_open()) {
    return true;
  }
  const int result = ::close(descriptor(handle_));
  handle_ = kClosed;
  return result == 0 || errno == EINTR;
}

std::int64_t OsFile::size() {
  struct stat status {};
  return ::fstat(descriptor(handle_), &status) == 0 ? static_cast<std::int64_t>(status.st_size) : -1;
}

std::int64_t OsFile::read_at(std::int64_t offset, char* to, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    const ssize_t got = ::pread(descriptor(handle_), to + done, count - done, static_cast<off_t>(offset) + static_cast<off_t>(done));
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
  std::size_t done = 0;
  while (done < count) {
    const ssize_t put = ::pwrite(descriptor(handle_), from + done, count - done, static_cast<off_t>(offset) + static_cast<off_t>(done));
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

bool OsFile::secure_growth(std::int64_t old_size, std::int64_t new_size) {
  if (new_size <= old_size) {
    return true;
  }
  struct stat status {};
  if (::fstat(descriptor(handle_), &status) != 0) {
    return false;
  }
  constexpr std::int64_t kStatBlock = 512;
  if (static_cast<std::int64_t>(status.st_blocks) * kStatBlock >= new_size) {
    return true;
  }
  return set_room_aside(descriptor(handle_), old_size, new_size);
}

bool OsFile::truncate(std::int64_t size) { return set_length(descriptor(handle_), size); }

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
