#include "check/findings.h"

#include <algorithm>
#include <tuple>

namespace qelpro {

const char* name_of(Severity severity) {
  switch (severity) {
    case Severity::error:
      return "error";
    case Severity::warning:
      return "warning";
    default:
      return "note";
  }
}

std::span<const Rule> rules() { return kRules; }

Place at_line(const TextLine& line, std::string_view section, std::string_view key) {
  return {line.number, 1, section, key};
}

Place at_value(const TextLine& line, std::string_view section, std::string_view key) {
  const std::size_t equals = line.text.find('=');
  const std::size_t behind = equals == std::string_view::npos ? 0 : equals + 1;
  const std::size_t value = line.text.find_first_not_of(" \t", behind);
  return {line.number, std::min(value, line.text.size()) + 1, section, key};
}

void Findings::add(const Rule& rule, const Place& place, std::string message, std::string hint) {
  findings_.push_back({file_, place.line, place.column, rule.severity, rule.code,
                       std::move(message), std::string(place.section), std::string(place.key),
                       std::move(hint)});
}

std::vector<Finding> Findings::in_order() && {
  const auto place = [](const Finding& finding) {
    return std::tie(finding.line, finding.column, finding.code);
  };
  // Most rules go through the file in its order.
  if (!std::ranges::is_sorted(findings_, {}, place)) {
    std::ranges::stable_sort(findings_, {}, place);
  }
  return std::move(findings_);
}

std::string question(std::string_view near) {
  return near.empty() ? std::string() : "; did you mean \"" + std::string(near) + "\"?";
}

}  // namespace qelpro
