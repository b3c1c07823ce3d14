#include "picture/report_source.h"

#include <algorithm>
#include <set>
#include <utility>

#include "blocks/cae_header.h"
#include "blocks/catalogue.h"
#include "blocks/co_injection_flow_x.h"
#include "file/typed.h"

namespace qelpro {

std::string ReportSource::value(std::string_view section, std::string_view key) const {
  const FileEntry* const entry = entries->find(section, key);
  return entry != nullptr ? std::string(entry->value) : std::string();
}

const qel::InletSource& ReportSource::inlets() const {
  namespace header = qel::cae_header;
  const FileEntry* const entry =
      entries->find(header::kSection, qel::key_of(header::kKeys, "ProjectType"));
  if (entry == nullptr) {
    return qel::inlet_source(0);
  }
  const std::vector<qel::Field> fields = typed_value(*entries, *entry).fields;
  const int* const type = fields.empty() ? nullptr : std::get_if<int>(fields.data());
  return qel::inlet_source(type != nullptr ? static_cast<unsigned int>(*type) : 0);
}

std::vector<std::string> labels_of(const std::vector<std::string>& names) {
  const auto last_parts = [](const std::string& name, std::size_t parts) {
    std::size_t at = name.size();
    while (at != std::string::npos && at > 0 && parts > 0) {
      at = name.find_last_of("/\\", at - 1);
      --parts;
    }
    return at == std::string::npos || at == 0 ? name : name.substr(at + 1);
  };
  std::vector<std::string> labels;
  std::size_t longest = 1;
  for (const std::string& name : names) {
    longest = std::max(longest, 1 + static_cast<std::size_t>(std::ranges::count_if(
                                        name, [](char c) { return c == '/' || c == '\\'; })));
  }
  for (std::size_t parts = 1; parts <= longest; ++parts) {
    labels.clear();
    std::ranges::transform(names, std::back_inserter(labels),
                           [&](const std::string& name) { return last_parts(name, parts); });
    if (std::set<std::string>(labels.begin(), labels.end()).size() == names.size()) {
      return labels;
    }
  }
  // One file twice.
  std::map<std::string, int> seen;
  for (std::string& label : labels) {
    if (const int count = ++seen[label]; count > 1) {
      label += " (" + std::to_string(count) + ")";
    }
  }
  return labels;
}

SectionGroups::SectionGroups(const ReportSources& sources) {
  std::map<std::string_view, std::size_t> by_name;
  for (std::size_t file = 0; file < sources.size(); ++file) {
    for (const TextSection& section : sources[file].entries->document().sections()) {
      if (section.repeated) {
        continue;
      }
      const auto [found, is_new] = by_name.try_emplace(section.name, groups_.size());
      if (is_new) {
        SectionGroup group;
        group.name = section.name;
        group.info = qel::find_section(group.name.c_str(), group.number);
        group.of_file.resize(sources.size());
        groups_.push_back(std::move(group));
      }
      groups_[found->second].of_file[file] = &section;
    }
  }
}

std::vector<SectionGroup> SectionGroups::take(const qel::SectionInfo& info) {
  const auto taken =
      std::stable_partition(groups_.begin(), groups_.end(),
                            [&](const SectionGroup& group) { return group.info != &info; });
  std::vector<SectionGroup> found(std::make_move_iterator(taken),
                                  std::make_move_iterator(groups_.end()));
  groups_.erase(taken, groups_.end());
  std::ranges::stable_sort(found, {}, &SectionGroup::number);
  return found;
}

std::map<int, InletStages> SectionGroups::take_inlets(const ReportSources& sources) {
  std::vector<const qel::InletSource*> kinds;
  for (const ReportSource& source : sources) {
    kinds.push_back(&source.inlets());
  }
  // Null for a section that no inlet of the file is loaded from.
  const auto stage_of = [&](const qel::SectionInfo* info,
                            std::size_t file) -> SectionGroup InletStages::* {
    const qel::InletSource& kind = *kinds[file];
    return info == nullptr                            ? nullptr
           : info == kind.flow                        ? &InletStages::filling
           : info == kind.pack                        ? &InletStages::packing
           : info == kind.cure                        ? &InletStages::curing
           : info == &qel::co_injection_flow_x::kInfo ? &InletStages::second_skin
                                                      : nullptr;
  };
  std::map<int, InletStages> inlets;
  for (SectionGroup& group : groups_) {
    for (std::size_t file = 0; file < sources.size(); ++file) {
      const auto stage = group.of_file[file] != nullptr ? stage_of(group.info, file) : nullptr;
      if (stage == nullptr) {
        continue;
      }
      SectionGroup& target = inlets[group.number].*stage;
      target.of_file.resize(sources.size());
      target.of_file[file] = std::exchange(group.of_file[file], nullptr);
      if (target.info == nullptr) {
        target.info = group.info;
        target.number = group.number;
        target.name = group.name;
      } else if (target.info != group.info && !target.name.ends_with(group.name)) {
        target.name += " " + group.name;
      }
    }
  }
  std::erase_if(groups_, [](const SectionGroup& group) {
    return std::ranges::all_of(group.of_file, [](const auto* section) { return !section; });
  });
  return inlets;
}

std::vector<SectionGroup> SectionGroups::take_all() { return std::exchange(groups_, {}); }

std::vector<EntryGroup> entries_of(const ReportSources& sources, const SectionGroup& section) {
  std::vector<EntryGroup> groups;
  std::map<std::string_view, std::size_t> by_key;
  for (std::size_t file = 0; file < sources.size(); ++file) {
    if (section.of_file[file] == nullptr) {
      continue;
    }
    for (const FileEntry& entry : sources[file].entries->of(*section.of_file[file])) {
      const auto [found, is_new] = by_key.try_emplace(entry.key, groups.size());
      if (is_new) {
        groups.push_back({entry.key, std::vector<const FileEntry*>(sources.size())});
      }
      groups[found->second].of_file[file] = &entry;
    }
  }
  return groups;
}

bool is_different(const ReportSources& sources, const EntryGroup& entry) {
  for (std::size_t file = 1; file < sources.size(); ++file) {
    const FileEntry* const first = entry.of_file.front();
    const FileEntry* const other = entry.of_file[file];
    if ((first == nullptr) != (other == nullptr)) {
      return true;
    }
    if (first == nullptr || first->value == other->value) {
      continue;
    }
    const TypedValue a = typed_value(*sources.front().entries, *first);
    const TypedValue b = typed_value(*sources[file].entries, *other);
    if (a.key == nullptr || b.key == nullptr || a.unread || b.unread || a.fields != b.fields) {
      return true;
    }
  }
  return false;
}

}  // namespace qelpro
