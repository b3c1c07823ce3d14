#pragma once

#include "blocks/block.h"

/// [FlowCTLInfo]: how many melt inlets the run has, and what controls each.
namespace qel::flow_ctl_info {

inline constexpr char kSection[] = "[FlowCTLInfo]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"TotalInlet",
                 {"FlowCTLInfo_ReadTotalInlet"},
                 {},
                 "the number of melt inlets",
                 {.loader = InletCount{}}},
    Key<IntegerPair>{"FlowCTL-%d",
                     {"FlowCTLInfo_ReadFlowCTL"},
                     {},
                     "two control codes of an inlet, the second its control type",
                     {.number = {"inlet", "the inlet"}, .counted_by = "TotalInlet"}},
    // Only the loader takes these.
    Key<IntegerPair>{
        "FlowCTL-%d]",
        {},
        {},
        "the same two codes as the loader looks for them: the closing bracket belongs to the key",
        {.loader = InletItem::InletControlType, .loads_second = true, .counted_by = "TotalInlet"}},
};

inline constexpr SectionInfo kInfo{
    kSection, "FlowCTLInfo", "how many melt inlets the run has, and what controls each", kKeys};

}  // namespace qel::flow_ctl_info

using CQELPROBlockIOFlowCTLInfo = qel::SectionBlock<qel::flow_ctl_info::kInfo>;
