#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "file/document_text.h"

namespace qelpro {

/// Where a new line at the end goes: in front of blanks and the like that trail the last line and
/// belong to none.
std::size_t end_of_lines(const SectionedText& document);

/// Puts texts in the place of parts of a text, all at once.
class Splices {
 public:
  explicit Splices(const std::string& contents);

  void replace(std::size_t begin, std::size_t end, std::string by) {
    splices_.push_back({begin, end, std::move(by), false});
  }
  /// Whole lines, before what is inserted later at the same place.
  void insert(std::size_t at, std::string lines) {
    splices_.push_back({at, at, std::move(lines), true});
  }
  /// As the text's first line ends.
  [[nodiscard]] const std::string& line_break() const { return line_break_; }

  std::string apply();

 private:
  struct Splice {
    std::size_t begin;
    std::size_t end;
    std::string text;
    bool is_lines;
  };
  const std::string& contents_;
  std::string line_break_;
  std::vector<Splice> splices_;
};

}  // namespace qelpro
