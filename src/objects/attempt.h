#pragma once

namespace qel {

/// No exception leaves the library: running out of memory is a failure like any other.
template <class Work>
bool attempt(Work work) noexcept {
  try {
    return work();
  } catch (...) {
    return false;
  }
}

}  // namespace qel
