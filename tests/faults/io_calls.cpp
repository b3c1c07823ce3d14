#include "faults/io_calls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <utility>

namespace qelpro_test::io_calls {
namespace {

struct Plan {
  bool armed = false;
  int at = 0;
  Failure failure = Failure::none;
  int error = 0;
  bool next_write_fails = false;
  Outcome outcome;
};
thread_local Plan plan;
thread_local std::function<void(int)> announce_call;

constexpr std::size_t kPage = 4096;
int pages_left = -1;  // none are counted

// How many of the bytes go into the first page that a write touches.
std::size_t part_in_page(std::size_t count, off_t offset) {
  return std::min(count, kPage - static_cast<std::size_t>(offset) % kPage);
}

void count_page() {
  if (pages_left-- == 0) {
    ::_exit(1);
  }
}

void record(const char* name) {
  if (const auto at = static_cast<std::size_t>(plan.outcome.calls++);
      at < plan.outcome.names.size()) {
    plan.outcome.names[at] = name;
  }
}

// Whether this call is to fail, or to read or write less.
bool is_chosen(const char* name) {
  if (!plan.armed) {
    return false;
  }
  record(name);
  if (announce_call) {
    plan.armed = false;
    announce_call(plan.outcome.calls);
    plan.armed = true;
  }
  if (plan.outcome.calls != plan.at || plan.failure == Failure::none) {
    return false;
  }
  plan.outcome.failed_call = name;
  return true;
}

int error_or(int usual) { return plan.error != 0 ? plan.error : usual; }

enum class Interruption { possible, impossible };

bool fails(const char* name, int error, Interruption interruption = Interruption::impossible) {
  if (!is_chosen(name)) {
    return false;
  }
  const bool interrupted =
      plan.failure == Failure::interrupted && interruption == Interruption::possible;
  if (plan.failure != Failure::error && !interrupted) {
    return false;
  }
  plan.outcome.failed = true;
  errno = interrupted ? EINTR : error_or(error);
  return true;
}

template <class Function>
Function* next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

void end_after_pages(int pages) { pages_left = pages; }

void fail(int n, Failure failure, int error) { plan = {true, n, failure, error, false, {}}; }

void announce(std::function<void(int call)> announcement) {
  announce_call = std::move(announcement);
  fail(0, Failure::none);
}

Outcome stop() {
  const Outcome outcome = plan.outcome;
  plan = {};
  announce_call = nullptr;
  return outcome;
}

}  // namespace qelpro_test::io_calls

using namespace qelpro_test::io_calls;

#define VISIBLE extern "C" __attribute__((visibility("default")))

namespace {

using Fcntl = int(int, int, ...);
Fcntl* real_fcntl() {
  static auto* const real = next<Fcntl>("fcntl");
  return real;
}

}  // namespace

// Its locks count; other questions are not asked of a file system.
VISIBLE int fcntl(int fd, int command, ...) {
  std::va_list arguments;
  va_start(arguments, command);
  void* const argument = va_arg(arguments, void*);
  va_end(arguments);
  const bool is_lock = command == F_OFD_SETLK || command == F_OFD_SETLKW;
  if (command == F_OFD_GETLK ? fails("fcntl", ENOLCK)
                             : is_lock && static_cast<struct flock*>(argument)->l_type != F_UNLCK &&
                                   fails("fcntl", ENOLCK, Interruption::possible)) {
    return -1;
  }
  return real_fcntl()(fd, command, argument);
}

VISIBLE int open(const char* path, int flags, ...) {
  static auto* const real = next<int(const char*, int, ...)>("open");
  std::va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  const char* const name = (flags & O_ACCMODE) == O_RDONLY ? kOpenToRead : "open";
  if (fails(name, EIO, Interruption::possible)) {
    return -1;
  }
  const int fd = real(path, flags, mode);
  if (plan.armed && fd >= 0 && (real_fcntl()(fd, F_GETFD) & FD_CLOEXEC) == 0) {
    ++plan.outcome.inherited;
  }
  return fd;
}

VISIBLE int close(int fd) {
  static auto* const real = next<int(int)>("close");
  if (fails("close", EIO, Interruption::possible)) {
    const int error = errno;
    real(fd);
    errno = error;
    return -1;
  }
  return real(fd);
}

VISIBLE int fstat(int fd, struct stat* status) noexcept {
  static auto* const real = next<int(int, struct stat*)>("fstat");
  return fails("fstat", EIO) ? -1 : real(fd, status);
}

VISIBLE int stat(const char* path, struct stat* status) noexcept {
  static auto* const real = next<int(const char*, struct stat*)>("stat");
  return fails("stat", EIO) ? -1 : real(path, status);
}

VISIBLE int statx(int fd, const char* path, int flags, unsigned mask,
                  struct statx* status) noexcept {
  static auto* const real = next<int(int, const char*, int, unsigned, struct statx*)>("statx");
  return fails("statx", EIO) ? -1 : real(fd, path, flags, mask, status);
}

VISIBLE ssize_t pread(int fd, void* to, std::size_t count, off_t offset) {
  static auto* const real = next<ssize_t(int, void*, std::size_t, off_t)>("pread");
  return fails("pread", EIO, Interruption::possible) ? -1 : real(fd, to, count, offset);
}

VISIBLE ssize_t pwrite(int fd, const void* from, std::size_t count, off_t offset) {
  static auto* const real = next<ssize_t(int, const void*, std::size_t, off_t)>("pwrite");
  if (pages_left >= 0) {
    const char* bytes = static_cast<const char*>(from);
    for (std::size_t done = 0; done < count;) {
      const off_t at = offset + static_cast<off_t>(done);
      const std::size_t part = part_in_page(count - done, at);
      count_page();
      if (real(fd, bytes + done, part, at) != static_cast<ssize_t>(part)) {
        return -1;
      }
      done += part;
    }
    return static_cast<ssize_t>(count);
  }
  if (plan.next_write_fails) {
    plan.next_write_fails = false;
    record("pwrite");
    errno = error_or(ENOSPC);
    return -1;
  }
  if (is_chosen("pwrite")) {
    if (plan.failure == Failure::error || plan.failure == Failure::interrupted) {
      plan.outcome.failed = true;
      errno = plan.failure == Failure::error ? error_or(ENOSPC) : EINTR;
      return -1;
    }
    if (count > 1) {
      plan.outcome.failed = true;
      plan.next_write_fails = plan.failure == Failure::torn_write;
      return real(fd, from, count / 2, offset);
    }
  }
  return real(fd, from, count, offset);
}

VISIBLE int fallocate(int fd, int mode, off_t offset, off_t length) {
  static auto* const real = next<int(int, int, off_t, off_t)>("fallocate");
  return fails("fallocate", ENOSPC, Interruption::possible) ? -1 : real(fd, mode, offset, length);
}

VISIBLE int ftruncate(int fd, off_t length) noexcept {
  static auto* const real = next<int(int, off_t)>("ftruncate");
  return fails("ftruncate", EIO, Interruption::possible) ? -1 : real(fd, length);
}

VISIBLE int fseeko(std::FILE* stream, off_t offset, int whence) {
  static auto* const real = next<int(std::FILE*, off_t, int)>("fseeko");
  return fails("fseeko", EIO) ? -1 : real(stream, offset, whence);
}

VISIBLE std::size_t fread(void* to, std::size_t size, std::size_t count, std::FILE* stream) {
  static auto* const real = next<std::size_t(void*, std::size_t, std::size_t, std::FILE*)>("fread");
  if (is_chosen("fread") && plan.failure == Failure::error) {
    plan.outcome.failed = true;
    const std::size_t half = real(to, 1, size * count / 2, stream);
    stream->_flags |= _IO_ERR_SEEN;  // what ferror() looks at
    errno = error_or(EIO);
    return half / size;
  }
  return real(to, size, count, stream);
}

VISIBLE std::size_t fwrite(const void* from, std::size_t size, std::size_t count,
                           std::FILE* stream) {
  static auto* const real =
      next<std::size_t(const void*, std::size_t, std::size_t, std::FILE*)>("fwrite");
  if (pages_left >= 0) {
    const char* bytes = static_cast<const char*>(from);
    for (std::size_t done = 0; done < size * count;) {
      const std::size_t part = part_in_page(size * count - done, ::ftello(stream));
      count_page();
      real(bytes + done, 1, part, stream);
      std::fflush(stream);
      done += part;
    }
    return count;
  }
  if (is_chosen("fwrite") && plan.failure != Failure::interrupted) {
    plan.outcome.failed = true;
    errno = error_or(ENOSPC);
    const std::size_t half =
        plan.failure == Failure::error ? 0 : real(from, 1, size * count / 2, stream);
    return half / size;
  }
  return real(from, size, count, stream);
}

VISIBLE int fflush(std::FILE* stream) {
  static auto* const real = next<int(std::FILE*)>("fflush");
  return fails("fflush", ENOSPC) ? EOF : real(stream);
}
