#pragma once

#include "blocks/block.h"

/// [GasF-%d]: gas-assisted filling at a gas inlet.
namespace qel::gas_f_x {

inline constexpr char kSection[] = "[GasF-%d]";

inline constexpr Key<Real> kGasTime{"GasTime", {"GasFX_ReadGasTime"}, {"GasFX_WriteGasTime"}, "the gas injection time, in sec"};
inline constexpr Key<Real> kGasPres{"GasPres", {"GasFX_ReadGasPressure"}, {"GasFX_WriteGasPressure"}, "the gas pressure, in MPa"};
inline constexpr Key<Real> kGasSwch{"GasSwch", {"GasFX_ReadGasSwitch"}, {"GasFX_WriteGasSwitch"}, "the switch value of the gas"};
inline constexpr Key<Real> kDelayTime{"DelayTime", {"GasFX_ReadDelayTime"}, {"GasFX_WriteDelayTime"}, "the delay time, in sec"};
inline constexpr Key<Integer> kGRDisplayType{
    "GRDisplayType", {"GasFX_ReadGRDisplayType"}, {"GasFX_WriteGRDisplayType"}, "how the gas flow rate profile is shown"};
inline constexpr Key<Integer> kGRProfileType{
    "GRProfileType", {"GasFX_ReadGRProfileType"}, {"GasFX_WriteGRProfileType"}, "how the gas flow rate profile was entered"};
inline constexpr Key<Integer> kGPDisplayType{
    "GPDisplayType", {"GasFX_ReadGPDisplayType"}, {"GasFX_WriteGPDisplayType"}, "how the gas pressure profile is shown"};
inline constexpr Key<Integer> kGPProfileType{
    "GPProfileType", {"GasFX_ReadGPProfileType"}, {"GasFX_WriteGPProfileType"}, "how the gas pressure profile was entered"};
inline constexpr Key<Integer> kGRSet{"GRSet",
                                     {"GasFX_ReadGRSection", "GasFX_ReadUserGRSection"},
                                     {"GasFX_WriteGRSection"},
                                     "the number of gas flow rate points; the member for the user's reads it too"};
inline constexpr Key<RealPair> kGRPoint{"GR-%d",
                                        {"GasFX_ReadGRProfile", "GasFX_ReadUserGRProfile"},
                                        {"GasFX_WriteGRProfile"},
                                        "a point of the gas flow rate profile; the member for the user's reads it too"};
inline constexpr Key<Integer> kGPSet{"GPSet",
                                     {"GasFX_ReadGPSection", "GasFX_ReadUserGPSection"},
                                     {"GasFX_WriteGPSection"},
                                     "the number of gas pressure points; the member for the user's reads it too"};
inline constexpr Key<RealPair> kGPPoint{"GP-%d",
                                        {"GasFX_ReadGPProfile", "GasFX_ReadUserGPProfile"},
                                        {"GasFX_WriteGPProfile"},
                                        "a point of the gas pressure profile; the member for the user's reads it too"};
inline constexpr Key<Integer> kUserGRSet{
    "UserGRSet", {}, {"GasFX_WriteUserGRSection"}, "the number of gas flow rate points as the user entered them; no member reads it"};
inline constexpr Key<RealPair> kUserGRPoint{
    "UserGR-%d", {}, {"GasFX_WriteUserGRProfile"}, "a point of the gas flow rate profile as the user entered it; no member reads it"};
inline constexpr Key<Integer> kUserGPSet{
    "UserGPSet", {}, {"GasFX_WriteUserGPSection"}, "the number of gas pressure points as the user entered them; no member reads it"};
inline constexpr Key<RealPair> kUSerGPPoint{
    "USerGP-%d",
    {},
    {"GasFX_WriteUserGPProfile"},
    "a point of the gas pressure profile as the user entered it, under a key with a capital S; no member reads it"};

inline constexpr const KeyInfo* kKeys[] = {&kGasTime,       &kGasPres,       &kGasSwch,   &kDelayTime,  &kGRDisplayType, &kGRProfileType,
                                           &kGPDisplayType, &kGPProfileType, &kGRSet,     &kGRPoint,    &kGPSet,         &kGPPoint,
                                           &kUserGRSet,     &kUserGRPoint,   &kUserGPSet, &kUSerGPPoint};

inline constexpr SectionInfo kInfo{kSection, "gas-assisted filling at a gas inlet", kKeys, std::size(kKeys)};

}  // namespace qel::gas_f_x

class CQELPROBlockIOGasFX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOGasFX() : CQELPROBlockIOBase(qel::gas_f_x::kSection) {}
};
