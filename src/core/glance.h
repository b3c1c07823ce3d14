#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/section_index.h"
#include "platform/read_access.h"
#include "text/line_scanner.h"

namespace qel {

/// One read of a section's header, and of lines in it, where both are as they most often are: a
/// header that is nothing but its name, lines that begin after a line break and end with one. What
/// it finds so, a scanner finds, too; of anything else it says no, which tells nothing.
class Glance {
 public:
  /// How much is read to see a line whole that begins at the end of what is looked at.
  static constexpr std::size_t kOneLine = 256;

  /// `room` is where it reads to, up to so many bytes, which outlive its lines.
  Glance(platform::ReadAccess& file, char* room, std::size_t size)
      : file_(file), room_(room), size_(size) {}

  /// Whether the section's header stands at the place. Reads `more` bytes after the offset, too,
  /// which is not before the header; where there is not so much room, the header alone.
  bool see_header(const SeenAt& place, std::string_view section, std::int64_t offset,
                  std::size_t more);

  /// Goes on at an offset after the header at which a line begins.
  bool go_to(const SeenAt& place);

  /// Passes the line there, which begins as the marked one did.
  bool pass(const LineMark& mark);

  /// The line there, which is blank or an entry, and its first token. What stands behind a NUL byte
  /// is still part of it.
  bool next(Line& line, std::string_view& token);

  /// The line there where it is the key's.
  bool next_of(std::string_view key, Line& line) {
    std::string_view token;
    return next(line, token) && token == key && is_whole(line);
  }

  /// Whether no NUL byte cuts the line short.
  static bool is_whole(const Line& line) { return line.text.find('\0') == std::string_view::npos; }

 private:
  void read(std::int64_t offset, std::size_t count);

  platform::ReadAccess& file_;
  char* room_;
  std::size_t size_;
  std::int64_t begin_ = 0;  // of what was read
  std::string_view bytes_;
  std::size_t at_ = 0;
};

}  // namespace qel
