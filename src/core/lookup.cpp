#include "core/lookup.h"

#include "core/text.h"

namespace qel {
namespace {

// Goes on to the section's header; `learnt` is its place in the index, which takes every header on the way.
bool find_header(LineScanner& lines, std::string_view section, SectionIndex* index, SectionIndex::Section** learnt) {
  Line line;
  while (lines.next_starting_with('[', line)) {
    if (!text::is_header(line.text)) {
      continue;
    }
    const std::string_view name = text::first_token(line.text);
    if (index != nullptr) {
      // The furthest line of an earlier file is no start of a line here.
      line.is_piece = line.is_piece || line.start == index->furthest().start();
      *learnt = &index->learn_section(name, line);
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
  const HashedName& name;
};

// Enters a line that was passed into the index, once.
void learn(const IndexedTarget& at, const Target& target, const Line& line) {
  const std::string_view token = text::first_token(line.text);
  if (token.empty() || (at.section.passed.is_set() && line.start <= at.section.passed.start())) {
    return;
  }
  at.section.passed = at.index.mark(line, token);
  // A name with a carriage return in it is never looked up with success.
  if (target.by_key() && token == target.key) {
    at.index.learn_entry(at.name, line, token);
  } else if (text::is_findable(token)) {
    at.index.learn_entry(at.index.line_name(SectionIndex::Purpose::passed, target.section, token), line, token);
  }
}

// From the line behind the header on; or, when `header_comes_first`, from the header, which then counts as line 1.
std::optional<Line> find_inside(LineScanner& lines, const Target& target, const IndexedTarget* indexed, bool header_comes_first) {
  Line line;
  for (int position = 1; lines.next(line); ++position, header_comes_first = false) {
    // An offset of an earlier file may lie inside a line.
    line.is_piece = line.is_piece || header_comes_first;
    if (!header_comes_first && text::is_header(line.text)) {
      return std::nullopt;
    }
    // The header counts as a line, and is no key's.
    const bool is_own_header = header_comes_first && text::is_header(line.text);
    const bool found = is_target(target, line, position) && !(is_own_header && target.by_key());
    if (indexed != nullptr && !is_own_header && (target.by_key() || !found)) {
      learn(*indexed, target, line);
    }
    if (found) {
      if (indexed != nullptr && !target.by_key()) {
        indexed->index.learn_position(indexed->name, line, text::first_token(line.text));
      }
      return line;
    }
  }
  return std::nullopt;
}

constexpr std::size_t kOneLine = 256;
constexpr std::size_t kOneSection = 4096;

// A lookup in one reading session. Each step that takes something learnt of the present file looks whether it still stands there,
// and sets `changed` where it does not.
class IndexedLookup {
 public:
  IndexedLookup(platform::RandomAccess& file, const Target& target, SectionIndex& index, std::optional<LineScanner>& lines)
      : file_(file),
        target_(target),
        index_(index),
        lines_(lines),
        name_(index.line_name(SectionIndex::Purpose::looked_for, target.section, target.key)) {}

  std::optional<Line> find();
  [[nodiscard]] bool changed() const { return changed_; }

 private:
  std::optional<Line> find_at(std::int64_t offset, bool is_piece, std::uint32_t file, std::size_t expected);
  std::optional<Line> find_at(const LineMark& mark, std::size_t expected);
  std::optional<Line> find_known_entry(const SectionIndex::Place& place);
  std::optional<Line> find_known_position(const LineMark& mark);
  std::optional<Line> find_behind_passed(SectionIndex::Section& section);
  std::optional<Line> find_in_known(SectionIndex::Section& section);
  std::optional<Line> find_in_unknown();
  std::optional<Line> note_change() {
    changed_ = !lines_->failed();
    return std::nullopt;
  }

  platform::RandomAccess& file_;
  const Target& target_;
  SectionIndex& index_;
  std::optional<LineScanner>& lines_;
  HashedName name_;
  bool changed_ = false;
};

// The line that begins at the offset. In the present file, nothing where none begins there any more.
std::optional<Line> IndexedLookup::find_at(std::int64_t offset, bool is_piece, std::uint32_t file, std::size_t expected) {
  const bool shows_line_break = index_.is_of_present_file(file) && !is_piece && offset > static_cast<std::int64_t>(text::kByteOrderMark.size());
  lines_.emplace(file_, shows_line_break ? offset - 1 : offset, expected);
  Line line;
  if (shows_line_break && (!lines_->next(line) || line.end != offset)) {
    return std::nullopt;
  }
  return lines_->next(line) ? std::optional(line) : std::nullopt;
}

std::optional<Line> IndexedLookup::find_at(const LineMark& mark, std::size_t expected) {
  std::optional<Line> line = find_at(mark.start(), mark.is_piece(), mark.file(), expected);
  return line && (!index_.is_of_present_file(mark.file()) || mark.matches(line->text)) ? line : std::nullopt;
}

std::optional<Line> IndexedLookup::find_known_entry(const SectionIndex::Place& place) {
  std::optional<Line> line = find_at(place.offset, place.is_piece, place.file, kOneLine);
  if (!index_.is_of_present_file(place.file) || (line && text::first_token_is(line->text, target_.key))) {
    return line;
  }
  return note_change();
}

std::optional<Line> IndexedLookup::find_known_position(const LineMark& mark) {
  std::optional<Line> line = find_at(mark, kOneLine);
  return line || !index_.is_of_present_file(mark.file()) ? line : note_change();
}

// Goes on where the last lookup in the section stopped.
std::optional<Line> IndexedLookup::find_behind_passed(SectionIndex::Section& section) {
  if (!find_at(section.passed, kOneLine)) {
    return note_change();
  }
  const IndexedTarget indexed{index_, section, name_};
  return find_inside(*lines_, target_, &indexed, false);
}

std::optional<Line> IndexedLookup::find_in_known(SectionIndex::Section& section) {
  const bool has_passed = section.passed.is_set() && index_.is_of_present_file(section.passed.file());
  if (has_passed && target_.by_key()) {
    const std::optional<Line> found = find_behind_passed(section);
    if (found || changed_ || lines_->failed()) {
      return found;
    }
  }
  const SectionIndex::Place header = section.header;
  if (index_.is_of_present_file(header.file)) {
    const std::optional<Line> line = find_at(header.offset, header.is_piece, header.file, kOneSection);
    if (!line || !text::is_header(line->text) || text::first_token(line->text) != target_.section) {
      return note_change();
    }
  }
  if (!has_passed) {
    section.passed = {};
  }
  lines_.emplace(file_, header.offset, kOneSection);
  const IndexedTarget indexed{index_, section, name_};
  return find_inside(*lines_, target_, &indexed, true);
}

std::optional<Line> IndexedLookup::find_in_unknown() {
  const LineMark& furthest = index_.furthest();
  if (!furthest.is_set() || !index_.is_of_present_file(furthest.file())) {
    lines_.emplace(file_, furthest.start());
  } else if (!find_at(furthest, LineScanner::kFirstBlock)) {
    return note_change();
  }
  SectionIndex::Section* section = nullptr;
  if (!find_header(*lines_, target_.section, &index_, &section)) {
    return std::nullopt;
  }
  const IndexedTarget indexed{index_, *section, name_};
  return find_inside(*lines_, target_, &indexed, false);
}

std::optional<Line> IndexedLookup::find() {
  changed_ = false;
  if (target_.by_key()) {
    if (const SectionIndex::Place* known = index_.entry(name_)) {
      return find_known_entry(*known);
    }
  } else if (const LineMark* known = index_.position(name_)) {
    return find_known_position(*known);
  }
  SectionIndex::Section* const section = index_.section(target_.section);
  return section != nullptr ? find_in_known(*section) : find_in_unknown();
}

}  // namespace

bool find_plain_header(LineScanner& lines, std::string_view section, Line& header) {
  if (section.empty()) {
    return false;
  }
  while (lines.next_starting_with(section.front(), header)) {
    if (text::is_header_of(header.text, section)) {
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
  return find_header(lines, target.section, nullptr, nullptr) ? find_inside(lines, target, nullptr, false) : std::nullopt;
}

std::optional<Line> find_indexed(platform::RandomAccess& file, const Target& target, SectionIndex& index, std::optional<LineScanner>& lines) {
  IndexedLookup lookup(file, target, index, lines);
  std::optional<Line> line = lookup.find();
  if (lookup.changed()) {
    index.forget();
    line = lookup.find();
  }
  return line;
}

}  // namespace qel
