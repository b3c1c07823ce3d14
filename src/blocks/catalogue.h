#pragma once

#include <string_view>

#include "blocks/key.h"

namespace qel {

/// Every section that the library knows, in the order of the blocks.
struct Catalogue {
  const SectionInfo* const* begin() const;
  const SectionInfo* const* end() const;
};

/// The section whose name this is; where the name is a pattern, its number is handed out, and
/// otherwise 0. Null for a section that is not known.
const SectionInfo* find_section(std::string_view name, int& number);

/// The key of that text, in the same way. Of several encodings of one key it is the first.
const KeyInfo* find_key(const SectionInfo& section, std::string_view key, int& number);

}  // namespace qel
