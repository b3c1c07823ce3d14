#include "compare/difference.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "compare/profiles.h"
#include "compare/value.h"
#include "file/entries.h"
#include "file/typed.h"

namespace qelpro {
namespace {

using Kind = Difference::Kind;
using EntrySet = std::unordered_set<const FileEntry*>;

Difference section_difference(Kind kind, const TextSection& section) {
  Difference difference;
  difference.kind = kind;
  difference.of = Difference::Of::section;
  difference.address.section = without_brackets(section.name);
  return difference;
}

// What one file has of a section, to be found by its key.
class Side {
 public:
  Side(const Entries& entries, const TextSection& section,
       const std::vector<const FileEntry*>& taken)
      : entries_(entries), section_(section), taken_(taken.begin(), taken.end()) {
    for (const FileEntry& entry : entries.of(section)) {
      by_key_.emplace(entry.key, &entry);
    }
  }

  [[nodiscard]] std::span<const FileEntry> all() const { return entries_.of(section_); }
  [[nodiscard]] bool is_taken(const FileEntry& entry) const { return taken_.contains(&entry); }
  [[nodiscard]] const FileEntry* find(std::string_view key) const {
    const auto found = by_key_.find(key);
    return found != by_key_.end() ? found->second : nullptr;
  }
  [[nodiscard]] ComparedValue value_of(const FileEntry& entry) const {
    return {entries_.known_section(section_), typed_value(entries_, entry), entry.value};
  }
  [[nodiscard]] Json json_of(const FileEntry& entry) const {
    return qelpro::json_of(entries_, entry);
  }
  [[nodiscard]] Address address_of(const FileEntry& entry) const {
    return entries_.address_of(entry);
  }

 private:
  const Entries& entries_;
  const TextSection& section_;
  EntrySet taken_;
  std::unordered_map<std::string_view, const FileEntry*> by_key_;
};

// The entries of a section that both files have.
class Comparison {
 public:
  Comparison(const SectionPair& sections, const Tolerances& tolerances)
      : profiles_(compare_profiles(sections, tolerances)),
        before_(sections.before, sections.section_before, profiles_.taken_before),
        after_(sections.after, sections.section_after, profiles_.taken_after),
        tolerances_(tolerances) {}

  // In the order of the first file.
  void changed_and_removed(std::vector<Difference>& differences) {
    for (const FileEntry& entry : before_.all()) {
      told_of(entry, differences);
      if (before_.is_taken(entry)) {
        continue;
      }
      const FileEntry* const other = after_.find(entry.key);
      // A point beyond its count that is one of the other's curve was compared there.
      if (other != nullptr && after_.is_taken(*other)) {
        continue;
      }
      if (other == nullptr ||
          !is_same(before_.value_of(entry), after_.value_of(*other), tolerances_)) {
        differences.push_back(entry_difference(&entry, other));
      }
    }
  }

  // What the second file alone has, in its order.
  void added(std::vector<Difference>& differences) {
    for (const FileEntry& entry : after_.all()) {
      told_of(entry, differences);
      if (!after_.is_taken(entry) && before_.find(entry.key) == nullptr) {
        differences.push_back(entry_difference(nullptr, &entry));
      }
    }
  }

 private:
  void told_of(const FileEntry& entry, std::vector<Difference>& differences) {
    for (ComparedProfiles::Told& told : profiles_.told) {
      if (told.first == &entry) {
        differences.push_back(std::move(told.difference));
      }
    }
  }

  [[nodiscard]] Difference entry_difference(const FileEntry* before, const FileEntry* after) const {
    Difference difference;
    difference.kind = before == nullptr  ? Kind::added
                      : after == nullptr ? Kind::removed
                                         : Kind::changed;
    if (before != nullptr) {
      difference.address = before_.address_of(*before);
      difference.before = before->value;
      difference.typed_before = before_.json_of(*before);
    }
    if (after != nullptr) {
      difference.address = before != nullptr ? difference.address : after_.address_of(*after);
      difference.after = after->value;
      difference.typed_after = after_.json_of(*after);
    }
    return difference;
  }

  ComparedProfiles profiles_;
  Side before_;
  Side after_;
  const Tolerances& tolerances_;
};

}  // namespace

std::vector<Difference> differences(const SectionedText& before, const SectionedText& after,
                                    const Tolerances& tolerances) {
  const Entries old_entries(before);
  const Entries new_entries(after);
  std::vector<Difference> found;
  for (const TextSection& section : before.sections()) {
    if (section.repeated) {
      continue;
    }
    if (const TextSection* const other = after.find(section.name); other != nullptr) {
      Comparison({old_entries, new_entries, section, *other}, tolerances)
          .changed_and_removed(found);
    } else {
      found.push_back(section_difference(Kind::removed, section));
    }
  }
  for (const TextSection& section : after.sections()) {
    if (section.repeated) {
      continue;
    }
    if (const TextSection* const other = before.find(section.name); other != nullptr) {
      Comparison({old_entries, new_entries, *other, section}, tolerances).added(found);
    } else {
      found.push_back(section_difference(Kind::added, section));
    }
  }
  return found;
}

}  // namespace qelpro
