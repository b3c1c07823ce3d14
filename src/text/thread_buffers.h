#pragma once

#include <algorithm>
#include <cstddef>
#include <new>
#include <string_view>

#include "platform/thread_memory.h"

namespace qel {

/// Where a text is kept for a caller. What does not fit is cut.
template <std::size_t kSize>
class TextBuffer {
 public:
  TextBuffer& assign(std::string_view text) {
    length_ = 0;
    return append(text);
  }
  TextBuffer& append(std::string_view text) {
    length_ += text.copy(bytes_ + length_, kSize - 1 - length_);
    bytes_[length_] = '\0';
    return *this;
  }
  char* keep(std::string_view text) { return assign(text).text(); }
  [[nodiscard]] char* text() { return bytes_; }

 private:
  char bytes_[kSize] = {};
  std::size_t length_ = 0;
};

/// A name that was read.
using NameBuffer = TextBuffer<256>;
/// A text of the self-contained object.
using ShortBuffer = TextBuffer<128>;

/// The texts that members hand out stand in these until the thread's next call of the same kind:
/// each thread has one of each.
struct ThreadBuffers {
  static constexpr std::size_t kValue = 4096;
  char value[kValue];          // of a lookup through any document
  char scanned_value[kValue];  // of scans of a whole text

  // Names, by the kind of line they stand in.
  NameBuffer coolant;
  NameBuffer moldbase;
  NameBuffer mold_metal;
  NameBuffer quoted;
  NameBuffer part_insert;
  NameBuffer mold_insert;
  NameBuffer part_insert_of_four;
  NameBuffer mold_insert_of_four;
  NameBuffer boundary_condition;

  // Of the self-contained object.
  struct {
    ShortBuffer section;
    ShortBuffer key;
    ShortBuffer value;
    ShortBuffer coolant_name;
    ShortBuffer boundary_condition_name;
    ShortBuffer part_insert_name;
    ShortBuffer mold_metal_name;
    ShortBuffer mold_base_name;
  } older;
};
static_assert(sizeof(ThreadBuffers) <= platform::kThreadMemory);

/// Throws std::bad_alloc where the thread has no memory; members have made sure that it has.
inline ThreadBuffers& thread_buffers() {
  void* const memory = platform::thread_memory();
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  return *static_cast<ThreadBuffers*>(memory);  // zero bytes, which are empty buffers
}

}  // namespace qel
