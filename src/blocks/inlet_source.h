#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "blocks/cure_x.h"
#include "blocks/flow_x.h"
#include "blocks/pack_x.h"

/// Which sections a load takes the stages of the inlets from.
namespace qel {

/// A section that a load takes in the place of another. Nothing else serves it, and what a load
/// does not take is no key of it.
template <const auto& stage_keys>
struct LoadedKeys {
  static constexpr std::size_t kCount = std::ranges::count_if(
      stage_keys, [](const KeyInfo& key) { return is_somewhere(key.details.loader); });

  static constexpr std::array<KeyInfo, kCount> rows() {
    std::array<KeyInfo, kCount> taken{};
    std::size_t count = 0;
    for (const KeyInfo& key : stage_keys) {
      if (is_somewhere(key.details.loader)) {
        taken[count] = key;
        taken[count].readers = {};
        taken[count].writers = {};
        taken[count++].details = {.loader = key.details.loader,
                                  .counted_by = key.details.counted_by};
      }
    }
    return taken;
  }
  static constexpr std::array<KeyInfo, kCount> kKeys = rows();
};

inline constexpr SectionInfo kFlowSkin{"[Flow-%d-Skin]", nullptr,
                                       "the filling stage of both inlets of co-injection "
                                       "(project type 8)",
                                       LoadedKeys<flow_x::kKeys>::kKeys};
inline constexpr SectionInfo kPackSkin{"[Pack-%d-Skin]", nullptr,
                                       "the packing stage of both inlets of co-injection "
                                       "(project type 8)",
                                       LoadedKeys<pack_x::kKeys>::kKeys};
inline constexpr SectionInfo kFlowEM{"[Flow-EM%d]", nullptr,
                                     "the filling stage of a melt entrance (project type 11)",
                                     LoadedKeys<flow_x::kKeys>::kKeys};
inline constexpr SectionInfo kPackEM{"[Pack-EM%d]", nullptr,
                                     "the packing stage of a melt entrance (project type 11)",
                                     LoadedKeys<pack_x::kKeys>::kKeys};

/// What the inlets of a project type are loaded from.
struct InletSource {
  const SectionInfo* flow;
  const SectionInfo* pack;
  const SectionInfo* cure;  ///< Null where no curing is loaded.
  unsigned int count;       ///< Of the inlets, where the file does not say.
  bool fixed;               ///< No inlet beyond that count is loaded, and no control type.
  bool shared;              ///< All inlets come from the sections numbered 1.

  [[nodiscard]] constexpr int section_of(int inlet) const { return shared ? 1 : inlet; }
  /// In the order in which they are loaded; the last one may be null.
  [[nodiscard]] constexpr std::array<const SectionInfo*, 3> stages() const {
    return {flow, pack, cure};
  }
};

inline constexpr InletSource kInlets{.flow = &flow_x::kInfo,
                                     .pack = &pack_x::kInfo,
                                     .cure = &cure_x::kInfo,
                                     .count = 1,
                                     .fixed = false,
                                     .shared = false};
inline constexpr InletSource kCoInjectionInlets{.flow = &kFlowSkin,
                                                .pack = &kPackSkin,
                                                .cure = nullptr,
                                                .count = 2,
                                                .fixed = true,
                                                .shared = true};
inline constexpr InletSource kMeltEntrances{.flow = &kFlowEM,
                                            .pack = &kPackEM,
                                            .cure = nullptr,
                                            .count = 2,
                                            .fixed = true,
                                            .shared = false};

constexpr const InletSource& inlet_source(unsigned int project_type) {
  constexpr unsigned int kCoInjection = 8;
  constexpr unsigned int kTwoMeltEntrances = 11;
  switch (project_type) {
    case kCoInjection:
      return kCoInjectionInlets;
    case kTwoMeltEntrances:
      return kMeltEntrances;
    default:
      return kInlets;
  }
}

}  // namespace qel
