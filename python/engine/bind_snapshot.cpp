#include <pybind11/numpy.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "check/check.h"
#include "engine/bindings.h"
#include "engine/snapshot.h"
#include "engine/text.h"
#include "engine/values.h"
#include "file/forms.h"
#include "file/inlets.h"
#include "file/point_table.h"
#include "file/typed.h"
#include "system/failure.h"

namespace qelpro::python {

namespace py = pybind11;

namespace {

SnapshotPointer load_file(const py::str& path, const py::str& name, const SnapshotPointer& before) {
  const std::string where = bytes_of(path);
  const std::string called = bytes_of(name);
  const py::gil_scoped_release released;
  return load(where, called, before);
}

py::list sections_of(const Snapshot& snapshot) {
  py::list names;
  for (const TextSection& section : snapshot.document().sections()) {
    if (!section.repeated) {
      names.append(str_of(without_brackets(section.name)));
    }
  }
  return names;
}

// None where there is no such section.
py::object keys_of(const Snapshot& snapshot, const py::str& name) {
  const TextSection* const section = snapshot.entries().find_section(bytes_of(name));
  if (section == nullptr) {
    return py::none();
  }
  py::list keys;
  if (qel::is_positional(section->name)) {
    keys.append(str_of(kLines));
    return keys;
  }
  for (const FileEntry& entry : snapshot.entries().of(*section)) {
    keys.append(str_of(entry.key));
  }
  return keys;
}

const FileEntry& entry_of(const Snapshot& snapshot, const std::string& name,
                          const std::string& section, const std::string& key) {
  const FileEntry* const entry = snapshot.entries().find(section, key);
  if (entry == nullptr) {
    throw Failure(kNotFound, at({name, 0, with_brackets(section), key}, "not found"));
  }
  return *entry;
}

py::object lines_of(const Snapshot& snapshot, const TextSection& section) {
  const Json form = plain_form(snapshot.entries());
  return object_of(form[std::string(without_brackets(section.name))][kLines]);
}

py::object value_of(const Snapshot& snapshot, const py::str& file, const py::str& section_name,
                    const py::str& key_name) {
  const std::string name = bytes_of(file);
  const std::string section = bytes_of(section_name);
  const std::string key = bytes_of(key_name);
  const Entries& entries = snapshot.entries();
  const TextSection* const there = entries.find_section(section);
  if (there != nullptr && qel::is_positional(there->name) && key == kLines) {
    return lines_of(snapshot, *there);
  }
  const FileEntry& entry = entry_of(snapshot, name, section, key);
  if (there != nullptr && qel::is_positional(there->name)) {
    return str_of(entry.value);
  }
  const TypedValue typed = typed_value(entries, entry);
  if (typed.unread) {
    throw unread_failure(name, entries, entry, typed);
  }
  return typed.key == nullptr || typed.fields.empty() ? py::object(str_of(entry.value))
                                                      : object_of(typed.fields);
}

py::str text_of_entry(const Snapshot& snapshot, const py::str& file, const py::str& section,
                      const py::str& key) {
  return str_of(entry_of(snapshot, bytes_of(file), bytes_of(section), bytes_of(key)).value);
}

py::object table_of(const Snapshot& snapshot, const py::str& file, const py::str& section,
                    const py::str& name) {
  const PointTable table =
      point_table(bytes_of(file), snapshot.entries(), bytes_of(section), bytes_of(name));
  std::vector<py::ssize_t> shape{static_cast<py::ssize_t>(table.count)};
  if (table.width != 1) {
    shape.push_back(static_cast<py::ssize_t>(table.width));
  }
  py::array_t<double> numbers(shape);
  std::ranges::copy(table.numbers, numbers.mutable_data());
  return numbers;
}

py::tuple words_for(const Snapshot& snapshot, const py::str& file, const py::str& section,
                    const py::str& name) {
  const ProfileWords words = words_of(
      profile_named(bytes_of(file), snapshot.entries(), bytes_of(section), bytes_of(name)).kind);
  return py::make_tuple(str_of(words.title), str_of(words.x), str_of(words.x_unit), str_of(words.y),
                        str_of(words.y_unit));
}

py::list findings_of(const Snapshot& snapshot, const py::str& file) {
  const std::string name = bytes_of(file);
  std::vector<Finding> findings;
  {
    const py::gil_scoped_release released;
    findings = check_document(name, snapshot.document());
  }
  py::list list;
  for (const Finding& finding : findings) {
    list.append(py::make_tuple(str_of(finding.file), finding.line, finding.column,
                               name_of(finding.severity), str_of(finding.code),
                               str_of(finding.message), str_of(finding.section),
                               str_of(finding.key), str_of(finding.hint)));
  }
  return list;
}

}  // namespace

void bind_snapshot(py::module_& module) {
  py::class_<Snapshot, std::shared_ptr<Snapshot>>(module, "Snapshot",
                                                  "What a file holds at one moment.")
      .def("sections", &sections_of)
      .def("keys", &keys_of, py::arg("section"))
      .def("value", &value_of, py::arg("file"), py::arg("section"), py::arg("key"))
      .def("text", &text_of_entry, py::arg("file"), py::arg("section"), py::arg("key"))
      .def("table", &table_of, py::arg("file"), py::arg("section"), py::arg("name"))
      .def("table_words", &words_for, py::arg("file"), py::arg("section"), py::arg("name"))
      .def("inlets", [](const Snapshot& snapshot) { return inlets_of(snapshot.document()); })
      .def("form",
           [](const Snapshot& snapshot) {
             Json form;
             {
               const py::gil_scoped_release released;
               form = plain_form(snapshot.entries());
             }
             return object_of(form);
           })
      .def("findings", &findings_of, py::arg("file"));
  module.def("load", &load_file, py::arg("path"), py::arg("name"), py::arg("before"),
             "The file as it is now, which is `before` where nothing has changed.");
}

}  // namespace qelpro::python
