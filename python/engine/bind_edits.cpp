#include <pybind11/stl.h>

#include <string>
#include <utility>
#include <vector>

#include "engine/bindings.h"
#include "engine/snapshot.h"
#include "engine/text.h"
#include "engine/values.h"

namespace qelpro::python {

namespace py = pybind11;

namespace {

// Something to be changed, which Python keeps until it is stored.
struct HeldEdit {
  Edit edit;
};

HeldEdit edit_of_entry(const py::str& section, const py::str& key, const py::object& value) {
  return {set_entry({bytes_of(section), bytes_of(key)}, json_of(value))};
}

HeldEdit edit_of_section(const py::str& section, const py::object& keys) {
  return {set_section(bytes_of(section), json_of_mapping(keys))};
}

HeldEdit edit_of_table(const py::str& section, const py::str& name,
                       std::vector<std::vector<double>> points) {
  return {set_profile(bytes_of(section), bytes_of(name), std::move(points))};
}

std::vector<Edit> edits_of(const std::vector<HeldEdit>& held) {
  std::vector<Edit> edits;
  for (const HeldEdit& edit : held) {
    edits.push_back(edit.edit);
  }
  return edits;
}

SnapshotPointer edit_snapshot(const SnapshotPointer& snapshot, const py::str& file,
                              const std::vector<HeldEdit>& held) {
  return edited(snapshot, bytes_of(file), edits_of(held));
}

void store_edits(const py::str& path, const py::str& name, const std::vector<HeldEdit>& held) {
  const std::vector<Edit> edits = edits_of(held);
  const std::string where = bytes_of(path);
  const std::string called = bytes_of(name);
  const py::gil_scoped_release released;
  store(where, called, edits);
}

// Whether it has to be tried on what the file holds, or is right whatever that is.
bool is_dependent(const HeldEdit& edit, const py::str& file) {
  check_edit(bytes_of(file), edit.edit);
  return edit.edit.needs_entries;
}

}  // namespace

void bind_edits(py::module_& module) {
  py::class_<HeldEdit>(module, "Edit", "Something to be changed in a file.");
  module.def("set_entry", &edit_of_entry, py::arg("section"), py::arg("key"), py::arg("value"));
  module.def(
      "remove_entry",
      [](const py::str& section, const py::str& key) {
        return HeldEdit{remove_entry({bytes_of(section), bytes_of(key)})};
      },
      py::arg("section"), py::arg("key"));
  module.def("set_section", &edit_of_section, py::arg("section"), py::arg("keys"));
  module.def(
      "remove_section",
      [](const py::str& section) { return HeldEdit{remove_section(bytes_of(section))}; },
      py::arg("section"));
  module.def("set_table", &edit_of_table, py::arg("section"), py::arg("name"), py::arg("points"));
  module.def("check_edit", &is_dependent, py::arg("edit"), py::arg("file"),
             "Refuses what no file can hold. Whether the edit depends on what the file holds.");
  module.def("edited", &edit_snapshot, py::arg("snapshot"), py::arg("file"), py::arg("edits"),
             "The snapshot after the edits.");
  module.def("store", &store_edits, py::arg("path"), py::arg("name"), py::arg("edits"),
             "Makes the edits in the file, all or none.");
}

}  // namespace qelpro::python
