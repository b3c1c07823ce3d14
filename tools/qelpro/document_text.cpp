#include "document_text.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/text.h"
#include "platform/files.h"
#include "status.h"

namespace text = qel::text;

namespace {

// A byte order mark, or characters whose every second byte is 0.
bool is_utf16(std::string_view contents) {
  const auto starts_with = [contents](std::string_view start) { return contents.substr(0, start.size()) == start; };
  const auto is_zero = [contents](std::size_t at) { return contents[at] == '\0'; };
  return starts_with("\xFF\xFE") || starts_with("\xFE\xFF") ||
         (contents.size() >= 4 && is_zero(0) == is_zero(2) && is_zero(1) == is_zero(3) && is_zero(0) != is_zero(1));
}

std::vector<TextLine> lines_of(std::string_view contents) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  std::vector<TextLine> lines;
  std::size_t at = contents.substr(0, kByteOrderMark.size()) == kByteOrderMark ? kByteOrderMark.size() : 0;
  while (at < contents.size()) {
    const std::size_t end = std::min(contents.find('\n', at), contents.size() - 1) + 1;
    std::string_view line = contents.substr(at, end - at);
    if (line.back() == '\n') {
      line.remove_suffix(line.size() > 1 && line[line.size() - 2] == '\r' ? 2 : 1);
    } else if (line.find_first_not_of(" \x1A") == std::string_view::npos) {
      break;  // padding behind the last line
    }
    const std::string_view seen = line.size() < text::kLongestLine ? line : line.substr(0, text::kLongestLine);
    lines.push_back({line, seen.substr(0, seen.find('\0')), at, end, lines.size() + 1});
    at = end;
  }
  return lines;
}

// Lookups take a header by its first token; a name with blanks is known by the whole of it, up to the bracket that has words behind it.
std::string_view name_of(std::string_view header) {
  const std::string_view token = text::first_token(header);
  if (token.size() > 1 && token.back() == ']') {
    return token;
  }
  const std::size_t close = std::min(header.find("] "), header.find("]\t"));
  return close != std::string_view::npos ? header.substr(0, close + 1) : text::index_value(header);
}

}  // namespace

LineKind kind_of(const TextLine& line) {
  const std::string_view seen = line.text;
  if (seen.find_first_not_of(" \t\x1A") == std::string_view::npos) {
    return LineKind::blank;
  }
  if (seen.front() == ';' || seen.front() == '#' || seen.substr(0, 2) == "//") {
    return LineKind::comment;
  }
  if (text::first_token(seen).empty()) {
    return LineKind::indented;
  }
  return seen.find('=') == std::string_view::npos ? LineKind::without_equals : LineKind::entry;
}

DocumentText::DocumentText(const std::string& file, std::string contents) : contents_(std::move(contents)), lines_(lines_of(contents_)) {
  if (is_utf16(contents_)) {
    throw Failure(kFileError, at(file, "UTF-16 text, in which no section is found: save it as UTF-8"));
  }
  for (std::size_t index = 0; index < lines_.size(); ++index) {
    if (text::is_header(lines_[index].text)) {
      if (!sections_.empty()) {
        sections_.back().behind = index;
      }
      sections_.push_back({name_of(lines_[index].text), false, index, lines_.size()});
    }
  }
  by_name_.resize(sections_.size());
  std::iota(by_name_.begin(), by_name_.end(), std::size_t{0});
  std::stable_sort(by_name_.begin(), by_name_.end(), [this](std::size_t a, std::size_t b) { return sections_[a].name < sections_[b].name; });
  for (std::size_t index = 1; index < by_name_.size(); ++index) {
    sections_[by_name_[index]].repeated = sections_[by_name_[index]].name == sections_[by_name_[index - 1]].name;
  }
}

const TextSection* DocumentText::find(std::string_view section) const {
  const auto found = std::lower_bound(by_name_.begin(), by_name_.end(), section,
                                      [this](std::size_t index, std::string_view name) { return sections_[index].name < name; });
  return found != by_name_.end() && sections_[*found].name == section ? &sections_[*found] : nullptr;
}

const TextLine* DocumentText::find(const TextSection& section, std::string_view key) const {
  for (std::size_t index = section.header + 1; index < section.behind; ++index) {
    if (text::first_token_is(lines_[index].text, key) && kind_of(lines_[index]) != LineKind::comment) {
      return &lines_[index];
    }
  }
  return nullptr;
}

std::string_view whole_value(const TextLine& line) {
  return line.text.find('=') == std::string_view::npos ? std::string_view() : text::entry_value(line.whole);
}

DocumentText load_document(const std::string& file) { return {file, platform::read_file(file)}; }
