#include "core/value_buffer.h"

#include "text/thread_buffers.h"

namespace qel {

ValueBuffer ValueBuffer::of_thread() { return {thread_buffers().value, ThreadBuffers::kValue}; }

ValueBuffer ValueBuffer::of_thread_for_scans() {
  return {thread_buffers().scanned_value, ThreadBuffers::kValue};
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
