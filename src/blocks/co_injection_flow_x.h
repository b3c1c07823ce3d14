#pragma once

#include "blocks/block.h"

/// [Flow-%ld-Skin2nd]: the filling stage of a co-injection run's second skin.
namespace qel::co_injection_flow_x {

inline constexpr char kSection[] = "[Flow-%ld-Skin2nd]";

inline constexpr KeyInfo kKeys[] = {
    Key<Real>{"FillTime", {"FlowXSkin2nd_ReadFillingTime"}, {}, "the filling time, in sec"},
    Key<Integer>{"FRSet",
                 {"FlowXSkin2nd_ReadFRSection"},
                 {},
                 "the number of points of the flow rate profile"},
    Key<RealPair>{
        "FR-%d",
        {"FlowXSkin2nd_ReadFRProfile"},
        {},
        "a point of the flow rate profile: how far filling has gone, and the flow rate, in cc/sec",
        {.counted_by = "FRSet"}},
    Key<Integer>{"IPSet",
                 {"FlowXSkin2nd_ReadIPSection"},
                 {},
                 "the number of points of the injection pressure profile"},
    Key<RealPair>{"IP-%d",
                  {"FlowXSkin2nd_ReadIPProfile"},
                  {},
                  "a point of the injection pressure profile: how far "
                  "filling has gone, and the pressure, in MPa",
                  {.counted_by = "IPSet"}},
    Key<Integer>{"Skin2ndEnterType",
                 {"FlowXSkin2nd_ReadSkin2ndEnterType"},
                 {},
                 "a code: what makes the second skin enter"},
    Key<Real>{"Skin2ndEnterSwch",
              {"FlowXSkin2nd_ReadSkin2ndEnterSwch"},
              {},
              "the switch value at which the second skin enters"},
    Key<Real>{"Skin2ndEnterTime",
              {"FlowXSkin2nd_ReadSkin2ndEnterTime"},
              {},
              "the time at which the second skin enters, in sec"},
};

inline constexpr SectionInfo kInfo{kSection,
                                   "CoInjectionFlowX",
                                   "the filling stage of a co-injection run's second skin",
                                   kKeys,
                                   {"inlet", "the inlet"}};

}  // namespace qel::co_injection_flow_x

using CQELPROBlockIOCoInjectionFlowX = qel::SectionBlock<qel::co_injection_flow_x::kInfo>;
