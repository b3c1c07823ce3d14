#pragma once

#include <string>

namespace qelpro {

/// The section's name with its brackets, which the user leaves out or writes both. Anything else is
/// a `Failure` of usage.
std::string section_name(const std::string& argument);

/// The header of a section that is to be made: with brackets, and the whole one of the section
/// whose lines have a position, which may be named by its first word.
std::string header_of(const std::string& section);

/// Refuses, with a `Failure` of usage that names the rule, an entry that could not be found again
/// or not be read back as it is given.
void check_entry(const std::string& section, const std::string& key, const std::string& value);

/// The same of a line that has a position, "#3", and no key.
void check_positional_line(const std::string& position, const std::string& line);

}  // namespace qelpro
