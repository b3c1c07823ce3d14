#include "proio/line_scanner.h"

#include <algorithm>

namespace qel::proio {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The longest line in bytes: its line break may take two.
constexpr std::size_t kMostBytes = LineScanner::kLongestLine + 1;

constexpr std::string_view kPadding = " \x1A";

// What stands in front of the first end mark of the padding.
std::string_view without_end_marks(std::string_view contents) {
  if (contents.empty() || kPadding.find(contents.back()) == std::string_view::npos ||
      contents.find(kEndMark) == std::string_view::npos) {
    return contents;
  }
  return contents.substr(0, contents.find(kEndMark, contents.find_last_not_of(kPadding) + 1));
}

}  // namespace

LineScanner::LineScanner(platform::RandomAccess& file) : file_(&file) {
  fill();
  skip_byte_order_mark();
}

LineScanner::LineScanner(std::string_view contents)
    : window_(without_end_marks(contents)),
      at_end_(true),
      may_hold_nul_(contents.find('\0') != std::string_view::npos) {
  skip_byte_order_mark();
}

void LineScanner::pass(std::size_t count) {
  window_.remove_prefix(count);
  offset_ += static_cast<std::int64_t>(count);
}

void LineScanner::skip_byte_order_mark() {
  if (window_.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
    pass(kByteOrderMark.size());
  }
}

// Keeps what is left of the window and reads on behind it. What cannot be read counts as the end of
// the file.
void LineScanner::fill() {
  const std::size_t kept = window_.size();
  std::copy(window_.begin(), window_.end(),
            buffer_.begin());  // towards the front, where the ranges may overlap
  const std::size_t room = buffer_.size() - kept;
  const std::int64_t got =
      file_->read_at(offset_ + static_cast<std::int64_t>(kept), buffer_.data() + kept, room);
  const auto added = static_cast<std::size_t>(std::max<std::int64_t>(got, 0));
  window_ = {buffer_.data(), kept + added};
  may_hold_nul_ = may_hold_nul_ || window_.substr(kept).find('\0') != std::string_view::npos;
  at_end_ = added < room;
  failed_ = got < 0;
  if (at_end_) {
    window_ = without_end_marks(window_);
  }
}

bool LineScanner::next(Line& line) {
  if (window_.size() < kMostBytes && !at_end_) {
    fill();
  }
  if (window_.empty()) {
    return false;
  }
  const std::string_view ahead = window_.substr(0, kMostBytes);
  const std::size_t line_break = ahead.find('\n');
  std::size_t length = std::min(line_break, ahead.size());
  if (line_break != std::string_view::npos && length > 0 && ahead[length - 1] == '\r') {
    --length;
  }
  const bool ended = line_break != std::string_view::npos && length < kLongestLine;
  length = std::min(length, kLongestLine);
  const std::size_t consumed = ended ? line_break + 1 : length;

  line.start = offset_;
  line.end = offset_ + static_cast<std::int64_t>(consumed);
  const std::string_view whole = ahead.substr(0, length);
  line.text = may_hold_nul_ ? whole.substr(0, whole.find('\0')) : whole;
  line.begins = !inside_long_line_;
  line.has_break = ended && line.text.size() == length;
  inside_long_line_ = !ended;
  pass(consumed);
  return true;
}

void LineScanner::pass_lines_without(std::string_view text) {
  if (inside_long_line_) {
    return;  // one look from where the line begins was enough
  }
  const std::size_t last_break = window_.substr(0, window_.find(text)).rfind('\n');
  if (last_break != std::string_view::npos) {
    pass(last_break + 1);
  }
}

std::size_t length_without_padding(std::string_view contents) {
  contents = without_end_marks(contents);
  const std::size_t last = contents.find_last_not_of(' ');
  return last != std::string_view::npos && contents[last] == '\n' ? last + 1 : contents.size();
}

std::int64_t length_without_padding(platform::RandomAccess& file) {
  std::int64_t without_marks = file.size();
  std::array<char, 4096> block;
  for (std::int64_t end = without_marks; end > 0;) {
    const std::int64_t begin =
        std::max<std::int64_t>(end - static_cast<std::int64_t>(block.size()), 0);
    const auto length = static_cast<std::size_t>(end - begin);
    if (file.read_at(begin, block.data(), length) != end - begin) {
      return -1;
    }
    const std::string_view bytes(block.data(), length);
    const std::size_t last = bytes.find_last_not_of(kPadding);
    const std::size_t mark = bytes.find(kEndMark, last + 1);
    if (mark != std::string_view::npos) {
      without_marks = begin + static_cast<std::int64_t>(mark);
    }
    if (last != std::string_view::npos) {
      return block[last] == '\n' ? begin + static_cast<std::int64_t>(last) + 1 : without_marks;
    }
    end = begin;
  }
  return without_marks;
}

}  // namespace qel::proio
