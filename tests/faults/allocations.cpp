#include "faults/allocations.h"

#include <dlfcn.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <new>

#define VISIBLE __attribute__((visibility("default")))

namespace qelpro_test::allocations {
namespace {

constexpr int kMostLeft = 4096;

struct Plan {
  bool armed = false;
  int at = 0;
  Failure failure = Failure::none;
  Outcome outcome;
};
thread_local Plan plan;

// What was allocated while the plan was armed. There is no memory for a container here.
thread_local void* left[kMostLeft];
thread_local int left_count = 0;

bool fails([[maybe_unused]] const void* caller = nullptr) {
  if (!plan.armed || ++plan.outcome.calls < plan.at || plan.failure == Failure::none) {
    return false;
  }
  if (plan.failure == Failure::one && plan.outcome.calls > plan.at) {
    return false;
  }
  if (!plan.outcome.failed) {
    Dl_info module{};
    plan.outcome.of_c_library = caller != nullptr && ::dladdr(caller, &module) != 0 &&
                                std::strstr(module.dli_fname, "/libc.so") != nullptr;
  }
  plan.outcome.failed = true;
  return true;
}

void* noted(void* block) {
  if (plan.armed && block != nullptr && left_count < kMostLeft) {
    left[left_count++] = block;
  }
  return block;
}

void* struck(void* block) {
  for (int at = left_count; block != nullptr && at-- > 0;) {
    if (left[at] == block) {
      left[at] = left[--left_count];
      break;
    }
  }
  return block;
}

}  // namespace

void fail(int n, Failure failure) { plan = {true, n, failure, {}}; }

Outcome stop() {
  const Outcome outcome = plan.outcome;
  plan = {};
  return outcome;
}

int take_left() {
  const int count = left_count;
  left_count = 0;
  return count;
}

}  // namespace qelpro_test::allocations

using qelpro_test::allocations::fails;
using qelpro_test::allocations::noted;
using qelpro_test::allocations::struck;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)

namespace {

void* allocate_or_null(std::size_t size) noexcept {
  void* const memory = fails() ? nullptr : std::malloc(size != 0 ? size : 1);
  return memory != nullptr ? noted(memory) : nullptr;
}

void* allocate(std::size_t size) {
  void* const memory = allocate_or_null(size);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  return memory;
}

void deallocate(void* memory) { std::free(struck(memory)); }

}  // namespace

// These stand in front of the C++ library's for the shared library too.
VISIBLE void* operator new(std::size_t size) { return allocate(size); }
VISIBLE void* operator new[](std::size_t size) { return allocate(size); }
VISIBLE void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return allocate_or_null(size);
}
VISIBLE void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return allocate_or_null(size);
}
VISIBLE void operator delete(void* memory) noexcept { deallocate(memory); }
VISIBLE void operator delete[](void* memory) noexcept { deallocate(memory); }
VISIBLE void operator delete(void* memory, std::size_t /*size*/) noexcept { deallocate(memory); }
VISIBLE void operator delete[](void* memory, std::size_t /*size*/) noexcept { deallocate(memory); }

#else

// These stand in front of the C library's, which the C++ library calls, and the C library itself.
extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void __libc_free(void* block);

VISIBLE void* malloc(std::size_t size) {
  if (fails(__builtin_return_address(0))) {
    errno = ENOMEM;
    return nullptr;
  }
  return noted(__libc_malloc(size));
}

VISIBLE void* calloc(std::size_t count, std::size_t size) {
  if (fails(__builtin_return_address(0))) {
    errno = ENOMEM;
    return nullptr;
  }
  return noted(__libc_calloc(count, size));
}

VISIBLE void* realloc(void* block, std::size_t size) {
  if (fails(__builtin_return_address(0))) {
    errno = ENOMEM;
    return nullptr;
  }
  struck(block);
  return noted(__libc_realloc(block, size));
}

VISIBLE void free(void* block) { __libc_free(struck(block)); }
}

#endif
