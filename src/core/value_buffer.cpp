#include "core/value_buffer.h"

namespace qel {
namespace {

constexpr std::size_t kSize = 4096;

}  // namespace

ValueBuffer ValueBuffer::of_thread() {
  thread_local char text[kSize];
  return {text, kSize};
}

ValueBuffer ValueBuffer::of_thread_for_scans() {
  thread_local char text[kSize];
  return {text, kSize};
}

bool ValueBuffer::put(std::string_view value) const {
  if (value.size() >= size) {
    return false;
  }
  value.copy(text, value.size());
  text[value.size()] = '\0';
  return true;
}

}  // namespace qel
