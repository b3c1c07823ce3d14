#pragma once

#include <algorithm>
#include <type_traits>

namespace qel {

/// Whether an argument is a null pointer; a number is none.
template <class Value>
bool is_null([[maybe_unused]] Value value) {
  if constexpr (std::is_pointer_v<Value>) {
    return value == nullptr;
  } else {
    return false;
  }
}

template <class... Values>
bool any_is_null(Values... values) {
  return std::max({false, is_null(values)...});
}

}  // namespace qel
