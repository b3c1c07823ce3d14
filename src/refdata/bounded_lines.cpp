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

bool BoundedLines::next_byte(char& byte) {
  if (at_ == length_) {
    const std::int64_t got = file_->read_at(offset_, block_.get(), kBlock);
    if (got <= 0) {
      return false;
    }
    offset_ += got;
    length_ = static_cast<std::size_t>(got);
    at_ = 0;
  }
  byte = block_[at_++];
  return true;
}

bool BoundedLines::next(std::string& line) {
  line.clear();
  bool any = false;
  char byte = '\0';
  while (line.size() < kLongestLine && next_byte(byte)) {
    any = true;
    if (byte == '\n') {
      if (!line.empty() && line.back() == '\r') {
        line.pop_back();
      }
      break;
    }
    line += byte;
  }
  line.resize(std::char_traits<char>::length(line.c_str()));
  return any;
}

}  // namespace qel::refdata
