#pragma once

#include <string>
#include <vector>

#include "file/entries.h"

namespace qelpro {

/// Names that one may write, for a user who is about to: those of a file, and those that the
/// catalogue knows beside them. Of what is numbered it is the number that comes next.
class KnownNames {
 public:
  /// `entries` may be null.
  KnownNames(const Entries* entries, bool of_catalogue)
      : entries_(entries), of_catalogue_(of_catalogue) {}

  /// Without brackets.
  [[nodiscard]] std::vector<std::string> sections() const;
  [[nodiscard]] std::vector<std::string> keys(const std::string& section) const;
  /// The value that stands in the file, and the codes that the catalogue has.
  [[nodiscard]] std::vector<std::string> values(const Address& address) const;
  /// The addresses of the file's profiles.
  [[nodiscard]] std::vector<std::string> profiles() const;

 private:
  const Entries* entries_;
  bool of_catalogue_;
};

}  // namespace qelpro
