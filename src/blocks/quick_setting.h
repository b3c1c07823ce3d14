#pragma once

#include "blocks/encoding.h"
#include "blocks/key.h"

/// [QuickSetting]: the quick setting: profiles of flow rate, injection pressure and packing
/// pressure. The older object alone serves it.
namespace qel::quick_setting {

inline constexpr char kSection[] = "[QuickSetting]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"ScrewDirection",
                 {},
                 {},
                 "a code: in which direction screw positions count",
                 {.older = {"GetQSScrewDirection", "SetQSScrewDirection"}}},
    Key<Integer>{"ProfileType",
                 {},
                 {},
                 "a code: in which form the profiles were entered",
                 {.older = {"GetQSProfileType", "SetQSProfileType"}}},
    Key<Integer>{"IsSameSetting",
                 {},
                 {},
                 "a code: whether the settings are all the same",
                 {.older = {"GetQSIsSameSetting", "SetQSIsSameSetting"}}},
    Key<Integer>{"Q_SettingType",
                 {},
                 {},
                 "a code: how the flow rate is set",
                 {.older = {"GetQSFRSettingType", "SetQSFRSettingType"}}},
    Key<Integer>{"Pi_SettingType",
                 {},
                 {},
                 "a code: how the injection pressure is set",
                 {.older = {"GetQSIPSettingType", "SetQSIPSettingType"}}},
    Key<Integer>{"Pp_SettingType",
                 {},
                 {},
                 "a code: how the packing pressure is set",
                 {.older = {"GetQSPPSettingType", "SetQSPPSettingType"}}},
    Key<Integer>{"Q_Section",
                 {},
                 {},
                 "the number of points of the flow rate profile",
                 {.older = {"GetQSFRSection", "SetQSFRSection"}}},
    Key<RealPair>{"Q_Setting_%d",
                  {},
                  {},
                  "a point of the flow rate profile: x, and the flow rate",
                  {.older = {"GetQSFRProfile", "SetQSFRProfile"}, .counted_by = "Q_Section"}},
    Key<Integer>{"Pi_Section",
                 {},
                 {},
                 "the number of points of the injection pressure profile",
                 {.older = {"GetQSIPSection", "SetQSIPSection"}}},
    Key<RealPair>{"Pi_Setting_%d",
                  {},
                  {},
                  "a point of the injection pressure profile: x, and the pressure",
                  {.older = {"GetQSIPProfile", "SetQSIPProfile"}, .counted_by = "Pi_Section"}},
    Key<Integer>{"Pp_Section",
                 {},
                 {},
                 "the number of points of the packing pressure profile",
                 {.older = {"GetQSPPSection", "SetQSPPSection"}}},
    Key<RealPair>{"Pp_Setting_%d",
                  {},
                  {},
                  "a point of the packing pressure profile: x, and the pressure",
                  {.older = {"GetQSPPProfile", "SetQSPPProfile"}, .counted_by = "Pp_Section"}},
};

inline constexpr SectionInfo kInfo{
    kSection, nullptr,
    "the quick setting: profiles of flow rate, injection pressure and packing pressure", kKeys};

}  // namespace qel::quick_setting
