#include "check/known_keys.h"

#include <algorithm>

#include "blocks/catalogue.h"
#include "check/near.h"
#include "platform/number.h"

namespace qelpro {
namespace {

constexpr std::string_view kDigits = "0123456789";

// Whether it is a number as it is printed.
bool is_printed_number(const std::string& text) {
  return qel::platform::print_int(qel::platform::to_int(text.c_str())) == text;
}

}  // namespace

KnownKeys::KnownKeys() {
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    for (const qel::KeyInfo& key : section->keys) {
      std::vector<Owner>& owners = by_pattern_[key.text];
      if (owners.empty() || owners.back().section != section) {
        owners.push_back({section, &key});
      }
    }
  }
}

std::vector<KnownKeys::Owner> KnownKeys::owners_of(std::string_view key) const {
  std::vector<Owner> owners;
  const auto add = [&](std::string_view pattern) {
    if (const auto found = by_pattern_.find(pattern); found != by_pattern_.end()) {
      owners.insert(owners.end(), found->second.begin(), found->second.end());
    }
  };
  add(key);
  // A number may stand anywhere in it, with a sign of its own; no key of the catalogue holds
  // several.
  constexpr int kMostNumbers = 4;
  std::size_t begin = key.find_first_of(kDigits);
  for (int number = 0; number < kMostNumbers && begin != std::string_view::npos; ++number) {
    const std::size_t end = std::min(key.find_first_not_of(kDigits, begin), key.size());
    for (const std::size_t sign : {std::size_t{0}, std::size_t{1}}) {
      if (begin < sign || (sign == 1 && key[begin - 1] != '-')) {
        continue;
      }
      const std::string digits(key.substr(begin - sign, end - begin + sign));
      if (is_printed_number(digits)) {
        add(std::string(key.substr(0, begin - sign)) + "%d" + std::string(key.substr(end)));
      }
    }
    begin = key.find_first_of(kDigits, end);
  }
  return owners;
}

std::string KnownKeys::near(const qel::SectionInfo& section, std::string_view key) {
  Nearest nearest(key);
  for (const qel::KeyInfo& known : section.keys) {
    nearest.offer(numbered_like(known.text, key));
  }
  return nearest.name();
}

}  // namespace qelpro
