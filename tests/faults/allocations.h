#pragma once

namespace qelpro_test::allocations {

enum class Failure { none, one, all_after };

/// The calls of `operator new` of this thread are counted from here on, the library's included, and
/// the n-th fails: it alone, or with all after it.
void fail(int n, Failure failure);

struct Outcome {
  int calls = 0;
  bool failed = false;
};
/// They are counted and fail no more.
Outcome stop();

}  // namespace qelpro_test::allocations
