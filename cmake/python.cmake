# Where the Python module can be built: Python_EXECUTABLE, pybind11_add_module, and the variable QELPRO_HAS_PYTHON.
option(QELPRO_PYTHON "Build the Python module, where Python and pybind11 are found" ${QELPRO_TOP_LEVEL})
set(QELPRO_HAS_PYTHON OFF)
if(NOT QELPRO_PYTHON OR QELPRO_SANITIZE OR QELPRO_COVERAGE OR CMAKE_CROSSCOMPILING)
  return()
endif()
find_package(Python 3.9 QUIET COMPONENTS Interpreter Development.Module)
if(Python_FOUND)
  # pybind11 that was installed by pip tells itself where it is.
  execute_process(COMMAND ${Python_EXECUTABLE} -c "import pybind11; print(pybind11.get_cmake_dir())" OUTPUT_VARIABLE pybind11_of_python
                  ERROR_QUIET OUTPUT_STRIP_TRAILING_WHITESPACE)
  find_package(pybind11 2.9 QUIET CONFIG HINTS ${pybind11_of_python})
endif()
if(pybind11_FOUND)
  set(QELPRO_HAS_PYTHON ON)
else()
  message(STATUS "No Python module: Python's headers (python3-dev) or pybind11 (pybind11-dev) are not found")
endif()
