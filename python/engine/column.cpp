#include "engine/column.h"

#include <pybind11/numpy.h>

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <variant>

#include "engine/text.h"
#include "engine/values.h"

namespace qelpro::python {

namespace py = pybind11;

namespace {

template <class Type>
bool is_all(const std::vector<ScannedValue>& values) {
  return std::ranges::all_of(
      values, [](const ScannedValue& value) { return std::holds_alternative<Type>(value); });
}

bool is_number(const ScannedValue& value) {
  return std::holds_alternative<int>(value) || std::holds_alternative<double>(value);
}

template <class Type>
py::array_t<Type> array_of(const std::vector<ScannedValue>& values) {
  py::array_t<Type> array(static_cast<py::ssize_t>(values.size()));
  std::ranges::transform(values, array.mutable_data(), [](const ScannedValue& value) {
    const int* const whole = std::get_if<int>(&value);
    return whole != nullptr ? static_cast<Type>(*whole)
                            : static_cast<Type>(std::get<double>(value));
  });
  return array;
}

py::list objects_of(const std::vector<ScannedValue>& values) {
  py::list list;
  for (const ScannedValue& value : values) {
    list.append(std::visit(
        []<class Value>(const Value& held) -> py::object {
          if constexpr (std::is_same_v<Value, std::string>) {
            return str_of(held);
          } else if constexpr (std::is_same_v<Value, std::vector<qel::Field>>) {
            return object_of(held);
          } else {
            return py::cast(held);
          }
        },
        value));
  }
  return list;
}

}  // namespace

py::tuple object_of(ScannedColumn column) {
  py::array_t<std::int64_t> rows(static_cast<py::ssize_t>(column.rows.size()));
  std::ranges::copy(column.rows, rows.mutable_data());
  const bool is_whole = is_all<int>(column.values);
  py::object values;
  const char* kind = "object";
  if (is_whole) {
    kind = "int";
    values = array_of<std::int64_t>(column.values);
  } else if (std::ranges::all_of(column.values, &is_number)) {
    kind = "float";
    values = array_of<double>(column.values);
  } else {
    values = objects_of(column.values);
  }
  return py::make_tuple(column.request, str_of(column.name), rows, kind, values);
}

}  // namespace qelpro::python
