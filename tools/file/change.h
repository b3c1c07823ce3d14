#pragma once

#include <functional>
#include <string>
#include <vector>

#include "file/address.h"
#include "file/document_text.h"

namespace qelpro {

/// One change of a file. Every byte that it does not name stays.
struct Change {
  enum class Kind {
    set,             ///< The entry that lookups take, or a new one at its section's end.
    remove,          ///< Every line of the key in the section.
    remove_section,  ///< Every section of the name, with header and all its lines.
    add_section      ///< A section without entries, where there is none of the name.
  };
  Kind kind = Kind::set;
  Address address;
  std::string value;
};

/// Refuses, with a `Failure` of usage, names and values that could not be found or read back as
/// they are given and, unless `force`, a value that the catalogue's encoding does not read whole.
void check_change(const std::string& file, const Change& change, bool force);

/// The contents after all changes, as if they were made one after the other.
std::string with_changes(const SectionedText& document, const std::vector<Change>& changes);

/// Replaces a file by what `make` makes of it, whole or not at all; two at once make both their
/// changes. A change whose entry would not be read back from the new contents is a `Failure`.
/// `make` yields the changes that it wants, for the old contents.
void change_file(const std::string& file,
                 const std::function<std::vector<Change>(const SectionedText&)>& make);

}  // namespace qelpro
