#include "core/glance.h"

#include <algorithm>
#include <cstring>

#include "text/text.h"

namespace qel {

void Glance::read(std::int64_t offset, std::size_t count) {
  const std::int64_t got = file_.read_some(offset, room_, count);
  begin_ = offset;
  bytes_ = {room_, static_cast<std::size_t>(std::max<std::int64_t>(got, 0))};
  at_ = 0;
}

bool Glance::see_header(const SeenAt& place, std::string_view section, std::int64_t offset,
                        std::size_t more) {
  if (place.is_piece || section.size() < 2 || section.back() != ']') {
    return false;
  }
  const std::size_t name_at = place.offset == 0 ? 0 : 1;  // after the line break in front of it
  const std::int64_t begin = place.offset - static_cast<std::int64_t>(name_at);
  const std::size_t header = name_at + section.size() + 2;
  if (header > size_) {
    return false;
  }
  const std::size_t wanted = static_cast<std::size_t>(offset - begin) + more;
  read(begin, wanted <= size_ ? std::max(wanted, header) : header);
  if (bytes_.size() < header || (name_at != 0 && bytes_.front() != '\n') ||
      std::memcmp(bytes_.data() + name_at, section.data(), section.size()) != 0) {
    return false;
  }
  const char* const after = bytes_.data() + header - 2;
  at_ = after[0] == '\n' ? header - 1 : header;
  return after[0] == '\n' || (after[0] == '\r' && after[1] == '\n');
}

bool Glance::go_to(const SeenAt& place) {
  if (place.is_piece || place.offset < begin_ + static_cast<std::int64_t>(at_)) {
    return false;
  }
  if (place.offset + 1 >= begin_ + static_cast<std::int64_t>(bytes_.size())) {
    read(place.offset - 1, kOneLine);
  }
  at_ = static_cast<std::size_t>(place.offset - begin_);
  return at_ < bytes_.size() && bytes_[at_ - 1] == '\n';
}

bool Glance::pass(const LineMark& mark) {
  const std::string_view ahead = bytes_.substr(at_);
  if (!mark.begins(ahead)) {
    return false;
  }
  const std::size_t line_break = ahead.find('\n');
  at_ += line_break + 1;
  return line_break != std::string_view::npos;
}

bool Glance::next(Line& line, std::string_view& token) {
  const char* const begin = bytes_.data() + at_;
  const char* const end = bytes_.data() + bytes_.size();
  const char* after = begin;
  while (after != end && text::kEndsToken[static_cast<unsigned char>(*after)] == text::Ends::no) {
    ++after;
  }
  token = {begin, static_cast<std::size_t>(after - begin)};
  // A key without "=", or one that nothing finds, is for others to tell of.
  if (after == end || (after != begin && !text::ends_token(*after))) {
    return false;
  }
  const auto* const line_break =
      static_cast<const char*>(std::memchr(after, '\n', static_cast<std::size_t>(end - after)));
  if (line_break == nullptr) {
    return false;
  }
  const bool has_return = line_break != begin && line_break[-1] == '\r';
  line.start = begin_ + static_cast<std::int64_t>(at_);
  line.text = {begin, static_cast<std::size_t>(line_break - begin) - (has_return ? 1 : 0)};
  line.is_piece = false;
  line.has_break = true;
  at_ = static_cast<std::size_t>(line_break - bytes_.data()) + 1;
  line.end = begin_ + static_cast<std::int64_t>(at_);
  return true;
}

}  // namespace qel
