#pragma once

#include <exception>

namespace qelpro::python {

/// What the library throws as Python's exceptions: OSError, and the class of its number, for what
/// the operating system refuses, KeyError for what is not found, ValueError for all else.
void register_failures();

/// Sets Python's error to what was thrown. What is none of the library's goes on.
void translate(std::exception_ptr thrown);

}  // namespace qelpro::python
