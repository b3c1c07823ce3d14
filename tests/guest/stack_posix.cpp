#include "guest/stack_posix.h"

#include <pthread.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace qelpro_test {
namespace {

char* lowest = nullptr;
char* painted_to = nullptr;
std::size_t used = 0;

constexpr char kPaint = 0x5a;

// What the functions here need themselves, and what a compiler may keep under the top of the stack.
constexpr std::size_t kOwn = 256;

void* run(void* work) {
  (*static_cast<const std::function<void()>*>(work))();
  return nullptr;
}

}  // namespace

void on_stack_of(std::size_t bytes, const std::function<void()>& work) {
  const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
  void* const room =
      ::mmap(nullptr, page + bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (room == MAP_FAILED || ::mprotect(room, page, PROT_NONE) != 0) {
    std::abort();
  }
  lowest = static_cast<char*>(room) + page;
  pthread_attr_t attributes{};
  pthread_t thread{};
  if (::pthread_attr_init(&attributes) != 0 ||
      ::pthread_attr_setstack(&attributes, lowest, bytes) != 0 ||
      ::pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&work)) != 0 ||
      ::pthread_join(thread, nullptr) != 0) {
    std::abort();
  }
  ::pthread_attr_destroy(&attributes);
  ::munmap(room, page + bytes);
}

// No function of the library paints: it would paint over its own return address.
void StackUse::begin() {
  volatile char here = 0;
  painted_to = const_cast<char*>(&here) - kOwn;
  for (volatile char* byte = lowest; byte < painted_to; ++byte) {
    *byte = kPaint;
  }
}

void StackUse::end() {
  used =
      static_cast<std::size_t>(painted_to + kOwn - std::find_if(lowest, painted_to, [](char byte) {
                                 return byte != kPaint;
                               }));
}

std::size_t StackUse::measured() { return used; }

}  // namespace qelpro_test
