#include "platform/file_status_posix.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <cerrno>

namespace qel::platform {
namespace {

constexpr std::int64_t kBytesOfBlock = 512;

FileStatus status_of(const struct statx& found) {
  return {.is_regular = S_ISREG(found.stx_mode),
          .device = makedev(found.stx_dev_major, found.stx_dev_minor),
          .number = found.stx_ino,
          .names = found.stx_nlink,
          .size = static_cast<std::int64_t>(found.stx_size),
          .room = static_cast<std::int64_t>(found.stx_blocks) * kBytesOfBlock};
}

FileStatus status_of(const struct stat& found) {
  return {.is_regular = S_ISREG(found.st_mode),
          .device = found.st_dev,
          .number = found.st_ino,
          .names = found.st_nlink,
          .size = static_cast<std::int64_t>(found.st_size),
          .room = static_cast<std::int64_t>(found.st_blocks) * kBytesOfBlock};
}

// Older systems do not know the call, and some sandboxes refuse what they do not know.
template <class Older>
bool ask(int fd, const char* path, int flags, FileStatus& status, Older older) {
  constexpr unsigned kAllButTimes =
      STATX_TYPE | STATX_INO | STATX_NLINK | STATX_SIZE | STATX_BLOCKS;
  struct statx found {};
  if (::statx(fd, path, flags, kAllButTimes, &found) == 0) {
    status = status_of(found);
    return true;
  }
  struct stat older_found {};
  if ((errno != ENOSYS && errno != EPERM) || older(older_found) != 0) {
    return false;
  }
  status = status_of(older_found);
  return true;
}

}  // namespace

bool look_at(const char* path, FileStatus& status) {
  return ask(AT_FDCWD, path, 0, status,
             [path](struct stat& found) { return ::stat(path, &found); });
}

bool look_at(int fd, FileStatus& status) {
  return ask(fd, "", AT_EMPTY_PATH, status,
             [fd](struct stat& found) { return ::fstat(fd, &found); });
}

}  // namespace qel::platform
