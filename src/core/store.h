#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/lookup.h"
#include "core/result.h"
#include "platform/os_file.h"
#include "platform/random_access.h"
#include "text/file_image.h"

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
  explicit Store(platform::RandomAccess& file) : Store(file, file.size_in_memory()) {}
  /// Into a file that has just been opened.
  explicit Store(platform::OsFile& file)
      : Store(file, platform::RandomAccess::in_memory(file.size_when_opened())) {}

  /// Replaces the line that the plain scan finds, or appends the section with the entry. A key that
  /// the plain scan does not find is inserted as `insert` does where `may_insert` says so, and
  /// `absent` otherwise; a position behind the section's last line becomes its new last line.
  Result set(const Entry& entry, bool may_insert);

  /// Adds an entry to its section: before a line of the same key, before the next header, or at the
  /// end of the file. A missing section is appended.
  Result insert(const Entry& entry);

  /// Rewrites the whole file, without padding, with the entry in the place of the line whose first
  /// token is the key.
  Result replace(const Entry& entry);

 private:
  Store(platform::RandomAccess& file, std::int64_t size) : file_(file), size_(size) {}
  bool load();
  Result splice(std::size_t at, std::size_t old_end, std::string_view text);
  Result insert_at(std::size_t at, std::string_view line);
  Result append_section(std::string_view header, std::string_view line);
  Result insert_into_section(const Entry& entry);
  bool overwrite(std::size_t at, std::string_view bytes);
  void append_line(std::string& text, std::string_view line) const {
    text.append(line).append(line_break_);
  }

  platform::RandomAccess& file_;
  std::int64_t size_;
  FileImage image_;
  std::string_view contents_;  // what stands in front of the padding
  std::string_view line_break_;
  bool shortens_ =
      false;  // a store leaves blanks where the contents end earlier, a rewrite ends the file there
};

}  // namespace qel
