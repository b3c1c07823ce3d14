#pragma once

#include <pybind11/pybind11.h>

#include "scan/scan.h"

namespace qelpro::python {

/// A column of a table as a tuple: the index of the word, its name, the rows as an array, "int",
/// "float" or "object", and the values: an array, or a list of what is no number.
pybind11::tuple object_of(ScannedColumn column);

}  // namespace qelpro::python
