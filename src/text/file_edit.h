#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/os_file.h"
#include "platform/random_access.h"
#include "text/dialect.h"
#include "text/file_image.h"
#include "text/page_steps.h"

namespace qel {

/// One change of an open file, in its place. What was loaded stays as it was: the next change takes
/// an edit of its own.
///
/// A change is false when the file could not take all of it, and leaves the file's bytes as they
/// were then.
class FileEdit {
 public:
  explicit FileEdit(platform::RandomAccess& file, const text::Dialect& dialect = {})
      : FileEdit(file, file.size_in_memory(), dialect) {}
  /// Of a file that has just been opened.
  explicit FileEdit(platform::OsFile& file, const text::Dialect& dialect = {})
      : FileEdit(file, platform::ReadAccess::in_memory(file.size_when_opened()), dialect) {}

  /// Comes first; false when the file cannot be read whole.
  bool load();

  /// What stands in front of the padding.
  [[nodiscard]] std::string_view contents() const { return contents_; }
  /// The file's own, or the platform's where the file has none yet.
  [[nodiscard]] std::string_view line_break() const { return line_break_; }

  /// Lets the file end where its contents end, in a line break. A change leaves blanks there
  /// otherwise, as many as it takes for the file to keep its length.
  void drop_padding() { drops_padding_ = true; }

  /// Puts whole lines in the place of contents()[begin, end).
  bool replace(std::size_t begin, std::size_t end, std::string_view lines);

  /// Puts whole lines where a line begins, or at the end: after a last line without a line break,
  /// which gets one.
  bool insert(std::size_t at, std::string lines);

  /// Puts a header and whole lines at the end, after an empty line.
  bool append_section(std::string_view header, std::string_view lines);

 private:
  FileEdit(platform::RandomAccess& file, std::int64_t size, const text::Dialect& dialect)
      : file_(file), size_(size), dialect_(dialect) {}
  bool reserve(std::size_t end);
  bool overwrite(std::size_t at, std::string_view bytes);
  bool overwrite_in_steps(PageSteps& steps);
  void put_back(std::size_t at);

  platform::RandomAccess& file_;
  std::int64_t size_;
  text::Dialect dialect_;
  FileImage image_;
  std::string_view contents_;
  std::string_view line_break_;
  bool drops_padding_ = false;
};

}  // namespace qel
