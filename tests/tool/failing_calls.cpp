// Preloaded into the tool: makes calls of the operating system fail.
//
// QELPRO_TEST_FAIL    the name of a call that always fails with EIO
// QELPRO_TEST_SIGNAL  the name of a call in front of which the program is interrupted
// QELPRO_TEST_KILL    the same, and it is killed
// QELPRO_TEST_FAIL_AT the number of the call, of those below, that fails with EIO, and
// QELPRO_TEST_KILL_AT the one in front of which the program is killed; from 1, counted while either
//                     stands in the environment. qelpro_test_calls() tells how many there were.
// QELPRO_TEST_SIGNAL_AT the same for a signal that the program gets, the number in
//                     QELPRO_TEST_SIGNAL_NUMBER
// QELPRO_TEST_TEAR_AT the number of the call that, where it writes, writes half of what it is
// given;
//                     what is written after it fails with ENOSPC
// QELPRO_TEST_SHORT   every write writes half of what it is given, and goes on
// QELPRO_TEST_NAMED   there are no files without a name
// QELPRO_TEST_REPORT  a file that takes, when the program ends, how many calls were counted and the
//                     name of the one that failed, with what its file is to the command
// QELPRO_TEST_INHERITED a file that takes the path of each file that is opened so that programs
// which
//                     are started meanwhile hold it, too
// QELPRO_TEST_LOG     a file that takes, for the first write into a file, that file's path and mode
//
// A file whose name holds "unreadable" fails after its first 16 KiB.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

template <class Function>
Function* next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

long calls = 0;
std::string failed_call = "-";
bool disk_is_full = false;

void append_line(const char* variable, const std::string& line) {
  if (const char* file = std::getenv(variable)) {
    std::FILE* stream = std::fopen(file, "ae");
    std::fprintf(stream, "%s\n", line.c_str());
    std::fclose(stream);
  }
}

std::string path_of(int fd) {
  char path[4096];
  const ssize_t length =
      ::readlink(("/proc/self/fd/" + std::to_string(fd)).c_str(), path, sizeof path);
  return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : "";
}

// What the file is to a command that writes one: the old one, the new one, their folder, or one
// that is only read.
std::string role_of(int fd) {
  struct stat status {};
  if (fd < 0 || ::fstat(fd, &status) != 0) {
    return "";
  }
  if (S_ISDIR(status.st_mode)) {
    return " of_folder";
  }
  if ((::fcntl(fd, F_GETFL) & O_ACCMODE) == O_RDONLY) {
    return " of_reading";
  }
  // One without a name is "#" and a number.
  const std::string path = path_of(fd);
  return path.find("/#") != std::string::npos || path.find("/.qelpro-") != std::string::npos
             ? " of_new"
             : " of_old";
}

struct Report {
  ~Report() { append_line("QELPRO_TEST_REPORT", std::to_string(calls) + " " + failed_call); }
} report;

bool are_counted() {
  for (const char* variable : {"QELPRO_TEST_FAIL_AT", "QELPRO_TEST_KILL_AT",
                               "QELPRO_TEST_SIGNAL_AT", "QELPRO_TEST_TEAR_AT"}) {
    if (std::getenv(variable) != nullptr) {
      return true;
    }
  }
  return false;
}

// Whether it is this call's turn.
bool is_turn(const char* variable) {
  const char* number = std::getenv(variable);
  return number != nullptr && std::atol(number) == calls;
}

bool fails(const char* name_of_call, int fd = -1) {
  const std::string_view call = name_of_call;
  if (are_counted()) {
    ++calls;
    if (is_turn("QELPRO_TEST_SIGNAL_AT")) {
      ::kill(::getpid(), std::atoi(std::getenv("QELPRO_TEST_SIGNAL_NUMBER")));
    }
    if (is_turn("QELPRO_TEST_KILL_AT")) {
      ::kill(::getpid(), SIGKILL);
    }
    if (is_turn("QELPRO_TEST_FAIL_AT")) {
      failed_call = name_of_call + role_of(fd);
      errno = EIO;
      return true;
    }
  }
  if (const char* signalled = std::getenv("QELPRO_TEST_SIGNAL");
      signalled != nullptr && call == signalled) {
    ::kill(::getpid(), SIGTERM);
  }
  if (const char* killed = std::getenv("QELPRO_TEST_KILL"); killed != nullptr && call == killed) {
    ::kill(::getpid(), SIGKILL);
  }
  const char* name = std::getenv("QELPRO_TEST_FAIL");
  if (name == nullptr || call != name) {
    return false;
  }
  errno = EIO;
  return true;
}

constexpr off_t kReadable = 16 * 1024;

// How much may be read at the offset; below 0 where it is to fail.
ssize_t readable(int fd, off_t offset, std::size_t count) {
  if (path_of(fd).find("unreadable") == std::string::npos) {
    return static_cast<ssize_t>(count);
  }
  if (offset >= kReadable) {
    errno = EIO;
    return -1;
  }
  return static_cast<ssize_t>(std::min(count, static_cast<std::size_t>(kReadable - offset)));
}

void log_first_write(int fd) {
  static bool done = false;
  const char* log = std::getenv("QELPRO_TEST_LOG");
  struct stat status {};
  if (done || log == nullptr || ::fstat(fd, &status) != 0) {
    return;
  }
  done = true;
  std::FILE* stream = std::fopen(log, "w");
  std::fprintf(stream, "%s %o %d", path_of(fd).c_str(), status.st_mode & 07777U,
               static_cast<int>(status.st_size));
  std::fclose(stream);
}

void tell_inherited(int fd) {
  if (fd >= 0 && std::getenv("QELPRO_TEST_INHERITED") != nullptr &&
      (::fcntl(fd, F_GETFD) & FD_CLOEXEC) == 0) {
    append_line("QELPRO_TEST_INHERITED", path_of(fd));
  }
}

}  // namespace

#define VISIBLE extern "C" __attribute__((visibility("default")))

VISIBLE ssize_t read(int fd, void* to, std::size_t count) {
  static auto* const real = next<ssize_t(int, void*, std::size_t)>("read");
  const ssize_t most = readable(fd, ::lseek(fd, 0, SEEK_CUR), count);
  return most < 0 || fails("read", fd) ? -1 : real(fd, to, static_cast<std::size_t>(most));
}

VISIBLE ssize_t pread(int fd, void* to, std::size_t count, off_t offset) {
  static auto* const real = next<ssize_t(int, void*, std::size_t, off_t)>("pread");
  const ssize_t most = readable(fd, offset, count);
  return most < 0 || fails("read", fd) ? -1 : real(fd, to, static_cast<std::size_t>(most), offset);
}

VISIBLE ssize_t write(int fd, const void* from, std::size_t count) {
  static auto* const real = next<ssize_t(int, const void*, std::size_t)>("write");
  if (fd > STDERR_FILENO) {
    log_first_write(fd);
    if (disk_is_full) {
      errno = ENOSPC;
      return -1;
    }
    if (fails("write", fd)) {
      return -1;
    }
    if (is_turn("QELPRO_TEST_TEAR_AT")) {
      disk_is_full = true;
      failed_call = "write";
      count /= 2;
    } else if (std::getenv("QELPRO_TEST_SHORT") != nullptr) {
      count = (count + 1) / 2;
    }
  }
  return real(fd, from, count);
}

VISIBLE int fsync(int fd) {
  static auto* const real = next<int(int)>("fsync");
  return fails("fsync", fd) ? -1 : real(fd);
}

VISIBLE int fchmod(int fd, mode_t mode) noexcept {
  static auto* const real = next<int(int, mode_t)>("fchmod");
  return fails("fchmod", fd) ? -1 : real(fd, mode);
}

VISIBLE int ftruncate(int fd, off_t length) noexcept {
  static auto* const real = next<int(int, off_t)>("ftruncate");
  return fails("ftruncate", fd) ? -1 : real(fd, length);
}

VISIBLE int rename(const char* from, const char* to) noexcept {
  static auto* const real = next<int(const char*, const char*)>("rename");
  return fails("rename") ? -1 : real(from, to);
}

VISIBLE int renameat2(int from_folder, const char* from, int to_folder, const char* to,
                      unsigned int flags) noexcept {
  static auto* const real =
      next<int(int, const char*, int, const char*, unsigned int)>("renameat2");
  return fails("renameat2") || fails("link") ? -1 : real(from_folder, from, to_folder, to, flags);
}

VISIBLE int link(const char* from, const char* to) noexcept {
  static auto* const real = next<int(const char*, const char*)>("link");
  return fails("link") ? -1 : real(from, to);
}

VISIBLE int linkat(int from_folder, const char* from, int to_folder, const char* to,
                   int flags) noexcept {
  static auto* const real = next<int(int, const char*, int, const char*, int)>("linkat");
  return fails("linkat") || fails("link") ? -1 : real(from_folder, from, to_folder, to, flags);
}

// What the C++ library's streams open.
VISIBLE std::FILE* fopen(const char* path, const char* mode) {
  static auto* const real = next<std::FILE*(const char*, const char*)>("fopen");
  std::FILE* stream = real(path, mode);
  if (stream != nullptr) {
    tell_inherited(::fileno(stream));
  }
  return stream;
}

VISIBLE int open(const char* path, int flags, ...) {
  static auto* const real = next<int(const char*, int, mode_t)>("open");
  va_list more;
  va_start(more, flags);
  const mode_t mode = (flags & (O_CREAT | __O_TMPFILE)) != 0 ? va_arg(more, mode_t) : 0;
  va_end(more);
  if (fails("open")) {
    return -1;
  }
  if ((flags & O_TMPFILE) == O_TMPFILE && std::getenv("QELPRO_TEST_NAMED") != nullptr) {
    errno = EOPNOTSUPP;
    return -1;
  }
  const int fd = real(path, flags, mode);
  tell_inherited(fd);
  return fd;
}

VISIBLE int close(int fd) {
  static auto* const real = next<int(int)>("close");
  const bool is_failure = fails("close", fd);
  const int result = real(fd);  // what fails is closed nevertheless
  if (is_failure) {
    errno = EIO;
  }
  return is_failure ? -1 : result;
}

VISIBLE int stat(const char* path, struct stat* status) noexcept {
  static auto* const real = next<int(const char*, struct stat*)>("stat");
  return fails("stat") ? -1 : real(path, status);
}

VISIBLE int lstat(const char* path, struct stat* status) noexcept {
  static auto* const real = next<int(const char*, struct stat*)>("lstat");
  return fails("lstat") ? -1 : real(path, status);
}

VISIBLE int fstat(int fd, struct stat* status) noexcept {
  static auto* const real = next<int(int, struct stat*)>("fstat");
  return fails("fstat", fd) ? -1 : real(fd, status);
}

VISIBLE int statx(int fd, const char* path, int flags, unsigned mask,
                  struct statx* status) noexcept {
  static auto* const real = next<int(int, const char*, int, unsigned, struct statx*)>("statx");
  return (*path == '\0' ? fails("fstat", fd) : fails("stat")) ? -1
                                                              : real(fd, path, flags, mask, status);
}

VISIBLE int fcntl(int fd, int command, ...) {
  static auto* const real = next<int(int, int, ...)>("fcntl");
  va_list more;
  va_start(more, command);
  void* const argument = va_arg(more, void*);
  va_end(more);
  return command == F_OFD_SETLK && fails("lock", fd) ? -1 : real(fd, command, argument);
}

VISIBLE int fchown(int fd, uid_t owner, gid_t group) noexcept {
  static auto* const real = next<int(int, uid_t, gid_t)>("fchown");
  return fails("fchown", fd) ? -1 : real(fd, owner, group);
}

VISIBLE long qelpro_test_calls() { return calls; }
