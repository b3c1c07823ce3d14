#include "file/address.h"

#include <charconv>

#include "file/names.h"
#include "system/failure.h"
#include "system/visible.h"

namespace qelpro {
namespace {

// Where the set that begins at `at` ends: the place of its "]", or `npos`. A "]" that is its first
// character belongs to it.
std::size_t end_of_set(std::string_view pattern, std::size_t at) {
  const std::size_t first = at + 1 + (pattern.substr(at + 1, 1) == "!" ? 1 : 0);
  return pattern.find(']', first + 1);
}

bool is_in_set(std::string_view set, char character) {
  const bool negated = set.front() == '!';
  set.remove_prefix(negated ? 1 : 0);
  const auto code = [](char c) { return static_cast<unsigned char>(c); };
  bool found = false;
  for (std::size_t at = 0; at < set.size(); ++at) {
    if (at + 2 < set.size() && set[at + 1] == '-') {
      found = found || (code(set[at]) <= code(character) && code(character) <= code(set[at + 2]));
      at += 2;
    } else {
      found = found || set[at] == character;
    }
  }
  return found != negated;
}

// How much of the pattern one character takes; 0 where it does not match.
std::size_t taken_by(std::string_view pattern, std::size_t at, char character) {
  if (pattern[at] == '?') {
    return 1;
  }
  if (pattern[at] == '[') {
    if (const std::size_t end = end_of_set(pattern, at); end != std::string_view::npos) {
      return is_in_set(pattern.substr(at + 1, end - at - 1), character) ? end + 1 - at : 0;
    }
  }
  return pattern[at] == character ? 1 : 0;
}

// What an address may mean: a name may hold dots, so that every dot may be the one between them.
std::vector<Address> readings_of(const std::string& word) {
  std::vector<Address> readings;
  for (std::size_t dot = word.find('.'); dot != std::string::npos; dot = word.find('.', dot + 1)) {
    if (dot != 0 && dot + 1 != word.size()) {
      readings.push_back({word.substr(0, dot), word.substr(dot + 1)});
    }
  }
  if (readings.empty()) {
    refuse_usage("\"" + word + "\": an address is SECTION.KEY, and this one has no " +
                 (word.front() == '.' ? "section" : "key"));
  }
  return readings;
}

}  // namespace

std::string text_of(const Address& address) { return address.section + "." + address.key; }

std::string_view without_brackets(std::string_view name) {
  return name.size() >= 2 && name.front() == '[' && name.back() == ']'
             ? name.substr(1, name.size() - 2)
             : name;
}

std::string with_brackets(std::string_view name) {
  const std::string_view inside = without_brackets(name);
  return "[" + std::string(inside) + "]";
}

int position_of(std::string_view key) {
  int position = 0;
  if (key.size() < 2 || key.front() != '#' || key[1] == '0') {
    return 0;
  }
  const auto parsed = std::from_chars(key.data() + 1, key.data() + key.size(), position);
  return parsed.ec == std::errc() && parsed.ptr == key.data() + key.size() && position > 0
             ? position
             : 0;
}

Request request_of(const std::string& section, const std::string& key) {
  const std::string name(without_brackets(section_name(section)));
  if (key.empty()) {
    refuse_usage("[" + name + "]: the key is empty");
  }
  return {name + "." + key, {{name, key}}, true, false};
}

std::vector<Request> requests_of(const std::vector<std::string>& words) {
  std::vector<Request> requests;
  for (std::size_t at = 0; at < words.size(); ++at) {
    const std::string& word = words[at];
    const bool has_dot = word.find('.') != std::string::npos;
    if (!word.starts_with('[') && (has_dot || has_pattern_characters(word))) {
      requests.push_back({word, has_dot ? readings_of(word) : std::vector<Address>(), false,
                          has_pattern_characters(word)});
      continue;
    }
    if (word.starts_with('[') && word.find("].") != std::string::npos) {
      refuse_usage(in_quotes(word) +
                   ": a word that begins with \"[\" is the section of a pair; "
                   "leave the brackets out, or give section and key in two words");
    }
    if (at + 1 == words.size()) {
      refuse_usage("\"" + word +
                   "\": KEY is missing; give SECTION.KEY, or the section and the key in two words");
    }
    ++at;
    requests.push_back(request_of(word, words[at]));
  }
  return requests;
}

bool matches_pattern(std::string_view pattern, std::string_view text) {
  std::size_t at = 0;
  std::size_t behind_star = std::string_view::npos;  // where the last "*" is tried again from
  std::size_t tried = 0;
  for (std::size_t character = 0; character < text.size();) {
    const std::size_t taken =
        at < pattern.size() && pattern[at] != '*' ? taken_by(pattern, at, text[character]) : 0;
    if (taken != 0) {
      at += taken;
      ++character;
    } else if (at < pattern.size() && pattern[at] == '*') {
      behind_star = ++at;
      tried = character;
    } else if (behind_star != std::string_view::npos) {
      at = behind_star;
      character = ++tried;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', at) == std::string_view::npos;
}

bool has_pattern_characters(std::string_view text) {
  return text.find_first_of("*?") != std::string_view::npos ||
         (text.find('[') != std::string_view::npos && text.find(']') != std::string_view::npos);
}

}  // namespace qelpro
