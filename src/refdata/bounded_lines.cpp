#include "refdata/bounded_lines.h"

#include <algorithm>
#include <limits>

namespace qel::refdata {
namespace {

constexpr std::size_t kBlock = std::size_t{64} * 1024;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char kControlZ = '\x1A';

// Where the 0x1A bytes at a file's very end begin.
std::int64_t end_of_contents(platform::RandomAccess& file) {
  std::int64_t end = file.size();
  for (char last[64]; end > 0;) {
    const std::int64_t begin = std::max<std::int64_t>(end - static_cast<std::int64_t>(sizeof last), 0);
    const auto count = static_cast<std::size_t>(end - begin);
    if (file.read_at(begin, last, count) != end - begin) {
      break;
    }
    const std::size_t behind = std::string_view(last, count).find_last_not_of(kControlZ) + 1;
    end = begin + static_cast<std::int64_t>(behind);
    if (behind != 0) {
      break;
    }
  }
  return end >= 0 ? end : std::numeric_limits<std::int64_t>::max();
}

}  // namespace

BoundedLines::BoundedLines(platform::RandomAccess& file) : file_(&file), block_(new char[kBlock]), end_(end_of_contents(file)) {
  char start[kByteOrderMark.size()];
  if (file.read_at(0, start, sizeof start) == sizeof start && std::string_view(start, sizeof start) == kByteOrderMark) {
    offset_ = static_cast<std::int64_t>(kByteOrderMark.size());
  }
}

BoundedLines::BoundedLines(std::string_view contents) : window_(contents.substr(0, contents.find_last_not_of(kControlZ) + 1)) {
  if (window_.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
    window_.remove_prefix(kByteOrderMark.size());
  }
}

bool BoundedLines::fill() {
  if (at_ < window_.size()) {
    return true;
  }
  if (file_ == nullptr || offset_ >= end_) {
    return false;
  }
  const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(end_ - offset_, kBlock));
  const std::int64_t got = file_->read_at(offset_, block_.get(), wanted);
  if (got <= 0) {
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
