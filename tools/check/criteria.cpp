#include <optional>
#include <string>

#include "blocks/flow_ctl.h"
#include "check/checked.h"
#include "check/values.h"

namespace qelpro {
namespace {

using qel::ProcessItem;

// The key whose value a criterion takes; null where it is none.
const qel::KeyInfo* value_of(int criterion) {
  constexpr const auto& kKeys = qel::flow_ctl::kKeys;
  switch (criterion) {
    case 0:
    case 3:
      return &qel::row_to(kKeys, ProcessItem::VolumeFilled);
    case 1:
      return &qel::row_to(kKeys, ProcessItem::RamPosition);
    case 2:
      return &qel::row_to(kKeys, ProcessItem::InjectionPressure);
    default:
      return nullptr;
  }
}

}  // namespace

void check_criteria(const Checked& file) {
  const std::string_view section = qel::flow_ctl::kInfo.name;
  const qel::KeyInfo& key = qel::row_to(qel::flow_ctl::kKeys, ProcessItem::VPSwitchCtrl);
  const FileEntry* const entry = file.entries.find(section, key.text);
  const auto criterion = entry != nullptr ? whole_number(key, entry->value) : std::nullopt;
  const qel::KeyInfo* const value = criterion ? value_of(*criterion) : nullptr;
  if (value != nullptr && file.entries.find(section, value->text) == nullptr) {
    file.findings.add(
        rule("P401"), at_value(file.document.line(entry->line), section, entry->key),
        "the V/P switch-over is by \"" + std::string(value->text) + "\", which is missing",
        "add \"" + std::string(value->text) + "\"");
  }
}

}  // namespace qelpro
