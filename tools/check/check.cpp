#include "check/check.h"

#include <utility>

#include "check/checked.h"
#include "check/known_keys.h"

namespace qelpro {

void check_document(const std::string& file, const SectionedText& document,
                    const std::function<void(Finding&&)>& take) {
  Findings findings;
  const Entries entries(document);
  const KnownKeys known;
  const std::vector<const qel::KeyInfo*> keys = known.keys_of(entries);
  const Checked checked{document, entries, known, keys, findings};
  check_lines(checked);
  check_sections(checked);
  check_keys(checked);
  check_values(checked);
  check_profiles(checked);
  check_positional(checked);
  check_numbers(checked);
  check_criteria(checked);
  findings.in_order(file, take);
}

std::vector<Finding> check_document(const std::string& file, const SectionedText& document) {
  std::vector<Finding> findings;
  check_document(file, document,
                 [&](Finding&& finding) { findings.push_back(std::move(finding)); });
  return findings;
}

}  // namespace qelpro
