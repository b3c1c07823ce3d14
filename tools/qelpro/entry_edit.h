#pragma once

#include <string>

#include "document_text.h"

/// The contents of the file with the entry in its own section; every byte that is not the entry's
/// stays.
///
/// The line that a lookup takes is replaced. A new key stands behind the last line of its section,
/// a new section at the end of the file.
std::string with_entry(const DocumentText& document, const std::string& section,
                       const std::string& key, const std::string& value);
