#include <algorithm>
#include <span>
#include <string>
#include <unordered_map>

#include "blocks/catalogue.h"
#include "check/checked.h"
#include "check/known_keys.h"
#include "check/older_object.h"
#include "file/near.h"
#include "system/visible.h"
#include "text/text.h"

namespace qelpro {
namespace {

void check_repeated(const Checked& file, const TextSection& section) {
  const std::span<const FileEntry> entries = file.entries.of(section);
  auto taken = entries.begin();
  bool is_piece = false;
  for (std::size_t index = section.header + 1; index < section.after; ++index) {
    const TextLine line = file.document.line(index);
    const bool is_taken = taken != entries.end() && taken->line == index;
    taken += is_taken ? 1 : 0;
    if (!is_taken && !is_piece && qel::kind_of(line) == LineKind::entry) {
      const std::string_view key = qel::text::first_token(line.text);
      const FileEntry* const first = file.entries.find(section.name, key);
      const bool has_equals =
          file.document.line(first->line).text.find('=') != std::string_view::npos;
      file.findings.add(rule("P005"), at_line(line, section.name, key),
                        "a second entry \"" + std::string(key) + "\": the one on line " +
                            std::to_string(file.entries.line_number(*first)) +
                            (has_equals ? "" : ", which has no \"=\",") +
                            " is read, this one never");
    }
    is_piece = line.goes_on;
  }
}

int number_of(std::string_view section) {
  int number = 0;
  qel::find_section(std::string(section).c_str(), number);
  return std::max(number, 1);
}

class UnknownKeys {
 public:
  explicit UnknownKeys(const Checked& file) : file_(file) {
    for (const TextSection& section : file.document.sections()) {
      if (const qel::SectionInfo* known = file.entries.known_section(section)) {
        first_of_.try_emplace(known, section.header);
      }
    }
  }

  void check(const TextSection& section, const qel::SectionInfo& known, const FileEntry& entry) {
    if (const qel::KeyInfo* const key = file_.key_of(entry)) {
      check_point_number(section, known, entry, *key);
      return;
    }
    const TextLine line = file_.document.line(entry.line);
    const Place place = at_line(line, section.name, entry.key);
    const std::vector<KnownKeys::Owner> owners = file_.known.owners_of(entry.key);
    if (owners.empty()) {
      std::string near = file_.known.near(known, entry.key);
      std::string message =
          std::string(section.name) + " has no key \"" + entry.key + "\"" + question(near);
      file_.findings.add(rule("P102"), place, std::move(message), std::move(near));
    } else if (!is_of_older_object(line, entry.key, owners)) {
      const int section_number = number_of(section.name);
      std::string names;
      constexpr std::size_t kMostNames = 3;
      for (std::size_t owner = 0; owner < std::min(owners.size(), kMostNames); ++owner) {
        names +=
            (owner == 0 ? "" : ", ") + with_number(owners[owner].section->name, section_number);
      }
      names += owners.size() > kMostNames ? " and others" : "";
      file_.findings.add(
          rule("P103"), place,
          "\"" + entry.key + "\" is a key of " + names + ", not of " + std::string(section.name),
          with_number(owners.front().section->name, section_number));
    }
  }

 private:
  void check_point_number(const TextSection& section, const qel::SectionInfo& known,
                          const FileEntry& entry, const qel::KeyInfo& key) const {
    int number = 0;
    if (key.details.counted_by != nullptr &&
        qel::find_key(known, entry.key.c_str(), number) != nullptr && number < 1) {
      file_.findings.add(rule("P102"),
                         at_line(file_.document.line(entry.line), section.name, entry.key),
                         in_quotes(entry.key) + " is never read: points are numbered from 1",
                         with_number(key.text, 1));
    }
  }

  [[nodiscard]] bool is_of_older_object(const TextLine& line, const std::string& key,
                                        const std::vector<KnownKeys::Owner>& owners) const {
    return is_in_layout_of_older_object(line, key) &&
           std::ranges::any_of(owners, [&](const KnownKeys::Owner& owner) {
             const auto first = first_of_.find(owner.section);
             return first != first_of_.end() &&
                    file_.document.line(first->second).begin < line.begin && has_setter(*owner.key);
           });
  }

  const Checked& file_;
  std::unordered_map<const qel::SectionInfo*, std::size_t> first_of_;  // where its header stands
};

}  // namespace

void check_keys(const Checked& file) {
  UnknownKeys unknown(file);
  for (const TextSection& section : file.document.sections()) {
    if (section.repeated || qel::is_positional(section.name)) {
      continue;
    }
    check_repeated(file, section);
    if (const qel::SectionInfo* const known = file.entries.known_section(section)) {
      for (const FileEntry& entry : file.entries.of(section)) {
        unknown.check(section, *known, entry);
      }
    }
  }
}

}  // namespace qelpro
