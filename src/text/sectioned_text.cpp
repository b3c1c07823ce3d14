#include "text/sectioned_text.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "text/line_scanner.h"
#include "text/text.h"

namespace qel {
namespace {

// Lookups take a header by its first token; a name with blanks is known by the whole of it, up to
// the bracket that has words after it.
std::string_view name_of(std::string_view header) {
  const std::string_view token = text::first_token(header);
  if (token.size() > 1 && token.back() == ']') {
    return token;
  }
  const std::size_t close = std::min(header.find("] "), header.find("]\t"));
  return close != std::string_view::npos ? header.substr(0, close + 1) : text::index_value(header);
}

// What lookups compare.
std::string_view looked_up(std::string_view name) {
  return is_positional(name) ? text::first_token(name) : name;
}

}  // namespace

bool is_utf16(std::string_view contents) {
  const auto starts_with = [contents](std::string_view start) {
    return contents.substr(0, start.size()) == start;
  };
  const auto is_zero = [contents](std::size_t at) { return contents[at] == '\0'; };
  return starts_with("\xFF\xFE") || starts_with("\xFE\xFF") ||
         (contents.size() >= 4 && is_zero(0) == is_zero(2) && is_zero(1) == is_zero(3) &&
          is_zero(0) != is_zero(1));
}

bool is_positional(std::string_view section) {
  // Most names differ at once.
  constexpr std::string_view kWord =
      text::kPositionalHeader.substr(0, text::kPositionalHeader.find(' '));
  return section.starts_with(kWord) && text::first_token(section) == kWord;
}

LineKind kind_of(const TextLine& line) {
  const std::string_view seen = line.text;
  if (seen.find_first_not_of(" \t\x1A") == std::string_view::npos) {
    return LineKind::blank;
  }
  if (seen.front() == ';' || seen.front() == '#' || seen.substr(0, 2) == "//") {
    return LineKind::comment;
  }
  // A carriage return that ends no line is in the way of a key as a blank in front of it is.
  if (!text::is_findable(text::first_token(seen))) {
    return LineKind::indented;
  }
  return seen.find('=') == std::string_view::npos ? LineKind::without_equals : LineKind::entry;
}

SectionedText::SectionedText(std::string contents) : contents_(std::move(contents)) {
  split();
  sort_sections();
}

void SectionedText::split() {
  Line line;
  has_nul_ = contents_.find('\0') != std::string::npos;
  // As many as there are, but for lines that are too long and what only begins as a header.
  std::size_t headers = 0;
  for (std::size_t at = contents_.find('['); at != std::string::npos;
       at = contents_.find('[', at + 1)) {
    headers += static_cast<std::size_t>(at == 0 || contents_[at - 1] == '\n');
  }
  sections_.reserve(headers);
  begins_.reserve(static_cast<std::size_t>(std::count(contents_.begin(), contents_.end(), '\n')) +
                  1);
  for (LineScanner scanner(contents_, 0, has_nul_); scanner.next(line);) {
    if (text::is_header(line.text)) {
      if (!sections_.empty()) {
        sections_.back().after = begins_.size();
      }
      sections_.push_back({name_of(line.text), begins_.size(), 0});
    }
    if (line.is_piece) {
      pieces_.push_back(begins_.size());
    }
    begins_.push_back(static_cast<std::size_t>(line.start));
    end_ = static_cast<std::size_t>(line.end);
  }
  if (!sections_.empty()) {
    sections_.back().after = begins_.size();
  }
}

void SectionedText::sort_sections() {
  by_name_.resize(sections_.size());
  std::iota(by_name_.begin(), by_name_.end(), std::size_t{0});
  std::sort(by_name_.begin(), by_name_.end(), [this](std::size_t a, std::size_t b) {
    const int order = looked_up(sections_[a].name).compare(looked_up(sections_[b].name));
    return order != 0 ? order < 0 : a < b;
  });
  for (std::size_t index = 1; index < by_name_.size(); ++index) {
    sections_[by_name_[index]].repeated = looked_up(sections_[by_name_[index]].name) ==
                                          looked_up(sections_[by_name_[index - 1]].name);
  }
}

TextLine SectionedText::line(std::size_t index) const {
  TextLine line;
  const bool is_last = index + 1 == begins_.size();
  line.begin = begins_[index];
  line.end = is_last ? end_ : begins_[index + 1];
  line.number = index + 1 -
                static_cast<std::size_t>(std::upper_bound(pieces_.begin(), pieces_.end(), index) -
                                         pieces_.begin());
  line.whole = std::string_view(contents_).substr(line.begin, line.end - line.begin);
  const bool has_line_break = line.whole.back() == '\n';
  line.goes_on = !has_line_break && !is_last;
  if (has_line_break) {
    line.whole.remove_suffix(
        line.whole.size() > 1 && line.whole[line.whole.size() - 2] == '\r' ? 2 : 1);
  }
  const std::size_t terminator = has_nul_ ? line.whole.find('\0') : std::string_view::npos;
  line.text = line.whole.substr(0, terminator);
  if (is_last && !has_line_break) {
    line.text = text::without_end_mark(line.text);
  }
  if (terminator == std::string_view::npos) {
    line.whole = line.text;
  }
  return line;
}

const TextSection* SectionedText::find(std::string_view section) const {
  const std::string_view wanted = looked_up(section);
  const auto found = std::lower_bound(by_name_.begin(), by_name_.end(), wanted,
                                      [this](std::size_t index, std::string_view name) {
                                        return looked_up(sections_[index].name) < name;
                                      });
  return found != by_name_.end() && looked_up(sections_[*found].name) == wanted ? &sections_[*found]
                                                                                : nullptr;
}

std::string_view SectionedText::to_line_break(const TextLine& line) const {
  std::string_view text = std::string_view(contents_).substr(line.begin);
  text = text.substr(0, text.find('\n'));
  return text.empty() || text.back() != '\r' ? text : text.substr(0, text.size() - 1);
}

std::string_view whole_value(const TextLine& line) {
  return line.text.find('=') == std::string_view::npos ? std::string_view()
                                                       : text::entry_value(line.whole);
}

}  // namespace qel
