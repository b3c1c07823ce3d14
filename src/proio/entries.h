#pragma once

#include "proio/entry.h"

/// Every entry that the object reads or writes, by section. The accessors name the rows and spell
/// no key again.
namespace qel::proio {

/// [FileHeader]
namespace file_header {

inline constexpr char kSection[] = "[FileHeader]";

inline constexpr Entry kName{kSection, "Name"};
inline constexpr Entry kDate{kSection, "Date"};
inline constexpr Entry kType{kSection, "Type"};
inline constexpr Entry kCreateBy{kSection, "CreateBy"};
inline constexpr Entry kRemark{kSection, "Remark"};

}  // namespace file_header

/// [CaeHeader]
namespace cae_header {

inline constexpr char kSection[] = "[CaeHeader]";

inline constexpr Entry kVersion{kSection, "Version"};
inline constexpr Entry kRelease{kSection, "Release"};
inline constexpr Entry kProject{kSection, "Project"};
inline constexpr Entry kEngineer{kSection, "Engineer"};
inline constexpr Entry kParent{kSection, "Parent"};
inline constexpr Entry kType{kSection, "Type"};
inline constexpr Entry kFileVersion{kSection, "FileVersion"};
inline constexpr Entry kFileType{kSection, "FileType"};
inline constexpr Entry kSmartSetting{kSection, "SmartSetting"};

}  // namespace cae_header

/// [Summary]
namespace summary {

inline constexpr char kSection[] = "[Summary]";

inline constexpr Entry kMeshLayer{kSection, "TotalNdivz"};
inline constexpr Entry kMeltEntranceNo{kSection, "TotalNodeEM"};
inline constexpr Entry kCoolantNo{kSection, "TotalNodeEC"};
inline constexpr Entry kValveGateNo{kSection, "TotalGateCTL"};
inline constexpr Entry kVacuumIndex{kSection, "VacuumIndex"};
inline constexpr Entry kSkinRatio{kSection, "SkinRatio"};
inline constexpr Entry kMultiTimeStep{kSection, "NoOutput"};
inline constexpr Entry kPpackAsPeof{kSection, "PEOFasPPack"};
inline constexpr Entry kMoldbaseNo{kSection, "TotalNodeMB"};
inline constexpr Entry kBoundaryConditionNo{kSection, "TotalNodeBC"};
inline constexpr Entry kGasEntranceNo{kSection, "TotalNodeEG"};
inline constexpr Entry kMoldMetalMaterialNo{kSection, "TotalNodeMMM"};
inline constexpr Entry kSymVolRatio{kSection, "SymVolRatio"};
inline constexpr Entry kHeatingRodNo{kSection, "TotalNodeHR"};
inline constexpr Entry kIsTransientInletConv{kSection, "IsTransientInletConv"};

}  // namespace summary

/// [Unit]
namespace unit {

inline constexpr char kSection[] = "[Unit]";

inline constexpr Entry kTime{kSection, "Time"};
inline constexpr Entry kTemp{kSection, "Temp"};
inline constexpr Entry kPres{kSection, "Pres"};
inline constexpr Entry kFR{kSection, "FR"};
inline constexpr Entry kIP{kSection, "IP"};
inline constexpr Entry kPP{kSection, "PP"};
inline constexpr Entry kVolum{kSection, "Volum"};

}  // namespace unit

/// [Flow-%d]
namespace flow {

inline constexpr auto kSection = Manipulator::BLOCK_FLOW;

inline constexpr Entry kFillTime{kSection, "FillTime"};
inline constexpr Entry kMeltTemperature{kSection, "MeltTemp"};
inline constexpr Entry kMoldTemperature{kSection, "MoldTemp"};
inline constexpr Entry kInjectPressure{kSection, "InjectPres"};
inline constexpr Entry kPreFill{kSection, "PreFill"};
inline constexpr Entry kInjectVolume{kSection, "InjVol"};
inline constexpr Entry kTransferTime{kSection, "TransTime"};
inline constexpr Entry kResinTemperature{kSection, "ResnTemp"};
inline constexpr Entry kTransferPressure{kSection, "TransPres"};
inline constexpr Entry kInitialConversion{kSection, "InitConv"};
inline constexpr Entry kEndConversion{kSection, "EndConv"};
inline constexpr Entry kFRDisplayType{kSection, "FRDisplayType"};
inline constexpr Entry kIPDisplayType{kSection, "IPDisplayType"};
inline constexpr Entry kTPDisplayType{kSection, "TPDisplayType"};
inline constexpr Entry kFRCount{kSection, "FRSet"};
inline constexpr Entry kFRPoint{kSection, Manipulator::KEY_FR};
inline constexpr Entry kUserFRCount{kSection, "UserFRSet"};
inline constexpr Entry kUserFRPoint{kSection, Manipulator::KEY_USER_FR};
inline constexpr Entry kIPCount{kSection, "IPSet"};
inline constexpr Entry kIPPoint{kSection, Manipulator::KEY_IP};
inline constexpr Entry kUserIPCount{kSection, "UserIPSet"};
inline constexpr Entry kUserIPPoint{kSection, Manipulator::KEY_USER_IP};
inline constexpr Entry kTPCount{kSection, "TPSet"};
inline constexpr Entry kTPPoint{kSection, Manipulator::KEY_TP};
inline constexpr Entry kUserTPCount{kSection, "UserTPSet"};
inline constexpr Entry kUserTPPoint{kSection, Manipulator::KEY_USER_TP};

}  // namespace flow

/// [Pack-%d]
namespace pack {

inline constexpr auto kSection = Manipulator::BLOCK_PACK;

inline constexpr Entry kPackTime{kSection, "PackTime"};
inline constexpr Entry kPackPressure{kSection, "PackPres"};
inline constexpr Entry kPackSwitch{kSection, "PackSwch"};
inline constexpr Entry kPPDisplayType{kSection, "PPDisplayType"};
inline constexpr Entry kPPCount{kSection, "PPSet"};
inline constexpr Entry kPPPoint{kSection, Manipulator::KEY_PP};
inline constexpr Entry kUserPPCount{kSection, "UserPPSet"};
inline constexpr Entry kUserPPPoint{kSection, Manipulator::KEY_USER_PP};

}  // namespace pack

/// [Cure-%d]
namespace cure {

inline constexpr auto kSection = Manipulator::BLOCK_CURE;

inline constexpr Entry kCureTime{kSection, "CureTime"};
inline constexpr Entry kCurePressure{kSection, "CurePres"};
inline constexpr Entry kCureSwitch{kSection, "CureSwch"};
inline constexpr Entry kCPDisplayType{kSection, "CPDisplayType"};
inline constexpr Entry kCPCount{kSection, "CPSet"};
inline constexpr Entry kCPPoint{kSection, Manipulator::KEY_CP};
inline constexpr Entry kUserCPCount{kSection, "UserCPSet"};
inline constexpr Entry kUserCPPoint{kSection, Manipulator::KEY_USER_CP};

}  // namespace cure

/// [RamPosition]
namespace ram_position {

inline constexpr char kSection[] = "[RamPosition]";

inline constexpr Entry kScrewDirection{kSection, "RamDir"};
inline constexpr Entry kVPSwitch{kSection, "IsVPswitch"};
inline constexpr Entry kVPSwitchPosition{kSection, "VPswitchRam"};
inline constexpr Entry kRamFRCount{kSection, "RP_FRSet"};
inline constexpr Entry kRamFRPoint{kSection, Manipulator::KEY_RP_FR};
inline constexpr Entry kRamIPCount{kSection, "RP_IPSet"};
inline constexpr Entry kRamIPPoint{kSection, Manipulator::KEY_RP_IP};

}  // namespace ram_position

/// [QuickSetting]
namespace quick_setting {

inline constexpr char kSection[] = "[QuickSetting]";

inline constexpr Entry kScrewDirection{kSection, "ScrewDirection"};
inline constexpr Entry kProfileType{kSection, "ProfileType"};
inline constexpr Entry kIsSameSetting{kSection, "IsSameSetting"};
inline constexpr Entry kFRSettingType{kSection, "Q_SettingType"};
inline constexpr Entry kIPSettingType{kSection, "Pi_SettingType"};
inline constexpr Entry kPPSettingType{kSection, "Pp_SettingType"};
inline constexpr Entry kQSFRCount{kSection, "Q_Section"};
inline constexpr Entry kQSFRPoint{kSection, Manipulator::KEY_Q_SETTING};
inline constexpr Entry kQSIPCount{kSection, "Pi_Section"};
inline constexpr Entry kQSIPPoint{kSection, Manipulator::KEY_PI_SETTING};
inline constexpr Entry kQSPPCount{kSection, "Pp_Section"};
inline constexpr Entry kQSPPPoint{kSection, Manipulator::KEY_PP_SETTING};

}  // namespace quick_setting

/// [FlowCTL]
namespace flow_ctl {

inline constexpr char kSection[] = "[FlowCTL]";

inline constexpr Entry kFlowCtrl{kSection, "FlowCtrl"};
inline constexpr Entry kVPSwitchCtrl{kSection, "VPSwitchCtrl"};
inline constexpr Entry kPackingCtrl{kSection, "PackingCtrl"};
inline constexpr Entry kMoldTemperature{kSection, "MoldTemperature"};
inline constexpr Entry kMeltTemperature{kSection, "MeltTemperature"};
inline constexpr Entry kInjectionTime{kSection, "InjectionTime"};
inline constexpr Entry kVolumeFilled{kSection, "VolumeFilled"};
inline constexpr Entry kRamPosition{kSection, "RamPosition"};
inline constexpr Entry kInjectionPressure{kSection, "InjectionPressure"};

}  // namespace flow_ctl

/// [Output]
namespace output {

inline constexpr char kSection[] = "[Output]";

inline constexpr Entry kTimeStep{kSection, "TimeStep"};
inline constexpr Entry kTimeFill{kSection, "TimeFill"};
inline constexpr Entry kTimePack{kSection, "TimePack"};

}  // namespace output

/// [Project]
namespace project {

inline constexpr char kSection[] = "[Project]";

inline constexpr Entry kMesh{kSection, "Mesh"};
inline constexpr Entry kMaterial{kSection, "Material"};
inline constexpr Entry kCavityVolume{kSection, "CavVol"};
inline constexpr Entry kCushionVolume{kSection, "CushionVol"};

}  // namespace project

/// [AdvancedSetting]
namespace advanced_setting {

inline constexpr char kSection[] = "[AdvancedSetting]";

inline constexpr Entry kMoldClampingForce{kSection, "ClampForce"};
inline constexpr Entry kMoldOpenDirection{kSection, "OpenDirection"};

}  // namespace advanced_setting

/// [TransientInletConv]
namespace transient_inlet_conv {

inline constexpr char kSection[] = "[TransientInletConv]";

inline constexpr Entry kInitPelletConv{kSection, "InitPelletConv"};
inline constexpr Entry kPelletDiameter{kSection, "PelletDiameter"};
inline constexpr Entry kPelletHeight{kSection, "PelletHeight"};
inline constexpr Entry kPreHeatTime{kSection, "PreHeatTime"};

}  // namespace transient_inlet_conv

/// [ICPackage]
namespace ic_package {

inline constexpr char kSection[] = "[ICPackage]";

inline constexpr Entry kInitConversionType{kSection, "InitConversionType"};
inline constexpr Entry kInitConversion{kSection, "InitConversion"};
inline constexpr Entry kPelletDiameter{kSection, "PelletDiameter"};
inline constexpr Entry kPelletHeight{kSection, "PelletHeight"};
inline constexpr Entry kPreHeatingTime{kSection, "PreHeatingTime"};

}  // namespace ic_package

/// [MoldThermalBoundaryType]
namespace mold_thermal_boundary {

inline constexpr char kSection[] = "[MoldThermalBoundaryType]";

inline constexpr Entry kType{kSection, "Type"};
inline constexpr Entry kFlowHeatTransferCoefficient{kSection, "Flow"};
inline constexpr Entry kPackHeatTransferCoefficient{kSection, "Pack"};

}  // namespace mold_thermal_boundary

/// [GasF-%d]
namespace gas {

inline constexpr auto kSection = Manipulator::BLOCK_GASF;

inline constexpr Entry kGasTime{kSection, "GasTime"};
inline constexpr Entry kGasPressure{kSection, "GasPres"};
inline constexpr Entry kGasSwitch{kSection, "GasSwch"};
inline constexpr Entry kGasDelayTime{kSection, "DelayTime"};
inline constexpr Entry kGRDisplayType{kSection, "GRDisplayType"};
inline constexpr Entry kGRProfileType{kSection, "GRProfileType"};
inline constexpr Entry kGPDisplayType{kSection, "GPDisplayType"};
inline constexpr Entry kGPProfileType{kSection, "GPProfileType"};
inline constexpr Entry kFRCount{kSection, "GRSet"};
inline constexpr Entry kFRPoint{kSection, Manipulator::KEY_GR};
inline constexpr Entry kUserFRCount{kSection, "UserGRSet"};
inline constexpr Entry kUserFRPoint{kSection, Manipulator::KEY_USER_GR};
inline constexpr Entry kGPCount{kSection, "GPSet"};
inline constexpr Entry kGPPoint{kSection, Manipulator::KEY_GP};
inline constexpr Entry kUserGPCount{kSection, "UserGPSet"};
inline constexpr Entry kUserGPPoint{kSection, Manipulator::KEY_USER_GP};

}  // namespace gas

/// [GateCTL]
namespace gate_ctl {

inline constexpr char kSection[] = "[GateCTL]";

inline constexpr Entry kStartTime{kSection, Manipulator::KEY_ST};
inline constexpr Entry kEndTime{kSection, Manipulator::KEY_ET};

}  // namespace gate_ctl

/// [GateValve-%d]
namespace gate_valve {

inline constexpr auto kSection = Manipulator::BLOCK_GATE_VALVE;

inline constexpr Entry kControlNo{kSection, "GCSet"};
inline constexpr Entry kControlRow{kSection, Manipulator::KEY_GC};

}  // namespace gate_valve

/// [OFGateValve-%d]
namespace overflow {

inline constexpr auto kSection = Manipulator::BLOCK_OF_GATE_VALVE;

inline constexpr Entry kControlNo{kSection, "GCSet"};
inline constexpr Entry kControlRow{kSection, Manipulator::KEY_GC};

}  // namespace overflow

/// [Cool]
namespace cool {

inline constexpr char kSection[] = "[Cool]";

inline constexpr Entry kCoolTime{kSection, "CoolTime"};
inline constexpr Entry kOpenTime{kSection, "OpenTime"};
inline constexpr Entry kEjectTemperature{kSection, "EjectTemp"};
inline constexpr Entry kAirTemperature{kSection, "AirTemp"};
inline constexpr Entry kInitMoldTemperature{kSection, "InitialMoldbaseTemperature"};
inline constexpr Entry kCoolingType{kSection, "CoolingType"};
inline constexpr Entry kCoolantTemperature{kSection, "CoolantTemp"};
inline constexpr Entry kCoolantFlowRate{kSection, "CoolantFR"};
inline constexpr Entry kAutoSetCoolTime{kSection, "AutoSetCoolTime"};

}  // namespace cool

/// [CoolCTL]
namespace cool_ctl {

inline constexpr char kSection[] = "[CoolCTL]";

inline constexpr Entry kTemperature{kSection, Manipulator::KEY_T};
inline constexpr Entry kFlowRate{kSection, Manipulator::KEY_F};
inline constexpr Entry kSystem{kSection, Manipulator::KEY_M};

}  // namespace cool_ctl

/// [Coolant]
namespace coolant {

inline constexpr char kSection[] = "[Coolant]";

inline constexpr Entry kRow{kSection, Manipulator::KEY_INDEX};

}  // namespace coolant

/// [VarCoolCTL]
namespace var_cool_ctl {

inline constexpr char kSection[] = "[VarCoolCTL]";

inline constexpr Entry kTotalCoolantNo{kSection, "CoolantNo"};
inline constexpr Entry kRow{kSection, Manipulator::KEY_COOLANT};

}  // namespace var_cool_ctl

/// [CoolChannel-%d]
namespace cool_channel {

inline constexpr auto kSection = Manipulator::BLOCK_COOL_CHANNEL;

inline constexpr Entry kDiameter{kSection, "Diameter"};
inline constexpr Entry kGroupID{kSection, "GroupID"};
inline constexpr Entry kTimeSet{kSection, "TimeSet"};
inline constexpr Entry kControlPoint{kSection, Manipulator::KEY_TCP};

}  // namespace cool_channel

/// [MoldPreheat]
namespace mold_preheat {

inline constexpr char kSection[] = "[MoldPreheat]";

inline constexpr Entry kControlType{kSection, "ControlType"};
inline constexpr Entry kMaxTime{kSection, "MaxMoldPreHeatTime"};
inline constexpr Entry kTime{kSection, "MoldPreHeatTime"};
inline constexpr Entry kTemperature{kSection, "MoldPreHeatTemperature"};
inline constexpr Entry kType{kSection, "MoldPreHeatType"};

}  // namespace mold_preheat

/// [MPreheat_CoolChannel-%d]
namespace preheat_channel {

inline constexpr auto kSection = Manipulator::BLOCK_MPREHEAT_COOL_CHANNEL;

inline constexpr Entry kDiameter{kSection, "Diameter"};
inline constexpr Entry kGroupID{kSection, "GroupID"};
inline constexpr Entry kTimeSet{kSection, "TimeSet"};
inline constexpr Entry kControlPoint{kSection, Manipulator::KEY_TCP};

}  // namespace preheat_channel

/// [Machine]
namespace machine {

inline constexpr char kSection[] = "[Machine]";

inline constexpr Entry kMaker{kSection, "Maker"};
inline constexpr Entry kGrade{kSection, "Grade"};
inline constexpr Entry kLastModifiedDate{kSection, "LastModifiedDate"};
inline constexpr Entry kRemark{kSection, "Remark"};
inline constexpr Entry kScrewDiameter{kSection, "Diameter"};
inline constexpr Entry kMaxRamPosition{kSection, "MaxRamPos"};
inline constexpr Entry kShotVolume{kSection, "ShotVolume"};
inline constexpr Entry kShotWeight{kSection, "Weight"};
inline constexpr Entry kMaxPressure{kSection, "MaxMachinePres"};
inline constexpr Entry kHoldingPressure{kSection, "HoldingPressure"};
inline constexpr Entry kInjectionSpeed{kSection, "InjectionSpeed"};
inline constexpr Entry kMaxFlowRate{kSection, "FR"};
inline constexpr Entry kPlasticationRate{kSection, "PlasticationRate"};
inline constexpr Entry kScrewSpeed{kSection, "ScrewSpeed"};
inline constexpr Entry kNozzleContactForce{kSection, "NozzleContactForce"};
inline constexpr Entry kNozzleStroke{kSection, "NozzleStroke"};
inline constexpr Entry kHeaterWattage{kSection, "HeaterWattage"};
inline constexpr Entry kTemperatureControlZones{kSection, "TemperatureControlZones"};
inline constexpr Entry kClampingForce{kSection, "Size"};
inline constexpr Entry kOpeningStroke{kSection, "OpeningStroke"};
inline constexpr Entry kMaxDaylight{kSection, "MaxDaylight"};
inline constexpr Entry kMoldHeight{kSection, "MoldHeight"};
inline constexpr Entry kTieBarsDistance{kSection, "DistanceBetweenTieBars(HxV)"};
inline constexpr Entry kPlatenSize{kSection, "PlatenSize(HxV)"};
inline constexpr Entry kEjectorPoint{kSection, "EjectorPoint"};
inline constexpr Entry kEjectorForce{kSection, "EjectorForce"};
inline constexpr Entry kEjectorStroke{kSection, "EjectorStroke"};
inline constexpr Entry kMachineWeight{kSection, "MachineWeight"};
inline constexpr Entry kDimension{kSection, "MachineDimension(LxWxH)"};
inline constexpr Entry kBarrelCompressionCtrl{kSection, "BarrelCompressionCtrl"};

}  // namespace machine

/// [Moldbase]
namespace moldbase {

inline constexpr char kSection[] = "[Moldbase]";

inline constexpr Entry kRow{kSection, Manipulator::KEY_INDEX};

}  // namespace moldbase

/// [MoldMetalMaterial]
namespace mold_metal {

inline constexpr char kSection[] = "[MoldMetalMaterial]";

inline constexpr Entry kRow{kSection, Manipulator::KEY_INDEX};

}  // namespace mold_metal

/// [PartingSurface]
namespace parting_surface {

inline constexpr char kSection[] = "[PartingSurface]";

inline constexpr Entry kCavityPart{kSection, "CavityPart"};
inline constexpr Entry kCavityMoldBase{kSection, "CavityMoldBase"};
inline constexpr Entry kCorePart{kSection, "CorePart"};
inline constexpr Entry kCoreMoldBase{kSection, "CoreMoldBase"};

}  // namespace parting_surface

/// [EjectCriteria]
namespace eject_criteria {

inline constexpr char kSection[] = "[EjectCriteria]";

inline constexpr Entry kTotalSensorNode{kSection, "TotalSensorNode"};
inline constexpr Entry kTotalCriteriaNode{kSection, "TotalCriteriaNode"};
inline constexpr Entry kSensorNode{kSection, Manipulator::KEY_SENSOR_NODE};
inline constexpr Entry kCriteriaNode{kSection, Manipulator::KEY_CRITERIA_NODE};

}  // namespace eject_criteria

/// [PartInsertInitialTemperature]
namespace part_insert {

inline constexpr char kSection[] = "[PartInsertInitialTemperature]";

inline constexpr Entry kTotalPartInsert{kSection, "TotalPartInsert"};
inline constexpr Entry kInsert{kSection, Manipulator::KEY_PART_INSERT};

}  // namespace part_insert

/// Lines addressed by position. A header of several words is found by its first.
namespace boundary_condition {

inline constexpr char kSection[] = "[SURFACE";

}  // namespace boundary_condition

}  // namespace qel::proio
