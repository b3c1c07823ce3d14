#pragma once

#include "blocks/block.h"

/// [CoolCTL]: the coolant at each entrance.
namespace qel::cool_ctl {

inline constexpr char kSection[] = "[CoolCTL]";

inline constexpr KeyInfo kKeys[] = {
    Key<Real>{"T-%d",
              {"CoolCTL_ReadCoolantTemperature"},
              {"CoolCTL_WriteCoolantTemperature"},
              "the coolant temperature at an entrance, in oC",
              {.number = {"entrance", "the entrance"},
               .older = {"GetCoolCTLTemperature", "SetCoolCTLTemperature"},
               .adapter = {"SetCoolCTL_WriteCoolantTemperature", "SetCoolingChannelData"}}},
    Key<Real>{"F-%d",
              {"CoolCTL_ReadCoolantFlowRate"},
              {"CoolCTL_WriteCoolantFlowRate"},
              "the coolant flow rate at an entrance, in cc/sec",
              {.number = {"entrance", "the entrance"},
               .older = {"GetCoolCTLFlowRate", "SetCoolCTLFlowRate"},
               .adapter = {"SetCoolCTL_WriteCoolantFlowRate", "SetCoolingChannelData"}}},
    Key<Real>{
        "P-%d",
        {"CoolCTL_ReadCoolantPressure"},
        {"CoolCTL_WroteCoolantPressure"},
        "the coolant pressure at an entrance, in MPa",
        {.number = {"entrance", "the entrance"}, .adapter = {"SetCoolCTL_WroteCoolantPressure"}}},
    Key<Integer>{"M-%d",
                 {"CoolCTL_ReadCoolantSystem"},
                 {"CoolCTL_WriteCoolantSystem"},
                 "the coolant system of an entrance",
                 {.number = {"entrance", "the entrance"},
                  .older = {"GetCoolCTLSystem", "SetCoolCTLSystem"},
                  .adapter = {"SetCoolCTL_WriteCoolantSystem", "SetCoolingChannelData"}}},
};

inline constexpr SectionInfo kInfo{kSection, "CoolCTL", "the coolant at each entrance", kKeys};

}  // namespace qel::cool_ctl

using CQELPROBlockIOCoolCTL = qel::SectionBlock<qel::cool_ctl::kInfo>;
