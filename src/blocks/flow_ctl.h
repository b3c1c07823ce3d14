#pragma once

#include "blocks/block.h"

/// [FlowCTL]: what controls filling, packing, the V/P switch-over and the begin of curing.
namespace qel::flow_ctl {

inline constexpr char kSection[] = "[FlowCTL]";

inline constexpr Key<Integer> kFlowCtrl{"FlowCtrl", {"FlowCTL_ReadFlowCtrl"}, {"FlowCTL_WriteFlowCtrl"}, "the code of what controls filling"};
inline constexpr Key<Integer> kVPSwitchCtrl{
    "VPSwitchCtrl",
    {"FlowCTL_ReadVPSwitchCtrl"},
    {"FlowCTL_WriteVPSwitchCtrl"},
    "the V/P switch-over criterion: 0 filled volume, 1 ram position, 2 injection pressure, 3 a further one over the filled volume"};
inline constexpr Key<Integer> kPackingCtrl{
    "PackingCtrl", {"FlowCTL_ReadPackingCtrl"}, {"FlowCTL_WritePackingCtrl"}, "the code of what controls packing"};
inline constexpr Key<Real> kMoldTemperature{
    "MoldTemperature", {"FlowCTL_ReadMoldTemperature"}, {"FlowCTL_WriteMoldTemperature"}, "the mold temperature, in oC"};
inline constexpr Key<Real> kMeltTemperature{
    "MeltTemperature", {"FlowCTL_ReadMeltTemperature"}, {"FlowCTL_WriteMeltTemperature"}, "the melt temperature, in oC"};
inline constexpr Key<Real> kInjectionTime{
    "InjectionTime", {"FlowCTL_ReadInjectionTime"}, {"FlowCTL_WriteInjectionTime"}, "the injection time, in sec"};
inline constexpr Key<Real> kVolumeFilled{
    "VolumeFilled", {"FlowCTL_ReadVolumeFilled"}, {"FlowCTL_WriteVolumeFilled"}, "the filled volume at the V/P switch-over"};
inline constexpr Key<Real> kRamPosition{
    "RamPosition", {"FlowCTL_ReadRamPosition"}, {"FlowCTL_WriteRamPosition"}, "the ram position at the V/P switch-over"};
inline constexpr Key<Real> kInjectionPressure{"InjectionPressure",
                                              {"FlowCTL_ReadInjectionPressure"},
                                              {"FlowCTL_WriteInjectionPressure"},
                                              "the injection pressure at the V/P switch-over, in MPa"};
inline constexpr Key<Real> kCureSwitch{"CureSwitch", {"FlowCTL_ReadCureSwitch"}, {"FlowCTL_WriteCureSwitch"}, "when curing begins"};
inline constexpr Key<Integer> kCureTempCtrl{"CureTempCtrl", {"FlowCTL_ReadCureTempCtrl"}, {}, "the code of the curing temperature's control"};
inline constexpr Key<Integer> kCureEnterType{
    "CureEnterType", {"FlowCTL_ReadCureEnterType"}, {"FlowCTL_WriteCureEnterType"}, "the code of what makes curing begin"};
inline constexpr Key<Real> kCureEnterSwch{
    "CureEnterSwch", {"FlowCTL_ReadCureEnterSwitch"}, {"FlowCTL_WriteCureEnterSwitch"}, "the switch value at which curing begins"};
inline constexpr Key<Real> kCureEnterTime{
    "CureEnterTime", {"FlowCTL_ReadCureEnterTime"}, {"FlowCTL_WriteCureEnterTime"}, "the time at which curing begins, in sec"};

inline constexpr const KeyInfo* kKeys[] = {&kFlowCtrl,      &kVPSwitchCtrl,  &kPackingCtrl,   &kMoldTemperature,   &kMeltTemperature,
                                           &kInjectionTime, &kVolumeFilled,  &kRamPosition,   &kInjectionPressure, &kCureSwitch,
                                           &kCureTempCtrl,  &kCureEnterType, &kCureEnterSwch, &kCureEnterTime};

inline constexpr SectionInfo kInfo{kSection, "what controls filling, packing, the V/P switch-over and the begin of curing", kKeys, std::size(kKeys)};

}  // namespace qel::flow_ctl

class CQELPROBlockIOFlowCTL : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOFlowCTL() : CQELPROBlockIOBase(qel::flow_ctl::kSection) {}
};
