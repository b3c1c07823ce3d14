#pragma once

#include "blocks/block.h"

/// [Cool]: cycle times, temperatures and the kind of cooling.
namespace qel::cool {

inline constexpr char kSection[] = "[Cool]";

inline constexpr Key<Real> kCoolTime{"CoolTime",
                                     {"Cool_ReadCoolTime"},
                                     {"Cool_WriteCoolTime"},
                                     "the cooling time, in sec",
                                     {.older = {"GetCoolTime", "SetCoolTime"}}};
inline constexpr Key<Real> kOpenTime{"OpenTime",
                                     {"Cool_ReadMoldOpenTime"},
                                     {"Cool_WriteMoldOpenTime"},
                                     "how long the mold is open between two shots, in sec",
                                     {.older = {"GetOpenTime", "SetOpenTime"}}};
inline constexpr Key<Real> kEjectTemp{"EjectTemp",
                                      {"Cool_ReadEjectTemperature"},
                                      {"Cool_WriteEjectTemperature"},
                                      "the temperature at which the part is ejected, in oC",
                                      {.older = {"GetEjectTemperature", "SetEjectTemperature"}}};
inline constexpr Key<Real> kAirTemp{"AirTemp",
                                    {"Cool_ReadAirTemperature"},
                                    {"Cool_WriteAirTemperature"},
                                    "the temperature of the air around the mold, in oC",
                                    {.older = {"GetAirTemperature", "SetAirTemperature"}}};
inline constexpr Key<Real> kInitialMoldbaseTemperature{"InitialMoldbaseTemperature",
                                                       {"Cool_ReadInitMoldTemperature"},
                                                       {"Cool_WriteInitMoldTemperature"},
                                                       "the mold base's initial temperature, in oC",
                                                       {.older = {"GetInitMoldTemperature"}}};
inline constexpr Key<Real> kCoolantTemp{
    "CoolantTemp",
    {"Cool_ReadCoolantTemperature"},
    {"Cool_WriteCoolantTemperature"},
    "the coolant temperature, in oC",
    {.older = {"GetCoolantTemperature", "SetCoolantTemperature"}}};
inline constexpr Key<Real> kCoolantFR{"CoolantFR",
                                      {"Cool_ReadCoolantFlowRate"},
                                      {"Cool_WriteCoolantFlowRate"},
                                      "the coolant flow rate, in cc/sec",
                                      {.older = {"GetCoolantFlowRate", "SetCoolantFlowRate"}}};
inline constexpr Key<Integer> kCoolingType{"CoolingType",
                                           {"Cool_ReadCoolingType"},
                                           {"Cool_WriteCoolingType"},
                                           "a code of the kind of cooling",
                                           {.older = {"GetCoolingType"}}};
inline constexpr Key<Integer> kControlType{
    "ControlType",
    {"Cool_ReadControlType"},
    {},
    "what cooling channels are controlled by: 1 pressure, otherwise flow rate"};

// Only the older object serves this one.
inline constexpr Key<Integer> kAutoSetCoolTime{
    "AutoSetCoolTime",
    {},
    {},
    "1 where the cooling time is set automatically, else 0",
    {.older = {"GetAutoSetCoolTime", "SetAutoSetCoolTime"}}};

inline constexpr const KeyInfo* kKeys[] = {
    &kCoolTime,    &kOpenTime,  &kEjectTemp,   &kAirTemp,     &kInitialMoldbaseTemperature,
    &kCoolantTemp, &kCoolantFR, &kCoolingType, &kControlType, &kAutoSetCoolTime};

inline constexpr SectionInfo kInfo{kSection, "Cool",
                                   "cycle times, temperatures and the kind of cooling", kKeys};

}  // namespace qel::cool

using CQELPROBlockIOCool = qel::SectionBlock<qel::cool::kInfo>;
