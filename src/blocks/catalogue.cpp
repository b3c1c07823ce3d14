#include "blocks/catalogue.h"

#include "blocks/inlet_source.h"
#include "blocks/output.h"
#include "blocks/quick_setting.h"
#include "blocks/sections.h"

#include <algorithm>
#include <array>
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

// Whether the text is the pattern, with a number as it is printed in the place of "%d" or "%ld".
bool matches(std::string_view pattern, std::string_view text, int& number) {
  number = 0;
  const std::size_t percent = pattern.find('%');
  if (percent == std::string_view::npos) {
    return pattern == text;
  }
  const std::string_view suffix = pattern.substr(pattern.find('d', percent) + 1);
  if (text.size() <= percent + suffix.size() ||
      text.substr(0, percent) != pattern.substr(0, percent) ||
      text.substr(text.size() - suffix.size()) != suffix) {
    return false;
  }
  const std::string digits(text.substr(percent, text.size() - percent - suffix.size()));
  number = platform::to_int(digits.c_str());
  return platform::print_int(number) == digits;
}

}  // namespace

const SectionInfo* const* Catalogue::begin() const { return kSections.data(); }

const SectionInfo* const* Catalogue::end() const { return kSections.data() + kSections.size(); }

const SectionInfo* find_section(const char* name, int& number) {
  for (const SectionInfo* section : Catalogue()) {
    if (matches(section->name, name, number)) {
      return section;
    }
  }
  return nullptr;
}

const KeyInfo* find_key(const SectionInfo& section, const char* key, int& number) {
  for (const KeyInfo& info : section.keys) {
    if (matches(info.text, key, number)) {
      return &info;
    }
  }
  return nullptr;
}

}  // namespace qel
