#pragma once

#include <functional>
#include <string>
#include <vector>

#include "check/finding.h"
#include "check/rules.h"
#include "file/document_text.h"

namespace qelpro {

/// What is found in a file, in the file's order: by line, column and code. `file` is what the
/// findings call it.
std::vector<Finding> check_document(const std::string& file, const SectionedText& document);
/// The same, one after the other: there may be very many.
void check_document(const std::string& file, const SectionedText& document,
                    const std::function<void(Finding&&)>& take);

}  // namespace qelpro
