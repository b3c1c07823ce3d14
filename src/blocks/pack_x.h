#pragma once

#include "blocks/block.h"

/// [Pack-%d]: the packing stage of an inlet.
namespace qel::pack_x {

inline constexpr char kSection[] = "[Pack-%d]";

inline constexpr Key<Real> kPackTime{"PackTime", {"PackX_ReadPackTime"}, {"PackX_WritePackTime"}, "the packing time, in sec"};
inline constexpr Key<Real> kPackPres{"PackPres", {"PackX_ReadPackPressure"}, {"PackX_WritePackPressure"}, "the packing pressure, in MPa"};
inline constexpr Key<Real> kPackSwch{"PackSwch", {"PackX_ReadPackSwitch"}, {"PackX_WritePackSwitch"}, "the switch value of packing"};
inline constexpr Key<Integer> kIgnoreLimitation{
    "IgnoreLimitation", {"PackX_ReadIgnoreLimitation"}, {"PackX_WriteIgnoreLimitation"}, "the code for ignoring the limits"};
inline constexpr Key<Real> kMaxEOFRatio{
    "MaxEOFRatio", {"PackX_ReadMaxEOFRatio"}, {"PackX_WriteMaxEOFRatio"}, "the largest ratio to the pressure at the end of filling"};
inline constexpr Key<Integer> kPPDisplayType{
    "PPDisplayType", {"PackX_ReadPPDisplayType"}, {"PackX_WritePPDisplayType"}, "how the packing pressure profile is shown"};
inline constexpr Key<Integer> kPPProfileType{
    "PPProfileType", {"PackX_ReadPPProfileType"}, {"PackX_WritePPProfileType"}, "how the packing pressure profile was entered"};
inline constexpr Key<Integer> kPPSet{"PPSet", {"PackX_ReadPPSection"}, {"PackX_WritePPSection"}, "the number of packing pressure points"};
inline constexpr Key<RealPair> kPPPoint{"PP-%d", {"PackX_ReadPPProfile"}, {"PackX_WritePPProfile"}, "a point of the packing pressure profile"};
inline constexpr Key<Integer> kUserPPSet{
    "UserPPSet", {"PackX_ReadUserPPSection"}, {"PackX_WriteUserPPSection"}, "the number of packing pressure points as the user entered them"};
inline constexpr Key<RealPair> kUserPPPoint{
    "UserPP-%d", {"PackX_ReadUserPPProfile"}, {"PackX_WriteUserPPProfile"}, "a point of the packing pressure profile as the user entered it"};

// Only the simulator process takes these; no member reads or writes them.
inline constexpr Key<Real> kMaxPressSlop{"MaxPressSlop", {}, {}, "the steepest slope of the pressure"};
inline constexpr Key<Integer> kShutoff{"Shutoff", {}, {}, "the code of the shut-off"};
inline constexpr Key<Integer> kMaterialType{"MaterialType", {}, {}, "the code of the kind of material"};
inline constexpr Key<Real> kFluidPres{"FluidPres", {}, {}, "the fluid pressure, in MPa"};
inline constexpr Key<Real> kFluidMaxFR{"FluidMaxFR", {}, {}, "the highest flow rate of the fluid, in cc/sec"};
inline constexpr Key<Integer> kFluidProfileType{"FluidProfileType", {}, {}, "how the fluid pressure profile was entered"};
inline constexpr Key<Integer> kFluidSet{"FluidSet", {}, {}, "the number of fluid pressure points"};
inline constexpr Key<RealPair> kFluidPoint{"Fluid-%d", {}, {}, "a point of the fluid pressure profile"};

inline constexpr const KeyInfo* kKeys[] = {&kPackTime,      &kPackPres,         &kPackSwch, &kIgnoreLimitation, &kMaxEOFRatio,
                                           &kPPDisplayType, &kPPProfileType,    &kPPSet,    &kPPPoint,          &kUserPPSet,
                                           &kUserPPPoint,   &kMaxPressSlop,     &kShutoff,  &kMaterialType,     &kFluidPres,
                                           &kFluidMaxFR,    &kFluidProfileType, &kFluidSet, &kFluidPoint};

inline constexpr SectionInfo kInfo{kSection, "the packing stage of an inlet", kKeys, std::size(kKeys)};

}  // namespace qel::pack_x

class CQELPROBlockIOPackX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOPackX() : CQELPROBlockIOBase(qel::pack_x::kSection) {}
};
