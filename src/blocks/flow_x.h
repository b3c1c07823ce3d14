#pragma once

#include "blocks/block.h"

/// [Flow-%ld]: the filling stage of an inlet.
namespace qel::flow_x {

inline constexpr char kSection[] = "[Flow-%ld]";

inline constexpr Key<Real> kFillTime{"FillTime", {"FlowX_ReadFillingTime"}, {"FlowX_WriteFillingTime"}, "the filling time, in sec"};
inline constexpr Key<Real> kMaxFillingTime{
    "MaxFillingTime", {"FlowX_ReadMaxFillingTime"}, {"FlowX_WriteMaxFillingTime"}, "the longest filling time, in sec"};
inline constexpr Key<Real> kMeltTemp{"MeltTemp", {"FlowX_ReadMeltTemperature"}, {"FlowX_WriteMeltTemperature"}, "the melt temperature, in oC"};
inline constexpr Key<Real> kMoldTemp{"MoldTemp", {"FlowX_ReadMoldTemperature"}, {"FlowX_WriteMoldTemperature"}, "the mold temperature, in oC"};
inline constexpr Key<Real> kInjectPres{"InjectPres", {"FlowX_ReadInjectPressure"}, {"FlowX_WriteInjectPressure"}, "the injection pressure, in MPa"};
inline constexpr Key<Real> kPreFill{"PreFill", {"FlowX_ReadPreFill"}, {"FlowX_WritePreFill"}, "the pre-fill"};
inline constexpr Key<Real> kInjVol{"InjVol", {"FlowX_ReadInjectVolume"}, {"FlowX_WriteInjectVolume"}, "the injected volume, in cc"};
inline constexpr Key<Real> kTransTime{
    "TransTime", {"FlowX_ReadTransferTime"}, {"FlowX_WriteTransferTime"}, "the filling time of transfer molding, in sec"};
inline constexpr Key<Real> kMaxTransferTime{
    "MaxTransferTime", {"FlowX_ReadMaxTransferTime"}, {"FlowX_WriteMaxTransferTime"}, "the longest filling time of transfer molding, in sec"};
inline constexpr Key<Real> kResnTemp{
    "ResnTemp", {"FlowX_ReadResinTemperature"}, {"FlowX_WriteResinTemperature"}, "the resin temperature of transfer molding, in oC"};
inline constexpr Key<Real> kTransPres{"TransPres", {"FlowX_ReadTransferPressure"}, {"FlowX_WriteTransferPressure"}, "the transfer pressure, in MPa"};
inline constexpr Key<Real> kInitConv{
    "InitConv", {"FlowX_ReadInitConv", "FlowX_ReadInitConversion"}, {"FlowX_WriteInitConversion"}, "the conversion at the start"};
inline constexpr Key<Real> kMaxFR{"MaxFR", {"FlowX_ReadMaxFR"}, {}, "the highest flow rate, in cc/sec"};
inline constexpr Key<Real> kMaxPress{"MaxPress", {"FlowX_ReadMaxPress"}, {}, "the highest pressure, in MPa"};
inline constexpr Key<Integer> kIsPushBack{"IsPushBack", {"FlowX_ReadIsPushBack"}, {}, "1 where the melt is pushed back"};
inline constexpr Key<Real> kPushBackEnterTime{"PushBackEnterTime", {"FlowX_ReadPushBackEnterTime"}, {}, "the time at which push-back begins, in sec"};
inline constexpr Key<Real> kPushBackTime{"PushBackTime", {"FlowX_ReadPushBackTime"}, {}, "how long push-back lasts, in sec"};
inline constexpr Key<Integer> kFRDisplayType{
    "FRDisplayType", {"FlowX_ReadFRDisplayType"}, {"FlowX_WriteFRDisplayType"}, "how the flow rate profile is shown"};
inline constexpr Key<Integer> kIPDisplayType{
    "IPDisplayType", {"FlowX_ReadIPDisplayType"}, {"FlowX_WriteIPDisplayType"}, "how the injection pressure profile is shown"};
inline constexpr Key<Integer> kTPDisplayType{
    "TPDisplayType", {"FlowX_ReadTPDisplayType"}, {"FlowX_WriteTPDisplayType"}, "how the transfer pressure profile is shown"};
inline constexpr Key<Integer> kFRProfileType{
    "FRProfileType", {"FlowX_ReadFRProfileType"}, {"FlowX_WriteFRProfileType"}, "how the flow rate profile was entered"};
inline constexpr Key<Integer> kIPProfileType{
    "IPProfileType", {"FlowX_ReadIPProfileType"}, {"FlowX_WriteIPProfileType"}, "how the injection pressure profile was entered"};
inline constexpr Key<Integer> kTPProfileType{
    "TPProfileType", {"FlowX_ReadTPProfileType"}, {"FlowX_WriteTPProfileType"}, "how the transfer pressure profile was entered"};
inline constexpr Key<Integer> kFRStrokeMode{
    "FRStrokeMode", {"FlowX_ReadFRStrokeMode"}, {"FlowX_WriteFRStrokeMode"}, "the stroke mode of the flow rate profile"};
inline constexpr Key<Integer> kIPStrokeMode{
    "IPStrokeMode", {"FlowX_ReadIPStrokeMode"}, {"FlowX_WriteIPStrokeMode"}, "the stroke mode of the injection pressure profile"};
inline constexpr Key<Integer> kTPStrokeMode{
    "TPStrokeMode", {"FlowX_ReadTPStrokeMode"}, {"FlowX_WriteTPStrokeMode"}, "the stroke mode of the transfer pressure profile"};
inline constexpr Key<Integer> kFRSet{"FRSet", {"FlowX_ReadFRSection"}, {"FlowX_WriteFRSection"}, "the number of flow rate points"};
inline constexpr Key<RealPair> kFRPoint{"FR-%d", {"FlowX_ReadFRProfile"}, {"FlowX_WriteFRProfile"}, "a point of the flow rate profile"};
inline constexpr Key<Integer> kIPSet{"IPSet", {"FlowX_ReadIPSection"}, {"FlowX_WriteIPSection"}, "the number of injection pressure points"};
inline constexpr Key<RealPair> kIPPoint{"IP-%d", {"FlowX_ReadIPProfile"}, {"FlowX_WriteIPProfile"}, "a point of the injection pressure profile"};
inline constexpr Key<Integer> kTPSet{"TPSet", {"FlowX_ReadTPSection"}, {"FlowX_WriteTPSection"}, "the number of transfer pressure points"};
inline constexpr Key<RealPair> kTPPoint{"TP-%d", {"FlowX_ReadTPProfile"}, {"FlowX_WriteTPProfile"}, "a point of the transfer pressure profile"};
inline constexpr Key<Integer> kUserFRSet{
    "UserFRSet", {"FlowX_ReadUserFRSection"}, {"FlowX_WriteUserFRSection"}, "the number of flow rate points as the user entered them"};
inline constexpr Key<RealPair> kUserFRPoint{
    "UserFR-%d", {"FlowX_ReadUserFRProfile"}, {"FlowX_WriteUserFRProfile"}, "a point of the flow rate profile as the user entered it"};
inline constexpr Key<Integer> kUserIPSet{
    "UserIPSet", {"FlowX_ReadUserIPSection"}, {"FlowX_WriteUserIPSection"}, "the number of injection pressure points as the user entered them"};
inline constexpr Key<RealPair> kUserIPPoint{
    "UserIP-%d", {"FlowX_ReadUserIPProfile"}, {"FlowX_WriteUserIPProfile"}, "a point of the injection pressure profile as the user entered it"};
inline constexpr Key<Integer> kUserTPSet{
    "UserTPSet", {"FlowX_ReadUserTPSection"}, {"FlowX_WriteUserTPSection"}, "the number of transfer pressure points as the user entered them"};
inline constexpr Key<RealPair> kUserTPPoint{
    "UserTP-%d", {"FlowX_ReadUserTPProfile"}, {"FlowX_WriteUserTPProfile"}, "a point of the transfer pressure profile as the user entered it"};

// Only the simulator process takes these; no member reads or writes them.
inline constexpr Key<Integer> kFlowPackMode{"FlowPackMode", {}, {}, "the code of the filling and packing mode"};
inline constexpr Key<Real> kHotRunnerTemperatureDiff{"HotRunnerTemperatureDiff", {}, {}, "the temperature difference of the hot runner"};
inline constexpr Key<Text> kMaterial{"Material", {}, {}, "the material"};
inline constexpr Key<Integer> kCoreEnterType{"CoreEnterType", {}, {}, "the code of what makes the core material enter"};
inline constexpr Key<Real> kCoreEnterSwch{"CoreEnterSwch", {}, {}, "the switch value at which the core material enters"};
inline constexpr Key<Real> kCoreEnterTime{"CoreEnterTime", {}, {}, "the time at which the core material enters, in sec"};
inline constexpr Key<Real> kFluidTemp{"FluidTemp", {}, {}, "the fluid temperature, in oC"};
inline constexpr Key<Integer> kFluidEnterType{"FluidEnterType", {}, {}, "the code of what makes the fluid enter"};
inline constexpr Key<Real> kFluidEnterSwch{"FluidEnterSwch", {}, {}, "the switch value at which the fluid enters"};
inline constexpr Key<Real> kFluidEnterTime{"FluidEnterTime", {}, {}, "the time at which the fluid enters, in sec"};
inline constexpr Key<Real> kFluidDelayTime{"FluidDelayTime", {}, {}, "the delay of the fluid, in sec"};
inline constexpr Key<Real> kTimeConstFR{"TimeConstFR-%d", {}, {}, "a time constant of the flow rate"};
inline constexpr Key<Real> kTimeConstIP{"TimeConstIP-%d", {}, {}, "a time constant of the injection pressure"};
inline constexpr Key<Real> kTimeConstPP{"TimeConstPP-%d", {}, {}, "a time constant of the packing pressure"};

inline constexpr const KeyInfo* kKeys[] = {&kFillTime,        &kMaxFillingTime, &kMeltTemp,       &kMoldTemp,
                                           &kInjectPres,      &kPreFill,        &kInjVol,         &kTransTime,
                                           &kMaxTransferTime, &kResnTemp,       &kTransPres,      &kInitConv,
                                           &kMaxFR,           &kMaxPress,       &kIsPushBack,     &kPushBackEnterTime,
                                           &kPushBackTime,    &kFRDisplayType,  &kIPDisplayType,  &kTPDisplayType,
                                           &kFRProfileType,   &kIPProfileType,  &kTPProfileType,  &kFRStrokeMode,
                                           &kIPStrokeMode,    &kTPStrokeMode,   &kFRSet,          &kFRPoint,
                                           &kIPSet,           &kIPPoint,        &kTPSet,          &kTPPoint,
                                           &kUserFRSet,       &kUserFRPoint,    &kUserIPSet,      &kUserIPPoint,
                                           &kUserTPSet,       &kUserTPPoint,    &kFlowPackMode,   &kHotRunnerTemperatureDiff,
                                           &kMaterial,        &kCoreEnterType,  &kCoreEnterSwch,  &kCoreEnterTime,
                                           &kFluidTemp,       &kFluidEnterType, &kFluidEnterSwch, &kFluidEnterTime,
                                           &kFluidDelayTime,  &kTimeConstFR,    &kTimeConstIP,    &kTimeConstPP};

inline constexpr SectionInfo kInfo{kSection, "the filling stage of an inlet", kKeys, std::size(kKeys)};

}  // namespace qel::flow_x

class CQELPROBlockIOFlowX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOFlowX() : CQELPROBlockIOBase(qel::flow_x::kSection) {}
};
