#include "core/store.h"

#include <algorithm>

#include "platform/line_break.h"
#include "text/text.h"

namespace qel {
namespace {

bool has_line_break(std::string_view text) {
  return text.find_first_of("\r\n") != std::string_view::npos;
}

std::string_view without_trailing_break(std::string_view value) {
  return text::trim_end(value, "\r\n");
}

// The longest line that may be written; its line break counts as one character.
bool fits(std::string_view line) { return line.size() + 1 <= text::kLongestLine; }

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

}  // namespace

bool is_refused(const Entry& entry) {
  const Target& target = entry.target;
  const auto holds_end_mark = [](std::string_view text) {
    return text.find(text::kEndMark) != std::string_view::npos;
  };
  if (holds_end_mark(target.section) || holds_end_mark(target.key) || holds_end_mark(entry.value)) {
    return true;  // some programs would take it for the end of the file
  }
  if (!fits(target.section) || has_line_break(without_trailing_break(entry.value))) {
    return true;
  }
  if (target.by_key()) {
    return !text::is_section_name(target.section) || !text::is_key(target.key) ||
           !fits(inserted_line_of(entry));
  }
  // A positional section is asked for by the first token of its header, which may be an open
  // bracket and a word. A line that reads as a header would end the section it stands in.
  const std::string line = line_of(entry);
  return target.index == 0 || !text::is_findable(target.section) || target.section.front() != '[' ||
         !fits(line) || text::is_header(line);
}

bool Store::load() {
  if (!image_.load(file_, size_)) {
    return false;
  }
  contents_ = image_.bytes().substr(0, length_without_padding(image_.bytes()));
  const std::size_t first_break = contents_.find('\n');
  if (first_break == std::string_view::npos) {
    line_break_ = platform::kLineBreak;
  } else {
    line_break_ = first_break > 0 && contents_[first_break - 1] == '\r' ? "\r\n" : "\n";
  }
  return true;
}

// Puts bytes over the file's from an offset on, growing it where they reach further; all of them,
// or none.
bool Store::overwrite(std::size_t at, std::string_view bytes) {
  const auto offset = static_cast<std::int64_t>(at);
  const auto old_size = static_cast<std::int64_t>(image_.bytes().size());
  if (!file_.secure_growth(old_size, offset + static_cast<std::int64_t>(bytes.size()))) {
    return false;
  }
  if (file_.write_at(offset, bytes.data(), bytes.size())) {
    return true;
  }
  image_.restore();
  file_.write_at(offset, image_.bytes().data() + at, image_.bytes().size() - at);
  file_.truncate(old_size);
  return false;
}

// Puts text in the place of contents_[at, old_end).
Result Store::splice(std::size_t at, std::size_t old_end, std::string_view text) {
  if (text.size() == old_end - at && !shortens_) {
    return overwrite(at, text) ? Result::done : Result::no_open;
  }
  if (text.size() > FileImage::kRoom) {
    return Result::no_open;
  }
  const std::size_t contents_size = contents_.size();
  std::string behind;
  if (shortens_) {
    behind = (old_end < contents_size ? contents_ : text).back() == '\n' ? std::string_view()
                                                                         : line_break_;
  } else if (text.size() < old_end - at) {
    // The file keeps its length. The blanks of earlier padding are there already.
    behind.assign(old_end - at - text.size(), ' ');
  }
  const std::string_view bytes = image_.compose(text, old_end, contents_size, behind);
  if (!overwrite(at, bytes)) {
    return Result::no_open;
  }
  const std::size_t end = at + bytes.size();
  if (shortens_ && end < image_.bytes().size() && !file_.truncate(static_cast<std::int64_t>(end))) {
    image_.restore();
    overwrite(at, image_.bytes().substr(at));
    return Result::no_open;
  }
  return Result::done;
}

// An entry behind a last line that has no line break would become part of that line.
Result Store::insert_at(std::size_t at, std::string_view line) {
  std::string text;
  if (at == contents_.size() && !contents_.empty() && contents_.back() != '\n') {
    text.append(line_break_);
  }
  append_line(text, line);
  return splice(at, at, text);
}

Result Store::append_section(std::string_view header, std::string_view line) {
  if (!fits(line)) {
    return Result::no_open;
  }
  std::string text(line_break_);
  append_line(text, header);
  append_line(text, line);
  return splice(contents_.size(), contents_.size(), text);
}

Result Store::set(const Entry& entry, bool may_insert) {
  if (!load()) {
    return Result::no_open;
  }
  const Target& target = entry.target;
  const std::string entry_line = line_of(entry);
  LineScanner lines(contents_);
  Line line;
  if (!find_plain_header(lines, target.section, line)) {
    return append_section(target.by_key() ? target.section : text::kPositionalHeader, entry_line);
  }
  for (int position = 1; lines.next(line); ++position) {
    if (!target.by_key() && text::is_header(line.text)) {
      return insert_at(static_cast<std::size_t>(line.start), entry_line);
    }
    if (is_target(target, line, position)) {
      if (!fits(entry_line)) {
        return Result::no_open;
      }
      std::string text;
      append_line(text, entry_line);
      return splice(static_cast<std::size_t>(line.start), static_cast<std::size_t>(line.end), text);
    }
  }
  if (!target.by_key()) {
    return insert_at(contents_.size(), entry_line);
  }
  return may_insert ? insert_into_section(entry) : Result::absent;
}

Result Store::insert(const Entry& entry) {
  return load() ? insert_into_section(entry) : Result::no_open;
}

Result Store::insert_into_section(const Entry& entry) {
  const Target& target = entry.target;
  const std::string entry_line = inserted_line_of(entry);
  LineScanner lines(contents_);
  Line line;
  if (!find_plain_header(lines, target.section, line)) {
    return append_section(target.section, entry_line);
  }
  while (lines.next(line)) {
    if (text::is_header(line.text) || assigns(line.text, target.key)) {
      return insert_at(static_cast<std::size_t>(line.start), entry_line);
    }
  }
  return insert_at(contents_.size(), entry_line);
}

Result Store::replace(const Entry& entry) {
  if (!load()) {
    return Result::no_open;
  }
  shortens_ = true;
  const Target& target = entry.target;
  const std::string entry_line = inserted_line_of(entry);
  LineScanner lines(contents_);
  Line line;
  if (!find_plain_header(lines, target.section, line)) {
    return append_section(target.section, entry_line);
  }
  while (lines.next(line)) {
    std::string text;
    append_line(text, entry_line);
    const auto start = static_cast<std::size_t>(line.start);
    if (text::first_token_is(line.text, target.key)) {
      return splice(start, static_cast<std::size_t>(line.end), text);
    }
    if (line.text.find('[') != std::string_view::npos) {
      // Any bracket counts as the next section here, and an empty line sets it off.
      append_line(text, {});
      return splice(start, start, text);
    }
  }
  return insert_at(contents_.size(), entry_line);
}

}  // namespace qel
