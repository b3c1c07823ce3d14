#include <pybind11/stl.h>

#include <memory>
#include <string>

#include "engine/bindings.h"
#include "engine/text.h"
#include "reference/coolant_table.h"
#include "reference/machine_bank.h"
#include "system/failure.h"

namespace qelpro::python {

namespace py = pybind11;

namespace {

// A bank that cannot be read is a wrong value, of another version too.
std::unique_ptr<MachineBank> open_bank(const py::str& path) {
  const std::string file = bytes_of(path);
  const py::gil_scoped_release released;
  try {
    return std::make_unique<MachineBank>(file);
  } catch (const SystemFailure&) {
    throw;
  } catch (const Failure& failure) {
    throw Failure(kFileError, failure.what());
  }
}

std::unique_ptr<CoolantTable> open_table(const py::str& path) {
  const std::string file = bytes_of(path);
  const py::gil_scoped_release released;
  return std::make_unique<CoolantTable>(file);
}

py::list texts_of(const std::vector<std::string>& texts) {
  py::list list;
  for (const std::string& text : texts) {
    list.append(str_of(text));
  }
  return list;
}

}  // namespace

void bind_reference_data(py::module_& module) {
  py::class_<MachineBank>(module, "MachineBank", "The machines of a bank.")
      .def(py::init(&open_bank), py::arg("path"))
      .def("makers", [](const MachineBank& bank) { return texts_of(bank.makers()); })
      .def(
          "grades",
          [](const MachineBank& bank, const py::str& maker) {
            return texts_of(bank.grades(bytes_of(maker)));
          },
          py::arg("maker"));
  py::class_<CoolantTable>(module, "CoolantTable", "The coolants of a settings file.")
      .def(py::init(&open_table), py::arg("path"))
      .def("properties", &CoolantTable::properties, py::arg("coolant"), py::arg("argument"));
}

}  // namespace qelpro::python
