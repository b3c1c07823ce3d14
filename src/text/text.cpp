#include "text/text.h"

#include <algorithm>

namespace qel::text {
namespace {

// These walk byte by byte: names and blanks are short, and a search for one of several characters
// costs a call for each byte.
std::string_view without_leading_blanks(std::string_view text) {
  std::size_t blanks = 0;
  while (blanks < text.size() && text[blanks] == ' ') {
    ++blanks;
  }
  return text.substr(blanks);
}

std::string_view without_trailing(std::string_view text) {
  std::size_t length = text.size();
  while (length > 0 &&
         (text[length - 1] == ' ' || text[length - 1] == '\t' || text[length - 1] == '\n')) {
    --length;
  }
  return text.substr(0, length);
}

}  // namespace

bool first_token_is(std::string_view line, std::string_view token) {
  return !token.empty() && line.substr(0, token.size()) == token &&
         (line.size() == token.size() || ends_token(line[token.size()])) && is_findable(token);
}

std::string_view entry_value(std::string_view line) {
  return without_trailing(untrimmed_value(line));
}

std::string_view untrimmed_value(std::string_view line) {
  const std::size_t equals = line.find('=');
  return equals == std::string_view::npos ? std::string_view{}
                                          : without_leading_blanks(line.substr(equals + 1));
}

std::string_view index_value(std::string_view line) {
  return without_trailing(without_leading_blanks(line));
}

bool is_header_in_brackets(std::string_view line) {
  if (const std::string_view trimmed = without_trailing(line);
      trimmed.size() > 1 && trimmed.back() == ']') {
    return true;
  }
  // The brackets may hold blanks; a "=" inside them ends the first token before they close.
  for (std::size_t at = 1; at < line.size() && line[at] != '='; ++at) {
    if (line[at] == ']' && at + 1 < line.size() && (line[at + 1] == ' ' || line[at + 1] == '\t')) {
      const std::size_t after = line.find_first_not_of(" \t", at + 1);
      return after == std::string_view::npos || line[after] != '=';
    }
  }
  return false;
}

bool is_header_of(std::string_view line, std::string_view section) {
  return first_token_is(line, section) && (section.front() != '[' || is_header(line));
}

std::string_view trim_blanks(std::string_view text) {
  return trim_end(without_leading_blanks(text), " ");
}

std::string_view trim_end(std::string_view text, std::string_view characters) {
  const std::size_t last = text.find_last_not_of(characters);
  return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::string_view without_end_mark(std::string_view last_line, const Dialect& dialect) {
  const std::string_view text = trim_end(last_line, kPadding);
  const std::size_t mark = last_line.find(kEndMark, text.size());
  if (mark == std::string_view::npos) {
    return last_line;
  }
  return dialect.keeps_blanks ? last_line.substr(0, mark) : text;
}

std::size_t length_without_padding(std::string_view contents, const Dialect& dialect) {
  const std::string_view text = trim_end(contents, kPadding);
  const bool ends_there =
      dialect.keeps_blanks ? text.ends_with('\n') : contents.find('\n') != std::string_view::npos;
  return ends_there ? text.size() : without_end_mark(contents, dialect).size();
}

bool is_findable(std::string_view name) {
  const auto is_lost = [](char c) {
    return c != '\0' && kEndsToken[static_cast<unsigned char>(c)] != Ends::no;
  };
  return !name.empty() && std::none_of(name.begin(), name.end(), is_lost);
}

bool is_section_name(std::string_view name) {
  return is_findable(name) && name.size() > 1 && name.front() == '[' && name.back() == ']';
}

bool is_key(std::string_view name) { return is_findable(name) && name.front() != '['; }

namespace {

// With room for a line break.
std::string entry_of(std::string_view key, std::string_view value, std::size_t key_columns) {
  std::string line;
  line.reserve(std::max(key.size(), key_columns) + kAssignment.size() + value.size() + 2);
  line.append(key);
  if (key.size() < key_columns) {
    line.append(key_columns - key.size(), ' ');
  }
  return line.append(kAssignment).append(value);
}

}  // namespace

std::string padded_entry(std::string_view key, std::string_view value, const Dialect& dialect) {
  return entry_of(key, value, dialect.key_columns);
}

std::string plain_entry(std::string_view key, std::string_view value) {
  return entry_of(key, value, 0);
}

}  // namespace qel::text
