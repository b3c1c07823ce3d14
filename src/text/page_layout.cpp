#include "text/page_layout.h"

#include <algorithm>

#include "text/page_steps.h"
#include "text/text.h"

namespace qel {
namespace {

// The older object reads a longer line in pieces, which begin where they do.
constexpr std::size_t kLongestTight = 127;

// Puts a line without the blanks around its "=", and tells how many they were.
std::size_t put_tight(std::string& text, std::string_view line) {
  const std::string_view token = text::first_token(line);
  const std::size_t equals = line.find_first_not_of(' ', token.size());
  if (line.size() > kLongestTight || token.empty() || equals == std::string_view::npos ||
      line[equals] != '=') {
    text.append(line);
    return 0;
  }
  const std::size_t value = std::min(line.find_first_not_of(' ', equals + 1), line.size());
  text.append(token).append("=").append(line.substr(value));
  return line.size() - token.size() - 1 - (line.size() - value);
}

std::string_view line_at(std::string_view text, std::size_t begin) {
  const std::size_t line_break = text.find('\n', begin);
  return text.substr(begin,
                     line_break == std::string_view::npos ? line_break : line_break + 1 - begin);
}

std::string_view without_break(std::string_view line) { return text::trim_end(line, "\r\n"); }

bool is_header(std::string_view line) { return text::is_header(without_break(line)); }

bool is_positional(std::string_view header) {
  return text::first_token_is(header, text::first_token(text::kPositionalHeader));
}

}  // namespace

PageLayout::PageLayout(const MovedText& moved) : moved_(moved), text_(moved.text) {
  for (std::size_t boundary = kPageSize; boundary < text_.size(); boundary += kPageSize) {
    look_for_headers(boundary);
  }
}

// Where the first line begins that does not begin before the offset.
std::size_t PageLayout::line_from(std::size_t offset) const {
  const bool begins = offset > 0 ? offset <= text_.size() && text_[offset - 1] == '\n'
                                 : moved_.before.empty() || moved_.before.back() == '\n';
  if (begins) {
    return offset;
  }
  const std::size_t line_break = text_.find('\n', offset);
  return line_break == std::string_view::npos ? text_.size() : line_break + 1;
}

bool PageLayout::old_line_begins_at(std::size_t boundary) const {
  const auto old_end =
      static_cast<std::size_t>(static_cast<std::ptrdiff_t>(moved_.end) - moved_.shift);
  if (boundary < old_end) {
    return false;  // within the lines that change
  }
  const auto now = static_cast<std::size_t>(static_cast<std::ptrdiff_t>(boundary) + moved_.shift);
  return now > 0 && now <= text_.size() && text_[now - 1] == '\n';
}

// Whether the page in front of the boundary ends in a "=". It need not where the old page begins
// with a line and the new one with a line break or a "=".
bool PageLayout::hides_next(std::size_t boundary) const {
  const char first = text_[boundary];
  const bool is_neutral = first == '\n' || first == '\r' || first == '=';
  return !is_neutral || !old_line_begins_at(boundary);
}

// Where the lines end that the page in front of the boundary has in between.
std::size_t PageLayout::end_of_lines(std::size_t boundary) const {
  std::size_t end = line_from(boundary);
  if (moved_.replaces && boundary == kPageSize) {
    end = std::max(end, moved_.end);
  }
  if (moved_.shift > 0) {
    // What began before the boundary, or at it and is hidden there.
    const std::size_t moved_to =
        boundary + static_cast<std::size_t>(moved_.shift) + (hides_next(boundary) ? 1 : 0);
    if (moved_to > moved_.end) {
      end = std::max(end, line_from(std::min(moved_to, text_.size())));
    }
  }
  return end;
}

// Looks for a header among the lines that are seen on both sides of the boundary.
void PageLayout::look_for_headers(std::size_t boundary) {
  std::size_t begin = line_from(boundary);
  std::size_t end = end_of_lines(boundary);
  if (moved_.shift < 0) {
    const auto way = static_cast<std::size_t>(-moved_.shift);
    begin = line_from(std::max(moved_.end, boundary - std::min(way, boundary)));
    end = begin < boundary ? line_from(boundary) : begin;
  }
  while (begin < end) {
    const std::string_view line = line_at(text_, begin);
    if (is_header(line)) {
      const auto old_begin = static_cast<std::ptrdiff_t>(begin) - moved_.shift;
      const std::ptrdiff_t way = static_cast<std::ptrdiff_t>(boundary) - old_begin;
      const bool is_hidden =
          hides_next(boundary) && (moved_.shift < 0 ? way == 0 : begin == boundary);
      if (!is_hidden) {
        const std::size_t most = way == 0 ? 1 : static_cast<std::size_t>(std::abs(way));
        nearer_ = std::min(nearer_.value_or(most), most);
      }
    }
    begin += line.size();
  }
}

// The whole line of the new contents that begins at an offset in front of the first page.
std::string PageLayout::line_before(std::size_t begin) const {
  std::string line(line_at(moved_.before, begin));
  return line.back() == '\n' ? line : line.append(line_at(text_, 0));
}

// Whether the boundary lies in a section whose lines are known by their positions.
bool PageLayout::parts_positions(std::size_t boundary) const {
  for (std::size_t at = line_from(boundary); at > 0;) {
    at = text_.rfind('[', at - 1);
    if (at == std::string_view::npos) {
      break;
    }
    if (line_from(at) == at && is_header(line_at(text_, at))) {
      return is_positional(line_at(text_, at));
    }
  }
  for (std::size_t at = moved_.before.size(); at > 0;) {
    at = moved_.before.rfind('[', at - 1);
    if (at == std::string_view::npos) {
      break;
    }
    if (at == 0 || moved_.before[at - 1] == '\n') {
      const std::string line = line_before(at);
      if (is_header(line)) {
        return is_positional(line);
      }
    }
  }
  return false;
}

// Where the last page's lines end: blanks behind them need no room.
std::size_t PageLayout::end_before_padding(std::size_t first_line) const {
  return std::max(text_.find_last_not_of(' ') + 1, first_line);
}

// The page that begins at an offset; false where its lines do not fit.
bool PageLayout::put_page(std::string& text, std::size_t begin, std::size_t end) const {
  const bool is_last = end == text_.size();
  const std::size_t first_line = line_from(begin);
  const std::size_t lines_end = is_last ? end_before_padding(first_line) : end_of_lines(end);
  if (first_line > end || (!is_last && parts_positions(end))) {
    return false;
  }
  const std::size_t room = end - begin - (is_last ? 0 : 1);
  std::size_t needed = lines_end - begin;
  const std::size_t page_at = text.size();
  const bool hides_first_line = begin > 0 && first_line == begin && hides_next(begin);
  if (hides_first_line && end_of_lines(begin) == begin) {
    text.push_back('\n');  // nobody else has the line that would be hidden
    ++needed;
  }
  text.append(text_, begin, first_line - begin);
  std::size_t at = first_line;
  // No page behind the first one begins in such a section: there is no text in between then.
  bool is_by_position = begin == 0 && parts_positions(begin);
  while (needed > room && at < lines_end) {
    const std::string_view line = line_at(text_, at);
    is_by_position = is_header(line) ? is_positional(line) : is_by_position;
    const bool ends_hidden_line = hides_first_line && at == begin;  // or the next one is hidden
    const bool drops = without_break(line).empty() && !is_by_position && !ends_hidden_line;
    needed -= drops ? line.size() : put_tight(text, line);
    at += line.size();
  }
  if (needed > room) {
    return false;
  }
  text.append(text_, at, lines_end - at);
  const std::size_t filler = page_at + (end - begin) - text.size();
  if (is_last) {
    text.append(filler, ' ');
    if (text_.find_first_not_of(' ', begin) == std::string_view::npos) {
      text.back() = '\n';  // behind the "=" of the page before: a file ends in a line break
    }
  } else {
    text.append(filler - 1, '\n').push_back(hides_next(end) ? '=' : '\n');
  }
  return true;
}

std::optional<std::string> PageLayout::text() const {
  std::string text;
  text.reserve(text_.size());
  for (std::size_t begin = 0; begin < text_.size(); begin += kPageSize) {
    if (!put_page(text, begin, std::min(begin + kPageSize, text_.size()))) {
      return std::nullopt;
    }
  }
  return text;
}

}  // namespace qel
