#pragma once

#include "blocks/block.h"

/// [AdvancedSetting]: the mold's opening direction, the clamp force and the cycle time.
namespace qel::advanced_setting {

inline constexpr char kSection[] = "[AdvancedSetting]";

inline constexpr KeyInfo kKeys[] = {
    Key<RealTriple>{"OpenDirection",
                    {"AdvancedSetting_ReadOpenDirection"},
                    {"AdvancedSetting_WriteOpenDirection"},
                    "the direction in which the mold opens: the x, y and z of a vector",
                    {.older = {"GetMoldOpenDirection", "SetMoldOpenDirection"}}},
    Key<Real>{"ClampForce",
              {"AdvancedSetting_ReadClampForce"},
              {"AdvancedSetting_WriteClampForce"},
              "the force that holds the mold shut",
              {.older = {"GetMoldClampingForce", "SetMoldClampingForce"}}},
    Key<Real>{"CycleTime",
              {"AdvancedSetting_ReadCycleTime"},
              {},
              "the time from one shot to the next, in sec"},
};

inline constexpr SectionInfo kInfo{
    kSection, "AdvancedSetting", "the mold's opening direction, the clamp force and the cycle time",
    kKeys};

}  // namespace qel::advanced_setting

using CQELPROBlockIOAdvancedSetting = qel::SectionBlock<qel::advanced_setting::kInfo>;
