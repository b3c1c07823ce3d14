#include "blocks/catalogue.h"

#include "blocks/inlet_source.h"
#include "blocks/output.h"
#include "blocks/quick_setting.h"
#include "blocks/sections.h"
#include "text/key_table.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace qel {
namespace {

// Those without a block come after the others.
constexpr const SectionInfo* kWithoutBlock[] = {
    &mold_temperature_bc_x::kPositionalInfo,
    &kFlowSkin,
    &kPackSkin,
    &kFlowEM,
    &kPackEM,
    &quick_setting::kInfo,
    &output::kInfo,
};

constexpr auto all_sections() {
  std::array<const SectionInfo*, SectionBlocks::kSections.size() + std::size(kWithoutBlock)> all{};
  std::ranges::copy(kWithoutBlock, std::ranges::copy(SectionBlocks::kSections, all.begin()).out);
  return all;
}
constexpr auto kSections = all_sections();

// A name whose number, if it has one, stands between two parts.
struct Pattern {
  std::string_view prefix;
  std::string_view suffix;
  bool is_numbered;
};

// The standard library's search is no constant expression under every sanitizer.
constexpr std::size_t place_of(char wanted, std::string_view text, std::size_t from) {
  while (from < text.size() && text[from] != wanted) {
    ++from;
  }
  return from;
}

constexpr Pattern pattern_of(std::string_view text) {
  const std::size_t percent = place_of('%', text, 0);
  return percent == text.size() ? Pattern{text, {}, false}
                                : Pattern{text.substr(0, percent),
                                          text.substr(place_of('d', text, percent) + 1), true};
}

// Whether the text is the pattern, with a number as it is printed in the place of "%d" or "%ld".
bool matches(const Pattern& pattern, std::string_view text, int& number) {
  number = 0;
  if (!pattern.is_numbered) {
    return pattern.prefix == text;
  }
  const std::size_t around = pattern.prefix.size() + pattern.suffix.size();
  if (text.size() <= around || !text.starts_with(pattern.prefix) ||
      !text.ends_with(pattern.suffix)) {
    return false;
  }
  const std::string digits(text.substr(pattern.prefix.size(), text.size() - around));
  number = platform::to_int(digits.c_str());
  return platform::print_int(number) == digits;
}

constexpr auto kSectionPatterns = [] {
  std::array<Pattern, kSections.size()> names{};
  std::ranges::transform(kSections, names.begin(),
                         [](const SectionInfo* section) { return pattern_of(section->name); });
  return names;
}();

constexpr std::size_t kKeyCount = [] {
  std::size_t count = 0;
  for (const SectionInfo* section : kSections) {
    count += section->keys.size();
  }
  return count;
}();

// The keys of all sections, and of each the first of its rows. What stands behind a number, and a
// number behind a digit, is in no table.
using KnownTable = KeyTable<kKeyCount>;
struct KnownKeys {
  KnownTable table;
  std::array<std::uint16_t, kKeyCount> row{};
  std::array<bool, kSections.size()> has_others{};
};

// A key that is one by itself is never one with a number, too.
consteval void check_apart(const KnownKeys& known, std::size_t section) {
  for (const KeyInfo& key : kSections[section]->keys) {
    const NumberedKey numbered = numbered_key(key.text);
    if (numbered.number >= 0 &&
        known.table.find(section, numbered.prefix, true) != KnownTable::kNone) {
      throw "a key that is another's number";
    }
  }
}

consteval KnownKeys known_keys() {
  KnownKeys known;
  for (std::size_t section = 0; section < kSections.size(); ++section) {
    const std::span<const KeyInfo> keys = kSections[section]->keys;
    for (std::size_t row = 0; row < keys.size(); ++row) {
      const Pattern pattern = pattern_of(keys[row].text);
      if (!pattern.suffix.empty() ||
          (pattern.is_numbered && numbered_key(pattern.prefix).number >= 0)) {
        known.has_others[section] = true;
        continue;
      }
      const std::size_t before = known.table.size();
      const std::size_t at = known.table.enter(section, pattern.prefix, pattern.is_numbered);
      if (known.table.size() != before) {
        known.row[at] = static_cast<std::uint16_t>(row);
      }
      const std::string_view prefix = pattern.prefix;
      if (pattern.is_numbered && prefix.ends_with('-') &&
          known.table.find(section, prefix.substr(0, prefix.size() - 1), true) !=
              KnownTable::kNone) {
        throw "a key whose number has two signs";
      }
    }
    check_apart(known, section);
  }
  return known;
}

constexpr KnownKeys kKnown = known_keys();

const KeyInfo* find_row_by_row(const SectionInfo& section, std::string_view key, int& number) {
  for (const KeyInfo& info : section.keys) {
    if (matches(pattern_of(info.text), key, number)) {
      return &info;
    }
  }
  return nullptr;
}

// The number that a key ends with, as it is printed, a sign included where one belongs to it.
NumberedKey with_its_sign(NumberedKey key) {
  key.prefix.remove_suffix(1);
  key.number = -key.number;
  return key;
}

}  // namespace

const SectionInfo* const* Catalogue::begin() const { return kSections.data(); }

const SectionInfo* const* Catalogue::end() const { return kSections.data() + kSections.size(); }

const SectionInfo* find_section(std::string_view name, int& number) {
  for (std::size_t section = 0; section < kSections.size(); ++section) {
    if (matches(kSectionPatterns[section], name, number)) {
      return kSections[section];
    }
  }
  return nullptr;
}

const KeyInfo* find_key(const SectionInfo& section, std::string_view key, int& number) {
  const auto owner =
      static_cast<std::size_t>(std::ranges::find(kSections, &section) - kSections.begin());
  constexpr std::string_view kLowest = "-2147483648";  // whose digits alone are no number
  if (owner == kSections.size() || kKnown.has_others[owner] || key.ends_with(kLowest)) {
    return find_row_by_row(section, key, number);
  }
  constexpr std::size_t kNone = KnownTable::kNone;
  NumberedKey numbered = numbered_key(key);
  const auto position_of = [owner](const NumberedKey& wanted) {
    return kKnown.table.find(owner, wanted.prefix, true);
  };
  std::size_t at = numbered.number >= 0 ? position_of(numbered) : kNone;
  if (at == kNone && numbered.number > 0 && numbered.prefix.ends_with('-')) {
    numbered = with_its_sign(numbered);
    at = position_of(numbered);
  }
  number = at != kNone ? numbered.number : 0;
  if (at == kNone) {
    at = kKnown.table.find(owner, key, false);
  }
  return at != kNone ? &section.keys[kKnown.row[at]] : nullptr;
}

}  // namespace qel
