#pragma once

#include <string>
#include <vector>

#include "json/json_text.h"

namespace qelpro {

/// What the catalogue knows, as data: a list of sections, each with its keys.
Json catalogue_json();

/// The part of it that the words ask for: nothing for all; a section; a key in one word,
/// "SECTION.KEY", or in two. Names are those of a file ("Flow-2", "FR-3") or of the catalogue
/// ("Flow-%ld", "FR-%d"), with or without brackets; the name of a profile ("FR") asks for its count
/// and its points. Of a key's section, the list has one with those keys alone.
///
/// A name that is not known is a `Failure` of what is not found, which names the one that is near.
Json explain(const std::vector<std::string>& words);

/// Whether such words name a section and no key.
bool asks_for_section(const std::vector<std::string>& words);

}  // namespace qelpro
