#pragma once

#include <cstddef>
#include <string_view>

namespace qel {

/// Room for the text of a value, which ends with a NUL there.
struct ValueBuffer {
  char* text;
  std::size_t size;

  ValueBuffer(char* room, std::size_t room_size) : text(room), size(room_size) {}
  /// Of the thread: a text in it lives until the thread's next lookup through any document.
  /// Throws std::bad_alloc where the thread has no memory.
  static ValueBuffer of_thread();
  /// Of the thread as well, and of scans of a whole text alone.
  static ValueBuffer of_thread_for_scans();

  /// False for a text that does not fit, which is not cut: half a number is a wrong number.
  [[nodiscard]] bool put(std::string_view value) const;
};

}  // namespace qel
