#pragma once

#include <string>

#include "text/sectioned_text.h"

namespace qel {

/// The contents of the file with the entry in its own section; every byte that is not the entry's
/// stays.
///
/// A key of another section is never touched. The line that a lookup takes is replaced. A new key
/// stands after the last line of its section, a new section at the end of the file.
std::string with_entry(const SectionedText& document, const std::string& section,
                       const std::string& key, const std::string& value);

}  // namespace qel
