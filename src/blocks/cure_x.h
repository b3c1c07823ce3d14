#pragma once

#include "blocks/block.h"

/// [Cure-%d]: the curing stage of an inlet.
namespace qel::cure_x {

inline constexpr char kSection[] = "[Cure-%d]";

inline constexpr KeyInfo kKeys[] = {
    Key<Real>{"CureTime",
              {"CureX_ReadCureTime"},
              {"CureX_WriteCureTime"},
              "the curing time, in sec",
              {.older = {"GetCureTime", "SetCureTime"}, .loader = InletItem::PackTime}},
    Key<Real>{"CurePres",
              {"CureX_ReadCurePressure"},
              {"CureX_WriteCurePressure"},
              "the curing pressure, in MPa",
              {.older = {"GetCurePressure", "SetCurePressure"}, .loader = InletItem::PackPres}},
    Key<Real>{"CureTemp", {"CureX_ReadCureTemperature"}, {}, "the curing temperature, in oC"},
    Key<Real>{"CureSwch",
              {"CureX_ReadCureSwitch"},
              {"CureX_WriteCureSwitch"},
              "the switch value at which curing takes over from packing",
              {.older = {"GetCureSwitch", "SetCureSwitch"}, .loader = InletItem::PackSwch}},
    Key<Integer>{"CPDisplayType",
                 {"CureX_ReadCPDisplayType"},
                 {"CureX_WriteCPDisplayType"},
                 "a code: how a front end shows the curing pressure profile",
                 {.older = {"GetCPDisplayType"}, .loader = InletItem::PPDisplayType}},
    Key<Integer>{"PPProfileType",
                 {"CureX_ReadCPProfileType"},
                 {"CureX_WriteCPProfileType"},
                 "a code: in which form the curing pressure profile was entered; the key is the "
                 "packing stage's",
                 {.loader = InletItem::PPProfileType}},
    Key<Integer>{
        "CPSet",
        {"CureX_ReadCPSection"},
        {"CureX_WriteCPSection"},
        "the number of points of the curing pressure profile",
        {.older = {"GetCPSection", "SetCPSection"}, .loader = InletList::PackingPressureProfile}},
    Key<RealPair>{
        "CP-%d",
        {"CureX_ReadCPProfile"},
        {"CureX_WriteCPProfile"},
        "a point of the curing pressure profile: the time in the stage, and the pressure, in MPa",
        {.older = {"GetCPProfile", "SetCPProfile"},
         .loader = InletList::PackingPressureProfile,
         .counted_by = "CPSet"}},
    Key<Integer>{"UserCPSet",
                 {"CureX_ReadUserCPSection"},
                 {"CureX_WriteUserCPSection"},
                 "the number of points of the curing pressure profile as the user entered it",
                 {.older = {"GetUserCPSection"}}},
    Key<RealPair>{"UserCP-%d",
                  {"CureX_ReadUserCPProfile"},
                  {"CureX_WriteUserCPProfile"},
                  "a point of the curing pressure profile as the user entered it: x and y",
                  {.older = {"GetUserCPProfile"}, .counted_by = "UserCPSet"}},
    Key<Integer>{"CTDisplayType",
                 {"CureX_ReadCTDisplayType"},
                 {},
                 "a code: how a front end shows the curing temperature profile"},
    Key<Integer>{"CTProfileType",
                 {"CureX_ReadCTProfileType"},
                 {},
                 "a code: in which form the curing temperature profile was entered"},
    Key<Integer>{"CTSet",
                 {"CureX_ReadCTSection"},
                 {},
                 "the number of points of the curing temperature profile"},
    Key<RealPair>{"CT-%d",
                  {"CureX_ReadCTProfile"},
                  {},
                  "a point of the curing temperature profile: the time in the stage, and the "
                  "temperature, in oC",
                  {.counted_by = "CTSet"}},
    Key<Integer>{"UserCTSet",
                 {"CureX_ReadUserCTSection"},
                 {},
                 "the number of points of the curing temperature profile as the user entered it"},
    Key<RealPair>{"UserCT-%d",
                  {"CureX_ReadUserCTProfile"},
                  {},
                  "a point of the curing temperature profile as the user entered it: x and y",
                  {.counted_by = "UserCTSet"}},
};

inline constexpr SectionInfo kInfo{
    kSection, "CureX", "the curing stage of an inlet", kKeys, {"inlet", "the inlet"}};

}  // namespace qel::cure_x

using CQELPROBlockIOCureX = qel::SectionBlock<qel::cure_x::kInfo>;
