#pragma once

#include <string>

#include "file/document_text.h"
#include "json/json_text.h"

namespace qelpro {

/// The simulator's process of a file as JSON: "values" with the items that are set, "machine" and
/// "heat transfer" with those of a group, the lists by their titles, and "inlets", each with its
/// number, its values and its lists. A `Failure` of the file where it has no section, or cannot be
/// loaded.
Json process_json(const std::string& file, const SectionedText& document);

}  // namespace qelpro
