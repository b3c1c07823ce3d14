#pragma once

#include <pybind11/pybind11.h>

#include "scan/scan.h"

namespace qelpro::python {

/// A column of a table as a tuple: the index of the word, its name, the rows as an array, its kind,
/// and the values: an array where they are all of one kind, "int" or "float"; a list of "number",
/// which are of both, or "object", of which some are no numbers.
pybind11::tuple object_of(ScannedColumn column);

}  // namespace qelpro::python
