#pragma once

#include <string_view>

namespace qelpro {

/// What of a file somebody looks at, so that the rest costs next to nothing.
class EntryFilter {
 public:
  EntryFilter() = default;
  EntryFilter(const EntryFilter&) = delete;
  EntryFilter& operator=(const EntryFilter&) = delete;
  virtual ~EntryFilter() = default;

  /// Whether a section of that name, with its brackets, is looked at. Asked in the file's order.
  virtual bool wants_section(std::string_view name) = 0;
  /// Whether an entry of that key is, in the section that was asked for last. A line of the section
  /// whose lines have a position is not asked for.
  virtual bool wants_key(std::string_view key) = 0;
  /// Whether all are known to be: room is made for as many entries as there may be.
  [[nodiscard]] virtual bool wants_all() const { return false; }
};

}  // namespace qelpro
