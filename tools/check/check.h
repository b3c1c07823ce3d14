#pragma once

#include <string>
#include <vector>

#include "check/finding.h"
#include "check/rules.h"
#include "file/document_text.h"

namespace qelpro {

/// What is found in a file, in the file's order: by line, column and code. `file` is what the
/// findings call it.
std::vector<Finding> check_document(const std::string& file, const SectionedText& document);

}  // namespace qelpro
