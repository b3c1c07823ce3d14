#pragma once

#include "blocks/block.h"

/// [Cool]: cycle times, temperatures and the kind of cooling.
namespace qel::cool {

inline constexpr char kSection[] = "[Cool]";

inline constexpr Key<Real> kCoolTime{"CoolTime", {"Cool_ReadCoolTime"}, {"Cool_WriteCoolTime"}, "the cooling time, in sec"};
inline constexpr Key<Real> kOpenTime{"OpenTime", {"Cool_ReadMoldOpenTime"}, {"Cool_WriteMoldOpenTime"}, "the time the mold is open, in sec"};
inline constexpr Key<Real> kEjectTemp{"EjectTemp", {"Cool_ReadEjectTemperature"}, {"Cool_WriteEjectTemperature"}, "the ejection temperature, in oC"};
inline constexpr Key<Real> kAirTemp{"AirTemp", {"Cool_ReadAirTemperature"}, {"Cool_WriteAirTemperature"}, "the air temperature, in oC"};
inline constexpr Key<Real> kInitialMoldbaseTemperature{
    "InitialMoldbaseTemperature", {"Cool_ReadInitMoldTemperature"}, {"Cool_WriteInitMoldTemperature"}, "the mold base's initial temperature, in oC"};
inline constexpr Key<Real> kCoolantTemp{
    "CoolantTemp", {"Cool_ReadCoolantTemperature"}, {"Cool_WriteCoolantTemperature"}, "the coolant temperature, in oC"};
inline constexpr Key<Real> kCoolantFR{"CoolantFR", {"Cool_ReadCoolantFlowRate"}, {"Cool_WriteCoolantFlowRate"}, "the coolant flow rate, in cc/sec"};
inline constexpr Key<Integer> kCoolingType{"CoolingType", {"Cool_ReadCoolingType"}, {"Cool_WriteCoolingType"}, "the code of the kind of cooling"};
inline constexpr Key<Integer> kControlType{
    "ControlType", {"Cool_ReadControlType"}, {}, "what cooling channels are controlled by: 1 pressure, otherwise flow rate"};

inline constexpr const KeyInfo* kKeys[] = {&kCoolTime,    &kOpenTime,  &kEjectTemp,   &kAirTemp,    &kInitialMoldbaseTemperature,
                                           &kCoolantTemp, &kCoolantFR, &kCoolingType, &kControlType};

inline constexpr SectionInfo kInfo{kSection, "cycle times, temperatures and the kind of cooling", kKeys, std::size(kKeys)};

}  // namespace qel::cool

class CQELPROBlockIOCool : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOCool() : CQELPROBlockIOBase(qel::cool::kSection) {}
};
