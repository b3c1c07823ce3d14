#include "refdata/bounded_lines.h"

#include <algorithm>

namespace qel::refdata {
namespace {

constexpr std::size_t kBlock = std::size_t{64} * 1024;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char kEndMark = '\x1A';
constexpr std::string_view kPadding = " \x1A";

// Where the padding at the very end of contents begins; blanks without an end mark are none.
std::size_t end_of_contents(std::string_view contents) {
  const std::size_t end = contents.find_last_not_of(kPadding) + 1;
  return contents.find(kEndMark, end) != std::string_view::npos ? end : contents.size();
}

// The same of a file; below 0 where that cannot be told.
std::int64_t end_of_contents(platform::ReadAccess& file) {
  const std::int64_t size = file.size();
  std::int64_t end = size;
  bool marked = false;
  for (char last[64]; end > 0;) {
    const std::int64_t begin =
        std::max<std::int64_t>(end - static_cast<std::int64_t>(sizeof last), 0);
    const std::string_view piece(last, static_cast<std::size_t>(end - begin));
    if (file.read_at(begin, last, piece.size()) != end - begin) {
      return -1;
    }
    const std::size_t after = piece.find_last_not_of(kPadding) + 1;
    marked = marked || piece.find(kEndMark, after) != std::string_view::npos;
    end = begin + static_cast<std::int64_t>(after);
    if (after != 0) {
      break;
    }
  }
  return marked ? end : size;
}

}  // namespace

BoundedLines::BoundedLines(platform::ReadAccess& file)
    : file_(&file), block_(new char[kBlock]), end_(end_of_contents(file)) {
  char start[kByteOrderMark.size()];
  const std::int64_t got = file.read_at(0, start, sizeof start);
  failed_ = end_ < 0 || got < 0;
  if (got == sizeof start && std::string_view(start, sizeof start) == kByteOrderMark) {
    offset_ = static_cast<std::int64_t>(kByteOrderMark.size());
  }
}

BoundedLines::BoundedLines(std::string_view contents)
    : window_(contents.substr(0, end_of_contents(contents))) {
  if (window_.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
    window_.remove_prefix(kByteOrderMark.size());
  }
}

bool BoundedLines::fill() {
  if (at_ < window_.size()) {
    return true;
  }
  if (file_ == nullptr || failed_ || offset_ >= end_) {
    return false;
  }
  const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(end_ - offset_, kBlock));
  const std::int64_t got = file_->read_at(offset_, block_.get(), wanted);
  if (got <= 0) {
    failed_ = got < 0;
    return false;
  }
  offset_ += got;
  window_ = std::string_view(block_.get(), static_cast<std::size_t>(got));
  at_ = 0;
  return true;
}

bool BoundedLines::next_character(char& character) {
  if (!fill()) {
    return false;
  }
  character = window_[at_++];
  if (character == '\r' && fill() && window_[at_] == '\n') {
    character = window_[at_++];
  }
  return true;
}

bool BoundedLines::next(std::string& line) {
  line.clear();
  bool any = false;
  char character = '\0';
  while (line.size() < kLongestLine && next_character(character)) {
    any = true;
    if (character == '\n') {
      break;
    }
    line += character;
  }
  line.resize(std::char_traits<char>::length(line.c_str()));
  return any;
}

}  // namespace qel::refdata
