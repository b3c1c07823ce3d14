#pragma once

#include <cstddef>
#include <limits>

namespace qel::text {

/// The longest line, its line break counted as one character. A longer one is seen as several
/// lines.
inline constexpr std::size_t kLongestLine = 4095;

/// For text in memory: no line is too long.
inline constexpr std::size_t kAnyLength = std::numeric_limits<std::size_t>::max() - 1;

/// What two kinds of document see differently in the same bytes. The defaults are those of a
/// process file's document.
struct Dialect {
  std::size_t longest_line = kLongestLine;
  /// Whether blanks that trail the last line are part of it, so that only those after its line
  /// break, or after an end mark, are padding.
  bool keeps_blanks = false;
  /// How wide the key of a padded entry is at least.
  std::size_t key_columns = 20;
};

}  // namespace qel::text
