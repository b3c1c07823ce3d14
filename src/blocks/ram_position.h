#pragma once

#include "blocks/block.h"

/// [RamPosition]: profiles over the stroke of the ram, and the switch-over from velocity to
/// pressure control (V/P) by ram position.
namespace qel::ram_position {

inline constexpr char kSection[] = "[RamPosition]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"RamDir",
                 {"RamPosition_ReadRamDirection"},
                 {"RamPosition_WriteRamDirection"},
                 "a code: in which direction ram positions count",
                 {.older = {"GetScrewDirection", "SetScrewDirection"}}},
    Key<Integer>{"IsVPswitch",
                 {"RamPosition_ReadIsVPSwitch"},
                 {"RamPosition_WriteIsVPSwitch"},
                 "1 where the V/P switch-over is by ram position, else 0",
                 {.older = {"GetVPSwitch", "SetVPSwitch"}}},
    Key<Real>{"VPswitchRam",
              {"RamPosition_ReadVPSwitchRamPosition"},
              {"RamPosition_WriteVPSwitchRamPosition"},
              "the ram position at which the V/P switch-over comes",
              {.older = {"GetVPSwitchPosition", "SetVPSwitchPosition"}}},
    Key<Real>{
        "SuckBack",
        {"RamPosition_ReadSuckBack"},
        {"RamPosition_WriteSuckBack"},
        "how far the screw is pulled back after plastication, to relieve the melt (suck-back)",
        {.loader = ProcessItem::SuckBack}},
    Key<Integer>{"RP_FRSet",
                 {"RamPosition_ReadRamFRSection"},
                 {"RamPosition_WriteRamFRSection"},
                 "the number of points of the flow rate profile",
                 {.older = {"GetRamFRSection", "SetRamFRSection"},
                  .loader = ProcessList::FlowRateRamPosition}},
    Key<RealPair>{
        "RP_FR-%d",
        {"RamPosition_ReadRamFRProfile"},
        {"RamPosition_WriteRamFRProfile"},
        "a point of the flow rate profile: the ram position, and the flow rate, in cc/sec",
        {.older = {"GetRamFRProfile", "SetRamFRProfile"}, .counted_by = "RP_FRSet"}},
    Key<Real>{"RP_FR-%d",
              {"RamPosition_ReadRamFRProfile"},
              {"RamPosition_WriteRamFRProfile"},
              "the ram position of a flow rate point alone",
              {.writing = "It becomes the whole value of the point.",
               .loader = ProcessList::FlowRateRamPosition,
               .counted_by = "RP_FRSet"}},
    Key<Integer>{"RP_IPSet",
                 {"RamPosition_ReadRamIPSection"},
                 {"RamPosition_WriteRamIPSection"},
                 "the number of points of the injection pressure profile",
                 {.older = {"GetRamIPSection", "SetRamIPSection"},
                  .loader = ProcessList::InjectionPressureRamPosition}},
    Key<RealPair>{
        "RP_IP-%d",
        {"RamPosition_ReadRamIPProfile"},
        {"RamPosition_WriteRamIPProfile"},
        "a point of the injection pressure profile: the ram position, and the pressure, in MPa",
        {.older = {"GetRamIPProfile", "SetRamIPProfile"}, .counted_by = "RP_IPSet"}},
    Key<Real>{"RP_IP-%d",
              {"RamPosition_ReadRamIPProfile"},
              {"RamPosition_WriteRamIPProfile"},
              "the ram position of an injection pressure point alone",
              {.writing = "It becomes the whole value of the point.",
               .loader = ProcessList::InjectionPressureRamPosition,
               .counted_by = "RP_IPSet"}},
};

inline constexpr SectionInfo kInfo{kSection, "RamPosition",
                                   "profiles over the stroke of the ram, and the switch-over from "
                                   "velocity to pressure control (V/P) by ram position",
                                   kKeys};

}  // namespace qel::ram_position

using CQELPROBlockIORamPosition = qel::SectionBlock<qel::ram_position::kInfo>;
