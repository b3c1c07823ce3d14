#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/random_access.h"

namespace qel::proio {

/// A file's bytes, and what is to become of them. What is changed goes into the file at once; these
/// bytes stay what they were.
class Contents {
 public:
  explicit Contents(platform::RandomAccess& file) : file_(file) {}

  /// False when the file cannot be read whole.
  bool load();
  /// The bytes in front of the padding.
  [[nodiscard]] std::string_view text() const { return text_; }
  /// The file's own, or the platform's where the file has none yet.
  [[nodiscard]] std::string_view line_break() const { return line_break_; }

  /// Puts whole lines in the place of text()[begin, end); all of the bytes, or none. The file keeps
  /// its length at least: blanks fill it up behind the last line break, where those of earlier
  /// stores are already.
  bool replace(std::size_t begin, std::size_t end, std::string lines);

 private:
  bool overwrite(std::size_t at, std::string_view bytes);

  platform::RandomAccess& file_;
  std::string whole_;
  std::string_view text_;
  std::string_view line_break_;
};

}  // namespace qel::proio
