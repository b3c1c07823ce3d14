#pragma once

#include <string_view>

#include "compare/tolerance.h"
#include "file/typed.h"

namespace qelpro {

/// A value of a file: as the catalogue reads it, and its text.
struct ComparedValue {
  const qel::SectionInfo* section = nullptr;  ///< Null where the catalogue does not know it.
  TypedValue typed;
  std::string_view text;
};

/// Whether two values of one entry are the same. How a number is spelled and what stands between
/// two fields does not count; a text, and what of a value no field has, is compared as it stands.
bool is_same(const ComparedValue& before, const ComparedValue& after, const Tolerances& tolerances);

}  // namespace qelpro
