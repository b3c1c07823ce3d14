#include "text/line_scanner.h"

#include <algorithm>
#include <cstring>

#include "text/text.h"

namespace qel {
namespace {

// The longest line with a line break of two bytes, which counts as one character.
std::size_t longest_in_bytes(const text::Dialect& dialect) { return dialect.longest_line + 1; }

const char* find_byte(const char* begin, std::size_t count, char byte) {
  return static_cast<const char*>(std::memchr(begin, byte, count));
}

}  // namespace

LineScanner::LineScanner(platform::ReadAccess& file, std::int64_t from, std::size_t expected,
                         const text::Dialect& dialect)
    : dialect_(dialect), file_(&file), window_offset_(from), capacity_(expected) {
  if (capacity_ > sizeof few_) {
    buffer_.reset(new char[capacity_]);
  }
  window_ = block();
  while (from == 0 && length_ < text::kByteOrderMark.size() && read_more()) {
  }
  if (from == 0 && std::string_view(window_, length_).substr(0, text::kByteOrderMark.size()) ==
                       text::kByteOrderMark) {
    at_ = text::kByteOrderMark.size();
  }
}

LineScanner::LineScanner(std::string_view contents, std::int64_t from, bool may_hold_nul,
                         const text::Dialect& dialect)
    : dialect_(dialect),
      window_(contents.data()),
      length_(contents.size()),
      at_(static_cast<std::size_t>(from)),
      at_end_(true),
      may_hold_nul_(may_hold_nul) {
  drop_end_mark();
  if (from == 0 && contents.substr(0, text::kByteOrderMark.size()) == text::kByteOrderMark) {
    at_ = text::kByteOrderMark.size();
  }
}

// Reads one more block after what the window still holds; false when nothing is left.
bool LineScanner::read_more() {
  if (at_end_) {
    return false;
  }
  const std::size_t kept = available();
  if (length_ != 0 && capacity_ < kBlock) {
    std::unique_ptr<char[]> larger(new char[kBlock]);
    std::memcpy(larger.get(), window_ + at_, kept);
    buffer_ = std::move(larger);
    capacity_ = kBlock;
  } else {
    std::memmove(block(), window_ + at_, kept);
  }
  window_ = block();
  window_offset_ += static_cast<std::int64_t>(at_);
  at_ = 0;
  length_ = kept;
  const std::size_t room = capacity_ - length_;
  char* const after = block() + length_;
  const std::int64_t got =
      file_->read_at(window_offset_ + static_cast<std::int64_t>(length_), after, room);
  failed_ = got < 0;
  const std::size_t added = failed_ ? 0 : static_cast<std::size_t>(got);
  at_end_ = added < room;
  may_hold_nul_ = may_hold_nul_ || find_byte(after, added, '\0') != nullptr;
  length_ += added;
  if (at_end_) {
    drop_end_mark();
  }
  return added > 0;
}

void LineScanner::drop_end_mark() {
  const std::string_view rest(window_ + at_, available());
  length_ = at_ + text::without_end_mark(rest, dialect_).size();
}

// Whether everything from here to the end of the file is padding.
bool LineScanner::is_padding(std::size_t begin) {
  const auto has_content = [](std::string_view text) {
    return text.find_first_not_of(text::kPadding) != std::string_view::npos;
  };
  if (has_content({window_ + begin, length_ - begin})) {
    return false;
  }
  if (at_end_) {
    return true;
  }
  char block[4096];
  for (std::int64_t at = window_offset_ + static_cast<std::int64_t>(length_);;) {
    const std::int64_t got = file_->read_at(at, block, sizeof block);
    if (got <= 0) {
      return true;
    }
    if (has_content({block, static_cast<std::size_t>(got)})) {
      return false;
    }
    at += got;
  }
}

bool LineScanner::next_of_any(Line& line) {
  const std::size_t longest = dialect_.longest_line;
  const std::size_t most = longest_in_bytes(dialect_);
  const auto find_break = [this, most] {
    return find_byte(window_ + at_, std::min(available(), most), '\n');
  };
  const char* line_break = find_break();
  while (line_break == nullptr && available() < most && read_more()) {
    line_break = find_break();
  }
  if (available() == 0 || failed_) {
    return false;
  }
  const char* begin = window_ + at_;
  std::size_t length =
      line_break != nullptr ? static_cast<std::size_t>(line_break - begin) : longest;
  if (line_break != nullptr && length > 0 && begin[length - 1] == '\r') {
    --length;
  }
  line.is_piece = inside_long_line_;
  std::size_t consumed = 0;
  const bool ends = length < longest;
  if (ends) {
    consumed = static_cast<std::size_t>(line_break - begin) + 1;
    inside_long_line_ = false;
  } else {
    consumed = length = std::min(available(), longest);
    if (!inside_long_line_ && text::kPadding.find(*begin) != std::string_view::npos &&
        is_padding(at_)) {
      return false;
    }
    inside_long_line_ = true;
  }
  line.start = window_offset_ + static_cast<std::int64_t>(at_);
  line.end = line.start + static_cast<std::int64_t>(consumed);
  at_ += consumed;
  line.text = {begin, length};
  const char* terminator = may_hold_nul_ ? find_byte(begin, line.text.size(), '\0') : nullptr;
  if (terminator != nullptr) {
    line.text = {begin, static_cast<std::size_t>(terminator - begin)};
  }
  line.has_break = ends && terminator == nullptr;
  return true;
}

bool LineScanner::skip_to(std::int64_t offset) {
  const std::int64_t ahead = offset - (window_offset_ + static_cast<std::int64_t>(at_));
  if (ahead < 0 || ahead > static_cast<std::int64_t>(available())) {
    return false;
  }
  at_ += static_cast<std::size_t>(ahead);
  return true;
}

bool LineScanner::next_starting_with(std::string_view prefix, Line& line) {
  const auto offset = [this] { return window_offset_ + static_cast<std::int64_t>(at_); };
  while (available() != 0 || read_more()) {
    const std::string_view ahead(window_ + at_, available());
    const std::size_t hit = prefix.size() == 1 ? ahead.find(prefix.front()) : ahead.find(prefix);
    if (hit == 0) {
      return next(line);
    }
    // The position stands at the start of a line: go on to the start of the last line before the
    // hit. Most often there is one nearby at either end; where there is none, the faster search
    // tells.
    const std::string_view before = ahead.substr(0, hit);
    const bool has_break = find_byte(before.data(), before.size(), '\n') != nullptr;
    if (has_break) {
      at_ += before.rfind('\n') + 1;
      inside_long_line_ = false;
      if (hit == std::string_view::npos) {
        continue;
      }
    }
    // The hit is inside that line, or after what the window holds of it; parts of a long line
    // count as lines. None of those in front of it needs another look at the window.
    if (hit != std::string_view::npos) {
      const std::int64_t hit_offset = offset() + (ahead.data() + hit - (window_ + at_));
      while (offset() < hit_offset) {
        if (!next(line)) {
          return false;
        }
      }
      continue;
    }
    while (available() > longest_in_bytes(dialect_)) {
      if (!next(line)) {
        return false;
      }
    }
    // The last of them may go on, and so may a prefix at its beginning.
    if (!next(line)) {
      return false;
    }
    if (line.text.starts_with(prefix)) {
      return true;
    }
  }
  return false;
}

}  // namespace qel
