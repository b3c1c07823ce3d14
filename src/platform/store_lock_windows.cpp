#include <chrono>

#include "platform/handle_windows.h"
#include "platform/patience.h"
#include "platform/store_lock.h"

namespace qel::platform {
namespace {

// Far behind every file's end: a locked byte can be neither read nor written by others.
OVERLAPPED locked_byte() {
  OVERLAPPED place{};
  place.OffsetHigh = DWORD{1} << 30U;
  return place;
}

bool try_to_lock(std::intptr_t handle, DWORD kind) {
  OVERLAPPED place = locked_byte();
  return ::LockFileEx(to_handle(handle), kind | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) != 0;
}

// Of a lock that was not had.
bool is_held() {
  const DWORD error = ::GetLastError();
  return error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING;
}

LockAnswer lock(std::intptr_t handle, DWORD kind, std::chrono::seconds most) {
  Patience patience(most);
  for (;;) {
    if (try_to_lock(handle, kind)) {
      return LockAnswer::held;
    }
    if (!is_held()) {
      return LockAnswer::none;
    }
    if (!patience.waits()) {
      return LockAnswer::busy;
    }
  }
}

void unlock(std::intptr_t handle) {
  OVERLAPPED place = locked_byte();
  ::UnlockFileEx(to_handle(handle), 0, 1, 0, &place);
}

constexpr DWORD kSharedLock = 0;

}  // namespace

LockAnswer lock_for_store(std::intptr_t handle) {
  return lock(handle, LOCKFILE_EXCLUSIVE_LOCK, Patience::kOfStores);
}

void unlock_after_store(std::intptr_t handle) { unlock(handle); }

bool is_store_under_way(std::intptr_t handle) {
  if (try_to_lock(handle, kSharedLock)) {
    unlock(handle);
    return false;
  }
  return is_held();
}

LockAnswer lock_for_read(std::intptr_t handle) {
  return lock(handle, kSharedLock, Patience::kOfReads);
}

void unlock_after_read(std::intptr_t handle) { unlock(handle); }

// The system gives a closed file's lock back some time later.
bool is_unlocked_by_closing() { return false; }

}  // namespace qel::platform
