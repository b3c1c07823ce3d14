#pragma once

#include <string_view>

namespace qel {

/// What is looked for: the entry of a key, or the line at a position (1 is the first line after
/// the section's header).
struct Target {
  std::string_view section;
  std::string_view key;
  int index = kByKey;

  static constexpr int kByKey = -1;
  [[nodiscard]] bool by_key() const { return index < 0; }
};

}  // namespace qel
