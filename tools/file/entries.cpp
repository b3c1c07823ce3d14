#include "file/entries.h"

#include <algorithm>
#include <string>

#include "blocks/catalogue.h"
#include "text/key_order.h"
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
      found_ = qel::find_section(name, number);
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
  [[nodiscard]] bool wants_all() const override { return true; }
};

bool is_known(const qel::SectionInfo* section, std::string_view key) {
  int number = 0;
  return section != nullptr && qel::find_key(*section, key, number) != nullptr;
}

// A value that goes on behind what the engine reads is whole here. `equals` is where the line's
// first "=" stands.
std::string_view value_of(const SectionedText& document, const TextLine& line, std::size_t equals) {
  if (line.goes_on) {
    return qel::text::entry_value(document.to_line_break(line));
  }
  return equals != std::string_view::npos ? qel::text::index_value(line.whole.substr(equals + 1))
                                          : std::string_view();
}

// Whether lookups of its key may take the line, whose first token is not empty.
bool may_be_entry(const TextLine& line, std::string_view key) {
  switch (key.front()) {
    case ';':
    case '#':
    case '/':
    case qel::text::kEndMark: {
      const LineKind kind = qel::kind_of(line);
      return kind == LineKind::entry || kind == LineKind::without_equals;
    }
    default:
      return key.find('\r') == std::string_view::npos;
  }
}

}  // namespace

const qel::SectionInfo* known_section(const std::string& name) {
  int number = 0;
  return qel::find_section(with_brackets(name), number);
}

Entries::Entries(const SectionedText& document) : document_(document) {
  Everything everything;
  add_sections(everything);
}

Entries::Entries(const SectionedText& document, EntryFilter& filter) : document_(document) {
  add_sections(filter);
}

void Entries::add_positional_section(std::size_t index) {
  const TextSection& section = document_.sections()[index];
  std::size_t last = entries_.size();  // after one that is not empty
  for (std::size_t at = section.header + 1; at < section.after; ++at) {
    const TextLine line = document_.line(at);
    entries_.push_back(
        {index, at, "#" + std::to_string(at - section.header), qel::text::index_value(line.whole)});
    last = qel::kind_of(line) != LineKind::blank ? entries_.size() : last;
  }
  entries_.resize(last);
  while (by_key_.size() < last) {
    by_key_.push_back(by_key_.size());
  }
}

// The lines of a section that lookups of their keys may take, in the file's order.
struct Entries::Candidates {
  void find(const SectionedText& document, const TextSection& section, EntryFilter& filter) {
    keys.clear();
    lines.clear();
    for (std::size_t at = section.header + 1; at < section.after; ++at) {
      const TextLine line = document.line(at);
      const std::string_view key = qel::text::first_token(line.text);
      if (!key.empty() && filter.wants_key(key) && may_be_entry(line, key)) {
        keys.push_back(key);
        const std::size_t equals = line.text.find('=', key.size());
        lines.push_back(
            {at, value_of(document, line, equals), equals != std::string_view::npos, false, 0});
      }
    }
  }

  // Of each key the first line, where it makes an entry.
  void choose(const qel::SectionInfo* known) {
    order = in_order.of(keys);
    for (std::size_t at = 0; at < order.size();) {
      const std::size_t first = order[at];
      bool has_equals = false;
      for (; at < order.size() && keys[order[at]] == keys[first]; ++at) {
        has_equals = has_equals || lines[order[at]].has_equals;
      }
      lines[first].is_taken = has_equals || is_known(known, keys[first]);
    }
  }

  struct Candidate {
    std::size_t line;
    std::string_view value;
    bool has_equals;
    bool is_taken;
    std::size_t entry;  // that was made of it
  };
  std::vector<std::string_view> keys;
  std::vector<Candidate> lines;
  qel::KeyOrder in_order;
  std::span<const std::size_t> order;
};

void Entries::add_section(std::size_t index, EntryFilter& filter, Candidates& candidates) {
  const TextSection& section = document_.sections()[index];
  if (qel::is_positional(section.name)) {
    add_positional_section(index);
    return;
  }
  candidates.find(document_, section, filter);
  candidates.choose(known_[index]);
  for (std::size_t at = 0; at < candidates.lines.size(); ++at) {
    if (Candidates::Candidate& line = candidates.lines[at]; line.is_taken) {
      line.entry = entries_.size();
      entries_.push_back({index, line.line, std::string(candidates.keys[at]), line.value});
    }
  }
  for (const std::size_t at : candidates.order) {
    if (candidates.lines[at].is_taken) {
      by_key_.push_back(candidates.lines[at].entry);
    }
  }
}

void Entries::add_sections(EntryFilter& filter) {
  KnownSections known;
  Candidates candidates;
  const std::vector<TextSection>& sections = document_.sections();
  constexpr std::size_t kShortest = 16;  // that a usual entry's line is
  first_of_section_.reserve(sections.size() + 1);
  known_.reserve(sections.size());
  entries_.reserve(filter.wants_all()
                       ? std::min(document_.line_count(), document_.contents().size() / kShortest)
                       : 0);
  by_key_.reserve(entries_.capacity());
  for (std::size_t index = 0; index < sections.size(); ++index) {
    first_of_section_.push_back(entries_.size());
    const bool wanted = filter.wants_section(sections[index].name);
    known_.push_back(wanted ? known.find(sections[index].name) : nullptr);
    if (wanted && !sections[index].repeated) {
      add_section(index, filter, candidates);
    }
  }
  first_of_section_.push_back(entries_.size());
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
