#include "proio/line_store.h"

#include <algorithm>
#include <string>

namespace qel::proio {
namespace {

// A new positional section always gets this header, whatever section was asked for; it is found by
// its first word.
constexpr std::string_view kPositionalHeader = "[SURFACE ELEMENT BOUNDARY CONDITION NAME]";
constexpr std::string_view kPositionalSection = "[SURFACE";

constexpr std::size_t kKeyColumns = 14;
constexpr std::string_view kWordEnd = "\t\n =";
constexpr std::string_view kBlanks = " \t";

std::string_view without_leading_blanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

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
  std::string bytes;
  if (target.by_key()) {
    bytes.assign(target.key);
    bytes.resize(std::max(bytes.size(), kKeyColumns), ' ');
    bytes.append(" = ");
  }
  append_as_text(bytes, value, line_break);
  return bytes.append(line_break);
}

std::string header_of(const Target& target, std::string_view line_break) {
  std::string bytes(line_break);
  return bytes.append(target.by_key() ? target.section : kPositionalHeader).append(line_break);
}

// Where the section ends: at the next header, or with the text. Without the empty lines in front of
// that header, where those are not to belong to it; what goes on a long line is none.
std::size_t end_of_section(std::string_view text, std::string_view section, bool with_empty_lines) {
  LineScanner lines(text);
  std::size_t first_empty = text.size();
  Line line;
  for (bool more = seek_section(lines, section); more && lines.next(line);) {
    const auto start = static_cast<std::size_t>(line.start);
    if (is_header(line)) {
      return with_empty_lines ? start : std::min(first_empty, start);
    }
    if (!line.begins || line.text.find_first_not_of(kBlanks) != std::string_view::npos) {
      first_empty = text.size();
    } else {
      first_empty = std::min(first_empty, start);
    }
  }
  return text.size();
}

bool ends_in_positional_section(std::string_view text) {
  LineScanner lines(text);
  return seek_section(lines, kPositionalSection) &&
         end_of_section(text, kPositionalSection, true) == text.size();
}

// The line goes over one that is there, all of it. A text with line breaks is found where it stands
// already.
bool store_over(Contents& contents, const Line& old, std::string line) {
  const std::string_view text = contents.text();
  const auto begin = static_cast<std::size_t>(old.start);
  auto end = static_cast<std::size_t>(old.end);
  if (text[end - 1] != '\n') {
    end = std::min(text.find('\n', end), text.size() - 1) + 1;
  }
  if (text.substr(begin, line.size()) == line) {
    end = begin + line.size();
  }
  return contents.replace(begin, end, std::move(line));
}

bool store_new(Contents& contents, const Target& target, std::string line) {
  const std::string_view text = contents.text();
  std::size_t place = text.size();
  if (!target.by_key()) {
    place = end_of_section(text, target.section, true);
  } else if (ends_in_positional_section(text)) {
    place = end_of_section(text, target.section, false);
    if (place == text.size()) {
      line.insert(0, header_of(target, contents.line_break()));
      return contents.replace(place, place, std::move(line));
    }
  }
  // A line behind a last one that has no line break would become part of that one.
  if (place == text.size() && !text.empty() && text.back() != '\n') {
    line.insert(0, contents.line_break());
  }
  return contents.replace(place, place, std::move(line));
}

}  // namespace

bool is_match(std::string_view line, std::string_view name) {
  if (line.substr(0, name.size()) != name ||
      name.find_first_of(kWordEnd) != std::string_view::npos) {
    return false;
  }
  return line.size() == name.size() || kWordEnd.find(line[name.size()]) != std::string_view::npos;
}

bool is_header(const Line& line) {
  const std::string_view text = line.text;
  if (!line.begins || text.empty() || text.front() != '[') {
    return false;
  }
  if (is_match(text, kPositionalSection)) {
    return true;
  }
  // The brackets may hold blanks; a "=" inside them ends the first word before they close.
  for (std::size_t at = 1; at < text.size() && text[at] != '='; ++at) {
    const std::size_t next = text.find_first_not_of(kBlanks, at + 1);
    if (text[at] == ']' && next != at + 1) {
      if (next == std::string_view::npos || text[next] != '=') {
        return true;
      }
      break;
    }
  }
  return text[text.find_last_not_of(kBlanks)] == ']';
}

bool seek_section(LineScanner& lines, std::string_view section) {
  Line line;
  do {
    lines.pass_lines_without(section);
    if (!lines.next(line)) {
      return false;
    }
  } while (!is_match(line.text, section));
  return true;
}

bool seek_line(LineScanner& lines, const Target& target, Line& line, std::int64_t contents_end) {
  for (int position = 1; lines.next(line) && line.start < contents_end; ++position) {
    if (target.by_key()) {
      if (is_match(line.text, target.key)) {
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

Code read(LineScanner& lines, const Target& target, Buffer& value, std::int64_t contents_end) {
  Line line;
  if (!seek_section(lines, target.section) || !seek_line(lines, target, line, contents_end)) {
    return Code::not_found;
  }
  std::string_view text = line.text;
  if (target.by_key()) {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos) {
      value.assign({});
      return Code::success;
    }
    text = without_leading_blanks(text.substr(equals + 1));
  }
  value.assign(text).append(line.has_break ? "\n" : "");
  return Code::success;
}

Code read(platform::RandomAccess& file, const Target& target, Buffer& value) {
  LineScanner lines(file);
  // Padding has no leading word, so that it matters to positions alone.
  return target.by_key() ? read(lines, target, value)
                         : read(lines, target, value, length_without_padding(file));
}

bool store(Contents& contents, const Target& target, std::string_view value) {
  const std::string_view text = contents.text();
  std::string new_line = line_of(target, value, contents.line_break());
  LineScanner lines(text);
  if (!seek_section(lines, target.section)) {
    new_line.insert(0, header_of(target, contents.line_break()));
    return contents.replace(text.size(), text.size(), std::move(new_line));
  }
  Line line;
  return seek_line(lines, target, line) ? store_over(contents, line, std::move(new_line))
                                        : store_new(contents, target, std::move(new_line));
}

}  // namespace qel::proio
