#pragma once

/// The allocation of this program, the library's within it included, which can be made to fail.
namespace qelpro_test::failing_memory {

/// From now on the n-th allocation (from 1) of this thread fails, and it alone; none for 0.
void fail(int n);

struct Outcome {
  int allocations = 0;  ///< How many there were.
  bool failed = false;  ///< Whether the failure came about.
};
/// Every allocation works again.
Outcome stop();

}  // namespace qelpro_test::failing_memory
