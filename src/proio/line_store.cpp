#include "proio/line_store.h"

#include <algorithm>
#include <string>

#include "platform/line_break.h"

namespace qel::proio {
namespace {

// A new positional section always gets this header, whatever section was asked for.
constexpr std::string_view kPositionalHeader = "[SURFACE ELEMENT BOUNDARY CONDITION NAME]";

constexpr std::size_t kKeyColumns = 14;

std::string_view without_leading_blanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

// A file's bytes, and what is to become of them.
class Contents {
 public:
  explicit Contents(platform::RandomAccess& file) : file_(file) {}

  bool load();
  [[nodiscard]] std::string_view text() const { return text_; }

  [[nodiscard]] std::string line(const Target& target, std::string_view value) const;
  [[nodiscard]] std::string header(const Target& target) const;
  // An entry behind a last line that has no line break would become part of that line.
  [[nodiscard]] std::string_view missing_break() const { return text_.empty() || text_.back() == '\n' ? std::string_view{} : line_break_; }

  bool replace(std::size_t begin, std::size_t end, std::string bytes);
  bool append(std::string bytes) { return replace(text_.size(), text_.size(), std::move(bytes)); }

 private:
  void append_as_text(std::string& bytes, std::string_view text) const;
  bool overwrite(std::size_t at, std::string_view bytes);

  platform::RandomAccess& file_;
  std::string whole_;      // the file's bytes
  std::string_view text_;  // those in front of the padding
  std::string_view line_break_;
};

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

// A line feed inside a value is a line break like any other in the file.
void Contents::append_as_text(std::string& bytes, std::string_view text) const {
  for (const char c : text) {
    if (c == '\n' && line_break_.size() > 1) {
      if (!bytes.empty() && bytes.back() == '\r') {
        bytes.pop_back();
      }
      bytes.append(line_break_);
    } else {
      bytes.push_back(c);
    }
  }
}

std::string Contents::line(const Target& target, std::string_view value) const {
  std::string bytes;
  if (target.by_key()) {
    bytes.assign(target.key);
    bytes.resize(std::max(bytes.size(), kKeyColumns), ' ');
    bytes.append(" = ");
  }
  append_as_text(bytes, value);
  return bytes.append(line_break_);
}

std::string Contents::header(const Target& target) const {
  std::string bytes(line_break_);
  return bytes.append(target.by_key() ? target.section : kPositionalHeader).append(line_break_);
}

// Puts bytes in the place of others. The file keeps its length at least: blanks fill it up behind the last line break,
// where those of earlier stores are already.
bool Contents::replace(std::size_t begin, std::size_t end, std::string bytes) {
  if (bytes.size() != end - begin) {
    bytes.append(text_.substr(end));
    bytes.resize(std::max(bytes.size(), text_.size() - begin), ' ');
  }
  return overwrite(begin, bytes);
}

// All of the bytes, or none: the room for them is made sure of before an old byte is touched.
bool Contents::overwrite(std::size_t at, std::string_view bytes) {
  const auto offset = static_cast<std::int64_t>(at);
  const auto old_size = static_cast<std::int64_t>(whole_.size());
  const std::int64_t new_size = std::max(old_size, offset + static_cast<std::int64_t>(bytes.size()));
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

}  // namespace

bool is_match(std::string_view line, std::string_view name) {
  constexpr std::string_view kWordEnd = "\t\n =";
  if (line.substr(0, name.size()) != name || name.find_first_of(kWordEnd) != std::string_view::npos) {
    return false;
  }
  return line.size() == name.size() || kWordEnd.find(line[name.size()]) != std::string_view::npos;
}

bool seek_section(LineScanner& lines, std::string_view section) {
  Line line;
  do {
    lines.pass_lines_without(section);
    if (!lines.next(line)) {
      return false;
    }
  } while (!is_match(line.text, section));
  return true;
}

bool seek_line(LineScanner& lines, const Target& target, Line& line, std::int64_t contents_end) {
  for (int position = 1; lines.next(line) && line.start < contents_end; ++position) {
    if (target.by_key() ? is_match(line.text, target.key) : position == target.index) {
      return true;
    }
  }
  return false;
}

Code read(platform::RandomAccess& file, const Target& target, Buffer& value) {
  LineScanner lines(file);
  Line line;
  if (!seek_section(lines, target.section)) {
    return Code::not_found;
  }
  // Padding has no leading word, so that it matters to positions alone.
  const bool found = target.by_key() ? seek_line(lines, target, line) : seek_line(lines, target, line, length_without_padding(file));
  if (!found) {
    return Code::not_found;
  }
  std::string_view text = line.text;
  if (target.by_key()) {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos) {
      value.assign({});
      return Code::success;
    }
    text = without_leading_blanks(text.substr(equals + 1));
  }
  value.assign(text).append(line.has_break ? "\n" : "");
  return Code::success;
}

bool store(platform::RandomAccess& file, const Target& target, std::string_view value) {
  Contents contents(file);
  if (!contents.load()) {
    return false;
  }
  LineScanner lines(contents.text());
  Line line;
  if (!seek_section(lines, target.section)) {
    return contents.append(contents.header(target) + contents.line(target, value));
  }
  if (!seek_line(lines, target, line)) {
    return contents.append(std::string(contents.missing_break()) + contents.line(target, value));
  }
  return contents.replace(static_cast<std::size_t>(line.start), static_cast<std::size_t>(line.end), contents.line(target, value));
}

}  // namespace qel::proio
