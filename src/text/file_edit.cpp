#include "text/file_edit.h"

#include <algorithm>
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

// Makes sure of the room before an old byte is touched.
bool FileEdit::reserve(std::size_t end) {
  return file_.reserve(static_cast<std::int64_t>(image_.bytes().size()),
                       static_cast<std::int64_t>(end));
}

// Puts bytes over the file's from an offset on, growing it where they reach further. False with the
// file as it was.
bool FileEdit::overwrite(std::size_t at, std::string_view bytes) {
  if (!reserve(at + bytes.size())) {
    return false;
  }
  if (file_.write_at(static_cast<std::int64_t>(at), bytes.data(), bytes.size())) {
    return true;
  }
  put_back(at);
  return false;
}

void FileEdit::put_back(std::size_t at) {
  image_.restore();
  const std::string_view old = image_.bytes();
  file_.write_at(static_cast<std::int64_t>(at), old.data() + at, old.size() - at);
  file_.truncate(static_cast<std::int64_t>(old.size()));
}

bool FileEdit::overwrite_in_steps(PageSteps& steps) {
  const std::size_t old_end = image_.bytes().size();
  std::size_t end = 0;
  for (std::string& text : steps.texts) {
    if (steps.moves_all && steps.at + text.size() < old_end) {
      text.append(old_end - steps.at - text.size(), ' ');
    }
    end = std::max(end, steps.at + text.size());
  }
  if (!reserve(end)) {
    return false;
  }
  const auto at = static_cast<std::int64_t>(steps.at);
  if (std::ranges::all_of(steps.texts, [this, at](const std::string& text) {
        return file_.write_at(at, text.data(), text.size());
      })) {
    return true;
  }
  put_back(steps.at);
  return false;
}

bool FileEdit::replace(std::size_t begin, std::size_t end, std::string_view lines) {
  const bool moves = lines.size() != end - begin;
  const std::size_t contents_size = contents_.size();
  const bool is_whole = (end < contents_size ? contents_ : lines).back() == '\n';
  PageSteps steps = page_steps({contents_, begin, end, lines});
  std::size_t new_end = contents_size - (end - begin) + lines.size();
  if (!steps.texts.empty()) {
    if (!overwrite_in_steps(steps)) {
      return false;
    }
  } else if (!moves && !drops_padding_) {
    return overwrite(begin, lines);
  } else {
    std::string after;
    if (drops_padding_ && !is_whole) {
      after = line_break_;
      new_end += after.size();
    }
    // The blanks of earlier padding are there already; what is dropped is not to be seen before it
    // is.
    const std::size_t old_end = drops_padding_ ? image_.bytes().size() : contents_size;
    if (new_end < old_end) {
      after.append(old_end - new_end, ' ');
    }
    if (!overwrite(begin, image_.compose(lines, end, contents_size, after))) {
      return false;
    }
  }
  if (drops_padding_ && new_end < image_.bytes().size() &&
      !file_.truncate(static_cast<std::int64_t>(new_end))) {
    put_back(steps.texts.empty() ? begin : steps.at);
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
