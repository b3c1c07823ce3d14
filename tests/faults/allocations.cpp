#include "faults/allocations.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace qelpro_test::allocations {
namespace {

struct Plan {
  bool armed = false;
  int at = 0;
  Failure failure = Failure::none;
  Outcome outcome;
};
thread_local Plan plan;

bool fails() {
  if (!plan.armed || ++plan.outcome.calls < plan.at || plan.failure == Failure::none) {
    return false;
  }
  if (plan.failure == Failure::one && plan.outcome.calls > plan.at) {
    return false;
  }
  plan.outcome.failed = true;
  return true;
}

void* allocate(std::size_t size) {
  void* const memory = fails() ? nullptr : std::malloc(size != 0 ? size : 1);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  return memory;
}

}  // namespace

void fail(int n, Failure failure) { plan = {true, n, failure, {}}; }

Outcome stop() {
  const Outcome outcome = plan.outcome;
  plan = {};
  return outcome;
}

}  // namespace qelpro_test::allocations

#define VISIBLE __attribute__((visibility("default")))

// These stand in front of the C++ library's for the shared library too.
VISIBLE void* operator new(std::size_t size) { return qelpro_test::allocations::allocate(size); }
VISIBLE void* operator new[](std::size_t size) { return qelpro_test::allocations::allocate(size); }
VISIBLE void operator delete(void* memory) noexcept { std::free(memory); }
VISIBLE void operator delete[](void* memory) noexcept { std::free(memory); }
VISIBLE void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
VISIBLE void operator delete[](void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
