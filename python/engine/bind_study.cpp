#include <pybind11/stl.h>

#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "engine/bindings.h"
#include "engine/column.h"
#include "engine/failures.h"
#include "engine/text.h"
#include "engine/values.h"
#include "file/entries.h"
#include "scan/scan.h"
#include "study/sweep.h"
#include "system/files.h"

namespace qelpro::python {

namespace py = pybind11;

namespace {

// Whether to go on: Ctrl-C is Python's to tell. What it raised is thrown later, by the caller.
bool is_not_interrupted() {
  const py::gil_scoped_acquire held;
  return PyErr_Occurred() == nullptr && PyErr_CheckSignals() == 0;
}

void throw_interruption() {
  if (PyErr_Occurred() != nullptr) {
    throw py::error_already_set();
  }
}

std::vector<std::string> sweep_files(const py::str& path, const py::dict& ranges,
                                     const py::str& folder_path,
                                     std::optional<std::uint64_t> samples,
                                     std::optional<std::uint64_t> seed, bool overwrite) {
  const std::string file = bytes_of(path);
  const std::string folder = bytes_of(folder_path);
  const Json values = json_of_mapping(ranges);
  std::vector<std::string> names;
  {
    const py::gil_scoped_release released;
    std::string contents = read_file(file);
    StudyRequest request;
    request.samples = samples;
    request.seed = seed.value_or(samples ? std::random_device()() : 0);
    {
      const SectionedText document = document_text(file, contents);
      const Entries entries(document);
      for (const auto& [word, range] : values.items()) {
        request.settings.push_back(setting_of(entries, word, range));
      }
    }
    const Study study(file, std::move(contents), std::move(request));
    make_files(study, folder, overwrite ? Existing::overwrite : Existing::refuse,
               [](std::uint64_t /*done*/) { return is_not_interrupted(); });
    for (std::uint64_t index = 0; index < study.size(); ++index) {
      names.push_back(study.file_name(index));
    }
  }
  throw_interruption();
  return names;
}

py::list errors_of(const std::vector<ScanError>& errors) {
  py::list list;
  for (const ScanError& error : errors) {
    // The exception itself, as a caller would have had it.
    py::object reason;
    try {
      try {
        std::rethrow_exception(error.reason);
      } catch (...) {
        translate(std::current_exception());
        throw py::error_already_set();
      }
    } catch (py::error_already_set& raised) {
      reason = raised.value();
    }
    list.append(py::make_tuple(error.row, reason, str_of(error.message)));
  }
  return list;
}

py::tuple scan_table(const std::vector<py::str>& paths, const std::vector<py::str>& names,
                     const std::vector<py::str>& words, std::size_t threads) {
  std::vector<ScannedFile> files;
  files.reserve(paths.size());
  for (std::size_t index = 0; index < paths.size(); ++index) {
    files.push_back({bytes_of(paths[index]), bytes_of(names.at(index))});
  }
  std::vector<std::string> asked;
  for (const py::str& word : words) {
    asked.push_back(bytes_of(word));
  }
  ScannedTable table;
  {
    const py::gil_scoped_release released;
    table = scan_files(files, asked, threads, &is_not_interrupted);
  }
  throw_interruption();
  py::list columns;
  for (ScannedColumn& column : table.columns) {
    columns.append(object_of(std::move(column)));
  }
  return py::make_tuple(columns, errors_of(table.errors));
}

}  // namespace

void bind_study(py::module_& module) {
  module.def("sweep", &sweep_files, py::arg("path"), py::arg("ranges"), py::arg("folder"),
             py::arg("samples"), py::arg("seed"), py::arg("overwrite"));
  module.def(
      "number_text",
      [](const py::object& number) {
        const Json json = json_of(number);
        if (!json.is_number() && !is_number_text(json)) {
          throw py::type_error("a number is an int or a float");
        }
        return number_text(json);
      },
      py::arg("number"), "A number as a file has it.");
  module.def("scan", &scan_table, py::arg("paths"), py::arg("names"), py::arg("words"),
             py::arg("threads"));
}

}  // namespace qelpro::python
