#pragma once

#include "blocks/block.h"

/// [Pack-%d]: the packing stage of an inlet.
namespace qel::pack_x {

inline constexpr char kSection[] = "[Pack-%d]";

inline constexpr KeyInfo kKeys[] = {
    Key<Real>{"PackTime",
              {"PackX_ReadPackTime"},
              {"PackX_WritePackTime"},
              "the packing time, in sec",
              {.older = {"GetPackTime", "SetPackTime"}, .loader = InletItem::PackTime}},
    Key<Real>{"PackPres",
              {"PackX_ReadPackPressure"},
              {"PackX_WritePackPressure"},
              "the packing pressure, in MPa",
              {.older = {"GetPackPressure", "SetPackPressure"}, .loader = InletItem::PackPres}},
    Key<Real>{"PackSwch",
              {"PackX_ReadPackSwitch"},
              {"PackX_WritePackSwitch"},
              "the switch value at which packing takes over from filling",
              {.older = {"GetPackSwitch", "SetPackSwitch"}, .loader = InletItem::PackSwch}},
    Key<Integer>{"IgnoreLimitation",
                 {"PackX_ReadIgnoreLimitation"},
                 {"PackX_WriteIgnoreLimitation"},
                 "a code: whether the limits of packing are ignored"},
    Key<Real>{"MaxEOFRatio",
              {"PackX_ReadMaxEOFRatio"},
              {"PackX_WriteMaxEOFRatio"},
              "the limit of the packing pressure, as a ratio to the pressure at the end of filling",
              {.loader = InletItem::MaxEOFRatio}},
    Key<Integer>{"PPDisplayType",
                 {"PackX_ReadPPDisplayType"},
                 {"PackX_WritePPDisplayType"},
                 "a code: how a front end shows the packing pressure profile",
                 {.older = {"GetPPDisplayType"}, .loader = InletItem::PPDisplayType}},
    Key<Integer>{"PPProfileType",
                 {"PackX_ReadPPProfileType"},
                 {"PackX_WritePPProfileType"},
                 "a code: in which form the packing pressure profile was entered",
                 {.loader = InletItem::PPProfileType}},
    Key<Integer>{
        "PPSet",
        {"PackX_ReadPPSection"},
        {"PackX_WritePPSection"},
        "the number of points of the packing pressure profile",
        {.older = {"GetPPSection", "SetPPSection"}, .loader = InletList::PackingPressureProfile}},
    Key<RealPair>{
        "PP-%d",
        {"PackX_ReadPPProfile"},
        {"PackX_WritePPProfile"},
        "a point of the packing pressure profile: the time in the stage, and the pressure, in MPa",
        {.older = {"GetPPProfile", "SetPPProfile"},
         .loader = InletList::PackingPressureProfile,
         .counted_by = "PPSet"}},
    Key<Integer>{"UserPPSet",
                 {"PackX_ReadUserPPSection"},
                 {"PackX_WriteUserPPSection"},
                 "the number of points of the packing pressure profile as the user entered it",
                 {.older = {"GetUserPPSection"}}},
    Key<RealPair>{"UserPP-%d",
                  {"PackX_ReadUserPPProfile"},
                  {"PackX_WriteUserPPProfile"},
                  "a point of the packing pressure profile as the user entered it: x and y",
                  {.older = {"GetUserPPProfile"}, .counted_by = "UserPPSet"}},
    // Only the loader takes these.
    Key<Real>{"MaxPressSlop",
              {},
              {},
              "the limit of the slope of the pressure",
              {.loader = InletItem::MaxPressSlop}},
    Key<Integer>{"Shutoff",
                 {},
                 {},
                 "a code: whether and how the inlet is shut off",
                 {.loader = InletItem::Shutoff}},
    Key<Integer>{"MaterialType",
                 {},
                 {},
                 "a code of the kind of material",
                 {.loader = InletItem::MaterialType}},
    Key<Real>{
        "FluidPres", {}, {}, "the pressure of the fluid, in MPa", {.loader = InletItem::FluidPres}},
    Key<Real>{"FluidMaxFR",
              {},
              {},
              "the limit of the fluid's flow rate, in cc/sec",
              {.loader = InletItem::FluidMaxFR}},
    Key<Integer>{"FluidProfileType",
                 {},
                 {},
                 "a code: in which form the fluid pressure profile was entered",
                 {.loader = InletItem::FluidProfileType}},
    Key<Integer>{"FluidSet",
                 {},
                 {},
                 "the number of points of the fluid pressure profile",
                 {.loader = InletList::FluidPressureProfile}},
    Key<RealPair>{
        "Fluid-%d",
        {},
        {},
        "a point of the fluid pressure profile: the time in the stage, and the pressure, in MPa",
        {.loader = InletList::FluidPressureProfile, .counted_by = "FluidSet"}},
};

inline constexpr SectionInfo kInfo{
    kSection, "PackX", "the packing stage of an inlet", kKeys, {"inlet", "the inlet"}};

}  // namespace qel::pack_x

using CQELPROBlockIOPackX = qel::SectionBlock<qel::pack_x::kInfo>;
