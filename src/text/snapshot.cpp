#include "text/snapshot.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

#include "platform/os_file.h"
#include "platform/steady_read.h"
#include "text/line_scanner.h"
#include "text/text.h"

namespace qel {
namespace {

// The number that a text holds as it is printed: no sign, no leading zeros, nothing around it.
std::optional<int> printed_number(std::string_view text) {
  int number = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = parsed.ec == std::errc() && parsed.ptr == text.data() + text.size();
  return whole && number >= 1 && text.front() != '0' ? std::optional(number) : std::nullopt;
}

std::optional<int> number_after(std::string_view text, std::string_view prefix) {
  return text.substr(0, prefix.size()) == prefix ? printed_number(text.substr(prefix.size()))
                                                 : std::nullopt;
}

// The first characters of a key as a number that orders as they do.
std::uint64_t front_of(std::string_view key) {
  std::uint64_t front = 0;
  const std::size_t count = std::min(key.size(), sizeof front);
  for (std::size_t at = 0; at < count; ++at) {
    front |= std::uint64_t{static_cast<unsigned char>(key[at])} << (8 * (sizeof front - 1 - at));
  }
  return front;
}

}  // namespace

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
  sorted_section_ = found;
  entries_.clear();
  sorted_.clear();
  LineScanner lines(contents_, sections_.value(found), may_hold_nul_);
  for (Line line; lines.next(line) && !text::is_header(line.text);) {
    const std::string_view key = text::first_token(line.text);
    if (!key.empty()) {
      sorted_.push_back({front_of(key), entries_.size()});
      entries_.push_back({key, line.text});
    }
  }
  std::sort(sorted_.begin(), sorted_.end(), [this](const Sorted& a, const Sorted& b) {
    if (a.front != b.front) {
      return a.front < b.front;
    }
    const int order = entries_[a.entry].key.compare(entries_[b.entry].key);
    return order != 0 ? order < 0 : a.entry < b.entry;
  });
  return true;
}

std::vector<Snapshot::Sorted>::const_iterator Snapshot::first_from(std::string_view key) const {
  const std::uint64_t front = front_of(key);
  return std::lower_bound(sorted_.begin(), sorted_.end(), key,
                          [this, front](const Sorted& a, std::string_view b) {
                            return a.front != front ? a.front < front : entries_[a.entry].key < b;
                          });
}

std::optional<std::string_view> Snapshot::value(std::string_view section, std::string_view key) {
  if (!sort_entries_of(section)) {
    return std::nullopt;
  }
  const auto first = first_from(key);
  if (first == sorted_.end() || entries_[first->entry].key != key) {
    return std::nullopt;
  }
  return text::entry_value(entries_[first->entry].line);
}

std::vector<int> Snapshot::numbered_sections(std::string_view pattern, int most) const {
  const std::size_t place = pattern.find("%d");
  const std::string_view suffix = pattern.substr(place + 2);
  std::vector<int> result;
  for (std::size_t section = 0; section < sections_.size(); ++section) {
    std::string_view name = sections_.name(section);
    if (name.size() > suffix.size() && name.substr(name.size() - suffix.size()) == suffix) {
      name.remove_suffix(suffix.size());
      const std::optional<int> number = number_after(name, pattern.substr(0, place));
      if (number && *number <= most) {
        result.push_back(*number);
      }
    }
  }
  std::sort(result.begin(), result.end());
  return result;
}

const std::vector<Snapshot::Numbered>& Snapshot::numbered(std::string_view section,
                                                          std::string_view prefix, int most) {
  numbered_.clear();
  if (!sort_entries_of(section)) {
    return numbered_;
  }
  for (auto at = first_from(prefix); at != sorted_.end(); ++at) {
    const KeyLine& entry = entries_[at->entry];
    if (entry.key.substr(0, prefix.size()) != prefix) {
      break;
    }
    const std::optional<int> number = printed_number(entry.key.substr(prefix.size()));
    // Entries of one key stand together; the first in the file counts.
    if (number && *number <= most && (numbered_.empty() || numbered_.back().number != *number)) {
      numbered_.push_back({*number, text::entry_value(entry.line)});
    }
  }
  std::sort(numbered_.begin(), numbered_.end(),
            [](const Numbered& a, const Numbered& b) { return a.number < b.number; });
  return numbered_;
}

}  // namespace qel
