#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include "engine/bindings.h"
#include "engine/failures.h"

PYBIND11_MODULE(_engine, module) {
  module.doc() = "What the package is built on; not for use by itself.";
  module.attr("__version__") = QELPRO_VERSION;
  // What numpy hands over is asked for once, here: a thread that waits for another one to ask for
  // it later would hold the global lock meanwhile.
  pybind11::array_t<double>(0);
  qelpro::python::register_failures();
  qelpro::python::bind_snapshot(module);
  qelpro::python::bind_edits(module);
  qelpro::python::bind_documents(module);
  qelpro::python::bind_study(module);
  qelpro::python::bind_reference_data(module);
}
