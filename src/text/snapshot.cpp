#include "text/snapshot.h"

#include <algorithm>

#include "platform/os_file.h"
#include "platform/steady_read.h"
#include "text/key_table.h"
#include "text/text.h"

namespace qel {

bool Snapshot::load(const char* path) {
  platform::OsFile file;
  if (!file.open_for_reading(path)) {
    return false;
  }
  const bool is_read = platform::read_steadily(file, [&] {
    const std::int64_t size = file.size_in_memory();
    if (size < 0) {
      return false;
    }
    contents_.resize(static_cast<std::size_t>(size));
    return file.read_at(0, contents_.data(), contents_.size()) == size;
  });
  if (!is_read) {
    return false;
  }
  sections_.clear();
  sorted_section_ = kNone;
  may_hold_nul_ = contents_.find('\0') != std::string::npos;
  LineScanner lines(contents_, 0, may_hold_nul_);
  for (Line line; lines.next_starting_with('[', line);) {
    if (text::is_header(line.text)) {
      sections_.insert(HashedName(text::first_token(line.text)), line.end);
    }
  }
  return true;
}

bool Snapshot::sort_entries_of(std::string_view section) {
  if (sorted_section_ != kNone && sections_.name(sorted_section_) == section) {
    return true;
  }
  const std::size_t found = sections_.position_of(HashedName(section));
  if (found == kNone) {
    return false;
  }
  sorted_section_ = kNone;
  keys_.clear();
  lines_.clear();
  visit_entries(section, [this](std::string_view key, std::string_view line) {
    keys_.push_back(key);
    lines_.push_back(line);
  });
  order_ = in_order_.of(keys_);
  sorted_section_ = found;
  return true;
}

std::optional<std::string_view> Snapshot::value(std::string_view section, std::string_view key) {
  if (!sort_entries_of(section)) {
    return std::nullopt;
  }
  const auto first = std::lower_bound(
      order_.begin(), order_.end(), key,
      [this](std::size_t entry, std::string_view wanted) { return keys_[entry] < wanted; });
  if (first == order_.end() || keys_[*first] != key) {
    return std::nullopt;
  }
  return text::entry_value(lines_[*first]);
}

std::vector<int> Snapshot::numbered_sections(std::string_view pattern, int most) const {
  const std::size_t place = pattern.find("%d");
  const std::string_view suffix = pattern.substr(place + 2);
  std::vector<int> result;
  for (std::size_t section = 0; section < sections_.size(); ++section) {
    std::string_view name = sections_.name(section);
    if (name.size() > suffix.size() && name.substr(name.size() - suffix.size()) == suffix) {
      name.remove_suffix(suffix.size());
      const NumberedKey numbered = numbered_key(name);
      if (numbered.prefix == pattern.substr(0, place) && numbered.number >= 1 &&
          numbered.number <= most) {
        result.push_back(numbered.number);
      }
    }
  }
  std::sort(result.begin(), result.end());
  return result;
}

}  // namespace qel
