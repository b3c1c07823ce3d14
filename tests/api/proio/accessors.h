#pragma once

#include <functional>
#include <string>
#include <vector>

#include "QELPROEngine/CPROIO_Manipulator.h"

/// Every accessor of the self-contained object that serves one value, or one point of a profile,
/// with where its value stands. Numbered sections and keys are used with the number 2, points with
/// the number 3.
namespace qelpro_test {

using Object = CPROIO_Manipulator;

inline constexpr int kNumber = 2;
inline constexpr int kPoint = 3;

template <class... Values>
struct Accessor {
  const char* name;  ///< Of the getter, or of the setter where there is no getter.
  const char* section;
  const char* key;
  std::function<bool(Object&, Values&...)> get;  ///< Empty for a setter without a getter.
  std::function<bool(Object&, Values...)> set;   ///< Empty for a getter without a setter.
};

template <class Value>
auto getter(bool (Object::*get)(Value&)) {
  return [get](Object& object, Value& value) { return (object.*get)(value); };
}
template <class Value>
auto getter(bool (Object::*get)(Value&, int)) {
  return [get](Object& object, Value& value) { return (object.*get)(value, kNumber); };
}
template <class Value>
auto getter(bool (Object::*get)(int, Value&)) {
  return [get](Object& object, Value& value) { return (object.*get)(kNumber, value); };
}

template <class Value>
auto setter(bool (Object::*set)(Value)) {
  return [set](Object& object, Value value) { return (object.*set)(value); };
}
/// The stage stands last.
template <class Value>
auto staged(bool (Object::*set)(Value, int)) {
  return [set](Object& object, Value value) { return (object.*set)(value, kNumber); };
}
/// The number stands first.
template <class Value>
auto numbered(bool (Object::*set)(int, Value)) {
  return [set](Object& object, Value value) { return (object.*set)(kNumber, value); };
}
template <class Value>
auto numbered(bool (Object::*set)(int, Value&)) {
  return [set](Object& object, Value value) { return (object.*set)(kNumber, value); };
}

inline auto point_getter(bool (Object::*get)(int, double&, double&, int)) {
  return
      [get](Object& object, double& x, double& y) { return (object.*get)(kPoint, x, y, kNumber); };
}
inline auto point_getter(bool (Object::*get)(int, double&, double&)) {
  return [get](Object& object, double& x, double& y) { return (object.*get)(kPoint, x, y); };
}
inline auto point_setter(bool (Object::*set)(int, double, double, int)) {
  return [set](Object& object, double x, double y) { return (object.*set)(kPoint, x, y, kNumber); };
}
inline auto point_setter(bool (Object::*set)(int, double, double)) {
  return [set](Object& object, double x, double y) { return (object.*set)(kPoint, x, y); };
}

inline const std::vector<Accessor<char*>>& text_accessors() {
  static const std::vector<Accessor<char*>> rows = {
      {"GetFileName", "[FileHeader]", "Name", getter(&Object::GetFileName),
       setter<char*>(&Object::SetFileName)},
      {"SetType", "[FileHeader]", "Type", nullptr, setter<char*>(&Object::SetType)},
      {"SetCreateBy", "[FileHeader]", "CreateBy", nullptr, setter<char*>(&Object::SetCreateBy)},
      {"SetRemark", "[FileHeader]", "Remark", nullptr, setter<char*>(&Object::SetRemark)},
      {"SetVersion", "[CaeHeader]", "Version", nullptr, setter<char*>(&Object::SetVersion)},
      {"SetRelease", "[CaeHeader]", "Release", nullptr, setter<char*>(&Object::SetRelease)},
      {"GetProjectPath", "[CaeHeader]", "Project", getter(&Object::GetProjectPath),
       setter<char*>(&Object::SetProject)},
      {"SetEngineer", "[CaeHeader]", "Engineer", nullptr, setter<char*>(&Object::SetEngineer)},
      {"SetParent", "[CaeHeader]", "Parent", nullptr, setter<char*>(&Object::SetParent)},
      {"GetCAEType", "[CaeHeader]", "Type", getter(&Object::GetCAEType),
       setter<char*>(&Object::SetCAEType)},
      {"GetProjectMesh", "[Project]", "Mesh", getter(&Object::GetProjectMesh),
       setter<char*>(&Object::SetProjectMesh)},
      {"GetProjectMaterial", "[Project]", "Material", getter(&Object::GetProjectMaterial),
       setter<char*>(&Object::SetProjectMaterial)},
      {"GetMachineMaker", "[Machine]", "Maker", getter(&Object::GetMachineMaker),
       setter<char*>(&Object::SetMachineMaker)},
      {"GetMachineGrade", "[Machine]", "Grade", getter(&Object::GetMachineGrade),
       setter<char*>(&Object::SetMachineGrade)},
      {"GetMachineLastModifiedDate", "[Machine]", "LastModifiedDate",
       getter(&Object::GetMachineLastModifiedDate), nullptr},
      {"GetMachineRemark", "[Machine]", "Remark", getter(&Object::GetMachineRemark),
       setter<char*>(&Object::SetMachineRemark)},
      {"GetMachineTieBarsDistance", "[Machine]", "DistanceBetweenTieBars(HxV)",
       getter(&Object::GetMachineTieBarsDistance), nullptr},
      {"GetMachinePlatenSize", "[Machine]", "PlatenSize(HxV)",
       getter(&Object::GetMachinePlatenSize), nullptr},
      {"GetMachineDimension", "[Machine]", "MachineDimension(LxWxH)",
       getter(&Object::GetMachineDimension), nullptr},
  };
  return rows;
}

inline const std::vector<Accessor<int>>& integer_accessors() {
  static const std::vector<Accessor<int>> rows = {
      {"GetFileVersion", "[CaeHeader]", "FileVersion", getter(&Object::GetFileVersion),
       setter(&Object::SetFileVersion)},
      {"GetFileType", "[CaeHeader]", "FileType", getter(&Object::GetFileType),
       setter(&Object::SetFileType)},
      {"GetSmartSetting", "[CaeHeader]", "SmartSetting", getter(&Object::GetSmartSetting),
       setter(&Object::SetSmartSetting)},
      {"GetMeshLayer", "[Summary]", "TotalNdivz", getter(&Object::GetMeshLayer),
       setter(&Object::SetMeshLayer)},
      {"GetMeltEntranceNo", "[Summary]", "TotalNodeEM", getter(&Object::GetMeltEntranceNo),
       setter(&Object::SetMeltEntranceNo)},
      {"GetCoolantNo", "[Summary]", "TotalNodeEC", getter(&Object::GetCoolantNo),
       setter(&Object::SetCoolantNo)},
      {"GetValveGateNo", "[Summary]", "TotalGateCTL", getter(&Object::GetValveGateNo),
       setter(&Object::SetValveGateNo)},
      {"GetVacuumIndex", "[Summary]", "VacuumIndex", getter(&Object::GetVacuumIndex),
       setter(&Object::SetVacuumIndex)},
      {"GetMultiTimeStep", "[Summary]", "NoOutput", getter(&Object::GetMultiTimeStep),
       setter(&Object::SetMultiTimeStep)},
      {"GetPpackAsPeof", "[Summary]", "PEOFasPPack", getter<int>(&Object::GetPpackAsPeof),
       setter<int>(&Object::SetPpackAsPeof)},
      {"GetMoldbaseNo", "[Summary]", "TotalNodeMB", getter(&Object::GetMoldbaseNo),
       setter(&Object::SetMoldbaseNo)},
      {"GetBoundaryConditionNo", "[Summary]", "TotalNodeBC",
       getter(&Object::GetBoundaryConditionNo), setter(&Object::SetBoundaryConditionNo)},
      {"GetGasEntranceNo", "[Summary]", "TotalNodeEG", getter(&Object::GetGasEntranceNo),
       setter(&Object::SetGasEntranceNo)},
      {"GetMoldMetalMaterialNo", "[Summary]", "TotalNodeMMM",
       getter(&Object::GetMoldMetalMaterialNo), setter(&Object::SetMoldMetalMaterialNo)},
      {"GetSymVolRatio", "[Summary]", "SymVolRatio", getter(&Object::GetSymVolRatio),
       setter(&Object::SetSymVolRatio)},
      {"GetHeatingRodNo", "[Summary]", "TotalNodeHR", getter(&Object::GetHeatingRodNo),
       setter(&Object::SetHeatingRodNo)},
      {"GetFRDisplayType", "[Flow-2]", "FRDisplayType", getter(&Object::GetFRDisplayType), nullptr},
      {"GetIPDisplayType", "[Flow-2]", "IPDisplayType", getter(&Object::GetIPDisplayType), nullptr},
      {"GetTPDisplayType", "[Flow-2]", "TPDisplayType", getter(&Object::GetTPDisplayType), nullptr},
      {"GetPPDisplayType", "[Pack-2]", "PPDisplayType", getter(&Object::GetPPDisplayType), nullptr},
      {"GetCPDisplayType", "[Cure-2]", "CPDisplayType", getter(&Object::GetCPDisplayType), nullptr},
      {"GetScrewDirection", "[RamPosition]", "RamDir", getter(&Object::GetScrewDirection),
       setter(&Object::SetScrewDirection)},
      {"GetVPSwitch", "[RamPosition]", "IsVPswitch", getter<int>(&Object::GetVPSwitch),
       setter<int>(&Object::SetVPSwitch)},
      {"GetQSScrewDirection", "[QuickSetting]", "ScrewDirection",
       getter(&Object::GetQSScrewDirection), setter(&Object::SetQSScrewDirection)},
      {"GetQSProfileType", "[QuickSetting]", "ProfileType", getter(&Object::GetQSProfileType),
       setter(&Object::SetQSProfileType)},
      {"GetQSIsSameSetting", "[QuickSetting]", "IsSameSetting", getter(&Object::GetQSIsSameSetting),
       setter(&Object::SetQSIsSameSetting)},
      {"GetQSFRSettingType", "[QuickSetting]", "Q_SettingType", getter(&Object::GetQSFRSettingType),
       setter(&Object::SetQSFRSettingType)},
      {"GetQSIPSettingType", "[QuickSetting]", "Pi_SettingType",
       getter(&Object::GetQSIPSettingType), setter(&Object::SetQSIPSettingType)},
      {"GetQSPPSettingType", "[QuickSetting]", "Pp_SettingType",
       getter(&Object::GetQSPPSettingType), setter(&Object::SetQSPPSettingType)},
      {"GetFlowCTLFlowCtrl", "[FlowCTL]", "FlowCtrl", getter(&Object::GetFlowCTLFlowCtrl), nullptr},
      {"GetFlowCTLVPSwitchCtrl", "[FlowCTL]", "VPSwitchCtrl",
       getter(&Object::GetFlowCTLVPSwitchCtrl), nullptr},
      {"GetFlowCTLPackingCtrl", "[FlowCTL]", "PackingCtrl", getter(&Object::GetFlowCTLPackingCtrl),
       nullptr},
      {"GetOutputTimeStep", "[Output]", "TimeStep", getter(&Object::GetOutputTimeStep),
       setter(&Object::SetOutputTimeStep)},
      {"GetICInitConversionType", "[ICPackage]", "InitConversionType",
       getter(&Object::GetICInitConversionType), nullptr},
      {"GetMoldThermalBoundaryType", "[MoldThermalBoundaryType]", "Type",
       getter(&Object::GetMoldThermalBoundaryType), setter(&Object::SetMoldThermalBoundaryType)},
      {"GetGasGRDisplayType", "[GasF-2]", "GRDisplayType", getter(&Object::GetGasGRDisplayType),
       nullptr},
      {"GetGasGRProfileType", "[GasF-2]", "GRProfileType", getter(&Object::GetGasGRProfileType),
       nullptr},
      {"GetGasGPDisplayType", "[GasF-2]", "GPDisplayType", getter(&Object::GetGasGPDisplayType),
       nullptr},
      {"GetGasGPProfileType", "[GasF-2]", "GPProfileType", getter(&Object::GetGasGPProfileType),
       nullptr},
      {"GetValveGateControlNo", "[GateValve-2]", "GCSet", getter(&Object::GetValveGateControlNo),
       numbered(&Object::SetValveGateControlNo)},
      {"GetOverFlowControlNo", "[OFGateValve-2]", "GCSet", getter(&Object::GetOverFlowControlNo),
       nullptr},
      {"GetCoolingType", "[Cool]", "CoolingType", getter(&Object::GetCoolingType), nullptr},
      {"GetAutoSetCoolTime", "[Cool]", "AutoSetCoolTime", getter<int>(&Object::GetAutoSetCoolTime),
       setter<int>(&Object::SetAutoSetCoolTime)},
      {"GetCoolCTLSystem", "[CoolCTL]", "M-2", getter(&Object::GetCoolCTLSystem),
       numbered(&Object::SetCoolCTLSystem)},
      {"GetTotalCoolantNo", "[VarCoolCTL]", "CoolantNo", getter(&Object::GetTotalCoolantNo),
       setter(&Object::SetTotalCoolantNo)},
      {"GetCoolChannelGroupID", "[CoolChannel-2]", "GroupID",
       getter(&Object::GetCoolChannelGroupID), numbered(&Object::SetCoolChannelGroupID)},
      {"GetCoolChannelTimeSet", "[CoolChannel-2]", "TimeSet",
       getter(&Object::GetCoolChannelTimeSet), numbered(&Object::SetCoolChannelTimeSet)},
      {"GetMPreheatCoolChannelGroupID", "[MPreheat_CoolChannel-2]", "GroupID",
       getter(&Object::GetMPreheatCoolChannelGroupID),
       numbered(&Object::SetMPreheatCoolChannelGroupID)},
      {"GetMPreheatCoolChannelTimeSet", "[MPreheat_CoolChannel-2]", "TimeSet",
       getter(&Object::GetMPreheatCoolChannelTimeSet),
       numbered(&Object::SetMPreheatCoolChannelTimeSet)},
      {"GetMoldPreHeatControlType", "[MoldPreheat]", "ControlType",
       getter(&Object::GetMoldPreHeatControlType), nullptr},
      {"GetMoldPreHeatType", "[MoldPreheat]", "MoldPreHeatType",
       getter(&Object::GetMoldPreHeatType), setter(&Object::SetMoldPreHeatType)},
      {"GetTotalSensorNode", "[EjectCriteria]", "TotalSensorNode",
       getter(&Object::GetTotalSensorNode), nullptr},
      {"GetTotalCriteriaNode", "[EjectCriteria]", "TotalCriteriaNode",
       getter(&Object::GetTotalCriteriaNode), nullptr},
      {"GetTotalPartInsert", "[PartInsertInitialTemperature]", "TotalPartInsert",
       getter(&Object::GetTotalPartInsert), nullptr},
      {"GetMachineTemperatureControlZone", "[Machine]", "TemperatureControlZones",
       getter(&Object::GetMachineTemperatureControlZone), nullptr},
      {"GetMachineEjectorPoint", "[Machine]", "EjectorPoint",
       getter(&Object::GetMachineEjectorPoint), nullptr},
      {"GetBarrelCompressionCtrlType", "[Machine]", "BarrelCompressionCtrl",
       getter(&Object::GetBarrelCompressionCtrlType), nullptr},
      {"GetFRSection", "[Flow-2]", "FRSet", getter(&Object::GetFRSection),
       staged(&Object::SetFRSection)},
      {"GetUserFRSection", "[Flow-2]", "UserFRSet", getter(&Object::GetUserFRSection), nullptr},
      {"GetIPSection", "[Flow-2]", "IPSet", getter(&Object::GetIPSection),
       staged(&Object::SetIPSection)},
      {"GetUserIPSection", "[Flow-2]", "UserIPSet", getter(&Object::GetUserIPSection), nullptr},
      {"GetTPSection", "[Flow-2]", "TPSet", getter(&Object::GetTPSection),
       staged(&Object::SetTPSection)},
      {"GetUserTPSection", "[Flow-2]", "UserTPSet", getter(&Object::GetUserTPSection), nullptr},
      {"GetPPSection", "[Pack-2]", "PPSet", getter(&Object::GetPPSection),
       staged(&Object::SetPPSection)},
      {"GetUserPPSection", "[Pack-2]", "UserPPSet", getter(&Object::GetUserPPSection), nullptr},
      {"GetCPSection", "[Cure-2]", "CPSet", getter(&Object::GetCPSection),
       staged(&Object::SetCPSection)},
      {"GetUserCPSection", "[Cure-2]", "UserCPSet", getter(&Object::GetUserCPSection), nullptr},
      {"GetRamFRSection", "[RamPosition]", "RP_FRSet", getter(&Object::GetRamFRSection),
       setter(&Object::SetRamFRSection)},
      {"GetRamIPSection", "[RamPosition]", "RP_IPSet", getter(&Object::GetRamIPSection),
       setter(&Object::SetRamIPSection)},
      {"GetQSFRSection", "[QuickSetting]", "Q_Section", getter(&Object::GetQSFRSection),
       setter(&Object::SetQSFRSection)},
      {"GetQSIPSection", "[QuickSetting]", "Pi_Section", getter(&Object::GetQSIPSection),
       setter(&Object::SetQSIPSection)},
      {"GetQSPPSection", "[QuickSetting]", "Pp_Section", getter(&Object::GetQSPPSection),
       setter(&Object::SetQSPPSection)},
      {"GetGasFRSection", "[GasF-2]", "GRSet", getter(&Object::GetGasFRSection),
       numbered(&Object::SetGasFRSection)},
      {"GetUserGasFRSection", "[GasF-2]", "UserGRSet", getter(&Object::GetUserGasFRSection),
       nullptr},
      {"GetGasGPSection", "[GasF-2]", "GPSet", getter(&Object::GetGasGPSection),
       numbered(&Object::SetGasGPSection)},
      {"GetUserGasGPSection", "[GasF-2]", "UserGPSet", getter(&Object::GetUserGasGPSection),
       nullptr},
  };
  return rows;
}

inline const std::vector<Accessor<double>>& real_accessors() {
  static const std::vector<Accessor<double>> rows = {
      {"GetSkinRatio", "[Summary]", "SkinRatio", getter(&Object::GetSkinRatio),
       setter(&Object::SetSkinRatio)},
      {"GetFillTime", "[Flow-2]", "FillTime", getter(&Object::GetFillTime),
       staged(&Object::SetFillTime)},
      {"GetMeltTemperature", "[Flow-2]", "MeltTemp", getter(&Object::GetMeltTemperature),
       staged(&Object::SetMeltTemperature)},
      {"GetMoldTemperature", "[Flow-2]", "MoldTemp", getter(&Object::GetMoldTemperature),
       staged(&Object::SetMoldTemperature)},
      {"GetInjectPressure", "[Flow-2]", "InjectPres", getter(&Object::GetInjectPressure),
       staged(&Object::SetInjectPressure)},
      {"GetPreFill", "[Flow-2]", "PreFill", getter(&Object::GetPreFill),
       staged(&Object::SetPreFill)},
      {"GetInjectVolume", "[Flow-2]", "InjVol", getter(&Object::GetInjectVolume),
       staged(&Object::SetInjectVolume)},
      {"GetTransferTime", "[Flow-2]", "TransTime", getter(&Object::GetTransferTime),
       staged(&Object::SetTransferTime)},
      {"GetResinTemperature", "[Flow-2]", "ResnTemp", getter(&Object::GetResinTemperature),
       staged(&Object::SetResinTemperature)},
      {"GetTransferPressure", "[Flow-2]", "TransPres", getter(&Object::GetTransferPressure),
       staged(&Object::SetTransferPressure)},
      {"GetInitialConversion", "[Flow-2]", "InitConv", getter(&Object::GetInitialConversion),
       staged(&Object::SetInitialConversion)},
      {"GetEndConversion", "[Flow-2]", "EndConv", getter(&Object::GetEndConversion),
       staged(&Object::SetEndConversion)},
      {"GetPackTime", "[Pack-2]", "PackTime", getter(&Object::GetPackTime),
       staged(&Object::SetPackTime)},
      {"GetPackPressure", "[Pack-2]", "PackPres", getter(&Object::GetPackPressure),
       staged(&Object::SetPackPressure)},
      {"GetPackSwitch", "[Pack-2]", "PackSwch", getter(&Object::GetPackSwitch),
       staged(&Object::SetPackSwitch)},
      {"GetCureTime", "[Cure-2]", "CureTime", getter(&Object::GetCureTime),
       staged(&Object::SetCureTime)},
      {"GetCurePressure", "[Cure-2]", "CurePres", getter(&Object::GetCurePressure),
       staged(&Object::SetCurePressure)},
      {"GetCureSwitch", "[Cure-2]", "CureSwch", getter(&Object::GetCureSwitch),
       staged(&Object::SetCureSwitch)},
      {"GetVPSwitchPosition", "[RamPosition]", "VPswitchRam", getter(&Object::GetVPSwitchPosition),
       setter(&Object::SetVPSwitchPosition)},
      {"GetFlowCTLMoldTemperature", "[FlowCTL]", "MoldTemperature",
       getter(&Object::GetFlowCTLMoldTemperature), nullptr},
      {"GetFlowCTLMeltTemperature", "[FlowCTL]", "MeltTemperature",
       getter(&Object::GetFlowCTLMeltTemperature), nullptr},
      {"GetFlowCTLInjectionTime", "[FlowCTL]", "InjectionTime",
       getter(&Object::GetFlowCTLInjectionTime), nullptr},
      {"GetFlowCTLVolumeFilled", "[FlowCTL]", "VolumeFilled",
       getter(&Object::GetFlowCTLVolumeFilled), nullptr},
      {"GetFlowCTLRamPosition", "[FlowCTL]", "RamPosition", getter(&Object::GetFlowCTLRamPosition),
       nullptr},
      {"GetFlowCTLInjectionPressure", "[FlowCTL]", "InjectionPressure",
       getter(&Object::GetFlowCTLInjectionPressure), nullptr},
      {"GetOutputTimeFill", "[Output]", "TimeFill", getter(&Object::GetOutputTimeFill),
       setter(&Object::SetOutputTimeFill)},
      {"GetOutputTimePack", "[Output]", "TimePack", getter(&Object::GetOutputTimePack),
       setter(&Object::SetOutputTimePack)},
      {"GetCavityVolume", "[Project]", "CavVol", getter(&Object::GetCavityVolume),
       setter(&Object::SetCavityVolume)},
      {"GetCushionVolume", "[Project]", "CushionVol", getter(&Object::GetCushionVolume),
       setter(&Object::SetCushionVolume)},
      {"GetICInitConversion", "[ICPackage]", "InitConversion", getter(&Object::GetICInitConversion),
       nullptr},
      {"GetICPelletDiameter", "[ICPackage]", "PelletDiameter", getter(&Object::GetICPelletDiameter),
       nullptr},
      {"GetICPelletHeight", "[ICPackage]", "PelletHeight", getter(&Object::GetICPelletHeight),
       nullptr},
      {"GetICPreHeatingTime", "[ICPackage]", "PreHeatingTime", getter(&Object::GetICPreHeatingTime),
       nullptr},
      {"GetMoldClampingForce", "[AdvancedSetting]", "ClampForce",
       getter(&Object::GetMoldClampingForce), setter(&Object::SetMoldClampingForce)},
      {"GetInitPelletConv", "[TransientInletConv]", "InitPelletConv",
       getter(&Object::GetInitPelletConv), setter(&Object::SetInitPelletConv)},
      {"GetPelletDiameter", "[TransientInletConv]", "PelletDiameter",
       getter(&Object::GetPelletDiameter), setter(&Object::SetPelletDiameter)},
      {"GetPelletHeight", "[TransientInletConv]", "PelletHeight", getter(&Object::GetPelletHeight),
       setter(&Object::SetPelletHeight)},
      {"GetPreHeatTime", "[TransientInletConv]", "PreHeatTime", getter(&Object::GetPreHeatTime),
       setter(&Object::SetPreHeatTime)},
      {"GetGasTime", "[GasF-2]", "GasTime", getter(&Object::GetGasTime),
       numbered(&Object::SetGasTime)},
      {"GetGasPressure", "[GasF-2]", "GasPres", getter(&Object::GetGasPressure),
       numbered(&Object::SetGasPressure)},
      {"GetGasSwitch", "[GasF-2]", "GasSwch", getter(&Object::GetGasSwitch),
       numbered(&Object::SetGasSwitch)},
      {"GetGasDelayTime", "[GasF-2]", "DelayTime", getter(&Object::GetGasDelayTime),
       numbered(&Object::SetGasDelayTime)},
      {"GetValveGateStartTime", "[GateCTL]", "ST-2", getter(&Object::GetValveGateStartTime),
       numbered(&Object::SetValveGateStartTime)},
      {"GetValveGateEndTime", "[GateCTL]", "ET-2", getter(&Object::GetValveGateEndTime),
       numbered(&Object::SetValveGateEndTime)},
      {"GetCoolTime", "[Cool]", "CoolTime", getter(&Object::GetCoolTime),
       setter(&Object::SetCoolTime)},
      {"GetOpenTime", "[Cool]", "OpenTime", getter(&Object::GetOpenTime),
       setter(&Object::SetOpenTime)},
      {"GetEjectTemperature", "[Cool]", "EjectTemp", getter(&Object::GetEjectTemperature),
       setter(&Object::SetEjectTemperature)},
      {"GetAirTemperature", "[Cool]", "AirTemp", getter(&Object::GetAirTemperature),
       setter(&Object::SetAirTemperature)},
      {"GetInitMoldTemperature", "[Cool]", "InitialMoldbaseTemperature",
       getter(&Object::GetInitMoldTemperature), nullptr},
      {"GetCoolantTemperature", "[Cool]", "CoolantTemp", getter(&Object::GetCoolantTemperature),
       setter(&Object::SetCoolantTemperature)},
      {"GetCoolantFlowRate", "[Cool]", "CoolantFR", getter(&Object::GetCoolantFlowRate),
       setter(&Object::SetCoolantFlowRate)},
      {"GetCoolCTLTemperature", "[CoolCTL]", "T-2", getter(&Object::GetCoolCTLTemperature),
       numbered(&Object::SetCoolCTLTemperature)},
      {"GetCoolCTLFlowRate", "[CoolCTL]", "F-2", getter(&Object::GetCoolCTLFlowRate),
       numbered(&Object::SetCoolCTLFlowRate)},
      {"GetCoolChannelDiameter", "[CoolChannel-2]", "Diameter",
       getter(&Object::GetCoolChannelDiameter), numbered(&Object::SetCoolChannelDiameter)},
      {"GetMPreheatCoolChannelDiameter", "[MPreheat_CoolChannel-2]", "Diameter",
       getter(&Object::GetMPreheatCoolChannelDiameter),
       numbered(&Object::SetMPreheatCoolChannelDiameter)},
      {"GetMaxMoldPreHeatTime", "[MoldPreheat]", "MaxMoldPreHeatTime",
       getter(&Object::GetMaxMoldPreHeatTime), setter(&Object::SetMaxMoldPreHeatTime)},
      {"GetMoldPreHeatTime", "[MoldPreheat]", "MoldPreHeatTime",
       getter(&Object::GetMoldPreHeatTime), setter(&Object::SetMoldPreHeatTime)},
      {"GetMoldPreHearTemperature", "[MoldPreheat]", "MoldPreHeatTemperature",
       getter(&Object::GetMoldPreHearTemperature), setter(&Object::SetMoldPreHeatTemperature)},
      {"GetMachineScrewDiameter", "[Machine]", "Diameter", getter(&Object::GetMachineScrewDiameter),
       setter(&Object::SetMachineScrewDiameter)},
      {"GetMachineMaxRamPosition", "[Machine]", "MaxRamPos",
       getter(&Object::GetMachineMaxRamPosition), setter(&Object::SetMachineMaxRamPosition)},
      {"GetMachineShotVolume", "[Machine]", "ShotVolume", getter(&Object::GetMachineShotVolume),
       nullptr},
      {"GetMachineShotWeight", "[Machine]", "Weight", getter(&Object::GetMachineShotWeight),
       setter(&Object::SetMachineShotWeight)},
      {"GetMachineMaxPressure", "[Machine]", "MaxMachinePres",
       getter(&Object::GetMachineMaxPressure), setter(&Object::SetMachineMaxPressure)},
      {"GetMachineHoldingPressure", "[Machine]", "HoldingPressure",
       getter(&Object::GetMachineHoldingPressure), nullptr},
      {"GetMachineInjectionSpeed", "[Machine]", "InjectionSpeed",
       getter(&Object::GetMachineInjectionSpeed), nullptr},
      {"GetMachineMaxFlowRate", "[Machine]", "FR", getter(&Object::GetMachineMaxFlowRate),
       setter(&Object::SetMachineMaxFlowRate)},
      {"GetMachinePlasticationRate", "[Machine]", "PlasticationRate",
       getter(&Object::GetMachinePlasticationRate), nullptr},
      {"GetMachineScrewSpeed", "[Machine]", "ScrewSpeed", getter(&Object::GetMachineScrewSpeed),
       nullptr},
      {"GetMachineNozzleContactForce", "[Machine]", "NozzleContactForce",
       getter(&Object::GetMachineNozzleContactForce), nullptr},
      {"GetMachineNozzleStroke", "[Machine]", "NozzleStroke",
       getter(&Object::GetMachineNozzleStroke), nullptr},
      {"GetMachineHeaterWattage", "[Machine]", "HeaterWattage",
       getter(&Object::GetMachineHeaterWattage), nullptr},
      {"GetMachineClampingForce", "[Machine]", "Size", getter(&Object::GetMachineClampingForce),
       setter(&Object::SetMachineClampingForce)},
      {"GetMachineOpeningStroke", "[Machine]", "OpeningStroke",
       getter(&Object::GetMachineOpeningStroke), nullptr},
      {"GetMachineMaxDaylight", "[Machine]", "MaxDaylight", getter(&Object::GetMachineMaxDaylight),
       nullptr},
      {"GetMachineMoldHeight", "[Machine]", "MoldHeight", getter(&Object::GetMachineMoldHeight),
       nullptr},
      {"GetMachineEjectorForce", "[Machine]", "EjectorForce",
       getter(&Object::GetMachineEjectorForce), nullptr},
      {"GetMachineEjectorStroke", "[Machine]", "EjectorStroke",
       getter(&Object::GetMachineEjectorStroke), nullptr},
      {"GetMachineWeight", "[Machine]", "MachineWeight", getter(&Object::GetMachineWeight),
       nullptr},
  };
  return rows;
}

inline const std::vector<Accessor<double, double>>& point_accessors() {
  static const std::vector<Accessor<double, double>> rows = {
      {"GetFRProfile", "[Flow-2]", "FR-3", point_getter(&Object::GetFRProfile),
       point_setter(&Object::SetFRProfile)},
      {"GetUserFRProfile", "[Flow-2]", "UserFR-3", point_getter(&Object::GetUserFRProfile),
       nullptr},
      {"GetIPProfile", "[Flow-2]", "IP-3", point_getter(&Object::GetIPProfile),
       point_setter(&Object::SetIPProfile)},
      {"GetUserIPProfile", "[Flow-2]", "UserIP-3", point_getter(&Object::GetUserIPProfile),
       nullptr},
      {"GetTPProfile", "[Flow-2]", "TP-3", point_getter(&Object::GetTPProfile),
       point_setter(&Object::SetTPProfile)},
      {"GetUserTPProfile", "[Flow-2]", "UserTP-3", point_getter(&Object::GetUserTPProfile),
       nullptr},
      {"GetPPProfile", "[Pack-2]", "PP-3", point_getter(&Object::GetPPProfile),
       point_setter(&Object::SetPPProfile)},
      {"GetUserPPProfile", "[Pack-2]", "UserPP-3", point_getter(&Object::GetUserPPProfile),
       nullptr},
      {"GetCPProfile", "[Cure-2]", "CP-3", point_getter(&Object::GetCPProfile),
       point_setter(&Object::SetCPProfile)},
      {"GetUserCPProfile", "[Cure-2]", "UserCP-3", point_getter(&Object::GetUserCPProfile),
       nullptr},
      {"GetRamFRProfile", "[RamPosition]", "RP_FR-3", point_getter(&Object::GetRamFRProfile),
       point_setter(&Object::SetRamFRProfile)},
      {"GetRamIPProfile", "[RamPosition]", "RP_IP-3", point_getter(&Object::GetRamIPProfile),
       point_setter(&Object::SetRamIPProfile)},
      {"GetQSFRProfile", "[QuickSetting]", "Q_Setting_3", point_getter(&Object::GetQSFRProfile),
       point_setter(&Object::SetQSFRProfile)},
      {"GetQSIPProfile", "[QuickSetting]", "Pi_Setting_3", point_getter(&Object::GetQSIPProfile),
       point_setter(&Object::SetQSIPProfile)},
      {"GetQSPPProfile", "[QuickSetting]", "Pp_Setting_3", point_getter(&Object::GetQSPPProfile),
       point_setter(&Object::SetQSPPProfile)},
      {"GetGasFRProfile", "[GasF-3]", "GR-3", point_getter(&Object::GetGasFRProfile),
       point_setter(&Object::SetGasFRProfile)},
      {"GetUserGasFRProfile", "[GasF-2]", "UserGR-3", point_getter(&Object::GetUserGasFRProfile),
       nullptr},
      {"GetGasGPProfile", "[GasF-3]", "GP-3", point_getter(&Object::GetGasGPProfile),
       point_setter(&Object::SetGasGPProfile)},
      {"GetUserGasGPProfile", "[GasF-2]", "UserGP-3", point_getter(&Object::GetUserGasGPProfile),
       nullptr},
  };
  return rows;
}

}  // namespace qelpro_test
