#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/lookup.h"
#include "core/result.h"
#include "platform/os_file.h"
#include "platform/random_access.h"
#include "text/file_edit.h"
#include "text/line_scanner.h"

namespace qel {

/// What is to be stored: an entry, or with an index of 1 or more the text of a line.
struct Entry {
  Target target;
  std::string_view value;
};

/// Whether the entry could not be read back as it is given, or would break the file's lines.
bool is_refused(const Entry& entry);

/// Stores into one open file. Anything but `Result::done` leaves the file's bytes as they were.
class Store {
 public:
  explicit Store(platform::RandomAccess& file) : edit_(file) {}
  /// Into a file that has just been opened.
  explicit Store(platform::OsFile& file) : edit_(file) {}

  /// Replaces the line that the plain scan finds, or appends the section with the entry. A key that
  /// the plain scan does not find is inserted as `insert` does where `may_insert` says so, and
  /// `absent` otherwise; a position after the section's last line becomes its new last line.
  Result set(const Entry& entry, bool may_insert);

  /// Adds an entry to its section: before a line of the same key, before the next header, or at the
  /// end of the file. A missing section is appended.
  Result insert(const Entry& entry);

  /// Rewrites the whole file, without padding, with the entry in the place of the line whose first
  /// token is the key.
  Result replace(const Entry& entry);

 private:
  Result replace_line(const Line& old, std::string line);
  [[nodiscard]] bool is_mentioned_behind(const Line& header, std::string_view key) const;
  Result insert_line(std::size_t at, std::string line);
  Result append_section(std::string_view header, std::string line);
  Result insert_into_section(const Entry& entry);

  FileEdit edit_;
};

}  // namespace qel
