#include <algorithm>
#include <string>

#include "check/checked.h"
#include "text/text.h"

namespace qelpro {
namespace {

constexpr std::string_view kBlanks = " \t";

std::string quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

std::string_view without_indent(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  return line;
}

// What stands in a line that has no key at its begin.
LineKind kind_without_indent(const TextLine& line) {
  TextLine moved = line;
  moved.text = without_indent(line.text);
  return qel::kind_of(moved);
}

void check_length(const Checked& file, const TextLine& line) {
  const std::size_t length = file.document.to_line_break(line).size();
  if (length > qel::text::kLongestLine) {
    file.findings.add(rule("P001"), {line.number, qel::text::kLongestLine + 1, {}, {}},
                      "the line has " + std::to_string(length) + " characters; behind its first " +
                          std::to_string(qel::text::kLongestLine) + " another line is read");
  }
}

// Whether anything but a comment is in the way of what it says.
void check_indented(const Checked& file, const TextLine& line, std::string_view section,
                    bool is_read_by_keys) {
  const std::string_view text = without_indent(line.text);
  const LineKind kind = kind_without_indent(line);
  if (kind == LineKind::comment) {
    return;
  }
  if (kind == LineKind::entry && text.size() < line.text.size()) {
    const std::string_view key = qel::text::first_token(text);
    file.findings.add(rule("P003"), at_line(line, section, key),
                      "the line begins with a blank, so that " + quoted(key) + " is never found",
                      "remove what stands in front of the key");
  } else if (is_read_by_keys) {
    const bool is_header = qel::text::is_header(text);
    file.findings.add(rule("P006"), at_line(line, section),
                      is_header ? "the line begins with a blank, so that no section begins here"
                                : "the line is no entry: it has no key and value",
                      is_header ? "remove what stands in front of the header" : "");
  }
}

void check_line(const Checked& file, const TextLine& line, std::string_view section,
                bool is_read_by_keys) {
  switch (qel::kind_of(line)) {
    case LineKind::indented:
      check_indented(file, line, section, is_read_by_keys);
      break;
    case LineKind::without_equals:
      if (is_read_by_keys) {
        file.findings.add(rule("P006"), at_line(line, section),
                          R"(the line is no entry: it has no "=")",
                          R"(begin a comment with ";", "#" or "//")");
      }
      break;
    default:
      break;
  }
}

void check_before_sections(const Checked& file) {
  for (std::size_t index = 0; index < file.document.lines_before_sections(); ++index) {
    const TextLine line = file.document.line(index);
    const LineKind kind = qel::kind_of(line);
    if (kind == LineKind::entry ||
        (kind == LineKind::indented && kind_without_indent(line) == LineKind::entry)) {
      const std::string_view key = qel::text::first_token(without_indent(line.text));
      file.findings.add(rule("P002"), at_line(line, {}, key),
                        quoted(key) + " stands before the first section and is never read");
    }
  }
}

void check_header(const Checked& file, const TextSection& section) {
  const TextLine line = file.document.line(section.header);
  std::string_view behind = line.text.substr(std::min(section.name.size(), line.text.size()));
  behind = without_indent(behind);
  if (!behind.empty() && behind.find_first_not_of(" \t\r") != std::string_view::npos) {
    file.findings.add(rule("P007"), at_line(line, section.name),
                      "words stand behind the header " + std::string(section.name));
  }
}

// Over all lines, whatever they are: their lengths, NUL bytes and line breaks.
void check_bytes(const Checked& file) {
  const SectionedText& document = file.document;
  const std::string& contents = document.contents();
  const bool may_hold_nul = contents.find('\0') != std::string::npos;
  int first_break = 0;
  bool is_mixed = false;
  bool is_piece = false;
  for (std::size_t index = 0; index < document.line_count(); ++index) {
    const TextLine line = document.line(index);
    if (line.goes_on && !is_piece) {
      check_length(file, line);
    }
    if (may_hold_nul) {
      const std::string_view bytes =
          std::string_view(contents).substr(line.begin, line.end - line.begin);
      if (const std::size_t nul = bytes.find('\0'); nul != std::string_view::npos) {
        file.findings.add(rule("P010"), {line.number, nul + 1, {}, {}},
                          "a NUL byte: what stands behind it in the line is not read");
      }
    }
    is_piece = line.goes_on;
    if (contents[line.end - 1] != '\n') {
      if (!line.goes_on) {
        file.findings.add(rule("P008"), at_line(line), "the last line has no line break");
      }
      continue;
    }
    const int here = line.end - line.begin > 1 && contents[line.end - 2] == '\r' ? 2 : 1;
    first_break = first_break == 0 ? here : first_break;
    if (here != first_break && !is_mixed) {
      is_mixed = true;
      file.findings.add(rule("P009"), at_line(line),
                        std::string("the line ends with ") + (here == 2 ? R"("\r\n")" : R"("\n")") +
                            ", and lines before it with " + (here == 2 ? R"("\n")" : R"("\r\n")"));
    }
  }
}

}  // namespace

void check_lines(const Checked& file) {
  check_bytes(file);
  check_before_sections(file);
  for (const TextSection& section : file.document.sections()) {
    check_header(file, section);
    const bool is_positional = qel::is_positional(section.name);
    const bool is_read_by_keys = !is_positional && file.entries.known_section(section) != nullptr;
    bool is_piece = file.document.line(section.header).goes_on;
    for (std::size_t index = section.header + 1; index < section.after && !is_positional; ++index) {
      const TextLine line = file.document.line(index);
      if (!is_piece) {
        check_line(file, line, section.name, is_read_by_keys);
      }
      is_piece = line.goes_on;
    }
  }
}

}  // namespace qelpro
