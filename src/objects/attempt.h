#pragma once

#include "platform/host_thread.h"
#include "platform/thread_memory.h"

namespace qel {

// A function of its own: the unwinding of a thread that is cancelled as soon as the member ends
// passes its caller, and would end the program at one that catches.
template <class Work>
[[gnu::noinline]] bool caught(Work& work) noexcept {
  try {
    return work();
  } catch (...) {
    return false;
  }
}

/// Does a member's work. No exception leaves it: running out of memory is a failure like any other,
/// also of the memory that the thread needs for its results and for an exception.
/// The thread is not cancelled in the middle of it.
template <class Work>
bool attempt(Work work) noexcept {
  const platform::Member member;
  return member.leave(platform::thread_memory() != nullptr && caught(work));
}

/// The same for what gives memory and files back, whatever there is no memory for.
template <class Work>
void give_back(Work work) noexcept {
  const platform::Member member;
  const auto done = [&work] {
    work();
    return true;
  };
  member.leave(caught(done));
}

}  // namespace qel
