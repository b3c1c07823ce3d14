#include "engine/values.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <type_traits>
#include <variant>

#include "engine/text.h"
#include "file/typed.h"
#include "platform/number.h"

namespace qelpro::python {

namespace py = pybind11;

namespace {

py::object number_of(const Json& value) {
  const std::string text = number_text(value);
  const char* at = text.c_str();
  double real = 0;
  qel::platform::scan_real(at, real);
  return py::float_(real);
}

py::object object_of(const qel::Field& field) {
  return std::visit(
      []<class Value>(const Value& value) -> py::object {
        if constexpr (std::is_same_v<Value, std::monostate>) {
          return py::none();
        } else if constexpr (std::is_same_v<Value, std::string>) {
          return str_of(value);
        } else {
          return py::cast(value);
        }
      },
      field);
}

[[noreturn]] void refuse(py::handle value) {
  throw py::type_error("a value is a number, a text or a list of them, not " +
                       std::string(py::str(py::type::of(value).attr("__name__"))));
}

Json whole_number(py::handle value) {
  int overflow = 0;
  const long long number = PyLong_AsLongLongAndOverflow(value.ptr(), &overflow);
  if (number == -1 && PyErr_Occurred() != nullptr) {
    throw py::error_already_set();
  }
  return overflow == 0 ? Json(static_cast<std::int64_t>(number))
                       : number_of_text(std::string(
                             py::str(py::int_(py::reinterpret_borrow<py::object>(value)))));
}

Json real_number(double value) {
  if (!std::isfinite(value)) {
    throw py::value_error("a number is not finite");
  }
  return number_of_text(shortest(value));
}

Json list_of(py::handle values) {
  Json list = Json::array();
  for (const py::handle value : values) {
    list.push_back(json_of(value));
  }
  return list;
}

}  // namespace

py::object object_of(const Json& value) {
  if (is_number_text(value)) {
    return number_of(value);
  }
  switch (value.type()) {
    case Json::value_t::boolean:
      return py::bool_(value.get<bool>());
    case Json::value_t::number_integer:
      return py::int_(value.get<std::int64_t>());
    case Json::value_t::number_unsigned:
      return py::int_(value.get<std::uint64_t>());
    case Json::value_t::number_float:
      if (!std::isfinite(value.get<double>())) {
        return str_of(number_text(value));
      }
      return py::float_(value.get<double>());
    case Json::value_t::string:
      return str_of(value.get_ref<const std::string&>());
    case Json::value_t::array: {
      py::list list;
      for (const Json& item : value) {
        list.append(object_of(item));
      }
      return list;
    }
    case Json::value_t::object: {
      py::dict dict;
      for (const auto& [name, member] : value.items()) {
        dict[str_of(name)] = object_of(member);
      }
      return dict;
    }
    default:
      return py::none();
  }
}

py::object object_of(const std::vector<qel::Field>& fields) {
  if (fields.size() == 1) {
    return object_of(fields.front());
  }
  py::tuple tuple(fields.size());
  for (std::size_t index = 0; index < fields.size(); ++index) {
    tuple[index] = object_of(fields[index]);
  }
  return tuple;
}

Json json_of(py::handle value) {
  if (PyUnicode_Check(value.ptr())) {
    return bytes_of(value);
  }
  if (PyLong_Check(value.ptr())) {
    return whole_number(value);
  }
  if (PyFloat_Check(value.ptr())) {
    return real_number(PyFloat_AsDouble(value.ptr()));
  }
  if (PyList_Check(value.ptr()) || PyTuple_Check(value.ptr())) {
    return list_of(value);
  }
  if (PyBytes_Check(value.ptr()) || PyByteArray_Check(value.ptr()) || value.is_none()) {
    refuse(value);
  }
  // numpy's arrays and numbers, and pandas' columns.
  if (py::hasattr(value, "tolist")) {
    const py::object plain = value.attr("tolist")();
    if (!py::type::of(plain).is(py::type::of(value))) {
      return json_of(plain);
    }
  }
  if (py::hasattr(value, "items")) {
    refuse(value);
  }
  if (py::hasattr(value, "__index__")) {
    return whole_number(value.attr("__index__")());
  }
  if (py::hasattr(value, "__float__")) {
    return real_number(py::float_(py::reinterpret_borrow<py::object>(value)));
  }
  if (PySequence_Check(value.ptr()) != 0) {
    return list_of(value);
  }
  refuse(value);
}

Json json_of_mapping(py::handle values) {
  Json mapping = Json::object();
  const py::object items = values.attr("items")();
  for (const py::handle item : items) {
    const auto pair = py::reinterpret_borrow<py::tuple>(item);
    const py::object value = pair[1];
    const bool is_mapping = py::hasattr(value, "items") && !py::hasattr(value, "tolist");
    append_member(mapping, bytes_of(pair[0]), is_mapping ? json_of_mapping(value) : json_of(value));
  }
  return mapping;
}

}  // namespace qelpro::python
