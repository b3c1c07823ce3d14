#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [MPreheat_CoolChannel-%d]: a channel that preheats the mold.
namespace qel::mold_preheat_cool_channel_x {

inline constexpr char kSection[] = "[MPreheat_CoolChannel-%d]";

inline constexpr KeyInfo kKeys[] = {
    Key<Real>{"Diameter",
              {"MoldPreheat_CoolChannelX_ReadDiameter"},
              {},
              "the diameter of the channel",
              {.older = {"GetMPreheatCoolChannelDiameter", "SetMPreheatCoolChannelDiameter"}}},
    Key<Integer>{"GroupID",
                 {"MoldPreheat_CoolChannelX_ReadGroupID"},
                 {},
                 "the group that the channel belongs to",
                 {.older = {"GetMPreheatCoolChannelGroupID", "SetMPreheatCoolChannelGroupID"}}},
    Key<Integer>{"TimeSet",
                 {"MoldPreheat_CoolChannelX_ReadTimeSection"},
                 {},
                 "the number of control points of the channel",
                 {.older = {"GetMPreheatCoolChannelTimeSet", "SetMPreheatCoolChannelTimeSet"}}},
    Key<ControlPoint>{
        "TCP-%d",
        {"MoldPreheat_CoolChannelX_ReadControlPointSetting"},
        {},
        "a control point by flow rate: a real, the coolant system, the temperature, the flow rate, "
        "an "
        "integer",
        {.older = {"GetMPreheatCoolChannelControlPoint", "SetMPreheatCoolChannelControlPoint"},
         .counted_by = "TimeSet"}},
    Key<ControlPoint>{"TCPP-%d",
                      {"MoldPreheat_CoolChannelX_ReadPressureControlPointSetting",
                       "MoldPreheat_CoolChannelX_ReadControlPointSetting"},
                      {},
                      "a control point by pressure: a real, the coolant system, the temperature, "
                      "the pressure, an "
                      "integer",
                      {.counted_by = "TimeSet"}},
};

inline constexpr SectionInfo kInfo{kSection,
                                   "MoldPreHeatCoolChannelX",
                                   "a channel that preheats the mold",
                                   kKeys,
                                   {"channel", "the channel"}};

}  // namespace qel::mold_preheat_cool_channel_x

using CQELPROBlockIOMoldPreHeatCoolChannelX =
    qel::SectionBlock<qel::mold_preheat_cool_channel_x::kInfo>;
