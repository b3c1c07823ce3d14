#pragma once

#include "blocks/block.h"

/// [Flow-%ld]: the filling stage of an inlet.
namespace qel::flow_x {

inline constexpr char kSection[] = "[Flow-%ld]";

inline constexpr Key<Real> kFillTime{
    "FillTime",
    {"FlowX_ReadFillingTime"},
    {"FlowX_WriteFillingTime"},
    "the filling time, in sec",
    {.older = {"GetFillTime", "SetFillTime"}, .loader = "set_process_FillTime"}};
inline constexpr Key<Real> kMaxFillingTime{"MaxFillingTime",
                                           {"FlowX_ReadMaxFillingTime"},
                                           {"FlowX_WriteMaxFillingTime"},
                                           "the limit of the filling time, in sec",
                                           {.loader = "set_process_MaxFillingTime"}};
inline constexpr Key<Real> kMeltTemp{
    "MeltTemp",
    {"FlowX_ReadMeltTemperature"},
    {"FlowX_WriteMeltTemperature"},
    "the melt temperature, in oC",
    {.older = {"GetMeltTemperature", "SetMeltTemperature"}, .loader = "set_process_MeltTemp"}};
inline constexpr Key<Real> kMoldTemp{
    "MoldTemp",
    {"FlowX_ReadMoldTemperature"},
    {"FlowX_WriteMoldTemperature"},
    "the mold temperature, in oC",
    {.older = {"GetMoldTemperature", "SetMoldTemperature"}, .loader = "set_process_MoldTemp"}};
inline constexpr Key<Real> kInjectPres{
    "InjectPres",
    {"FlowX_ReadInjectPressure"},
    {"FlowX_WriteInjectPressure"},
    "the injection pressure, in MPa",
    {.older = {"GetInjectPressure", "SetInjectPressure"}, .loader = "set_process_InjectPres"}};
inline constexpr Key<Real> kPreFill{
    "PreFill",
    {"FlowX_ReadPreFill"},
    {"FlowX_WritePreFill"},
    "the pre-fill, a target of filling: how much of the cavity is full when filling ends and "
    "packing takes over; 100 in the default document",
    {.older = {"GetPreFill", "SetPreFill"}}};
inline constexpr Key<Real> kInjVol{"InjVol",
                                   {"FlowX_ReadInjectVolume"},
                                   {"FlowX_WriteInjectVolume"},
                                   "the volume that is injected, in cc",
                                   {.older = {"GetInjectVolume", "SetInjectVolume"}}};
inline constexpr Key<Real> kTransTime{
    "TransTime",
    {"FlowX_ReadTransferTime"},
    {"FlowX_WriteTransferTime"},
    "the filling time of transfer molding, in sec",
    {.older = {"GetTransferTime", "SetTransferTime"}, .loader = "set_process_FillTime"}};
inline constexpr Key<Real> kMaxTransferTime{
    "MaxTransferTime",
    {"FlowX_ReadMaxTransferTime"},
    {"FlowX_WriteMaxTransferTime"},
    "the limit of the filling time of transfer molding, in sec",
    {.loader = "set_process_MaxFillingTime"}};
inline constexpr Key<Real> kResnTemp{
    "ResnTemp",
    {"FlowX_ReadResinTemperature"},
    {"FlowX_WriteResinTemperature"},
    "the resin temperature of transfer molding, in oC",
    {.older = {"GetResinTemperature", "SetResinTemperature"}, .loader = "set_process_MeltTemp"}};
inline constexpr Key<Real> kTransPres{
    "TransPres",
    {"FlowX_ReadTransferPressure"},
    {"FlowX_WriteTransferPressure"},
    "the pressure of transfer molding, in MPa",
    {.older = {"GetTransferPressure", "SetTransferPressure"}, .loader = "set_process_InjectPres"}};
inline constexpr Key<Real> kInitConv{
    "InitConv",
    {"FlowX_ReadInitConv", "FlowX_ReadInitConversion"},
    {"FlowX_WriteInitConversion"},
    "how far the resin's curing reaction has gone (its conversion) at the start of filling",
    {.reading = "`FlowX_ReadInitConv` and `FlowX_ReadInitConversion` are the same.",
     .older = {"GetInitialConversion", "SetInitialConversion"},
     .loader = "set_process_InitConv"}};
inline constexpr Key<Real> kMaxFR{"MaxFR",
                                  {"FlowX_ReadMaxFR"},
                                  {},
                                  "the limit of the flow rate, in cc/sec",
                                  {.loader = "set_process_MaxFR"}};
inline constexpr Key<Real> kMaxPress{
    "MaxPress", {"FlowX_ReadMaxPress"}, {}, "the limit of the pressure, in MPa"};
inline constexpr Key<Integer> kIsPushBack{"IsPushBack",
                                          {"FlowX_ReadIsPushBack"},
                                          {},
                                          "1 where melt is pushed back out of the cavity, else 0"};
inline constexpr Key<Real> kPushBackEnterTime{"PushBackEnterTime",
                                              {"FlowX_ReadPushBackEnterTime"},
                                              {},
                                              "the time at which push-back begins, in sec"};
inline constexpr Key<Real> kPushBackTime{
    "PushBackTime", {"FlowX_ReadPushBackTime"}, {}, "how long push-back lasts, in sec"};
inline constexpr Key<Integer> kFRDisplayType{
    "FRDisplayType",
    {"FlowX_ReadFRDisplayType"},
    {"FlowX_WriteFRDisplayType"},
    "a code: how a front end shows the flow rate profile",
    {.older = {"GetFRDisplayType"}, .loader = "set_process_FRDisplayType"}};
inline constexpr Key<Integer> kIPDisplayType{
    "IPDisplayType",
    {"FlowX_ReadIPDisplayType"},
    {"FlowX_WriteIPDisplayType"},
    "a code: how a front end shows the injection pressure profile",
    {.older = {"GetIPDisplayType"}, .loader = "set_process_IPDisplayType"}};
inline constexpr Key<Integer> kTPDisplayType{
    "TPDisplayType",
    {"FlowX_ReadTPDisplayType"},
    {"FlowX_WriteTPDisplayType"},
    "a code: how a front end shows the transfer pressure profile",
    {.older = {"GetTPDisplayType"}}};
inline constexpr Key<Integer> kFRProfileType{
    "FRProfileType",
    {"FlowX_ReadFRProfileType"},
    {"FlowX_WriteFRProfileType"},
    "a code: in which form the flow rate profile was entered",
    {.loader = "set_process_FRProfileType"}};
inline constexpr Key<Integer> kIPProfileType{
    "IPProfileType",
    {"FlowX_ReadIPProfileType"},
    {"FlowX_WriteIPProfileType"},
    "a code: in which form the injection pressure profile was entered",
    {.loader = "set_process_IPProfileType"}};
inline constexpr Key<Integer> kTPProfileType{
    "TPProfileType",
    {"FlowX_ReadTPProfileType"},
    {"FlowX_WriteTPProfileType"},
    "a code: in which form the transfer pressure profile was entered"};
inline constexpr Key<Integer> kFRStrokeMode{
    "FRStrokeMode",
    {"FlowX_ReadFRStrokeMode"},
    {"FlowX_WriteFRStrokeMode"},
    "a code: whether and how the flow rate profile runs over the ram's stroke"};
inline constexpr Key<Integer> kIPStrokeMode{
    "IPStrokeMode",
    {"FlowX_ReadIPStrokeMode"},
    {"FlowX_WriteIPStrokeMode"},
    "a code: whether and how the injection pressure profile runs over the ram's stroke"};
inline constexpr Key<Integer> kTPStrokeMode{
    "TPStrokeMode",
    {"FlowX_ReadTPStrokeMode"},
    {"FlowX_WriteTPStrokeMode"},
    "a code: whether and how the transfer pressure profile runs over the ram's stroke"};
inline constexpr Key<Integer> kFRSet{
    "FRSet",
    {"FlowX_ReadFRSection"},
    {"FlowX_WriteFRSection"},
    "the number of points of the flow rate profile",
    {.older = {"GetFRSection", "SetFRSection"}, .loader = "GetFlowRateProfile_mod"}};
inline constexpr Key<RealPair> kFRPoint{
    "FR-%d",
    {"FlowX_ReadFRProfile"},
    {"FlowX_WriteFRProfile"},
    "a point of the flow rate profile: how far filling has gone, and the flow rate, in cc/sec",
    {.older = {"GetFRProfile", "SetFRProfile"}, .loader = "GetFlowRateProfile_mod"}};
inline constexpr Key<Integer> kIPSet{
    "IPSet",
    {"FlowX_ReadIPSection"},
    {"FlowX_WriteIPSection"},
    "the number of points of the injection pressure profile",
    {.older = {"GetIPSection", "SetIPSection"}, .loader = "GetInjectionPressureProfile_mod"}};
inline constexpr Key<RealPair> kIPPoint{
    "IP-%d",
    {"FlowX_ReadIPProfile"},
    {"FlowX_WriteIPProfile"},
    "a point of the injection pressure profile: how far filling has gone, and the pressure, in MPa",
    {.older = {"GetIPProfile", "SetIPProfile"}, .loader = "GetInjectionPressureProfile_mod"}};
inline constexpr Key<Integer> kTPSet{
    "TPSet",
    {"FlowX_ReadTPSection"},
    {"FlowX_WriteTPSection"},
    "the number of points of the transfer pressure profile",
    {.older = {"GetTPSection", "SetTPSection"}, .loader = "GetInjectionPressureProfile_mod"}};
inline constexpr Key<RealPair> kTPPoint{
    "TP-%d",
    {"FlowX_ReadTPProfile"},
    {"FlowX_WriteTPProfile"},
    "a point of the transfer pressure profile: how far filling has gone, and the pressure, in MPa",
    {.older = {"GetTPProfile", "SetTPProfile"}, .loader = "GetInjectionPressureProfile_mod"}};
inline constexpr Key<Integer> kUserFRSet{
    "UserFRSet",
    {"FlowX_ReadUserFRSection"},
    {"FlowX_WriteUserFRSection"},
    "the number of points of the flow rate profile as the user entered it",
    {.older = {"GetUserFRSection"}}};
inline constexpr Key<RealPair> kUserFRPoint{
    "UserFR-%d",
    {"FlowX_ReadUserFRProfile"},
    {"FlowX_WriteUserFRProfile"},
    "a point of the flow rate profile as the user entered it: x and y",
    {.older = {"GetUserFRProfile"}}};
inline constexpr Key<Integer> kUserIPSet{
    "UserIPSet",
    {"FlowX_ReadUserIPSection"},
    {"FlowX_WriteUserIPSection"},
    "the number of points of the injection pressure profile as the user entered it",
    {.older = {"GetUserIPSection"}}};
inline constexpr Key<RealPair> kUserIPPoint{
    "UserIP-%d",
    {"FlowX_ReadUserIPProfile"},
    {"FlowX_WriteUserIPProfile"},
    "a point of the injection pressure profile as the user entered it: x and y",
    {.older = {"GetUserIPProfile"}}};
inline constexpr Key<Integer> kUserTPSet{
    "UserTPSet",
    {"FlowX_ReadUserTPSection"},
    {"FlowX_WriteUserTPSection"},
    "the number of points of the transfer pressure profile as the user entered it",
    {.older = {"GetUserTPSection"}}};
inline constexpr Key<RealPair> kUserTPPoint{
    "UserTP-%d",
    {"FlowX_ReadUserTPProfile"},
    {"FlowX_WriteUserTPProfile"},
    "a point of the transfer pressure profile as the user entered it: x and y",
    {.older = {"GetUserTPProfile"}}};

// Only the loader takes these.
inline constexpr Key<Integer> kFlowPackMode{"FlowPackMode",
                                            {},
                                            {},
                                            "a code of the mode of filling and packing",
                                            {.loader = "set_process_FlowPackMode"}};
inline constexpr Key<Real> kHotRunnerTemperatureDiff{
    "HotRunnerTemperatureDiff",
    {},
    {},
    "how much the temperature of the hot runner differs from the melt's, in oC",
    {.loader = "set_process_HotRunnerTemperatureDiff"}};
inline constexpr Key<Text> kMaterial{
    "Material", {}, {}, "the material that this inlet injects", {.loader = "set_process_Material"}};
inline constexpr Key<Integer> kCoreEnterType{"CoreEnterType",
                                             {},
                                             {},
                                             "a code: what makes the core material enter",
                                             {.loader = "set_process_CoreEnterType"}};
inline constexpr Key<Real> kCoreEnterSwch{"CoreEnterSwch",
                                          {},
                                          {},
                                          "the switch value at which the core material enters",
                                          {.loader = "set_process_CoreEnterSwch"}};
inline constexpr Key<Real> kCoreEnterTime{"CoreEnterTime",
                                          {},
                                          {},
                                          "the time at which the core material enters, in sec",
                                          {.loader = "set_process_CoreEnterTime"}};
inline constexpr Key<Real> kFluidTemp{
    "FluidTemp",
    {},
    {},
    "the temperature of the fluid that is injected behind the melt, in oC",
    {.loader = "set_process_FluidTemp"}};
inline constexpr Key<Integer> kFluidEnterType{"FluidEnterType",
                                              {},
                                              {},
                                              "a code: what makes the fluid enter",
                                              {.loader = "set_process_FluidEnterType"}};
inline constexpr Key<Real> kFluidEnterSwch{"FluidEnterSwch",
                                           {},
                                           {},
                                           "the switch value at which the fluid enters",
                                           {.loader = "set_process_FluidEnterSwch"}};
inline constexpr Key<Real> kFluidEnterTime{"FluidEnterTime",
                                           {},
                                           {},
                                           "the time at which the fluid enters, in sec",
                                           {.loader = "set_process_FluidEnterTime"}};
inline constexpr Key<Real> kFluidDelayTime{"FluidDelayTime",
                                           {},
                                           {},
                                           "how long the fluid waits, in sec",
                                           {.loader = "set_process_FluidDelayTime"}};
inline constexpr Key<Real> kTimeConstFR{
    "TimeConstFR-%d",
    {},
    {},
    "a time constant: how fast the machine follows the flow rate profile",
    {.loader = "GetFlowRateTimeConstants_mod"}};
inline constexpr Key<Real> kTimeConstIP{
    "TimeConstIP-%d",
    {},
    {},
    "a time constant: how fast the machine follows the injection pressure profile",
    {.loader = "GetInjectionPressureTimeConstants_mod"}};
inline constexpr Key<Real> kTimeConstPP{
    "TimeConstPP-%d",
    {},
    {},
    "a time constant: how fast the machine follows the packing pressure profile",
    {.loader = "GetPackingPressureTimeConstants_mod"}};

// Only the older object serves this one.
inline constexpr Key<Real> kEndConv{
    "EndConv",
    {},
    {},
    "how far the resin's curing reaction has gone (its conversion) at the end of filling",
    {.older = {"GetEndConversion", "SetEndConversion"}}};

inline constexpr const KeyInfo* kKeys[] = {
    &kFillTime,        &kMaxFillingTime, &kMeltTemp,       &kMoldTemp,
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
    &kFluidDelayTime,  &kTimeConstFR,    &kTimeConstIP,    &kTimeConstPP,
    &kEndConv};

inline constexpr SectionInfo kInfo{
    kSection, "FlowX", "the filling stage of an inlet", kKeys, {"inlet", "the inlet"}};

}  // namespace qel::flow_x

using CQELPROBlockIOFlowX = qel::SectionBlock<qel::flow_x::kInfo>;
