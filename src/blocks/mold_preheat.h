#pragma once

#include "blocks/block.h"

/// [MoldPreheat]: preheating of the mold.
namespace qel::mold_preheat {

inline constexpr char kSection[] = "[MoldPreheat]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"MoldPreHeatType",
                 {"Cool_ReadMoldPreheatType"},
                 {},
                 "a code of the kind of preheating",
                 {.older = {"GetMoldPreHeatType", "SetMoldPreHeatType"}}},
    Key<Real>{"MoldPreHeatTime",
              {"Cool_ReadMoldPreheatTime"},
              {},
              "how long the mold is preheated, in sec",
              {.older = {"GetMoldPreHeatTime", "SetMoldPreHeatTime"}}},
    Key<Real>{"MoldPreHeatTemperature",
              {"Cool_ReadMoldPreheatTemperature"},
              {},
              "the temperature to which the mold is preheated, in oC",
              {.older = {"GetMoldPreHearTemperature", "SetMoldPreHeatTemperature"}}},
    Key<Real>{"MaxMoldPreHeatTime",
              {"Cool_ReadMaxMoldPreHeatTime"},
              {},
              "the limit of the preheating time, in sec",
              {.older = {"GetMaxMoldPreHeatTime", "SetMaxMoldPreHeatTime"}}},
    Key<Integer>{"ControlType",
                 {"Cool_ReadMoldPreheat_ControlType"},
                 {},
                 "what preheat channels are controlled by: 1 pressure, otherwise flow rate",
                 {.older = {"GetMoldPreHeatControlType"}}},
};

inline constexpr SectionInfo kInfo{kSection, "MoldPreHeat", "preheating of the mold", kKeys};

}  // namespace qel::mold_preheat

using CQELPROBlockIOMoldPreHeat = qel::SectionBlock<qel::mold_preheat::kInfo>;
