#pragma once

#include <pybind11/pybind11.h>

#include "blocks/key.h"
#include "json/json_text.h"

namespace qelpro::python {

/// JSON as Python has it: numbers as int or float, lists, dicts. What is not finite is its text, as
/// JSON has it.
pybind11::object object_of(const Json& value);

/// A value as a reading member gives it: one field by itself, several as a tuple.
pybind11::object object_of(const std::vector<qel::Field>& fields);

/// Numbers, texts, and lists of them, numpy's and pandas' too. Floats have the fewest digits that
/// read back as the same double. TypeError for anything else, and ValueError for a float that is
/// not finite.
Json json_of(pybind11::handle value);

/// A mapping from names to such values.
Json json_of_mapping(pybind11::handle values);

/// A mapping from names to such mappings, or to values.
Json json_of_mappings(pybind11::handle values);

}  // namespace qelpro::python
