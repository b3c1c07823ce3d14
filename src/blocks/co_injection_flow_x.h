#pragma once

#include "blocks/block.h"

/// [Flow-%ld-Skin2nd]: the filling stage of a co-injection run's second skin.
namespace qel::co_injection_flow_x {

inline constexpr char kSection[] = "[Flow-%ld-Skin2nd]";

inline constexpr Key<Real> kFillTime{
    "FillTime", {"FlowXSkin2nd_ReadFillingTime"}, {}, "the filling time, in sec"};
inline constexpr Key<Integer> kFRSet{
    "FRSet", {"FlowXSkin2nd_ReadFRSection"}, {}, "the number of points of the flow rate profile"};
inline constexpr Key<RealPair> kFRPoint{
    "FR-%d",
    {"FlowXSkin2nd_ReadFRProfile"},
    {},
    "a point of the flow rate profile: how far filling has gone, and the flow rate, in cc/sec"};
inline constexpr Key<Integer> kIPSet{"IPSet",
                                     {"FlowXSkin2nd_ReadIPSection"},
                                     {},
                                     "the number of points of the injection pressure profile"};
inline constexpr Key<RealPair> kIPPoint{"IP-%d",
                                        {"FlowXSkin2nd_ReadIPProfile"},
                                        {},
                                        "a point of the injection pressure profile: how far "
                                        "filling has gone, and the pressure, in MPa"};
inline constexpr Key<Integer> kSkin2ndEnterType{"Skin2ndEnterType",
                                                {"FlowXSkin2nd_ReadSkin2ndEnterType"},
                                                {},
                                                "a code: what makes the second skin enter"};
inline constexpr Key<Real> kSkin2ndEnterSwch{"Skin2ndEnterSwch",
                                             {"FlowXSkin2nd_ReadSkin2ndEnterSwch"},
                                             {},
                                             "the switch value at which the second skin enters"};
inline constexpr Key<Real> kSkin2ndEnterTime{"Skin2ndEnterTime",
                                             {"FlowXSkin2nd_ReadSkin2ndEnterTime"},
                                             {},
                                             "the time at which the second skin enters, in sec"};

inline constexpr const KeyInfo* kKeys[] = {
    &kFillTime,         &kFRSet,           &kFRPoint, &kIPSet, &kIPPoint, &kSkin2ndEnterType,
    &kSkin2ndEnterSwch, &kSkin2ndEnterTime};

inline constexpr SectionInfo kInfo{kSection,
                                   "CoInjectionFlowX",
                                   "the filling stage of a co-injection run's second skin",
                                   kKeys,
                                   {"inlet", "the inlet"}};

}  // namespace qel::co_injection_flow_x

using CQELPROBlockIOCoInjectionFlowX = qel::SectionBlock<qel::co_injection_flow_x::kInfo>;
