#include <fcntl.h>
#include <sys/single_threaded.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

#include "platform/patience.h"
#include "platform/store_lock.h"

namespace qel::platform {
namespace {

struct flock store_lock(short kind) {
  constexpr off_t kLockedByte = off_t{1} << 62U;
  struct flock lock {};
  lock.l_type = kind;
  lock.l_whence = SEEK_SET;
  lock.l_start = kLockedByte;
  lock.l_len = 1;
  return lock;
}

// A traditional lock belongs to a whole process; a store does not wait for its own.
bool is_held_by_this_process(int fd) {
  struct flock other = store_lock(F_WRLCK);
  return ::fcntl(fd, F_OFD_GETLK, &other) == 0 && other.l_type != F_UNLCK &&
         other.l_pid == ::getpid();
}

}  // namespace

LockAnswer lock_for_store(std::intptr_t handle) {
  const int fd = static_cast<int>(handle);
  std::optional<Patience> patience;
  for (;;) {
    struct flock lock = store_lock(F_WRLCK);
    if (::fcntl(fd, F_OFD_SETLK, &lock) == 0) {
      return LockAnswer::held;
    }
    const bool is_held = errno == EAGAIN || errno == EACCES;
    if (errno != EINTR && (!is_held || is_held_by_this_process(fd))) {
      return LockAnswer::none;
    }
    if (!patience) {
      patience.emplace();
    }
    if (!patience->waits()) {
      return LockAnswer::busy;
    }
  }
}

void unlock_after_store(std::intptr_t handle) {
  struct flock lock = store_lock(F_UNLCK);
  ::fcntl(static_cast<int>(handle), F_OFD_SETLK, &lock);
}

// A child that another thread made meanwhile has the open file, too, and with it the lock.
bool is_unlocked_by_closing() { return __libc_single_threaded != 0; }

}  // namespace qel::platform
