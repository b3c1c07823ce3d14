#include "core/snapshot.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

#include "core/lookup.h"
#include "core/text.h"
#include "platform/os_file.h"

namespace qel {

bool Snapshot::load(const char* path) {
  platform::OsFile file;
  if (!file.open_for_reading(path)) {
    return false;
  }
  const std::int64_t size = file.size();
  if (size < 0) {
    return false;
  }
  contents_.resize(static_cast<std::size_t>(size));
  if (file.read_at(0, contents_.data(), contents_.size()) != size) {
    return false;
  }
  sorted_section_ = -1;
  LineScanner lines(contents_);
  for (Line line; lines.next_starting_with('[', line);) {
    if (text::is_header(line.text)) {
      sections_.try_emplace(std::string(text::first_token(line.text)), line.end);
    }
  }
  return true;
}

void Snapshot::sort_entries_behind(std::int64_t header_end) {
  sorted_section_ = header_end;
  sorted_.clear();
  LineScanner lines(contents_, header_end);
  for (Line line; lines.next(line) && !text::is_header(line.text);) {
    const std::string_view key = text::first_token(line.text);
    if (!key.empty()) {
      sorted_.push_back({key, text::entry_value(line.text)});
    }
  }
  std::sort(sorted_.begin(), sorted_.end(),
            [](const Entry& a, const Entry& b) { return std::pair(a.key, a.key.data()) < std::pair(b.key, b.key.data()); });
}

std::optional<std::string_view> Snapshot::value(std::string_view section, std::string_view key) {
  const auto found = sections_.find(std::string(section));
  if (found == sections_.end()) {
    return std::nullopt;
  }
  if (found->second != sorted_section_) {
    sort_entries_behind(found->second);
  }
  const auto entry = std::lower_bound(sorted_.begin(), sorted_.end(), key, [](const Entry& a, std::string_view b) { return a.key < b; });
  return entry != sorted_.end() && entry->key == key ? std::optional(entry->value) : std::nullopt;
}

std::vector<Snapshot::Numbered> Snapshot::numbered(std::string_view section, std::string_view prefix, int most) const {
  std::vector<Numbered> result;
  const auto found = sections_.find(std::string(section));
  if (found == sections_.end()) {
    return result;
  }
  LineScanner lines(contents_, found->second);
  for (Line line; lines.next(line) && !text::is_header(line.text);) {
    const std::string_view key = text::first_token(line.text);
    if (key.size() <= prefix.size() || key.substr(0, prefix.size()) != prefix || key[prefix.size()] == '0') {
      continue;  // a number is written without leading zeros
    }
    int number = 0;
    const char* const end = key.data() + key.size();
    const auto parsed = std::from_chars(key.data() + prefix.size(), end, number);
    if (parsed.ec == std::errc() && parsed.ptr == end && number >= 1 && number <= most) {
      result.push_back({number, text::entry_value(line.text)});
    }
  }
  // Of two entries of one key, the first in the file counts.
  std::stable_sort(result.begin(), result.end(), [](const Numbered& a, const Numbered& b) { return a.number < b.number; });
  const auto same_number = [](const Numbered& a, const Numbered& b) { return a.number == b.number; };
  result.erase(std::unique(result.begin(), result.end(), same_number), result.end());
  return result;
}

}  // namespace qel
