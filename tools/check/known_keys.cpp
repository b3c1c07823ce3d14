#include "check/known_keys.h"

#include <algorithm>

#include "blocks/catalogue.h"
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
    NearNames& names = names_[section];
    for (const qel::KeyInfo& key : section->keys) {
      names.add(key.text);
      std::vector<Owner>& owners = by_pattern_[key.text];
      if (owners.empty() || owners.back().section != section) {
        owners.push_back({section, &key});
      }
    }
  }
}

template <class Take>
void KnownKeys::visit_owners(std::string_view key, const Take& take) const {
  const auto find = [&](std::string_view pattern) {
    if (const auto found = by_pattern_.find(pattern); found != by_pattern_.end()) {
      std::ranges::for_each(found->second, take);
    }
  };
  if (!qel::is_numbered(key)) {  // "FR-%d" itself is no key
    find(key);
  }
  // A number may stand anywhere in it, with a sign of its own; no key of the catalogue holds
  // several.
  constexpr int kMostNumbers = 2;
  std::string pattern;
  std::size_t begin = key.find_first_of(kDigits);
  for (int number = 0; number < kMostNumbers && begin != std::string_view::npos; ++number) {
    const std::size_t end = std::min(key.find_first_not_of(kDigits, begin), key.size());
    for (const std::size_t sign : {std::size_t{0}, std::size_t{1}}) {
      const bool has_sign = begin > 0 && key[begin - 1] == '-';
      if ((sign == 0 || has_sign) &&
          is_printed_number(std::string(key.substr(begin - sign, end - begin + sign)))) {
        pattern.assign(key.substr(0, begin - sign)).append("%d").append(key.substr(end));
        find(pattern);
      }
    }
    begin = key.find_first_of(kDigits, end);
  }
}

std::vector<KnownKeys::Owner> KnownKeys::owners_of(std::string_view key) const {
  std::vector<Owner> owners;
  visit_owners(key, [&](const Owner& owner) { owners.push_back(owner); });
  return owners;
}

std::vector<const qel::KeyInfo*> KnownKeys::keys_of(const Entries& entries) const {
  std::vector<const qel::KeyInfo*> keys(entries.all().size());
  const std::vector<TextSection>& sections = entries.document().sections();
  for (std::size_t index = 0; index < keys.size(); ++index) {
    const FileEntry& entry = entries.all()[index];
    if (const qel::SectionInfo* known = entries.known_section(sections[entry.section])) {
      visit_owners(entry.key, [&](const Owner& owner) {
        if (owner.section == known) {
          keys[index] = owner.key;
        }
      });
    }
  }
  return keys;
}

}  // namespace qelpro
