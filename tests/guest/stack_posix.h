#pragma once

#include <cstddef>
#include <functional>

namespace qelpro_test {

/// Runs work on a thread with a stack of so many bytes, after which comes a page that cannot be
/// touched. Part of it is what the system keeps of a thread.
void on_stack_of(std::size_t bytes, const std::function<void()>& work);

/// What is used of the stack of a thread in `on_stack_of`, below the caller of `begin`.
class StackUse {
 public:
  static void begin();
  static void end();
  /// Between the last `begin` and `end`, in bytes.
  static std::size_t measured();
};

}  // namespace qelpro_test
