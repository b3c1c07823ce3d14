#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "file/document_text.h"
#include "file/splices.h"

namespace qelpro {

/// A new line that has a position is the next one: a `Failure` of usage where it would not stand
/// where its number says.
void check_next_line(std::size_t next, const std::string& key);

/// The lines of one section that lookups take, and what is to become of them.
class SectionChange {
 public:
  SectionChange(const SectionedText& document, const TextSection& section);

  /// In the place of the line that lookups take, or as a new one at the section's end.
  void set(const std::string& key, const std::string& value, Splices& splices);

 private:
  [[nodiscard]] bool is_positional() const;
  [[nodiscard]] std::optional<std::size_t> line_of(const std::string& key) const;
  [[nodiscard]] std::size_t last_line() const;
  [[nodiscard]] std::string_view last_entry() const;
  [[nodiscard]] std::size_t place_of_new_lines() const;

  const SectionedText& document_;
  const TextSection& section_;
  std::map<std::string_view, std::size_t> taken_;
  std::size_t appended_ = 0;  // lines that have a position
};

}  // namespace qelpro
