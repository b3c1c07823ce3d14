#include "text/entry_edit.h"

#include <optional>

#include "text/text.h"

namespace qel {
namespace {

// As the file's first line ends.
std::string line_break_of(const std::string& contents) {
  const std::size_t first = contents.find('\n');
  return first != std::string::npos && first > 0 && contents[first - 1] == '\r' ? "\r\n" : "\n";
}

// Where a new line at the end goes: in front of blanks and the like that trail the last line and
// belong to none.
std::size_t end_of_lines(const SectionedText& document) {
  if (document.line_count() == 0) {
    return document.contents().find_last_not_of(" \x1A") + 1;
  }
  const TextLine last = document.line(document.line_count() - 1);
  const bool has_line_break = document.contents()[last.end - 1] == '\n';
  return has_line_break ? last.end : last.begin + last.whole.find_last_not_of(" \x1A") + 1;
}

std::string with_lines_at(const std::string& contents, std::size_t place,
                          const std::string& lines) {
  const bool begins_line =
      place == 0 || contents[place - 1] == '\n' || contents.compare(0, place, "\xEF\xBB\xBF") == 0;
  return contents.substr(0, place) + (begins_line ? "" : line_break_of(contents)) + lines +
         contents.substr(place);
}

}  // namespace

std::string with_entry(const SectionedText& document, const std::string& section,
                       const std::string& key, const std::string& value) {
  const std::string& contents = document.contents();
  const std::string line_break = line_break_of(contents);
  const TextSection* own = document.find(section);
  if (own == nullptr) {
    return with_lines_at(
        contents, end_of_lines(document),
        line_break + section + line_break + text::padded_entry(key, value) + line_break);
  }
  if (const std::optional<TextLine> line = document.find(*own, key)) {
    // After a line that is too long stands another one, without a line break between them.
    return contents.substr(0, line->begin) + text::padded_entry(key, value) +
           (line->goes_on ? line_break : "") + contents.substr(line->begin + line->whole.size());
  }
  const bool is_last = own->after == document.line_count();
  const std::size_t place = is_last ? end_of_lines(document) : document.line(own->after).begin;
  return with_lines_at(contents, place, text::plain_entry(key, value) + line_break);
}

}  // namespace qel
