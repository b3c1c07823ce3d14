#include <windows.h>

#include <cstdlib>

#include "platform/exception_memory.h"
#include "platform/thread_memory.h"

// The system frees a thread's memory when the thread ends, and that of all threads when the library
// gives its index back, which it does when it is unloaded.

namespace qel::platform {
namespace {

void NTAPI free_memory(void* memory) { std::free(memory); }

class Index {
 public:
  Index() : number_(::FlsAlloc(&free_memory)) {}
  ~Index() {
    if (number_ != FLS_OUT_OF_INDEXES) {
      ::FlsFree(number_);
    }
    number_ = FLS_OUT_OF_INDEXES;
  }
  Index(const Index&) = delete;
  Index& operator=(const Index&) = delete;

  [[nodiscard]] bool is_there() const { return number_ != FLS_OUT_OF_INDEXES; }
  [[nodiscard]] void* value() const { return ::FlsGetValue(number_); }
  [[nodiscard]] bool keep(void* value) const { return ::FlsSetValue(number_, value) != FALSE; }

 private:
  DWORD number_;
};

// Made before anything else, so that a program which holds this library reads files from the start.
constexpr int kFirst = 101;
__attribute__((init_priority(kFirst))) Index index;

void* first_memory() {
  if (!prepare_exception_memory()) {
    return nullptr;
  }
  void* const memory = std::calloc(1, kThreadMemory);
  if (memory != nullptr && !index.keep(memory)) {
    std::free(memory);
    return nullptr;
  }
  return memory;
}

}  // namespace

void* thread_memory() noexcept {
  if (!index.is_there()) {
    return nullptr;
  }
  const DWORD error = ::GetLastError();  // which the system sets to none
  void* memory = index.value();
  if (memory == nullptr) {
    memory = first_memory();
  }
  ::SetLastError(error);
  return memory;
}

}  // namespace qel::platform
