#pragma once

#include <pybind11/pybind11.h>

#include <string>
#include <string_view>

namespace qelpro::python {

/// A text of a file: what is no UTF-8 in it is a lone surrogate, as in the names of files, so that
/// nothing is lost on the way there and back.
pybind11::str str_of(std::string_view text);

/// The bytes of a str. TypeError for anything else, UnicodeEncodeError for what has none.
std::string bytes_of(pybind11::handle text);

}  // namespace qelpro::python
