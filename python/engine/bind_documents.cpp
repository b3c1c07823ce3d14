#include <pybind11/pybind11.h>

#include <algorithm>
#include <string>

#include "compare/difference.h"
#include "engine/bindings.h"
#include "engine/text.h"
#include "engine/values.h"
#include "file/document_text.h"
#include "file/explain.h"
#include "file/forms.h"
#include "simulation/new_file.h"
#include "simulation/process_json.h"
#include "simulation/process_notes.h"
#include "system/failure.h"
#include "system/files.h"

namespace qelpro::python {

namespace py = pybind11;

namespace {

void new_file(const py::str& path) {
  const std::string file = bytes_of(path);
  const py::gil_scoped_release released;
  make_new_file(file);
}

void write_form(const py::str& path, const py::dict& form, bool overwrite) {
  const std::string file = bytes_of(path);
  const Json sections = json_of_mapping(form);
  const py::gil_scoped_release released;
  const std::string contents = contents_of(file, sections);
  if (overwrite) {
    write_whole(file, contents);
    return;
  }
  write_new(file, contents);
}

py::list found_differences(const py::str& old_path, const py::str& new_path, double tolerance) {
  const std::string before = bytes_of(old_path);
  const std::string after = bytes_of(new_path);
  std::vector<Difference> found;
  {
    const py::gil_scoped_release released;
    found = differences(load_document(before), load_document(after), {.relative = tolerance});
  }
  py::list list;
  for (const Difference& difference : found) {
    const bool is_section = difference.of == Difference::Of::section;
    const std::string address =
        is_section ? with_brackets(difference.address.section) : text_of(difference.address);
    const auto value = [](const std::optional<Json>& typed) {
      return typed ? object_of(*typed) : py::object(py::none());
    };
    list.append(py::make_tuple(word_of(difference.kind), str_of(address),
                               value(difference.typed_before), value(difference.typed_after)));
  }
  return list;
}

py::object process_of(const py::str& path) {
  const std::string file = bytes_of(path);
  Json process;
  {
    const py::gil_scoped_release released;
    const SectionedText document = load_document(file);
    process = process_json(file, document);
    process["notes"] = json_of(process_notes(file, document));
  }
  return object_of(process);
}

}  // namespace

void bind_documents(py::module_& module) {
  module.def("new", &new_file, py::arg("path"));
  module.def("write_form", &write_form, py::arg("path"), py::arg("form"), py::arg("overwrite"));
  module.def("differences", &found_differences, py::arg("before"), py::arg("after"),
             py::arg("tolerance"));
  module.def("process", &process_of, py::arg("path"));
  module.def("catalogue", [] { return object_of(catalogue_json()); });
}

}  // namespace qelpro::python
