#include "file/meaning.h"

#include <algorithm>
#include <array>

namespace qelpro {

std::string_view unit_of(std::string_view meaning) {
  constexpr std::string_view kBefore = ", in ";
  constexpr std::array<std::string_view, 5> kUnits = {"sec", "oC", "MPa", "cc/sec", "cc"};
  std::string_view unit;
  for (std::size_t at = meaning.find(kBefore); at != std::string_view::npos;
       at = meaning.find(kBefore, at + 1)) {
    const std::string_view behind = meaning.substr(at + kBefore.size());
    const std::string_view word = behind.substr(0, behind.find_first_of(" ,;:)"));
    if (std::ranges::find(kUnits, word) != kUnits.end()) {
      unit = word;
    }
  }
  return unit;
}

std::vector<std::pair<int, std::string>> codes_of(std::string_view meaning) {
  constexpr std::string_view kElse = ", else ";
  const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
  std::vector<std::pair<int, std::string>> codes;
  const std::size_t colon = meaning.find(": ");
  std::string_view rest = meaning.substr(0, meaning.find(';'));
  rest.remove_prefix(is_digit(meaning.front()) || colon >= rest.size() ? 0 : colon + 2);
  while (!rest.empty() && is_digit(rest.front())) {
    const std::size_t digits = rest.find_first_not_of("0123456789");
    if (digits == std::string_view::npos || rest[digits] != ' ') {
      break;
    }
    // A code's words reach to a comma with the next code, or with what all others mean, behind it.
    std::size_t end = rest.find(", ");
    while (end != std::string_view::npos && !is_digit(rest[end + 2]) &&
           !rest.substr(end).starts_with(kElse) && !rest.substr(end).starts_with(", otherwise ")) {
      end = rest.find(", ", end + 1);
    }
    const std::string_view words = rest.substr(digits + 1, std::min(end, rest.size()) - digits - 1);
    codes.emplace_back(std::stoi(std::string(rest.substr(0, digits))), std::string(words));
    rest.remove_prefix(std::min(end, rest.size()));
    if (rest.starts_with(kElse)) {
      codes.emplace_back(std::stoi(std::string(rest.substr(kElse.size()))), "otherwise");
      break;
    }
    rest.remove_prefix(std::min<std::size_t>(rest.size(), 2));
  }
  return codes;
}

std::vector<std::string> members_of(const qel::KeyInfo& key) {
  std::vector<std::string> members;
  const auto add = [&members](std::string_view object, const qel::Members& of_object) {
    for (const char* member : of_object) {
      if (member != nullptr) {
        members.push_back(std::string(object) + "::" + member);
      }
    }
  };
  add("CQELPROReader_Manipulator", key.readers);
  add("CQELPROWriter_Manipulator", key.writers);
  add("CPROIO_Manipulator", key.details.older);
  add("CQEL_ProcessAdapter", key.details.adapter);
  add("CQELProcessValueReader", key.details.value_reader);
  return members;
}

}  // namespace qelpro
