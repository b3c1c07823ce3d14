#pragma once

#include <ostream>
#include <string>

/// Prints format.md.in of the folder. A line of the form "@NAME@" gives its place to what the
/// catalogue says, and "@NAME@" within a line to a figure. Throws where a name is not known, or a
/// file is not there.
void print_page(const std::string& folder, std::ostream& to);
