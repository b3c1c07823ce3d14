#pragma once

#include <cstddef>

namespace qelpro_test::allocations {

enum class Failure { none, one, all_after };

/// The allocations of this thread are counted from here on, the library's and the C library's
/// included, and the n-th fails: it alone, or with all after it. (Under sanitizers, which have an
/// allocation of their own, only calls of `operator new` are.)
void fail(int n, Failure failure);

struct Outcome {
  int calls = 0;
  bool failed = false;
  bool of_c_library = false;  ///< The first that failed was one of the C library's own.
};
/// They are counted and fail no more.
Outcome stop();

/// How many of the blocks that were allocated while this thread's allocations were counted have not
/// been freed since; they are forgotten.
int take_left();

}  // namespace qelpro_test::allocations
