#pragma once

#include <string>

#include "document_text.h"
#include "json_text.h"
#include "value_check.h"

/// What is known of an entry: "key", "line", "text", "known" and, of a key of the catalogue,
/// "meaning", "encoding", "values" and, where its text is not read whole, "note".
Json typed_entry(const std::string& key, const TextLine& line, const std::string& text,
                 const Reading& reading);
