#include "engine/failures.h"

#include <pybind11/pybind11.h>

#include <algorithm>
#include <exception>
#include <string>
#include <system_error>

#include "engine/text.h"
#include "system/failure.h"

namespace qelpro::python {

namespace py = pybind11;

namespace {

// What the command line offers instead, options or other commands, stands behind such a mark.
std::string without_options(const std::string& message) {
  constexpr std::string_view kSet = "--set ";
  const std::size_t begin = message.starts_with(kSet) ? kSet.size() : 0;
  const std::size_t end = std::min(message.find("; --"), message.find("; qelpro "));
  return message.substr(begin, end - begin);
}

void set_error(PyObject* type, const py::object& arguments) {
  PyErr_SetObject(type, arguments.ptr());
}

}  // namespace

// NOLINTNEXTLINE(performance-unnecessary-value-param): what pybind11 calls takes a copy
void translate(std::exception_ptr thrown) {
  if (!thrown) {
    return;
  }
  try {
    std::rethrow_exception(thrown);
  } catch (const SystemFailure& failure) {
    set_error(PyExc_OSError,
              py::make_tuple(failure.error(), str_of(without_options(failure.reason())),
                             str_of(failure.file())));
  } catch (const Failure& failure) {
    set_error(failure.status() == kNotFound ? PyExc_KeyError : PyExc_ValueError,
              str_of(without_options(failure.what())));
  } catch (const std::system_error& error) {
    set_error(PyExc_OSError, py::make_tuple(error.code().value(), str_of(error.what())));
  }
}

void register_failures() { py::register_exception_translator(&translate); }

}  // namespace qelpro::python
