#pragma once

#include <algorithm>
#include <string_view>

namespace qel {

/// Where a name that was read is kept for the caller.
class NameBuffer {
 public:
  /// Keeps the name, cut at 255 characters.
  char* keep(std::string_view name) {
    const std::size_t length = std::min(name.size(), sizeof text_ - 1);
    std::copy_n(name.data(), length, text_);
    text_[length] = '\0';
    return text_;
  }

 private:
  char text_[256] = {};
};

}  // namespace qel
