#pragma once

#include <string>

#include "file/document_text.h"
#include "file/value_check.h"
#include "json/json_text.h"

namespace qelpro {

/// What is known of an entry: "key", "line", "text", "known" and, of a key of the catalogue,
/// "meaning", "encoding", "values" and, where its text is not read whole, "note".
Json typed_entry(const std::string& key, const TextLine& line, const std::string& text,
                 const Reading& reading);

}  // namespace qelpro
