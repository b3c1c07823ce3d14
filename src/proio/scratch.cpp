#include "proio/scratch.h"

namespace qel::proio {

Buffer& Buffer::assign(std::string_view text) {
  length_ = 0;
  return append(text);
}

Buffer& Buffer::append(std::string_view text) {
  length_ += text.copy(bytes_.data() + length_, bytes_.size() - 1 - length_);
  bytes_[length_] = '\0';
  return *this;
}

Scratch& scratch() {
  thread_local Scratch buffers;
  return buffers;
}

}  // namespace qel::proio
