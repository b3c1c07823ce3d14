#include "check/check.h"

#include "check/checked.h"

namespace qelpro {

std::vector<Finding> check_document(const std::string& file, const SectionedText& document) {
  Findings findings(file);
  const Entries entries(document);
  const Checked checked{document, entries, findings};
  check_lines(checked);
  check_sections(checked);
  check_keys(checked);
  check_values(checked);
  check_profiles(checked);
  check_positional(checked);
  check_numbers(checked);
  check_criteria(checked);
  return std::move(findings).in_order();
}

}  // namespace qelpro
