#include "text/file_edit.h"

#include <utility>

#include "platform/line_break.h"
#include "text/text.h"

namespace qel {

bool FileEdit::load() {
  if (!image_.load(file_, size_)) {
    return false;
  }
  contents_ = image_.bytes().substr(0, text::length_without_padding(image_.bytes(), dialect_));
  const std::size_t first_break = contents_.find('\n');
  if (first_break == std::string_view::npos) {
    line_break_ = platform::kLineBreak;
  } else {
    line_break_ = first_break > 0 && contents_[first_break - 1] == '\r' ? "\r\n" : "\n";
  }
  return true;
}

// Puts bytes over the file's from an offset on, growing it where they reach further. The room for
// them is made sure of before an old byte is touched.
bool FileEdit::overwrite(std::size_t at, std::string_view bytes) {
  const auto offset = static_cast<std::int64_t>(at);
  const auto old_size = static_cast<std::int64_t>(image_.bytes().size());
  if (!file_.reserve(old_size, offset + static_cast<std::int64_t>(bytes.size()))) {
    return false;
  }
  if (file_.write_at(offset, bytes.data(), bytes.size())) {
    return true;
  }
  image_.restore();
  file_.write_at(offset, image_.bytes().data() + at, image_.bytes().size() - at);
  file_.truncate(old_size);
  return false;
}

bool FileEdit::replace(std::size_t begin, std::size_t end, std::string_view lines) {
  if (lines.size() == end - begin && !drops_padding_) {
    return overwrite(begin, lines);
  }
  const std::size_t contents_size = contents_.size();
  std::string after;
  if (drops_padding_) {
    after =
        (end < contents_size ? contents_ : lines).back() == '\n' ? std::string_view() : line_break_;
  } else if (lines.size() < end - begin) {
    // The blanks of earlier padding are there already.
    after.assign(end - begin - lines.size(), ' ');
  }
  const std::string_view bytes = image_.compose(lines, end, contents_size, after);
  if (!overwrite(begin, bytes)) {
    return false;
  }
  const std::size_t new_end = begin + bytes.size();
  if (drops_padding_ && new_end < image_.bytes().size() &&
      !file_.truncate(static_cast<std::int64_t>(new_end))) {
    image_.restore();
    overwrite(begin, image_.bytes().substr(begin));
    return false;
  }
  return true;
}

bool FileEdit::insert(std::size_t at, std::string lines) {
  if (at == contents_.size() && !contents_.empty() && contents_.back() != '\n') {
    lines.insert(0, line_break_);
  }
  return replace(at, at, lines);
}

bool FileEdit::append_section(std::string_view header, std::string_view lines) {
  std::string text(line_break_);
  text.append(header).append(line_break_).append(lines);
  return replace(contents_.size(), contents_.size(), text);
}

}  // namespace qel
