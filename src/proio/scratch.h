#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace qel::proio {

/// A text of at most 127 characters; what does not fit is cut.
class Buffer {
 public:
  Buffer& assign(std::string_view text);
  Buffer& append(std::string_view text);
  [[nodiscard]] char* text() { return bytes_.data(); }

 private:
  std::array<char, 128> bytes_{};
  std::size_t length_ = 0;
};

/// The buffers that text results point into, shared by all objects of a thread.
struct Scratch {
  Buffer section;
  Buffer key;
  Buffer value;
  Buffer coolant_name;
  Buffer boundary_condition_name;
  Buffer part_insert_name;
  Buffer mold_metal_name;
  Buffer mold_base_name;
};

Scratch& scratch();

}  // namespace qel::proio
