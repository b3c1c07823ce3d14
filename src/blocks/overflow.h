#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [OFGateValve-%d]: the valve of an overflow.
namespace qel::overflow {

inline constexpr char kSection[] = "[OFGateValve-%d]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"GCId", {"OverflowX_ReadOverflowID"}, {}, "the identifier of the overflow"},
    Key<Integer>{"GCSet",
                 {"OverflowX_ReadControlPoint"},
                 {},
                 "the number of control points of the overflow valve",
                 {.older = {"GetOverFlowControlNo"}}},
    Key<GatePoint>{
        "GC-%d",
        {"OverflowX_ReadGateSetting"},
        {},
        "a control point: the switching value, an integer, the mode (1 to 4), and for "
        "modes 2 and 3 an "
        "integer",
        {.older = {"GetOverFlowTimeSwitch", "GetOverFlowControlData"}, .counted_by = "GCSet"}},
    Key<GatePointShort>{"GC-%d",
                        {"OverflowX_ReadGateSetting"},
                        {},
                        "a control point without its last integer",
                        {.counted_by = "GCSet"}},
};

inline constexpr SectionInfo kInfo{
    kSection, "Overflow", "the valve of an overflow", kKeys, {"overflow", "the overflow"}};

}  // namespace qel::overflow

using CQELPROBlockIOOverflow = qel::SectionBlock<qel::overflow::kInfo>;
