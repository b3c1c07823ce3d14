#pragma once

#include "blocks/block.h"

/// [Cure-%d]: the curing stage of an inlet.
namespace qel::cure_x {

inline constexpr char kSection[] = "[Cure-%d]";

inline constexpr Key<Real> kCureTime{"CureTime", {"CureX_ReadCureTime"}, {"CureX_WriteCureTime"}, "the curing time, in sec"};
inline constexpr Key<Real> kCurePres{"CurePres", {"CureX_ReadCurePressure"}, {"CureX_WriteCurePressure"}, "the curing pressure, in MPa"};
inline constexpr Key<Real> kCureTemp{"CureTemp", {"CureX_ReadCureTemperature"}, {}, "the curing temperature, in oC"};
inline constexpr Key<Real> kCureSwch{"CureSwch", {"CureX_ReadCureSwitch"}, {"CureX_WriteCureSwitch"}, "the switch value of curing"};
inline constexpr Key<Integer> kCPDisplayType{
    "CPDisplayType", {"CureX_ReadCPDisplayType"}, {"CureX_WriteCPDisplayType"}, "how the curing pressure profile is shown"};
inline constexpr Key<Integer> kPPProfileType{"PPProfileType",
                                             {"CureX_ReadCPProfileType"},
                                             {"CureX_WriteCPProfileType"},
                                             "how the curing pressure profile was entered; the key is the packing stage's"};
inline constexpr Key<Integer> kCPSet{"CPSet", {"CureX_ReadCPSection"}, {"CureX_WriteCPSection"}, "the number of curing pressure points"};
inline constexpr Key<RealPair> kCPPoint{"CP-%d", {"CureX_ReadCPProfile"}, {"CureX_WriteCPProfile"}, "a point of the curing pressure profile"};
inline constexpr Key<Integer> kUserCPSet{
    "UserCPSet", {"CureX_ReadUserCPSection"}, {"CureX_WriteUserCPSection"}, "the number of curing pressure points as the user entered them"};
inline constexpr Key<RealPair> kUserCPPoint{
    "UserCP-%d", {"CureX_ReadUserCPProfile"}, {"CureX_WriteUserCPProfile"}, "a point of the curing pressure profile as the user entered it"};
inline constexpr Key<Integer> kCTDisplayType{"CTDisplayType", {"CureX_ReadCTDisplayType"}, {}, "how the curing temperature profile is shown"};
inline constexpr Key<Integer> kCTProfileType{"CTProfileType", {"CureX_ReadCTProfileType"}, {}, "how the curing temperature profile was entered"};
inline constexpr Key<Integer> kCTSet{"CTSet", {"CureX_ReadCTSection"}, {}, "the number of curing temperature points"};
inline constexpr Key<RealPair> kCTPoint{"CT-%d", {"CureX_ReadCTProfile"}, {}, "a point of the curing temperature profile"};
inline constexpr Key<Integer> kUserCTSet{
    "UserCTSet", {"CureX_ReadUserCTSection"}, {}, "the number of curing temperature points as the user entered them"};
inline constexpr Key<RealPair> kUserCTPoint{
    "UserCT-%d", {"CureX_ReadUserCTProfile"}, {}, "a point of the curing temperature profile as the user entered it"};

inline constexpr const KeyInfo* kKeys[] = {&kCureTime, &kCurePres, &kCureTemp,  &kCureSwch,    &kCPDisplayType, &kPPProfileType,
                                           &kCPSet,    &kCPPoint,  &kUserCPSet, &kUserCPPoint, &kCTDisplayType, &kCTProfileType,
                                           &kCTSet,    &kCTPoint,  &kUserCTSet, &kUserCTPoint};

inline constexpr SectionInfo kInfo{kSection, "the curing stage of an inlet", kKeys, std::size(kKeys)};

}  // namespace qel::cure_x

class CQELPROBlockIOCureX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOCureX() : CQELPROBlockIOBase(qel::cure_x::kSection) {}
};
