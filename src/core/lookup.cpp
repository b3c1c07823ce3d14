#include "core/lookup.h"

#include <algorithm>

#include "core/text.h"

namespace qel {
namespace {

bool find_header(LineScanner& lines, std::string_view section, SectionIndex* index, Line& line, SectionIndex::Section** learnt) {
  while (lines.next_starting_with('[', line)) {
    if (!text::is_header(line.text)) {
      continue;
    }
    const std::string_view name = text::first_token(line.text);
    if (index != nullptr) {
      *learnt = &index->learn_section(name, line.start);
    }
    if (name == section) {
      return true;
    }
  }
  return false;
}

// What a lookup through an index looks for, under the name by which the index knows it.
struct IndexedTarget {
  SectionIndex& index;
  SectionIndex::Section& section;
  const OffsetTable::Name& name;
};

// Enters a line that was passed into the index, once.
void learn(const IndexedTarget& at, const Target& target, bool is_target, const Line& line) {
  if (line.start < at.section.passed) {
    return;
  }
  at.section.passed = line.end;
  if (!is_target && line.text.find('=') != std::string_view::npos) {
    at.index.learn_line(at.index.line_name(SectionIndex::Purpose::passed, target.section, text::first_token(line.text)), line.start);
  }
}

// From the line behind the header on; or, when `header_comes_first`, from the header, which then counts as line 1.
std::optional<Line> find_inside(LineScanner& lines, const Target& target, const IndexedTarget* indexed, bool header_comes_first) {
  Line line;
  int position = 1;
  for (; lines.next(line); header_comes_first = false) {
    if (!header_comes_first && text::is_header(line.text)) {
      return std::nullopt;
    }
    const bool found = is_target(target, line, position);
    ++position;
    if (indexed != nullptr) {
      if (target.by_key() || !found) {
        learn(*indexed, target, found, line);
      }
      if (found) {
        // One found by its index, too: the next lookup of the same section and key, whatever its index, gives this line again.
        indexed->index.learn_line(indexed->name, line.start);
      }
    }
    if (found) {
      return line;
    }
  }
  return std::nullopt;
}

// Goes on where the last lookup in the section stopped, as long as a line still begins there.
std::optional<Line> find_behind_passed(platform::RandomAccess& file, const Target& target, const IndexedTarget& indexed,
                                       std::optional<LineScanner>& lines) {
  constexpr std::size_t kSomeLines = 256;
  const std::int64_t passed = indexed.section.passed;
  if (passed == 0 || !target.by_key()) {
    return std::nullopt;
  }
  lines.emplace(file, passed - 1, kSomeLines);
  Line line_end;
  lines->next(line_end);
  if (line_end.end != passed) {
    return std::nullopt;
  }
  return find_inside(*lines, target, &indexed, false);
}

}  // namespace

SectionIndex::Section& SectionIndex::learn_section(std::string_view name, std::int64_t offset) {
  return sections_.try_emplace(std::string(name), Section{offset}).first->second;
}

SectionIndex::Section* SectionIndex::section(std::string_view name) {
  if (last_section_ == nullptr || last_section_->first != name) {
    const auto found = sections_.find(std::string(name));
    if (found == sections_.end()) {
      return nullptr;
    }
    last_section_ = &*found;
  }
  return &last_section_->second;
}

OffsetTable::Name SectionIndex::line_name(Purpose purpose, std::string_view section, std::string_view key) {
  return OffsetTable::Name(names_[static_cast<std::size_t>(purpose)].assign(section).append(key));
}

void SectionIndex::learn_line(const OffsetTable::Name& name, std::int64_t offset) {
  if (lines_.insert(name, offset)) {
    furthest_ = std::max(furthest_, offset);
  }
}

void SectionIndex::turn_to_another_file() {
  for (auto& section : sections_) {
    section.second.passed = 0;
  }
}

bool find_plain_header(LineScanner& lines, std::string_view section, Line& header) {
  if (section.empty()) {
    return false;
  }
  while (lines.next_starting_with(section.front(), header)) {
    if (text::first_token_is(header.text, section)) {
      return true;
    }
  }
  return false;
}

bool is_target(const Target& target, const Line& line, int position) {
  return target.by_key() ? text::first_token_is(line.text, target.key) : target.index == position;
}

std::optional<Line> find_plainly(LineScanner& lines, const Target& target) {
  Line line;
  if (!find_plain_header(lines, target.section, line)) {
    return std::nullopt;
  }
  for (int position = 1; lines.next(line); ++position) {
    if (is_target(target, line, position)) {
      return line;
    }
  }
  return std::nullopt;
}

std::optional<Line> find_in_section(LineScanner& lines, const Target& target) {
  Line line;
  return find_header(lines, target.section, nullptr, line, nullptr) ? find_inside(lines, target, nullptr, false) : std::nullopt;
}

std::optional<Line> find_indexed(platform::RandomAccess& file, const Target& target, SectionIndex& index, std::optional<LineScanner>& lines) {
  constexpr std::size_t kOneLine = 256;
  constexpr std::size_t kOneSection = 4096;
  Line line;
  const OffsetTable::Name name = index.line_name(SectionIndex::Purpose::looked_for, target.section, target.key);
  if (const auto known = index.line(name)) {
    lines.emplace(file, *known, kOneLine);
    return *known != 0 && lines->next(line) ? std::optional(line) : std::nullopt;
  }
  if (SectionIndex::Section* section = index.section(target.section)) {
    const IndexedTarget indexed{index, *section, name};
    if (const std::optional<Line> found = find_behind_passed(file, target, indexed, lines)) {
      return found;
    }
    lines.emplace(file, section->header, kOneSection);
    return find_inside(*lines, target, &indexed, true);
  }
  SectionIndex::Section* section = nullptr;
  lines.emplace(file, index.furthest_line());
  if (!find_header(*lines, target.section, &index, line, &section)) {
    return std::nullopt;
  }
  const IndexedTarget indexed{index, *section, name};
  return find_inside(*lines, target, &indexed, false);
}

}  // namespace qel
