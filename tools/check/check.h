#pragma once

#include <string>
#include <vector>

#include "check/finding.h"
#include "file/document_text.h"

namespace qelpro {

/// What is found in a file, in the file's order.
std::vector<Finding> check_document(const std::string& file, const SectionedText& document);

/// The codes with their severity and what each finds, for a list of rules.
struct Rule {
  const char* code;
  Severity severity;
  const char* finds;
};
const std::vector<Rule>& rules();

}  // namespace qelpro
