#pragma once

#include "platform/read_access.h"
#include "text/dialect.h"
#include "text/line_scanner.h"

namespace qel::proio {

/// The text rules that are the object's own. A value is what stands in the file, with the blanks
/// that trail it and its line break.
inline constexpr text::Dialect kDialect{
    .longest_line = 127, .keeps_blanks = true, .key_columns = 14};

/// The lines of a file, or of the contents of one, which outlive the scanner.
inline LineScanner lines_of(platform::ReadAccess& file) {
  constexpr std::size_t kMostFiles = std::size_t{16} * 1024;
  return LineScanner(file, 0, kMostFiles, kDialect);
}
inline LineScanner lines_of(std::string_view contents) {
  return LineScanner(contents, 0, true, kDialect);
}

}  // namespace qel::proio
