#pragma once

#include <string_view>

namespace qel {

/// The name of a type as this library spells it, without its namespace.
template <class Type>
constexpr std::string_view type_name() {
#ifdef _MSC_VER
  constexpr std::string_view kStart = "struct ";
  constexpr std::string_view kText = __FUNCSIG__;
#else
  constexpr std::string_view kStart = "Type = ";
  constexpr std::string_view kText = __PRETTY_FUNCTION__;
#endif
  const std::string_view rest = kText.substr(kText.find(kStart) + kStart.size());
  const std::string_view type = rest.substr(0, rest.find_first_of(";]>"));
  return type.substr(type.rfind(':') + 1);
}

}  // namespace qel
