#include "refdata/bounded_lines.h"

#include <string_view>

namespace qel::refdata {
namespace {

constexpr std::size_t kBlock = std::size_t{64} * 1024;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

BoundedLines::BoundedLines(platform::RandomAccess& file) : file_(&file), block_(new char[kBlock]) {
  char start[kByteOrderMark.size()];
  if (file.read_at(0, start, sizeof start) == sizeof start && std::string_view(start, sizeof start) == kByteOrderMark) {
    offset_ = static_cast<std::int64_t>(kByteOrderMark.size());
  }
}

bool BoundedLines::fill() {
  if (at_ == length_) {
    const std::int64_t got = file_->read_at(offset_, block_.get(), kBlock);
    if (got <= 0) {
      return false;
    }
    offset_ += got;
    length_ = static_cast<std::size_t>(got);
    at_ = 0;
  }
  return true;
}

bool BoundedLines::next_character(char& character) {
  if (!fill()) {
    return false;
  }
  character = block_[at_++];
  if (character == '\r' && fill() && block_[at_] == '\n') {
    character = block_[at_++];
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
