#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [CoolChannel-%d]: a cooling channel.
namespace qel::cool_channel_x {

/// The control type that makes a channel's control points those by pressure.
inline constexpr int kControlByPressure = 1;

inline constexpr char kSection[] = "[CoolChannel-%d]";

inline constexpr KeyInfo kKeys[] = {
    Key<Real>{"Diameter",
              {"CoolChannelX_ReadDiameter"},
              {"CoolChannelX_WriteDiameter"},
              "the diameter of the channel",
              {.older = {"GetCoolChannelDiameter", "SetCoolChannelDiameter"},
               .adapter = {"SetCoolChannelX_WriteDiameter", "SetCoolingChannelData"}}},
    Key<Integer>{"GroupID",
                 {"CoolChannelX_ReadGroupID"},
                 {"CoolChannelX_WriteGroupID"},
                 "the group that the channel belongs to",
                 {.older = {"GetCoolChannelGroupID", "SetCoolChannelGroupID"},
                  .adapter = {"SetCoolChannelX_WriteGroupID", "SetCoolingChannelData"}}},
    Key<Integer>{"TimeSet",
                 {"CoolChannelX_ReadTimeSection"},
                 {"CoolChannelX_WriteTimeSection"},
                 "the number of control points of the channel",
                 {.older = {"GetCoolChannelTimeSet", "SetCoolChannelTimeSet"},
                  .adapter = {"SetCoolChannelX_WriteTimeSection", "SetCoolingChannelData"}}},
    Key<ControlPoint>{
        "TCP-%d",
        {"CoolChannelX_ReadControlPointSetting"},
        {"CoolChannelX_WriteControlPointSetting"},
        "a control point by flow rate: a real, the coolant system, the temperature, the flow rate, "
        "an "
        "integer",
        {.older = {"GetCoolChannelControlPoint", "SetcoolChannelControlPoint"},
         .adapter = {"SetCoolChannelX_WriteControlPointSetting", "SetCoolingChannelData"},
         .counted_by = "TimeSet"}},
    Key<ControlPoint>{
        "TCPP-%d",
        {"CoolChannelX_ReadPressureControlPointSetting", "CoolChannelX_ReadControlPointSetting"},
        {"CoolChannelX_WritePressureControlPointSetting"},
        "a control point by pressure: a real, the coolant system, the temperature, the pressure, "
        "an "
        "integer",
        {.adapter = {"SetCoolChannelX_WritePressureControlPointSetting", "SetCoolingChannelData"},
         .counted_by = "TimeSet"}},
};

inline constexpr SectionInfo kInfo{
    kSection, "CoolChannelX", "a cooling channel", kKeys, {"channel", "the channel"}};

}  // namespace qel::cool_channel_x

using CQELPROBlockIOCoolChannelX = qel::SectionBlock<qel::cool_channel_x::kInfo>;
