#include "check/findings.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

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
  found_.push_back({&rule, place, std::move(message), std::move(hint)});
}

void Findings::in_order(const std::string& file, const std::function<void(Finding&&)>& take) {
  // The rules stand in the order of their codes.
  struct Sorted {
    std::size_t line;
    std::size_t column;
    const Rule* rule;
    std::size_t index;
    bool operator<(const Sorted& other) const {
      return std::tie(line, column, rule, index) <
             std::tie(other.line, other.column, other.rule, other.index);
    }
  };
  std::vector<Sorted> sorted;
  sorted.reserve(found_.size());
  for (const Found& found : found_) {
    sorted.push_back({found.place.line, found.place.column, found.rule, sorted.size()});
  }
  if (!std::is_sorted(sorted.begin(), sorted.end())) {
    std::sort(sorted.begin(), sorted.end());
  }
  for (const Sorted& each : sorted) {
    Found& found = found_[each.index];
    take({file, each.line, each.column, each.rule->severity, each.rule->code,
          std::move(found.message), std::string(found.place.section), std::string(found.place.key),
          std::move(found.hint)});
  }
}

std::string question(std::string_view near) {
  return near.empty() ? std::string() : "; did you mean \"" + std::string(near) + "\"?";
}

}  // namespace qelpro
