#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/random_access.h"

namespace qel::proio {

struct Line {
  std::int64_t start = 0;
  std::int64_t end = 0;    ///< The offset behind the line and its line break.
  std::string_view text;   ///< Without its line break, up to the first NUL byte; valid until the
                           ///< scanner moves on.
  bool begins = true;      ///< Whether a line begins here, and no long one goes on.
  bool has_break = false;  ///< Whether the line break belongs to the text: the line ended, and no
                           ///< NUL byte cut it.
};

/// Walks over the lines of a file.
///
/// - A line ends at "\n" or "\r\n", which both count as one character.
/// - A line of more than 127 characters comes as several.
/// - A byte order mark at the start of the file belongs to no line.
/// - Nor does an end mark at its very end, which other programs' text mode takes for the end of the
/// file, with the padding behind it.
class LineScanner {
 public:
  static constexpr std::size_t kLongestLine = 127;

  explicit LineScanner(platform::RandomAccess& file);
  /// Over the contents of a whole file, which outlive the scanner.
  explicit LineScanner(std::string_view contents);

  /// The next line; false at the end of the file, or when it cannot be read.
  bool next(Line& line);

  /// Passes lines that do not hold the text, some or all: as far as a look at what is in memory
  /// tells. The text holds no line break.
  void pass_lines_without(std::string_view text);

  /// Whether the file ended because it could not be read on.
  [[nodiscard]] bool failed() const { return failed_; }

 private:
  void fill();
  void pass(std::size_t count);
  void skip_byte_order_mark();

  platform::RandomAccess* file_ = nullptr;
  std::array<char, std::size_t{16} * 1024> buffer_;
  std::string_view window_;  // what is known of the file from the current position on
  std::int64_t offset_ = 0;  // of the current position
  bool at_end_ = false;
  bool failed_ = false;
  bool may_hold_nul_ = false;
  bool inside_long_line_ = false;
};

/// Ends a file for other programs' text mode. At the very end, the padding apart, it is padding;
/// anywhere else it is text.
inline constexpr char kEndMark = '\x1A';

/// The length of the contents without what is padding: the blanks that earlier stores left behind
/// the last line break, an end mark and what blanks surround it.
std::size_t length_without_padding(std::string_view contents);

/// The same for a file, of which no more than its end is read; -1 when it cannot be read.
std::int64_t length_without_padding(platform::RandomAccess& file);

}  // namespace qel::proio
