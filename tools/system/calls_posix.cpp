#include "system/calls_posix.h"

#include <unistd.h>

#include <cerrno>

namespace qelpro {

long retried(const std::function<long()>& call) {
  long result = -1;
  do {
    result = call();
  } while (result < 0 && errno == EINTR);
  return result;
}

bool write_all(int descriptor, std::string_view contents) {
  while (!contents.empty()) {
    const long put = retried([&] { return ::write(descriptor, contents.data(), contents.size()); });
    if (put <= 0) {
      return false;
    }
    contents.remove_prefix(static_cast<std::size_t>(put));
  }
  return true;
}

std::string link_of(int descriptor) { return "/proc/self/fd/" + std::to_string(descriptor); }

}  // namespace qelpro
