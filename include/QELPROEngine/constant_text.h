#pragma once

/// @file
/// Why a literal goes where `char*` is asked.

#include <type_traits>

/// What the exported objects have in common.
namespace qel {

/// The result of the forms that take a constant text, beside the members of the same name that take
/// `char*`: a literal and `c_str()` reach those, and the text is handed on unchanged.
///
/// They are templates for no type but `const char`, so that a null pointer, and the address of a
/// member by its exact type, still mean the member that takes `char*`.
template <class Char>
using IfConstant = std::enable_if_t<std::is_same_v<Char, const char>, bool>;

}  // namespace qel
