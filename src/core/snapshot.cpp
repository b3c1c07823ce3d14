#include "core/snapshot.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

#include "core/lookup.h"
#include "core/text.h"
#include "platform/os_file.h"

namespace qel {
namespace {

// The number that a text holds as it is printed: no sign, no leading zeros, nothing around it.
std::optional<int> printed_number(std::string_view text) {
  int number = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = parsed.ec == std::errc() && parsed.ptr == text.data() + text.size();
  return whole && number >= 1 && text.front() != '0' ? std::optional(number) : std::nullopt;
}

std::optional<int> number_behind(std::string_view text, std::string_view prefix) {
  return text.substr(0, prefix.size()) == prefix ? printed_number(text.substr(prefix.size())) : std::nullopt;
}

}  // namespace

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

std::vector<int> Snapshot::numbered_sections(std::string_view pattern, int most) const {
  const std::size_t place = pattern.find("%d");
  const std::string_view suffix = pattern.substr(place + 2);
  std::vector<int> result;
  for (const auto& section : sections_) {
    std::string_view name = section.first;
    if (name.size() > suffix.size() && name.substr(name.size() - suffix.size()) == suffix) {
      name.remove_suffix(suffix.size());
      const std::optional<int> number = number_behind(name, pattern.substr(0, place));
      if (number && *number <= most) {
        result.push_back(*number);
      }
    }
  }
  std::sort(result.begin(), result.end());
  return result;
}

std::vector<Snapshot::Numbered> Snapshot::numbered(std::string_view section, std::string_view prefix, int most) const {
  std::vector<Numbered> result;
  const auto found = sections_.find(std::string(section));
  if (found == sections_.end()) {
    return result;
  }
  LineScanner lines(contents_, found->second);
  for (Line line; lines.next(line) && !text::is_header(line.text);) {
    const std::optional<int> number = number_behind(text::first_token(line.text), prefix);
    if (number && *number <= most) {
      result.push_back({*number, text::entry_value(line.text)});
    }
  }
  // Of two entries of one key, the first in the file counts.
  std::stable_sort(result.begin(), result.end(), [](const Numbered& a, const Numbered& b) { return a.number < b.number; });
  const auto same_number = [](const Numbered& a, const Numbered& b) { return a.number == b.number; };
  result.erase(std::unique(result.begin(), result.end(), same_number), result.end());
  return result;
}

}  // namespace qel
