#include "engine/column.h"

#include <pybind11/numpy.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>
#include <variant>

#include "engine/text.h"
#include "engine/values.h"

namespace qelpro::python {

namespace py = pybind11;

namespace {

// Over the numbers themselves, of which there may be many.
template <class Number>
py::array_t<Number> array_over(std::vector<Number> numbers) {
  auto held = std::make_unique<std::vector<Number>>(std::move(numbers));
  const py::capsule owner(held.get(),
                          [](void* all) { delete static_cast<std::vector<Number>*>(all); });
  const std::vector<Number>& all = *held.release();
  return py::array_t<Number>(static_cast<py::ssize_t>(all.size()), all.data(), owner);
}

py::array_t<std::int64_t> whole_numbers(const std::vector<double>& numbers) {
  py::array_t<std::int64_t> array(static_cast<py::ssize_t>(numbers.size()));
  std::ranges::transform(numbers, array.mutable_data(),
                         [](double number) { return static_cast<std::int64_t>(number); });
  return array;
}

py::object object_of_value(const ScannedValue& value) {
  return std::visit(
      []<class Value>(const Value& held) -> py::object {
        if constexpr (std::is_same_v<Value, std::string>) {
          return str_of(held);
        } else if constexpr (std::is_same_v<Value, std::vector<qel::Field>>) {
          return object_of(held);
        } else {
          return py::cast(held);
        }
      },
      value);
}

py::list objects_of(const ScannedValues& values) {
  py::list list(values.size());
  for (std::size_t index = 0; index < values.size(); ++index) {
    list[index] = object_of_value(values.at(index));
  }
  return list;
}

}  // namespace

py::tuple object_of(ScannedColumn column) {
  const char* kind = nullptr;
  py::object values;
  if (column.values.are_whole()) {
    kind = "int";
    values = whole_numbers(column.values.numbers());
  } else if (column.values.are_real()) {
    kind = "float";
    values = array_over(std::move(column.values.numbers()));
  } else {
    kind = column.values.are_numbers() ? "number" : "object";
    values = objects_of(column.values);
  }
  return py::make_tuple(column.request, str_of(column.name), array_over(std::move(column.rows)),
                        kind, values);
}

}  // namespace qelpro::python
