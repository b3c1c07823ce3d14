#include "api/proio/memory/failing_memory.h"

#include <cstdlib>
#include <new>

namespace qelpro_test::failing_memory {
namespace {

struct State {
  bool counts = false;
  int failing = 0;
  Outcome outcome;
};
thread_local State state;

void* allocate(std::size_t size) {
  if (state.counts && ++state.outcome.allocations == state.failing) {
    state.outcome.failed = true;
    return nullptr;
  }
  return std::malloc(size != 0 ? size : 1);
}

}  // namespace

void fail(int n) { state = {true, n, {}}; }

Outcome stop() {
  state.counts = false;
  return state.outcome;
}

}  // namespace qelpro_test::failing_memory

void* operator new(std::size_t size) {
  if (void* memory = qelpro_test::failing_memory::allocate(size)) {
    return memory;
  }
  throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return qelpro_test::failing_memory::allocate(size);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
