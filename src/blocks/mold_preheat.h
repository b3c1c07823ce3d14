#pragma once

#include "blocks/block.h"

/// [MoldPreheat]: preheating of the mold.
namespace qel::mold_preheat {

inline constexpr char kSection[] = "[MoldPreheat]";

inline constexpr Key<Integer> kMoldPreHeatType{"MoldPreHeatType", {"Cool_ReadMoldPreheatType"}, {}, "the code of the kind of preheating"};
inline constexpr Key<Real> kMoldPreHeatTime{"MoldPreHeatTime", {"Cool_ReadMoldPreheatTime"}, {}, "the preheating time, in sec"};
inline constexpr Key<Real> kMoldPreHeatTemperature{
    "MoldPreHeatTemperature", {"Cool_ReadMoldPreheatTemperature"}, {}, "the preheating temperature, in oC"};
inline constexpr Key<Real> kMaxMoldPreHeatTime{"MaxMoldPreHeatTime", {"Cool_ReadMaxMoldPreHeatTime"}, {}, "the longest preheating time, in sec"};
inline constexpr Key<Integer> kControlType{
    "ControlType", {"Cool_ReadMoldPreheat_ControlType"}, {}, "what preheat channels are controlled by: 1 pressure, otherwise flow rate"};

inline constexpr const KeyInfo* kKeys[] = {&kMoldPreHeatType, &kMoldPreHeatTime, &kMoldPreHeatTemperature, &kMaxMoldPreHeatTime, &kControlType};

inline constexpr SectionInfo kInfo{kSection, "preheating of the mold", kKeys, std::size(kKeys)};

}  // namespace qel::mold_preheat

class CQELPROBlockIOMoldPreHeat : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldPreHeat() : CQELPROBlockIOBase(qel::mold_preheat::kSection) {}
};
