#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [OFGateValve-%d]: the valve of an overflow.
namespace qel::overflow {

inline constexpr char kSection[] = "[OFGateValve-%d]";

inline constexpr Key<Integer> kGCId{"GCId", {"OverflowX_ReadOverflowID"}, {}, "the overflow's identifier"};
inline constexpr Key<Integer> kGCSet{"GCSet", {"OverflowX_ReadControlPoint"}, {}, "the number of control points"};
inline constexpr Key<GatePoint> kGCPoint{
    "GC-%d",
    {"OverflowX_ReadGateSetting"},
    {},
    "a control point: the switching value, an integer, the mode, an integer (-1 for modes 1 and 4); what the text does not supply is 0"};
inline constexpr Key<GatePointShort> kGCPointShort{"GC-%d", {"OverflowX_ReadGateSetting"}, {}, "a control point without its last integer"};

inline constexpr const KeyInfo* kKeys[] = {&kGCId, &kGCSet, &kGCPoint, &kGCPointShort};

inline constexpr SectionInfo kInfo{kSection, "the valve of an overflow", kKeys, std::size(kKeys)};

}  // namespace qel::overflow

class CQELPROBlockIOOverflow : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOOverflow() : CQELPROBlockIOBase(qel::overflow::kSection) {}
};
