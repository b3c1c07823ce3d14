#pragma once

#include <ostream>

/// Prints a line a row of the catalogue, for scripts. Between tabs: section, key, encoding, the
/// members of the reader, the writer, the older object and the adapter (blanks between several),
/// what takes the value in a load, meaning.
void print_rows(std::ostream& to);
