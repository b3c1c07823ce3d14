#include "engine/text.h"

namespace qelpro::python {

namespace py = pybind11;

py::str str_of(std::string_view text) {
  PyObject* const made =
      PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "surrogateescape");
  if (made == nullptr) {
    throw py::error_already_set();
  }
  return py::reinterpret_steal<py::str>(made);
}

std::string bytes_of(py::handle text) {
  if (!PyUnicode_Check(text.ptr())) {
    throw py::type_error("a text is a str, not " +
                         std::string(py::str(py::type::of(text).attr("__name__"))));
  }
  const auto bytes = py::reinterpret_steal<py::bytes>(
      PyUnicode_AsEncodedString(text.ptr(), "utf-8", "surrogateescape"));
  if (!bytes) {
    throw py::error_already_set();
  }
  return bytes;
}

}  // namespace qelpro::python
