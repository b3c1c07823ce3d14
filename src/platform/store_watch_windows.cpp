#include "platform/store_lock.h"
#include "platform/store_watch.h"

// A file's times move when it is closed, if at all: the lock alone tells. A store that begins and
// ends while a read goes on is not seen.

namespace qel::platform {

bool StoreWatch::begins_read(std::intptr_t handle) {
  if (state_ != State::quiet && is_store_under_way(handle)) {
    return false;
  }
  state_ = State::quiet;
  return true;
}

ReadEnd StoreWatch::ends_read(std::intptr_t handle) {
  if (!is_store_under_way(handle)) {
    return ReadEnd::undisturbed;
  }
  state_ = State::unknown;
  return ReadEnd::disturbed;
}

void StoreWatch::lock(std::intptr_t handle) {
  is_locked_ = lock_for_read(handle) == LockAnswer::held;
  state_ = State::unknown;
}

void StoreWatch::unlock(std::intptr_t handle) {
  if (is_locked_) {
    unlock_after_read(handle);
    is_locked_ = false;
  }
}

}  // namespace qel::platform
