#pragma once

#include <string>
#include <string_view>

#include "json/json_text.h"

namespace qelpro {

/// Reads JSON. The escape of a lone surrogate U+DC80 to U+DCFF is the byte that `write_json` wrote
/// it for; a number that is no whole number of 64 bits keeps its text (`is_number_text`).
///
/// A `Failure` of the file, with its name and line, where the text is no JSON, or where an object
/// has a name twice: one of the two would be lost.
Json parse_json(const std::string& name, std::string_view text);

}  // namespace qelpro
