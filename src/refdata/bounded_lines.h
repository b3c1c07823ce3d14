#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/read_access.h"

namespace qel::refdata {

/// Walks over the lines of a reference data file.
///
/// A line ends at "\n" or "\r\n". One that is longer than 1023 characters, its line break counted
/// as one, comes in pieces. What stands after a NUL byte of a line is not seen. A byte order mark
/// at the start of the file belongs to no line, and neither does a 0x1A at its very end with the
/// blanks around it: other programs' text mode ends there.
class BoundedLines {
 public:
  /// The file outlives the lines.
  explicit BoundedLines(platform::ReadAccess& file);
  /// Over the contents of a whole file, which outlive the lines.
  explicit BoundedLines(std::string_view contents);

  /// The next line without its line break; false, and an empty line, at the end of the file or when
  /// it cannot be read.
  bool next(std::string& line);
  /// Whether the file could not be read to its end.
  [[nodiscard]] bool failed() const { return failed_; }

  static constexpr std::size_t kLongestLine = 1023;

 private:
  /// Makes a byte of the file stand at `at_`; false at its end.
  bool fill();
  /// The next character, "\r\n" being one.
  bool next_character(char& character);

  platform::ReadAccess* file_ = nullptr;
  std::unique_ptr<char[]> block_;
  std::int64_t offset_ = 0;  // of what comes after the window
  std::int64_t end_ = 0;     // of the contents; what stands after is no line
  bool failed_ = false;
  std::string_view window_;
  std::size_t at_ = 0;
};

}  // namespace qel::refdata
