#include "core/text.h"

#include <algorithm>

namespace qel::text {
namespace {

constexpr std::string_view kTokenEnd = " \t=";
constexpr std::string_view kTrailing = " \t\n";

bool ends_token(char c) { return c == ' ' || c == '\t' || c == '='; }

}  // namespace

std::string_view first_token(std::string_view line) { return line.substr(0, line.find_first_of(kTokenEnd)); }

bool first_token_is(std::string_view line, std::string_view token) {
  return !token.empty() && line.substr(0, token.size()) == token && (line.size() == token.size() || ends_token(line[token.size()])) &&
         is_findable(token);
}

std::string_view entry_value(std::string_view line) {
  const std::size_t equals = line.find('=');
  return equals == std::string_view::npos ? std::string_view{} : index_value(line.substr(equals + 1));
}

std::string_view index_value(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  return trim_end(line, kTrailing);
}

bool is_header(std::string_view line) {
  line = trim_end(line, kTrailing);
  return line.size() > 1 && line.front() == '[' && line.back() == ']';
}

std::string_view trim_blanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return trim_end(text, " ");
}

std::string_view trim_end(std::string_view text, std::string_view characters) {
  const std::size_t last = text.find_last_not_of(characters);
  return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

bool only_blanks(std::string_view text) { return text.find_first_not_of(' ') == std::string_view::npos; }

bool is_findable(std::string_view name) { return !name.empty() && name.find_first_of(" \t=\r\n") == std::string_view::npos; }

std::string padded_entry(std::string_view key, std::string_view value) {
  constexpr std::size_t kKeyColumns = 20;
  std::string line(key);
  if (line.size() < kKeyColumns) {
    line.append(kKeyColumns - line.size(), ' ');
  }
  return line.append(" = ").append(value);
}

std::string plain_entry(std::string_view key, std::string_view value) { return std::string(key).append(" = ").append(value); }

}  // namespace qel::text
