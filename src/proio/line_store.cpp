#include "proio/line_store.h"

#include <algorithm>
#include <string>
#include <utility>

#include "blocks/mold_temperature_bc_x.h"
#include "proio/dialect.h"
#include "text/text.h"

namespace qel::proio {
namespace {

using mold_temperature_bc_x::kPositionalSection;

constexpr std::string_view kBlanks = " \t";

// A line feed inside a value is a line break like any other in the file.
void append_as_text(std::string& bytes, std::string_view text, std::string_view line_break) {
  for (const char c : text) {
    if (c == '\n' && line_break.size() > 1) {
      if (!bytes.empty() && bytes.back() == '\r') {
        bytes.pop_back();
      }
      bytes.append(line_break);
    } else {
      bytes.push_back(c);
    }
  }
}

std::string line_of(const Target& target, std::string_view value, std::string_view line_break) {
  std::string bytes =
      target.by_key() ? text::padded_entry(target.key, {}, kDialect) : std::string();
  append_as_text(bytes, value, line_break);
  return bytes.append(line_break);
}

// A new positional section always gets the same header, whatever section was asked for.
bool append_section(FileEdit& edit, const Target& target, std::string_view line) {
  return edit.append_section(target.by_key() ? target.section : text::kPositionalHeader, line);
}

// Where the section ends: at the next header, or with the text. Without the empty lines in front of
// that header, where those are not to belong to it; what goes on a long line is none.
std::size_t end_of_section(std::string_view text, std::string_view section, bool with_empty_lines) {
  LineScanner lines = lines_of(text);
  std::size_t first_empty = text.size();
  Line line;
  for (bool more = seek_section(lines, section); more && lines.next(line);) {
    const auto start = static_cast<std::size_t>(line.start);
    if (is_header(line)) {
      return with_empty_lines ? start : std::min(first_empty, start);
    }
    if (line.is_piece || line.text.find_first_not_of(kBlanks) != std::string_view::npos) {
      first_empty = text.size();
    } else {
      first_empty = std::min(first_empty, start);
    }
  }
  return text.size();
}

bool ends_in_positional_section(std::string_view text) {
  LineScanner lines = lines_of(text);
  return seek_section(lines, kPositionalSection) &&
         end_of_section(text, kPositionalSection, true) == text.size();
}

// The line goes over one that is there, all of it. A text with line breaks is found where it stands
// already.
bool store_over(FileEdit& edit, const Line& old, std::string_view line) {
  const std::string_view text = edit.contents();
  const auto begin = static_cast<std::size_t>(old.start);
  auto end = static_cast<std::size_t>(old.end);
  if (text[end - 1] != '\n') {
    end = std::min(text.find('\n', end), text.size() - 1) + 1;
  }
  if (text.substr(begin, line.size()) == line) {
    end = begin + line.size();
  }
  return edit.replace(begin, end, line);
}

bool store_new(FileEdit& edit, const Target& target, std::string line) {
  const std::string_view text = edit.contents();
  std::size_t place = text.size();
  if (!target.by_key()) {
    place = end_of_section(text, target.section, true);
  } else if (ends_in_positional_section(text)) {
    place = end_of_section(text, target.section, false);
    if (place == text.size()) {
      return append_section(edit, target, line);
    }
  }
  return edit.insert(place, std::move(line));
}

}  // namespace

bool is_header(const Line& line) {
  return !line.is_piece &&
         (text::is_header(line.text) || text::first_token_is(line.text, kPositionalSection));
}

bool seek_section(LineScanner& lines, std::string_view section) {
  Line line;
  while (!section.empty() && lines.next_starting_with(section, line)) {
    if (text::first_token_is(line.text, section)) {
      return true;
    }
  }
  return false;
}

bool seek_line(LineScanner& lines, const Target& target, Line& line) {
  for (int position = 1; lines.next(line); ++position) {
    if (target.by_key()) {
      if (text::first_token_is(line.text, target.key)) {
        return true;
      }
    } else if (is_header(line)) {
      return false;
    } else if (position == target.index) {
      return true;
    }
  }
  return false;
}

Code read(LineScanner& lines, const Target& target, Buffer& value) {
  Line line;
  if (!seek_section(lines, target.section) || !seek_line(lines, target, line)) {
    return Code::not_found;
  }
  if (target.by_key() && line.text.find('=') == std::string_view::npos) {
    value.assign({});
    return Code::success;
  }
  value.assign(target.by_key() ? text::untrimmed_value(line.text) : line.text)
      .append(line.has_break ? "\n" : "");
  return Code::success;
}

bool store(FileEdit& edit, const Target& target, std::string_view value) {
  const std::string_view text = edit.contents();
  std::string new_line = line_of(target, value, edit.line_break());
  LineScanner lines = lines_of(text);
  if (!seek_section(lines, target.section)) {
    return append_section(edit, target, new_line);
  }
  Line line;
  return seek_line(lines, target, line) ? store_over(edit, line, new_line)
                                        : store_new(edit, target, std::move(new_line));
}

}  // namespace qel::proio
