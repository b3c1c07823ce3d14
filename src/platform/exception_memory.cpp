#include "platform/exception_memory.h"

#include <cxxabi.h>

#include <cstddef>
#include <cstdlib>

namespace qel::platform {

bool prepare_exception_memory() {
  constexpr std::size_t kMoreThanItTakes = 4096;
  void* volatile const spare = std::malloc(kMoreThanItTakes);
  if (spare == nullptr) {
    return false;
  }
  std::free(spare);
  return abi::__cxa_get_globals() != nullptr;
}

}  // namespace qel::platform
