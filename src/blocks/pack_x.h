#pragma once

#include "blocks/block.h"

/// [Pack-%d]: the packing stage of an inlet.
namespace qel::pack_x {

inline constexpr char kSection[] = "[Pack-%d]";

inline constexpr Key<Real> kPackTime{
    "PackTime",
    {"PackX_ReadPackTime"},
    {"PackX_WritePackTime"},
    "the packing time, in sec",
    {.older = {"GetPackTime", "SetPackTime"}, .loader = "set_process_PackTime"}};
inline constexpr Key<Real> kPackPres{
    "PackPres",
    {"PackX_ReadPackPressure"},
    {"PackX_WritePackPressure"},
    "the packing pressure, in MPa",
    {.older = {"GetPackPressure", "SetPackPressure"}, .loader = "set_process_PackPres"}};
inline constexpr Key<Real> kPackSwch{
    "PackSwch",
    {"PackX_ReadPackSwitch"},
    {"PackX_WritePackSwitch"},
    "the switch value at which packing takes over from filling",
    {.older = {"GetPackSwitch", "SetPackSwitch"}, .loader = "set_process_PackSwch"}};
inline constexpr Key<Integer> kIgnoreLimitation{
    "IgnoreLimitation",
    {"PackX_ReadIgnoreLimitation"},
    {"PackX_WriteIgnoreLimitation"},
    "a code: whether the limits of packing are ignored"};
inline constexpr Key<Real> kMaxEOFRatio{
    "MaxEOFRatio",
    {"PackX_ReadMaxEOFRatio"},
    {"PackX_WriteMaxEOFRatio"},
    "the limit of the packing pressure, as a ratio to the pressure at the end of filling",
    {.loader = "set_process_MaxEOFRatio"}};
inline constexpr Key<Integer> kPPDisplayType{
    "PPDisplayType",
    {"PackX_ReadPPDisplayType"},
    {"PackX_WritePPDisplayType"},
    "a code: how a front end shows the packing pressure profile",
    {.older = {"GetPPDisplayType"}, .loader = "set_process_PPDisplayType"}};
inline constexpr Key<Integer> kPPProfileType{
    "PPProfileType",
    {"PackX_ReadPPProfileType"},
    {"PackX_WritePPProfileType"},
    "a code: in which form the packing pressure profile was entered",
    {.loader = "set_process_PPProfileType"}};
inline constexpr Key<Integer> kPPSet{
    "PPSet",
    {"PackX_ReadPPSection"},
    {"PackX_WritePPSection"},
    "the number of points of the packing pressure profile",
    {.older = {"GetPPSection", "SetPPSection"}, .loader = "GetPackingPressureProfile_mod"}};
inline constexpr Key<RealPair> kPPPoint{
    "PP-%d",
    {"PackX_ReadPPProfile"},
    {"PackX_WritePPProfile"},
    "a point of the packing pressure profile: the time in the stage, and the pressure, in MPa",
    {.older = {"GetPPProfile", "SetPPProfile"}, .loader = "GetPackingPressureProfile_mod"}};
inline constexpr Key<Integer> kUserPPSet{
    "UserPPSet",
    {"PackX_ReadUserPPSection"},
    {"PackX_WriteUserPPSection"},
    "the number of points of the packing pressure profile as the user entered it",
    {.older = {"GetUserPPSection"}}};
inline constexpr Key<RealPair> kUserPPPoint{
    "UserPP-%d",
    {"PackX_ReadUserPPProfile"},
    {"PackX_WriteUserPPProfile"},
    "a point of the packing pressure profile as the user entered it: x and y",
    {.older = {"GetUserPPProfile"}}};

// Only the loader takes these.
inline constexpr Key<Real> kMaxPressSlop{"MaxPressSlop",
                                         {},
                                         {},
                                         "the limit of the slope of the pressure",
                                         {.loader = "set_process_MaxPressSlop"}};
inline constexpr Key<Integer> kShutoff{"Shutoff",
                                       {},
                                       {},
                                       "a code: whether and how the inlet is shut off",
                                       {.loader = "set_process_Shutoff"}};
inline constexpr Key<Integer> kMaterialType{"MaterialType",
                                            {},
                                            {},
                                            "a code of the kind of material",
                                            {.loader = "set_process_MaterialType"}};
inline constexpr Key<Real> kFluidPres{
    "FluidPres", {}, {}, "the pressure of the fluid, in MPa", {.loader = "set_process_FluidPres"}};
inline constexpr Key<Real> kFluidMaxFR{"FluidMaxFR",
                                       {},
                                       {},
                                       "the limit of the fluid's flow rate, in cc/sec",
                                       {.loader = "set_process_FluidMaxFR"}};
inline constexpr Key<Integer> kFluidProfileType{
    "FluidProfileType",
    {},
    {},
    "a code: in which form the fluid pressure profile was entered",
    {.loader = "set_process_FluidProfileType"}};
inline constexpr Key<Integer> kFluidSet{"FluidSet",
                                        {},
                                        {},
                                        "the number of points of the fluid pressure profile",
                                        {.loader = "GetFluidPressureProfile_mod"}};
inline constexpr Key<RealPair> kFluidPoint{
    "Fluid-%d",
    {},
    {},
    "a point of the fluid pressure profile: the time in the stage, and the pressure, in MPa",
    {.loader = "GetFluidPressureProfile_mod"}};

inline constexpr const KeyInfo* kKeys[] = {
    &kPackTime,      &kPackPres,         &kPackSwch, &kIgnoreLimitation, &kMaxEOFRatio,
    &kPPDisplayType, &kPPProfileType,    &kPPSet,    &kPPPoint,          &kUserPPSet,
    &kUserPPPoint,   &kMaxPressSlop,     &kShutoff,  &kMaterialType,     &kFluidPres,
    &kFluidMaxFR,    &kFluidProfileType, &kFluidSet, &kFluidPoint};

inline constexpr SectionInfo kInfo{
    kSection, "PackX", "the packing stage of an inlet", kKeys, {"inlet", "the inlet"}};

}  // namespace qel::pack_x

using CQELPROBlockIOPackX = qel::SectionBlock<qel::pack_x::kInfo>;
