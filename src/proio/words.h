#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace qel::proio {

/// A row cut at blanks, tabs and line feeds. A row stands in a line, which has 127 characters at
/// most.
class Words {
 public:
  explicit Words(std::string_view text);

  [[nodiscard]] std::size_t count() const { return count_; }
  std::string_view operator[](std::size_t index) const { return words_[index]; }

  /// The text from the start of one word to the end of another, with whatever stands between.
  [[nodiscard]] std::string_view stretch(std::size_t first, std::size_t last) const;

 private:
  std::array<std::string_view, 64> words_;
  std::size_t count_ = 0;
};

}  // namespace qel::proio
