#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

#include "platform/read_access.h"
#include "text/dialect.h"

namespace qel {

struct Line {
  std::int64_t start = 0;
  std::int64_t end = 0;    ///< The offset after the line and its line break.
  std::string_view text;   ///< Without its line break, up to the first NUL byte; valid until the
                           ///< scanner moves on.
  bool is_piece = false;   ///< Begins inside a line that is too long, and comes in pieces.
  bool has_break = false;  ///< A line break followed the text, and no NUL byte cut it short.
};

/// Walks over the lines of a file.
///
/// - A line ends at "\n" or "\r\n". One that is longer than the dialect's longest comes as several
///   lines.
/// - A byte order mark at the start of the file belongs to no line.
/// - Blanks after the last line break are padding that an earlier store left, and no line; so is an
///   end mark there. One that ends the last line belongs to no text.
class LineScanner {
 public:
  /// Over a file, from an offset at which a line begins. `expected` is how much the caller expects
  /// to read.
  LineScanner(platform::ReadAccess& file, std::int64_t from, std::size_t expected = kFirstBlock,
              const text::Dialect& dialect = {});
  /// Over the contents of a whole file, which outlive the scanner, from an offset at which a line
  /// begins. A caller that knows that they hold no NUL byte saves a search of each line.
  explicit LineScanner(std::string_view contents, std::int64_t from = 0, bool may_hold_nul = true,
                       const text::Dialect& dialect = {});
  LineScanner(const LineScanner&) = delete;
  LineScanner& operator=(const LineScanner&) = delete;

  /// The next line; false at the end of the file, or when it cannot be read.
  bool next(Line& line) { return next_as_usual(line) || next_of_any(line); }

  /// The next line that begins with the prefix, which is not empty. Much faster than asking `next`
  /// for each line between.
  bool next_starting_with(std::string_view prefix, Line& line);
  bool next_starting_with(char first, Line& line) {
    return next_starting_with(std::string_view(&first, 1), line);
  }

  /// Goes on at an offset further on, if it lies in what is in memory already.
  bool skip_to(std::int64_t offset);

  [[nodiscard]] bool failed() const { return failed_; }

  static constexpr std::size_t kFirstBlock = std::size_t{8} * 1024;
  static constexpr std::size_t kBlock = std::size_t{64} * 1024;
  /// Up to so many bytes are expected without a need of memory for them.
  static constexpr std::size_t kFew = 2048;

 private:
  // A line that is in memory whole, and not too long. False for any other, and nothing is moved.
  bool next_as_usual(Line& line) {
    const char* const begin = window_ + at_;
    const std::size_t most = std::min(available(), dialect_.longest_line);
    const auto* const line_break = may_hold_nul_ || inside_long_line_ || failed_ || most == 0
                                       ? nullptr
                                       : static_cast<const char*>(std::memchr(begin, '\n', most));
    if (line_break == nullptr) {
      return false;
    }
    const auto length = static_cast<std::size_t>(line_break - begin);
    line.start = window_offset_ + static_cast<std::int64_t>(at_);
    at_ += length + 1;
    line.end = window_offset_ + static_cast<std::int64_t>(at_);
    line.text = {begin, length - static_cast<std::size_t>(length > 0 && line_break[-1] == '\r')};
    line.is_piece = false;
    line.has_break = true;
    return true;
  }
  bool next_of_any(Line& line);
  bool read_more();
  void drop_end_mark();
  bool is_padding(std::size_t begin);
  [[nodiscard]] std::size_t available() const { return length_ - at_; }
  char* block() { return buffer_ != nullptr ? buffer_.get() : few_; }

  text::Dialect dialect_;
  platform::ReadAccess* file_ = nullptr;
  const char* window_ = nullptr;
  std::int64_t window_offset_ = 0;
  std::size_t capacity_ = 0;
  std::size_t length_ = 0;
  std::size_t at_ = 0;
  bool at_end_ = false;
  bool failed_ = false;
  bool inside_long_line_ = false;
  bool may_hold_nul_ = false;
  std::unique_ptr<char[]> buffer_;  // null while a few lines are all that is expected
  char few_[kFew];
};

}  // namespace qel
