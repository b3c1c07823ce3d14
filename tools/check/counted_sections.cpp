#include <algorithm>
#include <limits>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "blocks/cae_header.h"
#include "blocks/catalogue.h"
#include "blocks/cool_channel_x.h"
#include "blocks/flow_ctl_info.h"
#include "blocks/gate_valve_x.h"
#include "blocks/inlet_source.h"
#include "blocks/summary.h"
#include "check/checked.h"
#include "check/numbers.h"
#include "check/values.h"
#include "file/near.h"

namespace qelpro {
namespace {

/// A count of a file: an entry that says how many of something there are.
struct Count {
  const FileEntry* entry = nullptr;
  int number = 0;
};

class CountedSections {
 public:
  explicit CountedSections(const Checked& file) : file_(file) {}

  void check_inlets() {
    const auto by_loader =
        count(qel::flow_ctl_info::kInfo, row_to(qel::flow_ctl_info::kKeys, qel::InletCount{}));
    const auto by_model =
        count(qel::summary::kInfo, row_to(qel::summary::kKeys, qel::ProcessItem::TotalNodeEM));
    const qel::InletSource& source = qel::inlet_source(project_type());
    const int most =
        source.fixed ? static_cast<int>(source.count) : std::numeric_limits<int>::max();
    const auto last = [&](const Count& inlets) {
      return inlets.number == 0 ? 0 : source.section_of(std::min(inlets.number, most));
    };
    const std::vector<int> numbers = numbers_of(*source.flow);
    for (const auto& inlets : {by_loader, by_model}) {
      if (inlets) {
        check_missing(*inlets, *source.flow, numbers, last(*inlets));
      }
    }
    // What a load counts by comes first.
    if (const auto& inlets = by_loader ? by_loader : by_model) {
      check_beyond(*inlets, *source.flow, last(*inlets));
    }
  }

  void check_gate_valves() {
    check(qel::gate_valve_x::kInfo,
          count(qel::summary::kInfo, row_to(qel::summary::kKeys, qel::ProcessItem::TotalGateCTL)));
  }

  void check_cooling_channels() {
    const qel::SectionInfo& summary = qel::summary::kInfo;
    const qel::KeyInfo& groups = row_to(qel::summary::kKeys, qel::ProcessItem::TotalGrpCCL);
    const qel::KeyInfo& entrances = row_to(qel::summary::kKeys, qel::ProcessItem::TotalNodeEC);
    const bool has_groups = file_.entries.find(summary.name, groups.text) != nullptr;
    check(qel::cool_channel_x::kInfo, count(summary, has_groups ? groups : entrances));
  }

 private:
  /// A count that is there and that promises something, or nothing.
  [[nodiscard]] std::optional<Count> count(const qel::SectionInfo& section,
                                           const qel::KeyInfo& key) const {
    const FileEntry* const entry = file_.entries.find(section.name, key.text);
    const auto number = entry != nullptr ? whole_number(key, entry->value) : std::nullopt;
    return number && *number >= 0 ? std::optional(Count{entry, *number}) : std::nullopt;
  }

  [[nodiscard]] unsigned int project_type() const {
    const qel::KeyInfo& key = row_to(qel::cae_header::kKeys, qel::ProcessItem::ProjectType);
    const FileEntry* const entry = file_.entries.find(qel::cae_header::kInfo.name, key.text);
    const auto type = entry != nullptr ? whole_number(key, entry->value) : std::nullopt;
    return static_cast<unsigned int>(type.value_or(0));
  }

  void check(const qel::SectionInfo& kind, const std::optional<Count>& count) {
    if (count) {
      check_missing(*count, kind, numbers_of(kind), count->number);
      check_beyond(*count, kind, count->number);
    }
  }

  [[nodiscard]] std::vector<int> numbers_of(const qel::SectionInfo& kind) const {
    std::vector<int> numbers;
    for (const TextSection& section : file_.document.sections()) {
      if (!section.repeated && file_.entries.known_section(section) == &kind) {
        numbers.push_back(number_of(section));
      }
    }
    std::ranges::sort(numbers);
    return numbers;
  }

  static int number_of(const TextSection& section) {
    int number = 0;
    qel::find_section(std::string(section.name).c_str(), number);
    return number;
  }

  void check_missing(const Count& count, const qel::SectionInfo& kind,
                     const std::vector<int>& numbers, int last) {
    const std::vector<Run> missing = missing_of(numbers, last);
    if (!missing.empty()) {
      const auto name = [&kind](int number) { return with_number(kind.name, number); };
      file_.findings.add(rule("P305"), value_of(count),
                         "\"" + count.entry->key + "\" is " + std::to_string(count.number) +
                             ", and there is no section " + listed(missing, name));
    }
  }

  void check_beyond(const Count& count, const qel::SectionInfo& kind, int last) {
    for (const TextSection& section : file_.document.sections()) {
      if (!section.repeated && file_.entries.known_section(section) == &kind &&
          number_of(section) > last) {
        file_.findings.add(rule("P306"), at_line(file_.document.line(section.header), section.name),
                           std::string(section.name) + " is beyond the count \"" +
                               count.entry->key + "\" on line " +
                               std::to_string(file_.entries.line_number(*count.entry)) +
                               ", which is " + std::to_string(count.number));
      }
    }
  }

  [[nodiscard]] Place value_of(const Count& count) const {
    return at_value(file_.document.line(count.entry->line), file_.entries.section_of(*count.entry),
                    count.entry->key);
  }

  const Checked& file_;
};

bool counts_points(const qel::SectionInfo& section, const qel::KeyInfo& key) {
  return std::ranges::any_of(section.keys, [&key](const qel::KeyInfo& point) {
    return point.details.counted_by != nullptr &&
           point.details.counted_by == std::string_view(key.text);
  });
}

// The keys that count things of the model. The counts of points are looked at with their points.
std::vector<const qel::KeyInfo*> counts_of(const qel::SectionInfo& section) {
  constexpr std::string_view kNumberOf = "the number of ";
  std::vector<const qel::KeyInfo*> counts;
  for (const qel::KeyInfo& key : section.keys) {
    if (is_whole_number(key) && std::string_view(key.meaning).starts_with(kNumberOf) &&
        !counts_points(section, key)) {
      counts.push_back(&key);
    }
  }
  return counts;
}

void check_negative(const Checked& file, const TextSection& section,
                    const std::vector<const qel::KeyInfo*>& counts) {
  for (const qel::KeyInfo* key : counts) {
    const FileEntry* const entry = file.entries.find(section.name, key->text);
    const auto number = entry != nullptr ? whole_number(*key, entry->value) : std::nullopt;
    if (number && *number < 0) {
      file.findings.add(rule("P303"),
                        at_value(file.document.line(entry->line), section.name, entry->key),
                        "the count \"" + entry->key + "\" is negative");
    }
  }
}

}  // namespace

void check_numbers(const Checked& file) {
  std::unordered_map<const qel::SectionInfo*, std::vector<const qel::KeyInfo*>> counts;
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    counts.emplace(section, counts_of(*section));
  }
  for (const TextSection& section : file.document.sections()) {
    const qel::SectionInfo* const known = file.entries.known_section(section);
    if (known != nullptr && !section.repeated && !file.entries.of(section).empty()) {
      check_negative(file, section, counts[known]);
    }
  }
  CountedSections counted(file);
  counted.check_inlets();
  counted.check_gate_valves();
  counted.check_cooling_channels();
}

}  // namespace qelpro
