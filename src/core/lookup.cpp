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

bool find_header(LineScanner& lines, std::string_view section, SectionIndex* index, Line& line) {
  while (lines.next_starting_with('[', line)) {
    if (!text::is_header(line.text)) {
      continue;
    }
    const std::string_view name = text::first_token(line.text);
    if (index != nullptr) {
      index->learn_section(name, line.start);
    }
    if (name == section) {
      return true;
    }
  }
  return false;
}

// From the line behind the header on; or, when `header_comes_first`, from the header, which then counts as line 1.
std::optional<Line> find_inside(LineScanner& lines, const Target& target, SectionIndex* index, bool header_comes_first) {
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
    if (index != nullptr && line.text.find('=') != std::string_view::npos) {
      index->learn_line(target.section, text::first_token(line.text), line.start);
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

}  // namespace

void SectionIndex::learn_section(std::string_view name, std::int64_t offset) { sections_.try_emplace(std::string(name), offset); }

void SectionIndex::learn_line(std::string_view section, std::string_view key, std::int64_t offset) {
  if (lines_.try_emplace(joined(section, key), offset).second) {
    furthest_ = std::max(furthest_, offset);
  }
}

std::optional<std::int64_t> SectionIndex::section(std::string_view name) const {
  const auto found = sections_.find(joined(name, {}));
  return found == sections_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::int64_t> SectionIndex::line(std::string_view section, std::string_view key) const {
  const auto found = lines_.find(joined(section, key));
  return found == lines_.end() ? std::nullopt : std::optional(found->second);
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
  return find_header(lines, target.section, nullptr, line) ? find_inside(lines, target, nullptr, false) : std::nullopt;
}

std::optional<Line> find_indexed(platform::RandomAccess& file, const Target& target, SectionIndex& index, std::optional<LineScanner>& lines) {
  constexpr std::size_t kOneLine = 512;
  constexpr std::size_t kOneSection = 4096;
  Line line;
  if (const auto known = index.line(target.section, target.key)) {
    lines.emplace(file, *known, kOneLine);
    return lines->next(line) ? std::optional(line) : std::nullopt;
  }
  if (const auto header = index.section(target.section)) {
    lines.emplace(file, *header, kOneSection);
    return find_inside(*lines, target, &index, true);
  }
  lines.emplace(file, index.furthest_line());
  return find_header(*lines, target.section, &index, line) ? find_inside(*lines, target, &index, false) : std::nullopt;
}

}  // namespace qel
