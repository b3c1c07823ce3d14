#pragma once

#include "blocks/encoding.h"
#include "blocks/key.h"

/// [QuickSetting]: the quick setting: profiles of flow rate, injection pressure and packing
/// pressure. The older object alone serves it.
namespace qel::quick_setting {

inline constexpr char kSection[] = "[QuickSetting]";

inline constexpr Key<Integer> kScrewDirection{
    "ScrewDirection",
    {},
    {},
    "a code: in which direction screw positions count",
    {.older = {"GetQSScrewDirection", "SetQSScrewDirection"}}};
inline constexpr Key<Integer> kProfileType{"ProfileType",
                                           {},
                                           {},
                                           "a code: in which form the profiles were entered",
                                           {.older = {"GetQSProfileType", "SetQSProfileType"}}};
inline constexpr Key<Integer> kIsSameSetting{
    "IsSameSetting",
    {},
    {},
    "a code: whether the settings are all the same",
    {.older = {"GetQSIsSameSetting", "SetQSIsSameSetting"}}};
inline constexpr Key<Integer> kQ_SettingType{
    "Q_SettingType",
    {},
    {},
    "a code: how the flow rate is set",
    {.older = {"GetQSFRSettingType", "SetQSFRSettingType"}}};
inline constexpr Key<Integer> kPi_SettingType{
    "Pi_SettingType",
    {},
    {},
    "a code: how the injection pressure is set",
    {.older = {"GetQSIPSettingType", "SetQSIPSettingType"}}};
inline constexpr Key<Integer> kPp_SettingType{
    "Pp_SettingType",
    {},
    {},
    "a code: how the packing pressure is set",
    {.older = {"GetQSPPSettingType", "SetQSPPSettingType"}}};
inline constexpr Key<Integer> kQ_Section{"Q_Section",
                                         {},
                                         {},
                                         "the number of points of the flow rate profile",
                                         {.older = {"GetQSFRSection", "SetQSFRSection"}}};
inline constexpr Key<RealPair> kQ_Setting{"Q_Setting_%d",
                                          {},
                                          {},
                                          "a point of the flow rate profile: x, and the flow rate",
                                          {.older = {"GetQSFRProfile", "SetQSFRProfile"}}};
inline constexpr Key<Integer> kPi_Section{"Pi_Section",
                                          {},
                                          {},
                                          "the number of points of the injection pressure profile",
                                          {.older = {"GetQSIPSection", "SetQSIPSection"}}};
inline constexpr Key<RealPair> kPi_Setting{
    "Pi_Setting_%d",
    {},
    {},
    "a point of the injection pressure profile: x, and the pressure",
    {.older = {"GetQSIPProfile", "SetQSIPProfile"}}};
inline constexpr Key<Integer> kPp_Section{"Pp_Section",
                                          {},
                                          {},
                                          "the number of points of the packing pressure profile",
                                          {.older = {"GetQSPPSection", "SetQSPPSection"}}};
inline constexpr Key<RealPair> kPp_Setting{
    "Pp_Setting_%d",
    {},
    {},
    "a point of the packing pressure profile: x, and the pressure",
    {.older = {"GetQSPPProfile", "SetQSPPProfile"}}};

inline constexpr const KeyInfo* kKeys[] = {&kScrewDirection, &kProfileType,    &kIsSameSetting,
                                           &kQ_SettingType,  &kPi_SettingType, &kPp_SettingType,
                                           &kQ_Section,      &kQ_Setting,      &kPi_Section,
                                           &kPi_Setting,     &kPp_Section,     &kPp_Setting};

inline constexpr SectionInfo kInfo{
    kSection, nullptr,
    "the quick setting: profiles of flow rate, injection pressure and packing pressure", kKeys};

}  // namespace qel::quick_setting
