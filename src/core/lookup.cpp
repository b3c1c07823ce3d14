#include "core/lookup.h"

#include <algorithm>

#include "core/text.h"

namespace qel {
namespace {

// A line and its section's name are looked up under one joined text, the way it is spelled in the file.
std::string& joined(std::string_view section, std::string_view key) {
  thread_local std::string name;
  return name.assign(section).append(key);
}

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

// Enters a line that was passed into the index, once.
void learn(SectionIndex& index, SectionIndex::Section& section, std::string_view name, const Line& line) {
  if (line.start < section.passed) {
    return;
  }
  section.passed = line.end;
  if (line.text.find('=') != std::string_view::npos) {
    index.learn_line(name, text::first_token(line.text), line.start);
  }
}

// From the line behind the header on; or, when `header_comes_first`, from the header, which then counts as line 1.
std::optional<Line> find_inside(LineScanner& lines, const Target& target, SectionIndex* index, SectionIndex::Section* section,
                                bool header_comes_first) {
  Line line;
  int position = 1;
  for (; lines.next(line); header_comes_first = false) {
    if (!header_comes_first && text::is_header(line.text)) {
      return std::nullopt;
    }
    if (target.index == position) {
      if (index != nullptr) {
        // Kept as it is: the next lookup of the same section and key, whatever its index, gives this line again.
        index->learn_line(target.section, target.key, line.start);
      }
      return line;
    }
    ++position;
    if (index != nullptr) {
      learn(*index, *section, target.section, line);
    }
    if (target.by_key() && text::first_token_is(line.text, target.key)) {
      if (index != nullptr) {
        index->learn_line(target.section, target.key, line.start);
      }
      return line;
    }
  }
  return std::nullopt;
}

// Goes on where the last lookup in the section stopped, as long as a line still begins there.
std::optional<Line> find_behind_passed(platform::RandomAccess& file, const Target& target, SectionIndex& index, SectionIndex::Section& section,
                                       std::optional<LineScanner>& lines) {
  constexpr std::size_t kSomeLines = 1024;
  if (section.passed == 0 || !target.by_key()) {
    return std::nullopt;
  }
  lines.emplace(file, section.passed - 1, kSomeLines);
  Line line_end;
  if (!lines->next(line_end) || line_end.end != section.passed || !line_end.text.empty()) {
    return std::nullopt;
  }
  return find_inside(*lines, target, &index, &section, false);
}

}  // namespace

SectionIndex::Section& SectionIndex::learn_section(std::string_view name, std::int64_t offset) {
  return sections_.try_emplace(std::string(name), Section{offset}).first->second;
}

void SectionIndex::learn_line(std::string_view section, std::string_view key, std::int64_t offset) {
  if (lines_.try_emplace(joined(section, key), offset).second) {
    furthest_ = std::max(furthest_, offset);
  }
}

SectionIndex::Section* SectionIndex::section(std::string_view name) {
  const auto found = sections_.find(joined(name, {}));
  return found == sections_.end() ? nullptr : &found->second;
}

std::optional<std::int64_t> SectionIndex::line(std::string_view section, std::string_view key) const {
  const auto found = lines_.find(joined(section, key));
  return found == lines_.end() ? std::nullopt : std::optional(found->second);
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
  return find_header(lines, target.section, nullptr, line, nullptr) ? find_inside(lines, target, nullptr, nullptr, false) : std::nullopt;
}

std::optional<Line> find_indexed(platform::RandomAccess& file, const Target& target, SectionIndex& index, std::optional<LineScanner>& lines) {
  constexpr std::size_t kOneLine = 512;
  constexpr std::size_t kOneSection = 4096;
  Line line;
  if (const auto known = index.line(target.section, target.key)) {
    lines.emplace(file, *known, kOneLine);
    return *known != 0 && lines->next(line) ? std::optional(line) : std::nullopt;
  }
  if (SectionIndex::Section* section = index.section(target.section)) {
    if (const std::optional<Line> found = find_behind_passed(file, target, index, *section, lines)) {
      return found;
    }
    lines.emplace(file, section->header, kOneSection);
    return find_inside(*lines, target, &index, section, true);
  }
  SectionIndex::Section* section = nullptr;
  lines.emplace(file, index.furthest_line());
  return find_header(*lines, target.section, &index, line, &section) ? find_inside(*lines, target, &index, section, false) : std::nullopt;
}

}  // namespace qel
