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

}  // namespace qel::platform
