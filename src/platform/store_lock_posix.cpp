#include <fcntl.h>
#include <sys/single_threaded.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <optional>

#include "platform/file_length_posix.h"
#include "platform/patience.h"
#include "platform/store_lock.h"

namespace qel::platform {
namespace {

constexpr off_t kLockedByte = off_t{1} << 62U;

struct flock store_lock(short kind) {
  struct flock lock {};
  lock.l_type = kind;
  lock.l_whence = SEEK_SET;
  lock.l_start = kLockedByte;
  lock.l_len = 1;
  return lock;
}

// Who keeps a lock of this kind from being had.
enum class Holder { nobody, unknown, store, own_lock, other_lock };

Holder holder(int fd, short kind) {
  struct flock other = store_lock(kind);
  if (::fcntl(fd, F_OFD_GETLK, &other) != 0) {
    return Holder::unknown;
  }
  // Traditional locks belong to a process; those of an open file to none. A store locks this byte
  // alone.
  constexpr pid_t kNoProcess = -1;
  const bool is_of_store =
      other.l_pid == kNoProcess && other.l_start == kLockedByte && other.l_len == 1;
  return other.l_type == F_UNLCK     ? Holder::nobody
         : is_of_store               ? Holder::store
         : other.l_pid == ::getpid() ? Holder::own_lock
                                     : Holder::other_lock;
}

template <class IsInTheWay>
LockAnswer lock(int fd, short kind, std::chrono::seconds most, IsInTheWay is_in_the_way) {
  std::optional<Patience> patience;
  for (;;) {
    struct flock lock = store_lock(kind);
    if (::fcntl(fd, F_OFD_SETLK, &lock) == 0) {
      return LockAnswer::held;
    }
    const bool is_held = errno == EAGAIN || errno == EACCES;
    if (errno != EINTR && (!is_held || !is_in_the_way(holder(fd, kind)))) {
      return LockAnswer::none;
    }
    if (!patience) {
      patience.emplace(most);
    }
    if (!patience->waits()) {
      return LockAnswer::busy;
    }
  }
}

void unlock(std::intptr_t handle) {
  struct flock lock = store_lock(F_UNLCK);
  uninterrupted([&] { return ::fcntl(static_cast<int>(handle), F_OFD_SETLK, &lock); });
}

}  // namespace

// A store does not wait for its own process.
LockAnswer lock_for_store(std::intptr_t handle) {
  return lock(static_cast<int>(handle), F_WRLCK, Patience::kOfStores,
              [](Holder who) { return who != Holder::own_lock; });
}

void unlock_after_store(std::intptr_t handle) { unlock(handle); }

bool is_store_under_way(std::intptr_t handle) {
  return holder(static_cast<int>(handle), F_RDLCK) == Holder::store;
}

// Whatever else a program has locked a file for, it is no store.
LockAnswer lock_for_read(std::intptr_t handle) {
  return lock(static_cast<int>(handle), F_RDLCK, Patience::kOfReads,
              [](Holder who) { return who == Holder::store || who == Holder::nobody; });
}

void unlock_after_read(std::intptr_t handle) { unlock(handle); }

// A child that another thread made meanwhile has the open file, too, and with it the lock.
bool is_unlocked_by_closing() { return __libc_single_threaded != 0; }

}  // namespace qel::platform
