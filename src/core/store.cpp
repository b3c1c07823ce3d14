#include "core/store.h"

#include <algorithm>
#include <utility>

#include "text/text.h"

namespace qel {
namespace {

bool has_line_break(std::string_view text) {
  return text.find_first_of("\r\n") != std::string_view::npos;
}

std::string_view without_trailing_break(std::string_view value) {
  return text::trim_end(value, "\r\n");
}

// Whether a line of so many characters may be written; its line break counts as one.
bool fits(std::size_t size) { return size + 1 <= text::kLongestLine; }

std::string line_of(const Entry& entry) {
  const std::string_view value = without_trailing_break(entry.value);
  return entry.target.by_key() ? text::padded_entry(entry.target.key, value) : std::string(value);
}

std::string inserted_line_of(const Entry& entry) {
  return text::plain_entry(entry.target.key, without_trailing_break(entry.value));
}

// Whether the line holds a value under the key, indented or not; what stands between the two is "="
// or a carriage return.
bool assigns(std::string_view line, std::string_view key) {
  constexpr std::string_view kSeparators = "=\r\n";
  line.remove_prefix(std::min(line.find_first_not_of(kSeparators), line.size()));
  const std::size_t end = line.find_first_of(kSeparators);
  return end != std::string_view::npos &&
         line.find_first_not_of(kSeparators, end) != std::string_view::npos &&
         text::trim_blanks(line.substr(0, end)) == key;
}

// Goes on to the header behind the section's, and tells where it begins, or where the contents end.
std::size_t end_of_section(LineScanner& lines, std::string_view contents) {
  Line line;
  while (lines.next_starting_with('[', line)) {
    if (text::is_header(line.text)) {
      return static_cast<std::size_t>(line.start);
    }
  }
  return contents.size();
}

Result done_if(bool stored) { return stored ? Result::done : Result::no_open; }

}  // namespace

bool is_refused(const Entry& entry) {
  const Target& target = entry.target;
  const auto holds_end_mark = [](std::string_view text) {
    return text.find(text::kEndMark) != std::string_view::npos;
  };
  if (holds_end_mark(target.section) || holds_end_mark(target.key) || holds_end_mark(entry.value)) {
    return true;  // some programs would take it for the end of the file
  }
  const std::string_view value = without_trailing_break(entry.value);
  if (!fits(target.section.size()) || has_line_break(value)) {
    return true;
  }
  if (target.by_key()) {
    return !text::is_section_name(target.section) || !text::is_key(target.key) ||
           !fits(target.key.size() + text::kAssignment.size() + value.size());
  }
  // A positional section is asked for by the first token of its header, which may be an open
  // bracket and a word. A line that reads as a header would end the section it stands in.
  return target.index == 0 || !text::is_findable(target.section) || target.section.front() != '[' ||
         !fits(value.size()) || text::is_header(value);
}

Result Store::replace_line(const Line& old, std::string line) {
  return done_if(fits(line.size()) &&
                 edit_.replace(static_cast<std::size_t>(old.start),
                               static_cast<std::size_t>(old.end), line.append(edit_.line_break())));
}

// A key that stands nowhere behind the section's header is new: no line needs a look.
bool Store::is_mentioned_behind(const Line& header, std::string_view key) const {
  return edit_.contents().find(key, static_cast<std::size_t>(header.end)) != std::string_view::npos;
}

Result Store::insert_line(std::size_t at, std::string line) {
  line.append(edit_.line_break());
  return done_if(edit_.insert(at, std::move(line)));
}

Result Store::append_section(std::string_view header, std::string line) {
  return done_if(fits(line.size()) &&
                 edit_.append_section(header, line.append(edit_.line_break())));
}

Result Store::set(const Entry& entry, bool may_insert) {
  if (!edit_.load()) {
    return Result::no_open;
  }
  const Target& target = entry.target;
  LineScanner lines(edit_.contents());
  Line line;
  if (!find_plain_header(lines, target.section, line)) {
    return append_section(target.by_key() ? target.section : text::kPositionalHeader,
                          line_of(entry));
  }
  if (target.by_key() && !is_mentioned_behind(line, target.key)) {
    return may_insert
               ? insert_line(end_of_section(lines, edit_.contents()), inserted_line_of(entry))
               : Result::absent;
  }
  for (int position = 1; lines.next(line); ++position) {
    if (!target.by_key() && text::is_header(line.text)) {
      return insert_line(static_cast<std::size_t>(line.start), line_of(entry));
    }
    if (is_target(target, line, position)) {
      return replace_line(line, line_of(entry));
    }
  }
  if (!target.by_key()) {
    return insert_line(edit_.contents().size(), line_of(entry));
  }
  return may_insert ? insert_into_section(entry) : Result::absent;
}

Result Store::insert(const Entry& entry) {
  return edit_.load() ? insert_into_section(entry) : Result::no_open;
}

Result Store::insert_into_section(const Entry& entry) {
  const Target& target = entry.target;
  LineScanner lines(edit_.contents());
  Line line;
  if (!find_plain_header(lines, target.section, line)) {
    return append_section(target.section, inserted_line_of(entry));
  }
  if (!is_mentioned_behind(line, target.key)) {
    return insert_line(end_of_section(lines, edit_.contents()), inserted_line_of(entry));
  }
  while (lines.next(line)) {
    if (text::is_header(line.text) || assigns(line.text, target.key)) {
      return insert_line(static_cast<std::size_t>(line.start), inserted_line_of(entry));
    }
  }
  return insert_line(edit_.contents().size(), inserted_line_of(entry));
}

Result Store::replace(const Entry& entry) {
  if (!edit_.load()) {
    return Result::no_open;
  }
  edit_.drop_padding();
  const Target& target = entry.target;
  LineScanner lines(edit_.contents());
  Line line;
  if (!find_plain_header(lines, target.section, line)) {
    return append_section(target.section, inserted_line_of(entry));
  }
  while (lines.next(line)) {
    if (text::first_token_is(line.text, target.key)) {
      return replace_line(line, inserted_line_of(entry));
    }
    if (line.text.find('[') != std::string_view::npos) {
      // Any bracket counts as the next section here, and an empty line sets it off.
      return insert_line(static_cast<std::size_t>(line.start),
                         inserted_line_of(entry).append(edit_.line_break()));
    }
  }
  return insert_line(edit_.contents().size(), inserted_line_of(entry));
}

}  // namespace qel
