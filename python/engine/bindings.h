#pragma once

#include <pybind11/pybind11.h>

/// What the module `_engine` has, a file each.
namespace qelpro::python {

void bind_snapshot(pybind11::module_& module);   ///< Reading one file.
void bind_edits(pybind11::module_& module);      ///< Changing one file.
void bind_documents(pybind11::module_& module);  ///< New files, diff, catalogue, process.
void bind_study(pybind11::module_& module);      ///< Many files: sweep and scan.
void bind_reference_data(pybind11::module_& module);

}  // namespace qelpro::python
