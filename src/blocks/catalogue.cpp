#include "blocks/catalogue.h"

#include "blocks/advanced_setting.h"
#include "blocks/cae_header.h"
#include "blocks/co_injection_flow_x.h"
#include "blocks/cool.h"
#include "blocks/cool_channel_x.h"
#include "blocks/cool_ctl.h"
#include "blocks/coolant.h"
#include "blocks/cure_x.h"
#include "blocks/eject_criteria.h"
#include "blocks/file_header.h"
#include "blocks/flow_ctl.h"
#include "blocks/flow_ctl_info.h"
#include "blocks/flow_x.h"
#include "blocks/gas_f_x.h"
#include "blocks/gate_ctl.h"
#include "blocks/gate_valve_x.h"
#include "blocks/ic_package.h"
#include "blocks/machine.h"
#include "blocks/micro_cellular_molding.h"
#include "blocks/mold_insert_initial_temperature.h"
#include "blocks/mold_metal_material.h"
#include "blocks/mold_preheat.h"
#include "blocks/mold_preheat_cool_channel_x.h"
#include "blocks/mold_temperature_bc_x.h"
#include "blocks/mold_thermal_boundary_type.h"
#include "blocks/moldbase.h"
#include "blocks/moldbase_info.h"
#include "blocks/output.h"
#include "blocks/overflow.h"
#include "blocks/pack_x.h"
#include "blocks/part_insert_contact_angle.h"
#include "blocks/part_insert_initial_temperature.h"
#include "blocks/parting_surface.h"
#include "blocks/project.h"
#include "blocks/quick_setting.h"
#include "blocks/ram_position.h"
#include "blocks/summary.h"
#include "blocks/transient_inlet_conv.h"
#include "blocks/unit.h"
#include "blocks/var_cool_ctl.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace qel {
namespace {

// The loader also takes an inlet's stages from sections of other names. Nothing else serves those,
// and what it does not take is no key of theirs.
template <const auto& stage_keys>
struct LoaderKeys {
  static constexpr std::size_t kCount = std::ranges::count_if(
      stage_keys, [](const KeyInfo* key) { return key->elsewhere.loader != nullptr; });

  static constexpr std::array<KeyInfo, kCount> rows() {
    std::array<KeyInfo, kCount> taken{};
    std::size_t count = 0;
    for (const KeyInfo* key : stage_keys) {
      if (key->elsewhere.loader != nullptr) {
        taken[count] = *key;
        taken[count].readers = {};
        taken[count].writers = {};
        taken[count++].elsewhere = {.loader = key->elsewhere.loader};
      }
    }
    return taken;
  }
  static constexpr std::array<KeyInfo, kCount> kRows = rows();

  static constexpr std::array<const KeyInfo*, kCount> pointers() {
    std::array<const KeyInfo*, kCount> all{};
    std::ranges::transform(kRows, all.begin(), [](const KeyInfo& row) { return &row; });
    return all;
  }
  static constexpr std::array<const KeyInfo*, kCount> kKeys = pointers();
};

template <const auto& stage_keys>
constexpr SectionInfo loader_section(const char* name, const char* subject) {
  return {name, subject, LoaderKeys<stage_keys>::kKeys.data(), LoaderKeys<stage_keys>::kCount};
}

constexpr SectionInfo kFlowSkin = loader_section<flow_x::kKeys>(
    "[Flow-%d-Skin]", "the filling stage of both inlets of co-injection (project type 8)");
constexpr SectionInfo kPackSkin = loader_section<pack_x::kKeys>(
    "[Pack-%d-Skin]", "the packing stage of both inlets of co-injection (project type 8)");
constexpr SectionInfo kFlowEM = loader_section<flow_x::kKeys>(
    "[Flow-EM%d]", "the filling stage of a melt entrance (project type 11)");
constexpr SectionInfo kPackEM = loader_section<pack_x::kKeys>(
    "[Pack-EM%d]", "the packing stage of a melt entrance (project type 11)");

constexpr const SectionInfo* kSections[] = {
    &file_header::kInfo,
    &cae_header::kInfo,
    &summary::kInfo,
    &unit::kInfo,
    &flow_ctl::kInfo,
    &flow_x::kInfo,
    &pack_x::kInfo,
    &cure_x::kInfo,
    &cool::kInfo,
    &cool_ctl::kInfo,
    &coolant::kInfo,
    &cool_channel_x::kInfo,
    &var_cool_ctl::kInfo,
    &gate_ctl::kInfo,
    &gate_valve_x::kInfo,
    &machine::kInfo,
    &project::kInfo,
    &ram_position::kInfo,
    &moldbase::kInfo,
    &mold_metal_material::kInfo,
    &mold_temperature_bc_x::kInfo,
    &mold_temperature_bc_x::kPositionalInfo,
    &gas_f_x::kInfo,
    &advanced_setting::kInfo,
    &transient_inlet_conv::kInfo,
    &mold_thermal_boundary_type::kInfo,
    &ic_package::kInfo,
    &parting_surface::kInfo,
    &eject_criteria::kInfo,
    &part_insert_initial_temperature::kInfo,
    &mold_insert_initial_temperature::kInfo,
    &moldbase_info::kInfo,
    &mold_preheat::kInfo,
    &mold_preheat_cool_channel_x::kInfo,
    &micro_cellular_molding::kInfo,
    &flow_ctl_info::kInfo,
    &overflow::kInfo,
    &part_insert_contact_angle::kInfo,
    &co_injection_flow_x::kInfo,
    &kFlowSkin,
    &kPackSkin,
    &kFlowEM,
    &kPackEM,
    &quick_setting::kInfo,
    &output::kInfo,
};

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

const SectionInfo* const* Catalogue::begin() const { return std::begin(kSections); }

const SectionInfo* const* Catalogue::end() const { return std::end(kSections); }

const SectionInfo* find_section(const char* name, int& number) {
  for (const SectionInfo* section : Catalogue()) {
    if (matches(section->name, name, number)) {
      return section;
    }
  }
  return nullptr;
}

const KeyInfo* find_key(const SectionInfo& section, const char* key, int& number) {
  for (std::size_t index = 0; index < section.key_count; ++index) {
    if (matches(section.keys[index]->text, key, number)) {
      return section.keys[index];
    }
  }
  return nullptr;
}

}  // namespace qel
