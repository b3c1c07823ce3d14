#include "support/naive_older_object.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "support/naive_document.h"

namespace qelpro_test {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr const char* kDate = "0000/00/00 00:00:00";

bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::string leading_word(const std::string& line) {
  return line.substr(0, line.find_first_of("\t\n ="));
}

// What cannot be read counts nothing; a negative number counts as it is.
int count_in(const std::string& text) {
  int number = 0;
  return std::sscanf(text.c_str(), "%d", &number) == 1 ? number : 0;
}

}  // namespace

std::string entry(const std::string& key, const std::string& value) {
  constexpr std::size_t kColumns = 14;
  return key + std::string(key.size() < kColumns ? kColumns - key.size() : 0, ' ') + " = " + value +
         "\n";
}

std::string with_plain_dates(std::string text) {
  const std::string_view shape = kDate;
  for (std::size_t at = 0; at + shape.size() <= text.size(); ++at) {
    const bool is_date =
        std::equal(shape.begin(), shape.end(), text.begin() + static_cast<std::ptrdiff_t>(at),
                   [](char wanted, char c) { return wanted == '0' ? is_digit(c) : wanted == c; });
    if (is_date) {
      text.replace(at, shape.size(), shape);
    }
  }
  return text;
}

int leading_number(const std::string& text) {
  int number = -1;
  return std::sscanf(text.c_str(), "%d", &number) == 1 ? number : -1;
}

void NaiveOlderObject::set(const std::string& section, const std::string& key,
                           const std::string& value) {
  write(section, key, 0, entry(key, value));
  write("[FileHeader]", "Date", 0, entry("Date", kDate));
}

void NaiveOlderObject::set_line(std::int64_t position, const std::string& line) {
  write("[SURFACE", "", position, line + "\n");
  write("[FileHeader]", "Date", 0, entry("Date", kDate));
}

std::optional<std::string> NaiveOlderObject::get(const std::string& section,
                                                 const std::string& key) const {
  const auto [found, line] = find(section, key, 0);
  if (!line) {
    return std::nullopt;
  }
  const std::size_t equals = line->text.find('=');
  if (equals == std::string::npos) {
    return "";
  }
  const std::string after = line->text.substr(equals + 1);
  return after.substr(std::min(after.find_first_not_of(' '), after.size()));
}

std::optional<std::string> NaiveOlderObject::line(std::int64_t position) const {
  const auto found = find("[SURFACE", "", position).second;
  return found ? std::optional<std::string>(found->text) : std::nullopt;
}

std::int64_t NaiveOlderObject::line_of_point(int condition, int point, bool& named) const {
  named = after_header("[SURFACE", false).has_value();
  std::int64_t position = count_in(get("[Summary]", "TotalNodeBC").value_or("0"));
  position += point;
  for (int k = 1; k < condition; ++k) {
    const auto name = line(k);
    named = named && name;
    position += name ? count_in(*name) : 0;
  }
  return position;
}

// Without the blanks after the last line break, and without what ends a file for other programs.
std::size_t NaiveOlderObject::contents_end() const {
  std::size_t end = text_.size();
  while (end > 0 && (text_[end - 1] == ' ' || text_[end - 1] == '\x1A')) {
    --end;
  }
  return end > 0 && text_[end - 1] == '\n' ? end : std::min(text_.find('\x1A', end), text_.size());
}

std::vector<NaiveOlderObject::Line> NaiveOlderObject::lines() const {
  std::vector<Line> all;
  const std::string contents = text_.substr(0, contents_end());
  const std::size_t begin = contents.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  for (std::size_t at = begin; at < contents.size();) {
    const std::size_t end = std::min({contents.find('\n', at), contents.size() - 1, at + 126}) + 1;
    all.push_back(
        {at, end, contents.substr(at, end - at), at == begin || contents[at - 1] == '\n'});
    at = end;
  }
  return all;
}

bool NaiveOlderObject::begins_section(const Line& line) {
  return line.begins &&
         (naive::closes_a_section(line.text) || leading_word(line.text) == "[SURFACE");
}

// The lines from after the section's header to the next header, or all of the file's where
// `whole`; none without the section.
std::optional<std::vector<NaiveOlderObject::Line>> NaiveOlderObject::after_header(
    const std::string& section, bool whole) const {
  std::vector<Line> all = lines();
  const auto header = std::find_if(
      all.begin(), all.end(), [&](const Line& line) { return leading_word(line.text) == section; });
  if (header == all.end()) {
    return std::nullopt;
  }
  return std::vector<Line>(header + 1,
                           whole ? all.end() : std::find_if(header + 1, all.end(), begins_section));
}

std::pair<bool, std::optional<NaiveOlderObject::Line>> NaiveOlderObject::find(
    const std::string& section, const std::string& key, std::int64_t position) const {
  const auto after = after_header(section, position <= 0);
  if (!after) {
    return {false, std::nullopt};
  }
  std::int64_t counter = 1;
  for (const Line& line : *after) {
    if (position > 0 ? counter++ == position : leading_word(line.text) == key) {
      return {true, line};
    }
  }
  return {true, std::nullopt};
}

// Where the section's lines end, the empty ones at its end left out where asked for.
std::size_t NaiveOlderObject::end_of(const std::string& section, bool without_empty_lines) const {
  std::vector<Line> all = *after_header(section, false);
  std::size_t end = all.empty() ? after_header(section, true)->empty()
                                      ? contents_end()
                                      : after_header(section, true)->front().start
                                : all.back().end;
  for (; without_empty_lines && !all.empty() && all.back().begins &&
         all.back().text.find_first_not_of(" \t\n") == std::string::npos;
       all.pop_back()) {
    end = all.back().start;
  }
  return end;
}

void NaiveOlderObject::write(const std::string& section, const std::string& key,
                             std::int64_t position, const std::string& line) {
  const std::string old_text = text_;
  const std::size_t old_end = contents_end();
  const auto [found, old_line] = find(section, key, position);
  const std::string header =
      "\n" + (position > 0 ? std::string("[SURFACE ELEMENT BOUNDARY CONDITION NAME]") : section) +
      "\n";
  const bool block_is_last =
      after_header("[SURFACE", false) && end_of("[SURFACE", false) == contents_end();
  std::size_t at = contents_end();
  std::size_t end = at;
  std::string written = line;
  if (old_line) {
    at = old_line->start;
    end = std::min(text_.find('\n', old_line->end - 1), contents_end() - 1) + 1;
  } else if (!found) {
    written = header + line;
  } else if (position > 0) {
    at = end = end_of(section, false);
  } else if (block_is_last && end_of(section, false) < at) {
    at = end = end_of(section, true);
  } else if (block_is_last) {
    written = header + line;
  }
  if (written == line && at > 0 && at == contents_end() && text_[at - 1] != '\n') {
    written = "\n" + line;
  }
  text_.resize(old_end);
  text_.replace(at, end - at, written);
  text_.resize(std::max(text_.size(), old_end), ' ');
  text_ += old_text.substr(std::min(text_.size(), old_text.size()));
}

}  // namespace qelpro_test
