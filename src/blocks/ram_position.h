#pragma once

#include "blocks/block.h"

/// [RamPosition]: profiles over the stroke of the ram, and the switch-over from velocity to
/// pressure control (V/P) by ram position.
namespace qel::ram_position {

inline constexpr char kSection[] = "[RamPosition]";

inline constexpr Key<Integer> kRamDir{"RamDir",
                                      {"RamPosition_ReadRamDirection"},
                                      {"RamPosition_WriteRamDirection"},
                                      "a code: in which direction ram positions count",
                                      {.older = {"GetScrewDirection", "SetScrewDirection"}}};
inline constexpr Key<Integer> kIsVPswitch{"IsVPswitch",
                                          {"RamPosition_ReadIsVPSwitch"},
                                          {"RamPosition_WriteIsVPSwitch"},
                                          "1 where the V/P switch-over is by ram position, else 0",
                                          {.older = {"GetVPSwitch", "SetVPSwitch"}}};
inline constexpr Key<Real> kVPswitchRam{"VPswitchRam",
                                        {"RamPosition_ReadVPSwitchRamPosition"},
                                        {"RamPosition_WriteVPSwitchRamPosition"},
                                        "the ram position at which the V/P switch-over comes",
                                        {.older = {"GetVPSwitchPosition", "SetVPSwitchPosition"}}};
inline constexpr Key<Real> kSuckBack{
    "SuckBack",
    {"RamPosition_ReadSuckBack"},
    {"RamPosition_WriteSuckBack"},
    "how far the screw is pulled back after plastication, to relieve the melt (suck-back)",
    {.loader = "set_process_SuckBack"}};
inline constexpr Key<Integer> kRP_FRSet{
    "RP_FRSet",
    {"RamPosition_ReadRamFRSection"},
    {"RamPosition_WriteRamFRSection"},
    "the number of points of the flow rate profile",
    {.older = {"GetRamFRSection", "SetRamFRSection"}, .loader = "GetFlowRateRamPosition_mod"}};
inline constexpr Key<RealPair> kRP_FRPoint{
    "RP_FR-%d",
    {"RamPosition_ReadRamFRProfile"},
    {"RamPosition_WriteRamFRProfile"},
    "a point of the flow rate profile: the ram position, and the flow rate, in cc/sec",
    {.older = {"GetRamFRProfile", "SetRamFRProfile"}}};
inline constexpr Key<Real> kRP_FRSingle{"RP_FR-%d",
                                        {"RamPosition_ReadRamFRProfile"},
                                        {"RamPosition_WriteRamFRProfile"},
                                        "the ram position of a flow rate point alone",
                                        {.writing = "It becomes the whole value of the point.",
                                         .loader = "GetFlowRateRamPosition_mod"}};
inline constexpr Key<Integer> kRP_IPSet{"RP_IPSet",
                                        {"RamPosition_ReadRamIPSection"},
                                        {"RamPosition_WriteRamIPSection"},
                                        "the number of points of the injection pressure profile",
                                        {.older = {"GetRamIPSection", "SetRamIPSection"},
                                         .loader = "GetInjectionPressureRamPosition_mod"}};
inline constexpr Key<RealPair> kRP_IPPoint{
    "RP_IP-%d",
    {"RamPosition_ReadRamIPProfile"},
    {"RamPosition_WriteRamIPProfile"},
    "a point of the injection pressure profile: the ram position, and the pressure, in MPa",
    {.older = {"GetRamIPProfile", "SetRamIPProfile"}}};
inline constexpr Key<Real> kRP_IPSingle{"RP_IP-%d",
                                        {"RamPosition_ReadRamIPProfile"},
                                        {"RamPosition_WriteRamIPProfile"},
                                        "the ram position of an injection pressure point alone",
                                        {.writing = "It becomes the whole value of the point.",
                                         .loader = "GetInjectionPressureRamPosition_mod"}};

inline constexpr const KeyInfo* kKeys[] = {&kRamDir,     &kIsVPswitch, &kVPswitchRam, &kSuckBack,
                                           &kRP_FRSet,   &kRP_FRPoint, &kRP_FRSingle, &kRP_IPSet,
                                           &kRP_IPPoint, &kRP_IPSingle};

inline constexpr SectionInfo kInfo{kSection, "RamPosition",
                                   "profiles over the stroke of the ram, and the switch-over from "
                                   "velocity to pressure control (V/P) by ram position",
                                   kKeys};

}  // namespace qel::ram_position

using CQELPROBlockIORamPosition = qel::SectionBlock<qel::ram_position::kInfo>;
