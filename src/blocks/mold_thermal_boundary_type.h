#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [MoldThermalBoundaryType]: the heat transfer between melt and mold.
namespace qel::mold_thermal_boundary_type {

inline constexpr char kSection[] = "[MoldThermalBoundaryType]";

inline constexpr Key<Integer> kType{
    "Type", {"MoldTemperatureBoundaryType_ReadHTCType"}, {"MoldTemperatureBoundaryType_WriteHTCType"}, "the code of the kind of heat transfer"};
inline constexpr Key<RealWithNote> kFlow{"Flow",
                                         {"MoldTemperatureBoundaryType_ReadHTCFlow"},
                                         {"MoldTemperatureBoundaryType_WriteHTCFlow"},
                                         "the coefficient in filling, with a note that reading passes over"};
inline constexpr Key<RealWithNote> kPack{"Pack",
                                         {"MoldTemperatureBoundaryType_ReadHTCPack"},
                                         {"MoldTemperatureBoundaryType_WriteHTCPack"},
                                         "the coefficient in packing, with a note that reading passes over"};
inline constexpr Key<RealWithNote> kDetached_HTC{"Detached_HTC",
                                                 {"MoldTemperatureBoundaryType_ReadHTCDetached"},
                                                 {"MoldTemperatureBoundaryType_WriteHTCDetached"},
                                                 "the coefficient where the part is detached, with a note that reading passes over"};
inline constexpr Key<RealWithNote> kHotRunner_HTC{"HotRunner_HTC",
                                                  {"MoldTemperatureBoundaryType_ReadHTCHotRunner"},
                                                  {"MoldTemperatureBoundaryType_WriteHTCHotRunner"},
                                                  "the coefficient in the hot runner, with a note that reading passes over"};

// Only the simulator process takes these; no member reads or writes them.
inline constexpr Key<Integer> kUserMode{"UserMode", {}, {}, "the code of the user mode"};
inline constexpr Key<Real> kNuNum{"NuNum", {}, {}, "the Nusselt number"};

inline constexpr const KeyInfo* kKeys[] = {&kType, &kFlow, &kPack, &kDetached_HTC, &kHotRunner_HTC, &kUserMode, &kNuNum};

inline constexpr SectionInfo kInfo{kSection, "the heat transfer between melt and mold", kKeys, std::size(kKeys)};

}  // namespace qel::mold_thermal_boundary_type

class CQELPROBlockIOMoldThermalBoundaryType : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldThermalBoundaryType() : CQELPROBlockIOBase(qel::mold_thermal_boundary_type::kSection) {}
};
