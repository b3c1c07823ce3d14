#include "file/entries.h"

#include <algorithm>
#include <numeric>

#include "blocks/catalogue.h"
#include "text/text.h"

namespace qelpro {
namespace {

// Knows again the section that it was asked for last: a file may repeat one very often.
class KnownSections {
 public:
  const qel::SectionInfo* find(std::string_view name) {
    if (!any_ || name != last_) {
      int number = 0;
      last_ = name;
      any_ = true;
      found_ = qel::find_section(std::string(name).c_str(), number);
    }
    return found_;
  }

 private:
  bool any_ = false;
  std::string_view last_;
  const qel::SectionInfo* found_ = nullptr;
};

class Everything : public EntryFilter {
 public:
  bool wants_section(std::string_view /*name*/) override { return true; }
  bool wants_key(std::string_view /*key*/) override { return true; }
};

bool is_known(const qel::SectionInfo* section, const std::string& key) {
  int number = 0;
  return section != nullptr && qel::find_key(*section, key.c_str(), number) != nullptr;
}

// A value that goes on behind what the engine reads is whole here.
std::string_view value_of(const SectionedText& document, const TextLine& line) {
  return line.goes_on ? qel::text::entry_value(document.to_line_break(line))
                      : qel::whole_value(line);
}

std::vector<FileEntry> positional_lines(const SectionedText& document, std::size_t index) {
  const TextSection& section = document.sections()[index];
  std::vector<FileEntry> lines;
  std::size_t last = 0;  // that is not empty
  for (std::size_t at = section.header + 1; at < section.after; ++at) {
    const TextLine line = document.line(at);
    lines.push_back(
        {index, at, "#" + std::to_string(at - section.header), qel::text::index_value(line.whole)});
    last = qel::kind_of(line) != LineKind::blank ? lines.size() : last;
  }
  lines.resize(last);
  return lines;
}

}  // namespace

const qel::SectionInfo* known_section(const std::string& name) {
  int number = 0;
  return qel::find_section(with_brackets(name).c_str(), number);
}

Entries::Entries(const SectionedText& document) : document_(document) {
  Everything everything;
  add_sections(everything);
}

Entries::Entries(const SectionedText& document, EntryFilter& filter) : document_(document) {
  add_sections(filter);
}

void Entries::add_sections(EntryFilter& filter) {
  KnownSections known;
  const std::vector<TextSection>& sections = document_.sections();
  first_of_section_.reserve(sections.size() + 1);
  known_.reserve(sections.size());
  for (std::size_t index = 0; index < sections.size(); ++index) {
    first_of_section_.push_back(entries_.size());
    const bool wanted = filter.wants_section(sections[index].name);
    known_.push_back(wanted ? known.find(sections[index].name) : nullptr);
    if (wanted && !sections[index].repeated) {
      add_section(index, filter);
    }
  }
  first_of_section_.push_back(entries_.size());
}

void Entries::add_section(std::size_t index, EntryFilter& filter) {
  const TextSection& section = document_.sections()[index];
  if (qel::is_positional(section.name)) {
    for (FileEntry& line : positional_lines(document_, index)) {
      by_key_.push_back(entries_.size());
      entries_.push_back(std::move(line));
    }
    return;
  }
  // The lines that a lookup of their key may take, by key and then by place.
  struct Candidate {
    std::string_view key;
    std::size_t line;
    bool has_equals;
  };
  std::vector<Candidate> candidates;
  for (std::size_t at = section.header + 1; at < section.after; ++at) {
    const TextLine line = document_.line(at);
    const std::string_view key = qel::text::first_token(line.text);
    if (!filter.wants_key(key)) {
      continue;
    }
    const LineKind kind = qel::kind_of(line);
    if (kind == LineKind::entry || kind == LineKind::without_equals) {
      candidates.push_back({key, at, kind == LineKind::entry});
    }
  }
  std::ranges::sort(candidates, [](const Candidate& a, const Candidate& b) {
    const int order = a.key.compare(b.key);
    return order != 0 ? order < 0 : a.line < b.line;
  });
  const std::size_t first = entries_.size();
  for (std::size_t at = 0; at < candidates.size();) {
    const Candidate& taken = candidates[at];
    bool has_equals = false;
    for (; at < candidates.size() && candidates[at].key == taken.key; ++at) {
      has_equals = has_equals || candidates[at].has_equals;
    }
    std::string key(taken.key);
    if (has_equals || is_known(known_[index], key)) {
      entries_.push_back(
          {index, taken.line, std::move(key), value_of(document_, document_.line(taken.line))});
    }
  }
  std::ranges::sort(entries_.begin() + static_cast<std::ptrdiff_t>(first), entries_.end(),
                    std::ranges::less(), &FileEntry::line);
  by_key_.resize(entries_.size());
  const auto own = by_key_.begin() + static_cast<std::ptrdiff_t>(first);
  std::iota(own, by_key_.end(), first);
  std::ranges::sort(own, by_key_.end(), std::ranges::less(),
                    [this](std::size_t at) -> const std::string& { return entries_[at].key; });
}

std::span<const FileEntry> Entries::of(const TextSection& section) const {
  const auto index = static_cast<std::size_t>(&section - document_.sections().data());
  return std::span(entries_).subspan(first_of_section_[index],
                                     first_of_section_[index + 1] - first_of_section_[index]);
}

const TextSection* Entries::find_section(std::string_view name) const {
  const std::string_view positional = without_brackets(
      qel::text::kPositionalHeader.substr(1, qel::text::kPositionalHeader.find(' ') - 1));
  if (const TextSection* section = document_.find(with_brackets(name)); section != nullptr) {
    return section;
  }
  return without_brackets(name) == positional ? document_.find(qel::text::kPositionalHeader)
                                              : nullptr;
}

const FileEntry* Entries::find(std::string_view name, std::string_view key) const {
  const TextSection* const section = find_section(name);
  if (section == nullptr) {
    return nullptr;
  }
  if (qel::is_positional(section->name)) {
    const auto line = section->header + static_cast<std::size_t>(position_of(key));
    const std::span<const FileEntry> lines = of(*section);
    const auto found = std::ranges::lower_bound(lines, line, {}, &FileEntry::line);
    return position_of(key) != 0 && found != lines.end() && found->line == line ? &*found : nullptr;
  }
  const auto index = static_cast<std::size_t>(section - document_.sections().data());
  const auto begin = by_key_.begin() + static_cast<std::ptrdiff_t>(first_of_section_[index]);
  const auto end = by_key_.begin() + static_cast<std::ptrdiff_t>(first_of_section_[index + 1]);
  const auto found = std::ranges::lower_bound(
      begin, end, key, {}, [this](std::size_t at) -> std::string_view { return entries_[at].key; });
  return found != end && entries_[*found].key == key ? &entries_[*found] : nullptr;
}

std::vector<const FileEntry*> Entries::find(const Request& request) const {
  for (const Address& address : request.addresses) {
    if (const FileEntry* entry = find(address)) {
      return {entry};
    }
  }
  std::vector<const FileEntry*> found;
  if (request.is_pattern) {
    for (const FileEntry& entry : entries_) {
      if (matches_pattern(request.argument, text_of(address_of(entry)))) {
        found.push_back(&entry);
      }
    }
  }
  return found;
}

std::vector<Address> Entries::targets_of(const Request& request) const {
  std::vector<Address> targets;
  for (const FileEntry* entry : find(request)) {
    targets.push_back(address_of(*entry));
  }
  if (!targets.empty() || request.is_pattern) {
    return targets;
  }
  const auto own = std::ranges::find_if(request.addresses, [this](const Address& address) {
    return find_section(address.section) != nullptr;
  });
  return {own != request.addresses.end() ? *own : request.addresses.front()};
}

Address Entries::address_of(const FileEntry& entry) const {
  return {std::string(without_brackets(section_of(entry))), entry.key};
}

std::string_view Entries::section_of(const FileEntry& entry) const {
  return document_.sections()[entry.section].name;
}

const qel::SectionInfo* Entries::known_section(const TextSection& section) const {
  return known_[static_cast<std::size_t>(&section - document_.sections().data())];
}

std::size_t Entries::line_number(const FileEntry& entry) const {
  return document_.line(entry.line).number;
}

}  // namespace qelpro
