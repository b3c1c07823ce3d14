#pragma once

#include "platform/thread_memory.h"

namespace qel {

/// No exception leaves the library: running out of memory is a failure like any other, also of the
/// memory that the thread needs for its results and for an exception.
template <class Work>
bool attempt(Work work) noexcept {
  if (platform::thread_memory() == nullptr) {
    return false;
  }
  try {
    return work();
  } catch (...) {
    return false;
  }
}

}  // namespace qel
