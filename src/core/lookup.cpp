#include "core/lookup.h"

#include "core/glance.h"
#include "text/text.h"

namespace qel {
namespace {

// Goes on to the section's header; `learnt` is its place in the index, which takes every header on
// the way.
bool find_header(LineScanner& lines, std::string_view section, SectionIndex* index,
                 SectionIndex::Section** learnt) {
  Line line;
  while (lines.next_starting_with('[', line)) {
    if (!text::is_header(line.text)) {
      continue;
    }
    const std::string_view name = text::first_token(line.text);
    if (index != nullptr) {
      // The furthest line of an earlier file is no start of a line here.
      line.is_piece = line.is_piece || line.start == index->furthest().place().offset;
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
  HashedName name;
};

// Enters a line that was passed into the index, once.
void learn(const IndexedTarget& at, const Target& target, const Line& line,
           std::string_view token) {
  if (token.empty() ||
      (at.section.passed.is_set() && line.start <= at.section.passed.place().offset)) {
    return;
  }
  const LineMark mark = at.index.mark(line, token);
  // A name with a carriage return in it is never looked up with success.
  if (target.by_key() && token == target.key) {
    at.index.learn_entry(at.name, mark);
  } else if (text::is_findable(token)) {
    at.index.learn_entry(at.section.line_name(token), mark);
  }
  at.section.passed = mark;
}

// From the line after the header on; or, when `header_comes_first`, from the header, which then
// counts as line 1.
std::optional<Line> find_inside(LineScanner& lines, const Target& target,
                                const IndexedTarget* indexed, bool header_comes_first) {
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
      learn(*indexed, target, line, text::first_token(line.text));
    }
    if (found) {
      if (indexed != nullptr && !target.by_key()) {
        indexed->index.learn_position(indexed->name,
                                      indexed->index.mark(line, text::first_token(line.text)));
      }
      return line;
    }
  }
  return std::nullopt;
}

constexpr std::size_t kOneLine = 256;
constexpr std::size_t kFewLines = 512;
constexpr std::size_t kOneSection = 4096;

// A lookup in one reading session. Each step that takes something learnt of the present file looks
// whether it still stands there, and sets `changed` where it does not.
class IndexedLookup {
 public:
  IndexedLookup(platform::ReadAccess& file, const Target& target, SectionIndex& index,
                LookupRoom& room)
      : file_(file), target_(target), index_(index), room_(room) {}

  std::optional<Line> find();
  [[nodiscard]] bool changed() const { return changed_; }

 private:
  using Place = SectionIndex::Place;
  using Section = SectionIndex::Section;

  [[nodiscard]] bool is_present(std::uint32_t file) const {
    return index_.is_of_present_file(file);
  }
  LineScanner& lines() { return room_.lines(); }
  void begin_at(const Place& place, std::size_t expected);
  bool next_at(const Place& place, Line& line);
  bool find_header_again(const Place& header, std::size_t expected, Line& line);
  std::optional<Line> glance_at_known(const Section& section, const Place& place);
  std::optional<Line> glance_after_passed(const IndexedTarget& indexed);
  std::optional<Line> find_in(const Section& section, const Place& place);
  std::optional<Line> find_known_entry(const Section& section, const Place& place);
  std::optional<Line> find_known_position(const Section& section, const LineMark& mark);
  std::optional<Line> find_after_passed(const IndexedTarget& indexed);
  std::optional<Line> find_in_known(const IndexedTarget& indexed);
  std::optional<Line> find_in_unknown();
  std::optional<Line> note_change() {
    changed_ = !room_.failed();
    return std::nullopt;
  }

  platform::ReadAccess& file_;
  const Target& target_;
  SectionIndex& index_;
  LookupRoom& room_;
  bool changed_ = false;
};

// Whether a line's beginning shows by the line break in front of it. A piece of a long line has
// none, nor has the file's first line.
bool has_break_before(const SectionIndex::Place& place) {
  return !place.is_piece && place.offset > static_cast<std::int64_t>(text::kByteOrderMark.size());
}

// Begins to read at the place, or at the line break in front of it.
void IndexedLookup::begin_at(const Place& place, std::size_t expected) {
  room_.scan(file_, has_break_before(place) ? place.offset - 1 : place.offset, expected);
}

// The line at the place, to which `lines_` has come; false where no line begins there any more.
bool IndexedLookup::next_at(const Place& place, Line& line) {
  return (!has_break_before(place) || (lines().next(line) && line.end == place.offset)) &&
         lines().next(line);
}

bool IndexedLookup::find_header_again(const Place& header, std::size_t expected, Line& line) {
  begin_at(header, expected);
  return next_at(header, line) && text::is_header(line.text) &&
         text::first_token(line.text) == target_.section;
}

// The line of a known key, where it and its section's header stand where they stood and are as most
// are.
std::optional<Line> IndexedLookup::glance_at_known(const Section& section, const Place& place) {
  if (!is_present(place.file) || !is_present(section.header.file) ||
      section.header.offset >= place.offset) {
    return std::nullopt;
  }
  Glance glance(file_, room_.glance(), LookupRoom::kGlance);
  Line line;
  const bool found =
      glance.see_header(section.header, target_.section, place.offset, Glance::kOneLine) &&
      glance.go_to(place) && glance.next_of(target_.key, line);
  return found ? std::optional(line) : std::nullopt;
}

// The line of a key that is not known yet, among the first ones after those that are, where all of
// them are as most are.
std::optional<Line> IndexedLookup::glance_after_passed(const IndexedTarget& indexed) {
  Section& section = indexed.section;
  const bool has_passed = is_present(section.passed.place().file);
  if (!is_present(section.header.file)) {
    return std::nullopt;
  }
  const Place& last = has_passed ? section.passed.place() : section.header;
  Glance glance(file_, room_.glance(), LookupRoom::kGlance);
  Line line;
  if (!glance.see_header(section.header, target_.section, last.offset,
                         has_passed ? kFewLines : LookupRoom::kGlance / 2)) {
    return std::nullopt;
  }
  if (!has_passed) {
    section.passed = {};
  } else if (!glance.go_to(last) || !glance.pass(section.passed)) {
    return std::nullopt;
  }
  for (std::string_view token; glance.next(line, token) && !line.text.starts_with('[');) {
    const bool is_wanted = !token.empty() && token == target_.key;
    if (is_wanted && !Glance::is_whole(line)) {
      return std::nullopt;
    }
    learn(indexed, target_, line, token);
    if (is_wanted) {
      return line;
    }
  }
  return std::nullopt;
}

// The line at a place in the section. In the present file, nothing where the section's header or
// the line does not stand where it stood. One read serves for both where they are near each other.
std::optional<Line> IndexedLookup::find_in(const Section& section, const Place& place) {
  Line line;
  if (!is_present(place.file)) {
    room_.scan(file_, place.offset, kOneLine);
    return lines().next(line) ? std::optional(line) : std::nullopt;
  }
  bool is_there = false;
  if (is_present(section.header.file) && section.header.offset < place.offset) {
    const std::int64_t distance = place.offset - section.header.offset;
    const std::size_t both = static_cast<std::size_t>(distance) + kOneLine;
    if (!find_header_again(section.header, both <= LineScanner::kFew ? both : kOneLine, line)) {
      return std::nullopt;
    }
    is_there = lines().skip_to(has_break_before(place) ? place.offset - 1 : place.offset);
  }
  if (!is_there) {
    begin_at(place, kOneLine);
  }
  return next_at(place, line) ? std::optional(line) : std::nullopt;
}

std::optional<Line> IndexedLookup::find_known_entry(const Section& section, const Place& place) {
  if (std::optional<Line> line = glance_at_known(section, place)) {
    return line;
  }
  const std::optional<Line> line = find_in(section, place);
  return !is_present(place.file) || (line && text::first_token_is(line->text, target_.key))
             ? line
             : note_change();
}

std::optional<Line> IndexedLookup::find_known_position(const Section& section,
                                                       const LineMark& mark) {
  const std::optional<Line> line = find_in(section, mark.place());
  return !is_present(mark.place().file) || (line && mark.matches(line->text)) ? line
                                                                              : note_change();
}

// Goes on where the last lookup in the section stopped.
std::optional<Line> IndexedLookup::find_after_passed(const IndexedTarget& indexed) {
  const LineMark& passed = indexed.section.passed;
  const std::optional<Line> line = find_in(indexed.section, passed.place());
  if (!line || !passed.matches(line->text)) {
    return note_change();
  }
  return find_inside(lines(), target_, &indexed, false);
}

std::optional<Line> IndexedLookup::find_in_known(const IndexedTarget& indexed) {
  Section& section = indexed.section;
  const bool has_passed = is_present(section.passed.place().file);
  if (has_passed && target_.by_key()) {
    const std::optional<Line> found = find_after_passed(indexed);
    if (found || changed_ || room_.failed()) {
      return found;
    }
    // Somebody may have put the key into the place of another one before.
  }
  const Place header = section.header;
  Line line;
  if (is_present(header.file) && !find_header_again(header, kOneSection, line)) {
    return note_change();
  }
  if (!has_passed) {
    section.passed = {};
  }
  room_.scan(file_, header.offset, kOneSection);
  return find_inside(lines(), target_, &indexed, true);
}

std::optional<Line> IndexedLookup::find_in_unknown() {
  const LineMark furthest = index_.furthest();
  if (is_present(furthest.place().file)) {
    begin_at(furthest.place(), LineScanner::kFirstBlock);
    Line line;
    if (!next_at(furthest.place(), line) || !furthest.matches(line.text)) {
      return note_change();
    }
  } else {
    room_.scan(file_, furthest.place().offset);
  }
  Section* section = nullptr;
  if (!find_header(lines(), target_.section, &index_, &section)) {
    return std::nullopt;
  }
  const IndexedTarget indexed{index_, *section, section->line_name(target_.key)};
  return find_inside(lines(), target_, &indexed, false);
}

std::optional<Line> IndexedLookup::find() {
  Section* const section = index_.section(target_.section);
  if (section == nullptr) {
    return find_in_unknown();
  }
  if (target_.by_key()) {
    if (const Place* known = index_.next_entry(*section, target_.key)) {
      return find_known_entry(*section, *known);
    }
  }
  const IndexedTarget indexed{index_, *section, section->line_name(target_.key)};
  if (target_.by_key()) {
    if (const Place* known = index_.entry(indexed.name)) {
      return find_known_entry(*section, *known);
    }
    if (std::optional<Line> line = glance_after_passed(indexed)) {
      return line;
    }
  } else if (const LineMark* known = index_.position(indexed.name)) {
    return find_known_position(*section, *known);
  }
  return find_in_known(indexed);
}

}  // namespace

bool find_plain_header(LineScanner& lines, std::string_view section, Line& header) {
  if (section.empty()) {
    return false;
  }
  while (lines.next_starting_with(section, header)) {
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
  return find_header(lines, target.section, nullptr, nullptr)
             ? find_inside(lines, target, nullptr, false)
             : std::nullopt;
}

std::optional<Line> find_indexed(platform::ReadAccess& file, const Target& target,
                                 SectionIndex& index, LookupRoom& room) {
  IndexedLookup lookup(file, target, index, room);
  std::optional<Line> line = lookup.find();
  if (!lookup.changed()) {
    return line;
  }
  index.forget();
  return IndexedLookup(file, target, index, room).find();
}

}  // namespace qel
