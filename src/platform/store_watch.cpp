#include "platform/store_watch.h"

#include "platform/store_lock.h"

namespace qel::platform {

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
