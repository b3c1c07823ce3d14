#include "proio/contents.h"

#include <algorithm>
#include <cstdint>

#include "platform/line_break.h"
#include "proio/line_scanner.h"

namespace qel::proio {

bool Contents::load() {
  const std::int64_t size = file_.size_in_memory();
  if (size < 0) {
    return false;
  }
  whole_.resize(static_cast<std::size_t>(size));
  if (file_.read_at(0, whole_.data(), whole_.size()) != size) {
    return false;
  }
  text_ = std::string_view(whole_).substr(0, length_without_padding(whole_));
  const std::size_t first_break = text_.find('\n');
  if (first_break == std::string_view::npos) {
    line_break_ = platform::kLineBreak;
  } else {
    line_break_ = first_break > 0 && text_[first_break - 1] == '\r' ? "\r\n" : "\n";
  }
  return true;
}

bool Contents::replace(std::size_t begin, std::size_t end, std::string lines) {
  if (lines.size() != end - begin) {
    lines.append(text_.substr(end));
    lines.resize(std::max(lines.size(), text_.size() - begin), ' ');
  }
  return overwrite(begin, lines);
}

// The room for the bytes is made sure of before an old one is touched.
bool Contents::overwrite(std::size_t at, std::string_view bytes) {
  const auto offset = static_cast<std::int64_t>(at);
  const auto old_size = static_cast<std::int64_t>(whole_.size());
  const std::int64_t new_size =
      std::max(old_size, offset + static_cast<std::int64_t>(bytes.size()));
  if (!file_.secure_growth(old_size, new_size)) {
    return false;
  }
  if (file_.write_at(offset, bytes.data(), bytes.size())) {
    return true;
  }
  file_.write_at(offset, whole_.data() + at, whole_.size() - at);
  file_.truncate(old_size);
  return false;
}

}  // namespace qel::proio
