#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <tuple>
#include <type_traits>

namespace qel {

/// How a member names one of its arguments, and how its description does.
struct Argument {
  const char* name = nullptr;
  const char* words = nullptr;
};

/// What an argument holds.
enum class Kind { integer, real, text };

template <class Value>
constexpr Kind kKindOf = std::is_same_v<Value, int>      ? Kind::integer
                         : std::is_same_v<Value, double> ? Kind::real
                                                         : Kind::text;

/// An argument that gives or takes one field of a value.
struct FieldArgument : Argument {
  Kind kind = Kind::integer;
};

template <class Values, std::size_t count>
constexpr auto field_arguments(const Argument (&arguments)[count]) {
  static_assert(std::tuple_size_v<Values> == count);
  std::array<FieldArgument, count> fields{};
  [&]<std::size_t... index>(std::index_sequence<index...>) {
    ((fields[index] = {arguments[index], kKindOf<std::tuple_element_t<index, Values>>}), ...);
  }
  (std::make_index_sequence<count>());
  return fields;
}

}  // namespace qel
