#pragma once

#include "blocks/block.h"

/// [RamPosition]: profiles over the ram's stroke, and the V/P switch-over by ram position.
namespace qel::ram_position {

inline constexpr char kSection[] = "[RamPosition]";

inline constexpr Key<Integer> kRamDir{
    "RamDir", {"RamPosition_ReadRamDirection"}, {"RamPosition_WriteRamDirection"}, "the code of the ram's direction"};
inline constexpr Key<Integer> kIsVPswitch{
    "IsVPswitch", {"RamPosition_ReadIsVPSwitch"}, {"RamPosition_WriteIsVPSwitch"}, "the code of the V/P switch-over by ram position"};
inline constexpr Key<Real> kVPswitchRam{
    "VPswitchRam", {"RamPosition_ReadVPSwitchRamPosition"}, {"RamPosition_WriteVPSwitchRamPosition"}, "the ram position of the V/P switch-over"};
inline constexpr Key<Real> kSuckBack{"SuckBack", {"RamPosition_ReadSuckBack"}, {"RamPosition_WriteSuckBack"}, "the suck-back"};
inline constexpr Key<Integer> kRP_FRSet{
    "RP_FRSet", {"RamPosition_ReadRamFRSection"}, {"RamPosition_WriteRamFRSection"}, "the number of flow rate points"};
inline constexpr Key<RealPair> kRP_FRPoint{
    "RP_FR-%d", {"RamPosition_ReadRamFRProfile"}, {"RamPosition_WriteRamFRProfile"}, "a point of the flow rate profile"};
inline constexpr Key<Real> kRP_FRSingle{"RP_FR-%d",
                                        {"RamPosition_ReadRamFRProfile"},
                                        {"RamPosition_WriteRamFRProfile"},
                                        "the x of a flow rate point; written alone, it is the whole value"};
inline constexpr Key<Integer> kRP_IPSet{
    "RP_IPSet", {"RamPosition_ReadRamIPSection"}, {"RamPosition_WriteRamIPSection"}, "the number of injection pressure points"};
inline constexpr Key<RealPair> kRP_IPPoint{
    "RP_IP-%d", {"RamPosition_ReadRamIPProfile"}, {"RamPosition_WriteRamIPProfile"}, "a point of the injection pressure profile"};
inline constexpr Key<Real> kRP_IPSingle{"RP_IP-%d",
                                        {"RamPosition_ReadRamIPProfile"},
                                        {"RamPosition_WriteRamIPProfile"},
                                        "the x of an injection pressure point; written alone, it is the whole value"};

inline constexpr const KeyInfo* kKeys[] = {&kRamDir,     &kIsVPswitch,  &kVPswitchRam, &kSuckBack,   &kRP_FRSet,
                                           &kRP_FRPoint, &kRP_FRSingle, &kRP_IPSet,    &kRP_IPPoint, &kRP_IPSingle};

inline constexpr SectionInfo kInfo{kSection, "profiles over the ram's stroke, and the V/P switch-over by ram position", kKeys, std::size(kKeys)};

}  // namespace qel::ram_position

class CQELPROBlockIORamPosition : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIORamPosition() : CQELPROBlockIOBase(qel::ram_position::kSection) {}
};
