#pragma once

#include <functional>
#include <string>
#include <vector>

#include "file/change.h"
#include "file/entries.h"
#include "json/json_text.h"

namespace qelpro {

/// What a program wants to be changed in a file, whatever stands in it by then: the changes that it
/// takes where these are the entries. `file` is what messages call it.
struct Edit {
  std::function<std::vector<Change>(const std::string& file, const Entries& entries)> make;
  bool needs_entries = true;  ///< False where it is the same whatever the entries are.

  std::vector<Change> operator()(const std::string& file, const Entries& entries) const {
    return make(file, entries);
  }
};

/// One entry, which may be a new one, to a value of JSON that `text_of_json` takes. A `Failure` of
/// usage for what the key's encoding does not hold, and where a number would not be finite.
Edit set_entry(Address address, Json value);
/// A `Failure` of what is not found where there is no such entry.
Edit remove_entry(Address address);

/// What a section holds, to the entries of an object, or to the list of texts under "lines" of the
/// section whose lines have a position. A section that is not there is made; comments stay.
Edit set_section(std::string section, Json keys);
/// A `Failure` of what is not found where there is no such section.
Edit remove_section(std::string section);

/// A table, to these points: its count, the points, and none behind them. `name` is that of a
/// `ProfileKind`, or what the points' keys begin with. A `Failure` of what is not found where the
/// section has no such table, and of usage where its points do not have so many numbers.
Edit set_profile(std::string section, std::string name, std::vector<std::vector<double>> points);

/// Throws what the edit would throw, where that does not depend on the entries.
void check_edit(const std::string& file, const Edit& edit);

/// The changes of all edits, made one after the other.
std::vector<Change> changes_of(const std::string& file, const SectionedText& document,
                               const std::vector<Edit>& edits);

}  // namespace qelpro
