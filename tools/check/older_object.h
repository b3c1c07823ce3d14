#pragma once

#include <string>

#include "blocks/key.h"
#include "file/document_text.h"

namespace qelpro {

/// The older object stores a new key behind the file's last line, whatever section that is of, and
/// finds it there from its section's header on. Its lines are known by their layout.
bool is_in_layout_of_older_object(const TextLine& line, const std::string& key);

/// Whether the older object stores the key.
bool has_setter(const qel::KeyInfo& key);

}  // namespace qelpro
