#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "file/change.h"
#include "file/entries.h"
#include "json/json_text.h"

/// A process file as JSON.
namespace qelpro {

/// What the list of a positional section's lines is called.
inline constexpr const char* kLines = "lines";

/// Section by section, in the file's order, an object from key to typed value; the lines of a
/// section that have a position are a list of texts under "lines".
Json plain_form(const Entries& entries);

/// {"exact": [...]}: the lines with their line breaks, whatever bytes they have.
Json exact_form(std::string_view contents);

/// The contents of the file that either form stands for. A `Failure` of the file `name` that says
/// what of it is no form, and of usage where an entry could not be read back as it is given.
std::string contents_of(const std::string& name, const Json& form);

/// The entries of a plain form as changes of an existing file; those of an object from address to
/// value.
std::vector<Change> changes_of_form(const std::string& name, const Json& form);
std::vector<Change> changes_of_addresses(const std::string& name, const Json& object,
                                         const Entries& entries);

}  // namespace qelpro
