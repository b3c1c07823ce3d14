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

}  // namespace

LockAnswer lock_for_store(std::intptr_t handle) {
  Patience patience;
  for (;;) {
    OVERLAPPED place = locked_byte();
    if (::LockFileEx(to_handle(handle), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1,
                     0, &place) != 0) {
      return LockAnswer::held;
    }
    const DWORD error = ::GetLastError();
    if (error != ERROR_LOCK_VIOLATION && error != ERROR_IO_PENDING) {
      return LockAnswer::none;
    }
    if (!patience.waits()) {
      return LockAnswer::busy;
    }
  }
}

void unlock_after_store(std::intptr_t handle) {
  OVERLAPPED place = locked_byte();
  ::UnlockFileEx(to_handle(handle), 0, 1, 0, &place);
}

// The system gives a closed file's lock back some time later.
bool is_unlocked_by_closing() { return false; }

}  // namespace qel::platform
