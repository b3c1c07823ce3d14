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

namespace qelpro_test::io_calls {
namespace {

struct Plan {
  bool armed = false;
  int at = 0;
  Failure failure = Failure::none;
  bool next_write_fails = false;
  Outcome outcome;
};
thread_local Plan plan;

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

// Whether this call is to fail, or to write less.
bool is_chosen(const char* name) {
  if (!plan.armed || ++plan.outcome.calls != plan.at || plan.failure == Failure::none) {
    return false;
  }
  plan.outcome.failed_call = name;
  return true;
}

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
  errno = interrupted ? EINTR : error;
  return true;
}

template <class Function>
Function* next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

void end_after_pages(int pages) { pages_left = pages; }

void fail(int n, Failure failure) { plan = {true, n, failure, false, {}}; }

Outcome stop() {
  const Outcome outcome = plan.outcome;
  plan = {};
  return outcome;
}

}  // namespace qelpro_test::io_calls

using namespace qelpro_test::io_calls;

#define VISIBLE extern "C" __attribute__((visibility("default")))

VISIBLE int open(const char* path, int flags, ...) {
  static auto* const real = next<int(const char*, int, ...)>("open");
  std::va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return fails("open", EIO, Interruption::possible) ? -1 : real(path, flags, mode);
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
    ++plan.outcome.calls;
    errno = ENOSPC;
    return -1;
  }
  if (is_chosen("pwrite")) {
    if (plan.failure == Failure::error || plan.failure == Failure::interrupted) {
      plan.outcome.failed = true;
      errno = plan.failure == Failure::error ? ENOSPC : EINTR;
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
    errno = ENOSPC;
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
