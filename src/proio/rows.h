#pragma once

#include "blocks/advanced_setting.h"
#include "blocks/cae_header.h"
#include "blocks/cool.h"
#include "blocks/cool_channel_x.h"
#include "blocks/cool_ctl.h"
#include "blocks/coolant.h"
#include "blocks/cure_x.h"
#include "blocks/eject_criteria.h"
#include "blocks/file_header.h"
#include "blocks/flow_ctl.h"
#include "blocks/flow_x.h"
#include "blocks/gas_f_x.h"
#include "blocks/gate_ctl.h"
#include "blocks/gate_valve_x.h"
#include "blocks/ic_package.h"
#include "blocks/machine.h"
#include "blocks/mold_metal_material.h"
#include "blocks/mold_preheat.h"
#include "blocks/mold_preheat_cool_channel_x.h"
#include "blocks/mold_temperature_bc_x.h"
#include "blocks/mold_thermal_boundary_type.h"
#include "blocks/moldbase.h"
#include "blocks/output.h"
#include "blocks/overflow.h"
#include "blocks/pack_x.h"
#include "blocks/part_insert_initial_temperature.h"
#include "blocks/parting_surface.h"
#include "blocks/project.h"
#include "blocks/quick_setting.h"
#include "blocks/ram_position.h"
#include "blocks/summary.h"
#include "blocks/transient_inlet_conv.h"
#include "blocks/unit.h"
#include "blocks/var_cool_ctl.h"
#include "proio/row.h"

/// Every entry that the object reads or writes, by section: names for rows of the catalogue. The
/// accessors spell no key.
namespace qel::proio {

/// [FileHeader]
namespace file_header {

namespace rows = qel::file_header;

inline constexpr Row kName{rows::kSection, key_of(rows::kKeys, "Name")};
inline constexpr Row kDate{rows::kSection, key_of(rows::kKeys, "Date")};
inline constexpr Row kType{rows::kSection, key_of(rows::kKeys, "Type")};
inline constexpr Row kCreateBy{rows::kSection, key_of(rows::kKeys, "CreateBy")};
inline constexpr Row kRemark{rows::kSection, key_of(rows::kKeys, "Remark")};

}  // namespace file_header

/// [CaeHeader]
namespace cae_header {

namespace rows = qel::cae_header;

inline constexpr Row kVersion{rows::kSection, key_of(rows::kKeys, "Version")};
inline constexpr Row kRelease{rows::kSection, key_of(rows::kKeys, "Release")};
inline constexpr Row kProject{rows::kSection, key_of(rows::kKeys, "Project")};
inline constexpr Row kEngineer{rows::kSection, key_of(rows::kKeys, "Engineer")};
inline constexpr Row kParent{rows::kSection, key_of(rows::kKeys, "Parent")};
inline constexpr Row kType{rows::kSection, key_of(rows::kKeys, "Type")};
inline constexpr Row kFileVersion{rows::kSection, key_of(rows::kKeys, "FileVersion")};
inline constexpr Row kFileType{rows::kSection, key_of(rows::kKeys, "FileType")};
inline constexpr Row kSmartSetting{rows::kSection, key_of(rows::kKeys, "SmartSetting")};

}  // namespace cae_header

/// [Summary]
namespace summary {

namespace rows = qel::summary;

inline constexpr Row kMeshLayer{rows::kSection, key_of(rows::kKeys, "TotalNdivz")};
inline constexpr Row kMeltEntranceNo{rows::kSection, key_of(rows::kKeys, "TotalNodeEM")};
inline constexpr Row kCoolantNo{rows::kSection, key_of(rows::kKeys, "TotalNodeEC")};
inline constexpr Row kValveGateNo{rows::kSection, key_of(rows::kKeys, "TotalGateCTL")};
inline constexpr Row kVacuumIndex{rows::kSection, key_of(rows::kKeys, "VacuumIndex")};
inline constexpr Row kSkinRatio{rows::kSection, key_of(rows::kKeys, "SkinRatio")};
inline constexpr Row kMultiTimeStep{rows::kSection, key_of(rows::kKeys, "NoOutput")};
inline constexpr Row kPpackAsPeof{rows::kSection, key_of(rows::kKeys, "PEOFasPPack")};
inline constexpr Row kMoldbaseNo{rows::kSection, key_of(rows::kKeys, "TotalNodeMB")};
inline constexpr Row kBoundaryConditionNo{rows::kSection, key_of(rows::kKeys, "TotalNodeBC")};
inline constexpr Row kGasEntranceNo{rows::kSection, key_of(rows::kKeys, "TotalNodeEG")};
inline constexpr Row kMoldMetalMaterialNo{rows::kSection, key_of(rows::kKeys, "TotalNodeMMM")};
inline constexpr Row kSymVolRatio{rows::kSection, key_of(rows::kKeys, "SymVolRatio")};
inline constexpr Row kHeatingRodNo{rows::kSection, key_of(rows::kKeys, "TotalNodeHR")};
inline constexpr Row kIsTransientInletConv{rows::kSection,
                                           key_of(rows::kKeys, "IsTransientInletConv")};

}  // namespace summary

/// [Unit]
namespace unit {

namespace rows = qel::unit;

inline constexpr Row kTime{rows::kSection, key_of(rows::kKeys, "Time")};
inline constexpr Row kTemp{rows::kSection, key_of(rows::kKeys, "Temp")};
inline constexpr Row kPres{rows::kSection, key_of(rows::kKeys, "Pres")};
inline constexpr Row kFR{rows::kSection, key_of(rows::kKeys, "FR")};
inline constexpr Row kIP{rows::kSection, key_of(rows::kKeys, "IP")};
inline constexpr Row kPP{rows::kSection, key_of(rows::kKeys, "PP")};
inline constexpr Row kVolum{rows::kSection, key_of(rows::kKeys, "Volum")};

}  // namespace unit

/// [Flow-%d]
namespace flow {

namespace rows = qel::flow_x;
inline constexpr auto kSection = Manipulator::BLOCK_FLOW;

inline constexpr Row kFillTime{kSection, key_of(rows::kKeys, "FillTime")};
inline constexpr Row kMeltTemperature{kSection, key_of(rows::kKeys, "MeltTemp")};
inline constexpr Row kMoldTemperature{kSection, key_of(rows::kKeys, "MoldTemp")};
inline constexpr Row kInjectPressure{kSection, key_of(rows::kKeys, "InjectPres")};
inline constexpr Row kPreFill{kSection, key_of(rows::kKeys, "PreFill")};
inline constexpr Row kInjectVolume{kSection, key_of(rows::kKeys, "InjVol")};
inline constexpr Row kTransferTime{kSection, key_of(rows::kKeys, "TransTime")};
inline constexpr Row kResinTemperature{kSection, key_of(rows::kKeys, "ResnTemp")};
inline constexpr Row kTransferPressure{kSection, key_of(rows::kKeys, "TransPres")};
inline constexpr Row kInitialConversion{kSection, key_of(rows::kKeys, "InitConv")};
inline constexpr Row kEndConversion{kSection, key_of(rows::kKeys, "EndConv")};
inline constexpr Row kFRDisplayType{kSection, key_of(rows::kKeys, "FRDisplayType")};
inline constexpr Row kIPDisplayType{kSection, key_of(rows::kKeys, "IPDisplayType")};
inline constexpr Row kTPDisplayType{kSection, key_of(rows::kKeys, "TPDisplayType")};
inline constexpr Row kFRCount{kSection, key_of(rows::kKeys, "FRSet")};
inline constexpr Row kFRPoint{kSection, Manipulator::KEY_FR};
inline constexpr Row kUserFRCount{kSection, key_of(rows::kKeys, "UserFRSet")};
inline constexpr Row kUserFRPoint{kSection, Manipulator::KEY_USER_FR};
inline constexpr Row kIPCount{kSection, key_of(rows::kKeys, "IPSet")};
inline constexpr Row kIPPoint{kSection, Manipulator::KEY_IP};
inline constexpr Row kUserIPCount{kSection, key_of(rows::kKeys, "UserIPSet")};
inline constexpr Row kUserIPPoint{kSection, Manipulator::KEY_USER_IP};
inline constexpr Row kTPCount{kSection, key_of(rows::kKeys, "TPSet")};
inline constexpr Row kTPPoint{kSection, Manipulator::KEY_TP};
inline constexpr Row kUserTPCount{kSection, key_of(rows::kKeys, "UserTPSet")};
inline constexpr Row kUserTPPoint{kSection, Manipulator::KEY_USER_TP};

}  // namespace flow

/// [Pack-%d]
namespace pack {

namespace rows = qel::pack_x;
inline constexpr auto kSection = Manipulator::BLOCK_PACK;

inline constexpr Row kPackTime{kSection, key_of(rows::kKeys, "PackTime")};
inline constexpr Row kPackPressure{kSection, key_of(rows::kKeys, "PackPres")};
inline constexpr Row kPackSwitch{kSection, key_of(rows::kKeys, "PackSwch")};
inline constexpr Row kPPDisplayType{kSection, key_of(rows::kKeys, "PPDisplayType")};
inline constexpr Row kPPCount{kSection, key_of(rows::kKeys, "PPSet")};
inline constexpr Row kPPPoint{kSection, Manipulator::KEY_PP};
inline constexpr Row kUserPPCount{kSection, key_of(rows::kKeys, "UserPPSet")};
inline constexpr Row kUserPPPoint{kSection, Manipulator::KEY_USER_PP};

}  // namespace pack

/// [Cure-%d]
namespace cure {

namespace rows = qel::cure_x;
inline constexpr auto kSection = Manipulator::BLOCK_CURE;

inline constexpr Row kCureTime{kSection, key_of(rows::kKeys, "CureTime")};
inline constexpr Row kCurePressure{kSection, key_of(rows::kKeys, "CurePres")};
inline constexpr Row kCureSwitch{kSection, key_of(rows::kKeys, "CureSwch")};
inline constexpr Row kCPDisplayType{kSection, key_of(rows::kKeys, "CPDisplayType")};
inline constexpr Row kCPCount{kSection, key_of(rows::kKeys, "CPSet")};
inline constexpr Row kCPPoint{kSection, Manipulator::KEY_CP};
inline constexpr Row kUserCPCount{kSection, key_of(rows::kKeys, "UserCPSet")};
inline constexpr Row kUserCPPoint{kSection, Manipulator::KEY_USER_CP};

}  // namespace cure

/// [RamPosition]
namespace ram_position {

namespace rows = qel::ram_position;

inline constexpr Row kScrewDirection{rows::kSection, key_of(rows::kKeys, "RamDir")};
inline constexpr Row kVPSwitch{rows::kSection, key_of(rows::kKeys, "IsVPswitch")};
inline constexpr Row kVPSwitchPosition{rows::kSection, key_of(rows::kKeys, "VPswitchRam")};
inline constexpr Row kRamFRCount{rows::kSection, key_of(rows::kKeys, "RP_FRSet")};
inline constexpr Row kRamFRPoint{rows::kSection, Manipulator::KEY_RP_FR};
inline constexpr Row kRamIPCount{rows::kSection, key_of(rows::kKeys, "RP_IPSet")};
inline constexpr Row kRamIPPoint{rows::kSection, Manipulator::KEY_RP_IP};

}  // namespace ram_position

/// [QuickSetting]
namespace quick_setting {

namespace rows = qel::quick_setting;

inline constexpr Row kScrewDirection{rows::kSection, key_of(rows::kKeys, "ScrewDirection")};
inline constexpr Row kProfileType{rows::kSection, key_of(rows::kKeys, "ProfileType")};
inline constexpr Row kIsSameSetting{rows::kSection, key_of(rows::kKeys, "IsSameSetting")};
inline constexpr Row kFRSettingType{rows::kSection, key_of(rows::kKeys, "Q_SettingType")};
inline constexpr Row kIPSettingType{rows::kSection, key_of(rows::kKeys, "Pi_SettingType")};
inline constexpr Row kPPSettingType{rows::kSection, key_of(rows::kKeys, "Pp_SettingType")};
inline constexpr Row kQSFRCount{rows::kSection, key_of(rows::kKeys, "Q_Section")};
inline constexpr Row kQSFRPoint{rows::kSection, Manipulator::KEY_Q_SETTING};
inline constexpr Row kQSIPCount{rows::kSection, key_of(rows::kKeys, "Pi_Section")};
inline constexpr Row kQSIPPoint{rows::kSection, Manipulator::KEY_PI_SETTING};
inline constexpr Row kQSPPCount{rows::kSection, key_of(rows::kKeys, "Pp_Section")};
inline constexpr Row kQSPPPoint{rows::kSection, Manipulator::KEY_PP_SETTING};

}  // namespace quick_setting

/// [FlowCTL]
namespace flow_ctl {

namespace rows = qel::flow_ctl;

inline constexpr Row kFlowCtrl{rows::kSection, key_of(rows::kKeys, "FlowCtrl")};
inline constexpr Row kVPSwitchCtrl{rows::kSection, key_of(rows::kKeys, "VPSwitchCtrl")};
inline constexpr Row kPackingCtrl{rows::kSection, key_of(rows::kKeys, "PackingCtrl")};
inline constexpr Row kMoldTemperature{rows::kSection, key_of(rows::kKeys, "MoldTemperature")};
inline constexpr Row kMeltTemperature{rows::kSection, key_of(rows::kKeys, "MeltTemperature")};
inline constexpr Row kInjectionTime{rows::kSection, key_of(rows::kKeys, "InjectionTime")};
inline constexpr Row kVolumeFilled{rows::kSection, key_of(rows::kKeys, "VolumeFilled")};
inline constexpr Row kRamPosition{rows::kSection, key_of(rows::kKeys, "RamPosition")};
inline constexpr Row kInjectionPressure{rows::kSection, key_of(rows::kKeys, "InjectionPressure")};

}  // namespace flow_ctl

/// [Output]
namespace output {

namespace rows = qel::output;

inline constexpr Row kTimeStep{rows::kSection, key_of(rows::kKeys, "TimeStep")};
inline constexpr Row kTimeFill{rows::kSection, key_of(rows::kKeys, "TimeFill")};
inline constexpr Row kTimePack{rows::kSection, key_of(rows::kKeys, "TimePack")};

}  // namespace output

/// [Project]
namespace project {

namespace rows = qel::project;

inline constexpr Row kMesh{rows::kSection, key_of(rows::kKeys, "Mesh")};
inline constexpr Row kMaterial{rows::kSection, key_of(rows::kKeys, "Material")};
inline constexpr Row kCavityVolume{rows::kSection, key_of(rows::kKeys, "CavVol")};
inline constexpr Row kCushionVolume{rows::kSection, key_of(rows::kKeys, "CushionVol")};

}  // namespace project

/// [AdvancedSetting]
namespace advanced_setting {

namespace rows = qel::advanced_setting;

inline constexpr Row kMoldClampingForce{rows::kSection, key_of(rows::kKeys, "ClampForce")};
inline constexpr Row kMoldOpenDirection{rows::kSection, key_of(rows::kKeys, "OpenDirection")};

}  // namespace advanced_setting

/// [TransientInletConv]
namespace transient_inlet_conv {

namespace rows = qel::transient_inlet_conv;

inline constexpr Row kInitPelletConv{rows::kSection, key_of(rows::kKeys, "InitPelletConv")};
inline constexpr Row kPelletDiameter{rows::kSection, key_of(rows::kKeys, "PelletDiameter")};
inline constexpr Row kPelletHeight{rows::kSection, key_of(rows::kKeys, "PelletHeight")};
inline constexpr Row kPreHeatTime{rows::kSection, key_of(rows::kKeys, "PreHeatTime")};

}  // namespace transient_inlet_conv

/// [ICPackage]
namespace ic_package {

namespace rows = qel::ic_package;

inline constexpr Row kInitConversionType{rows::kSection, key_of(rows::kKeys, "InitConversionType")};
inline constexpr Row kInitConversion{rows::kSection, key_of(rows::kKeys, "InitConversion")};
inline constexpr Row kPelletDiameter{rows::kSection, key_of(rows::kKeys, "PelletDiameter")};
inline constexpr Row kPelletHeight{rows::kSection, key_of(rows::kKeys, "PelletHeight")};
inline constexpr Row kPreHeatingTime{rows::kSection, key_of(rows::kKeys, "PreHeatingTime")};

}  // namespace ic_package

/// [MoldThermalBoundaryType]
namespace mold_thermal_boundary {

namespace rows = qel::mold_thermal_boundary_type;

inline constexpr Row kType{rows::kSection, key_of(rows::kKeys, "Type")};
inline constexpr Row kFlowHeatTransferCoefficient{rows::kSection, key_of(rows::kKeys, "Flow")};
inline constexpr Row kPackHeatTransferCoefficient{rows::kSection, key_of(rows::kKeys, "Pack")};

}  // namespace mold_thermal_boundary

/// [GasF-%d]
namespace gas {

namespace rows = qel::gas_f_x;
inline constexpr auto kSection = Manipulator::BLOCK_GASF;

inline constexpr Row kGasTime{kSection, key_of(rows::kKeys, "GasTime")};
inline constexpr Row kGasPressure{kSection, key_of(rows::kKeys, "GasPres")};
inline constexpr Row kGasSwitch{kSection, key_of(rows::kKeys, "GasSwch")};
inline constexpr Row kGasDelayTime{kSection, key_of(rows::kKeys, "DelayTime")};
inline constexpr Row kGRDisplayType{kSection, key_of(rows::kKeys, "GRDisplayType")};
inline constexpr Row kGRProfileType{kSection, key_of(rows::kKeys, "GRProfileType")};
inline constexpr Row kGPDisplayType{kSection, key_of(rows::kKeys, "GPDisplayType")};
inline constexpr Row kGPProfileType{kSection, key_of(rows::kKeys, "GPProfileType")};
inline constexpr Row kFRCount{kSection, key_of(rows::kKeys, "GRSet")};
inline constexpr Row kFRPoint{kSection, Manipulator::KEY_GR};
inline constexpr Row kUserFRCount{kSection, key_of(rows::kKeys, "UserGRSet")};
inline constexpr Row kUserFRPoint{kSection, Manipulator::KEY_USER_GR};
inline constexpr Row kGPCount{kSection, key_of(rows::kKeys, "GPSet")};
inline constexpr Row kGPPoint{kSection, Manipulator::KEY_GP};
inline constexpr Row kUserGPCount{kSection, key_of(rows::kKeys, "UserGPSet")};
inline constexpr Row kUserGPPoint{kSection, Manipulator::KEY_USER_GP};

}  // namespace gas

/// [GateCTL]
namespace gate_ctl {

namespace rows = qel::gate_ctl;

inline constexpr Row kStartTime{rows::kSection, Manipulator::KEY_ST};
inline constexpr Row kEndTime{rows::kSection, Manipulator::KEY_ET};

}  // namespace gate_ctl

/// [GateValve-%d]
namespace gate_valve {

namespace rows = qel::gate_valve_x;
inline constexpr auto kSection = Manipulator::BLOCK_GATE_VALVE;

inline constexpr Row kControlNo{kSection, key_of(rows::kKeys, "GCSet")};
inline constexpr Row kControlRow{kSection, Manipulator::KEY_GC};

}  // namespace gate_valve

/// [OFGateValve-%d]
namespace overflow {

namespace rows = qel::overflow;
inline constexpr auto kSection = Manipulator::BLOCK_OF_GATE_VALVE;

inline constexpr Row kControlNo{kSection, key_of(rows::kKeys, "GCSet")};
inline constexpr Row kControlRow{kSection, Manipulator::KEY_GC};

}  // namespace overflow

/// [Cool]
namespace cool {

namespace rows = qel::cool;

inline constexpr Row kCoolTime{rows::kSection, key_of(rows::kKeys, "CoolTime")};
inline constexpr Row kOpenTime{rows::kSection, key_of(rows::kKeys, "OpenTime")};
inline constexpr Row kEjectTemperature{rows::kSection, key_of(rows::kKeys, "EjectTemp")};
inline constexpr Row kAirTemperature{rows::kSection, key_of(rows::kKeys, "AirTemp")};
inline constexpr Row kInitMoldTemperature{rows::kSection,
                                          key_of(rows::kKeys, "InitialMoldbaseTemperature")};
inline constexpr Row kCoolingType{rows::kSection, key_of(rows::kKeys, "CoolingType")};
inline constexpr Row kCoolantTemperature{rows::kSection, key_of(rows::kKeys, "CoolantTemp")};
inline constexpr Row kCoolantFlowRate{rows::kSection, key_of(rows::kKeys, "CoolantFR")};
inline constexpr Row kAutoSetCoolTime{rows::kSection, key_of(rows::kKeys, "AutoSetCoolTime")};

}  // namespace cool

/// [CoolCTL]
namespace cool_ctl {

namespace rows = qel::cool_ctl;

inline constexpr Row kTemperature{rows::kSection, Manipulator::KEY_T};
inline constexpr Row kFlowRate{rows::kSection, Manipulator::KEY_F};
inline constexpr Row kSystem{rows::kSection, Manipulator::KEY_M};

}  // namespace cool_ctl

/// [Coolant]
namespace coolant {

namespace rows = qel::coolant;

inline constexpr Row kRow{rows::kSection, Manipulator::KEY_INDEX};

}  // namespace coolant

/// [VarCoolCTL]
namespace var_cool_ctl {

namespace rows = qel::var_cool_ctl;

inline constexpr Row kTotalCoolantNo{rows::kSection, key_of(rows::kKeys, "CoolantNo")};
inline constexpr Row kRow{rows::kSection, Manipulator::KEY_COOLANT};

}  // namespace var_cool_ctl

/// [CoolChannel-%d]
namespace cool_channel {

namespace rows = qel::cool_channel_x;
inline constexpr auto kSection = Manipulator::BLOCK_COOL_CHANNEL;

inline constexpr Row kDiameter{kSection, key_of(rows::kKeys, "Diameter")};
inline constexpr Row kGroupID{kSection, key_of(rows::kKeys, "GroupID")};
inline constexpr Row kTimeSet{kSection, key_of(rows::kKeys, "TimeSet")};
inline constexpr Row kControlPoint{kSection, Manipulator::KEY_TCP};

}  // namespace cool_channel

/// [MoldPreheat]
namespace mold_preheat {

namespace rows = qel::mold_preheat;

inline constexpr Row kControlType{rows::kSection, key_of(rows::kKeys, "ControlType")};
inline constexpr Row kMaxTime{rows::kSection, key_of(rows::kKeys, "MaxMoldPreHeatTime")};
inline constexpr Row kTime{rows::kSection, key_of(rows::kKeys, "MoldPreHeatTime")};
inline constexpr Row kTemperature{rows::kSection, key_of(rows::kKeys, "MoldPreHeatTemperature")};
inline constexpr Row kType{rows::kSection, key_of(rows::kKeys, "MoldPreHeatType")};

}  // namespace mold_preheat

/// [MPreheat_CoolChannel-%d]
namespace preheat_channel {

namespace rows = qel::mold_preheat_cool_channel_x;
inline constexpr auto kSection = Manipulator::BLOCK_MPREHEAT_COOL_CHANNEL;

inline constexpr Row kDiameter{kSection, key_of(rows::kKeys, "Diameter")};
inline constexpr Row kGroupID{kSection, key_of(rows::kKeys, "GroupID")};
inline constexpr Row kTimeSet{kSection, key_of(rows::kKeys, "TimeSet")};
inline constexpr Row kControlPoint{kSection, Manipulator::KEY_TCP};

}  // namespace preheat_channel

/// [Machine]
namespace machine {

namespace rows = qel::machine;

inline constexpr Row kMaker{rows::kSection, key_of(rows::kKeys, "Maker")};
inline constexpr Row kGrade{rows::kSection, key_of(rows::kKeys, "Grade")};
inline constexpr Row kLastModifiedDate{rows::kSection, key_of(rows::kKeys, "LastModifiedDate")};
inline constexpr Row kRemark{rows::kSection, key_of(rows::kKeys, "Remark")};
inline constexpr Row kScrewDiameter{rows::kSection, key_of(rows::kKeys, "Diameter")};
inline constexpr Row kMaxRamPosition{rows::kSection, key_of(rows::kKeys, "MaxRamPos")};
inline constexpr Row kShotVolume{rows::kSection, key_of(rows::kKeys, "ShotVolume")};
inline constexpr Row kShotWeight{rows::kSection, key_of(rows::kKeys, "Weight")};
inline constexpr Row kMaxPressure{rows::kSection, key_of(rows::kKeys, "MaxMachinePres")};
inline constexpr Row kHoldingPressure{rows::kSection, key_of(rows::kKeys, "HoldingPressure")};
inline constexpr Row kInjectionSpeed{rows::kSection, key_of(rows::kKeys, "InjectionSpeed")};
inline constexpr Row kMaxFlowRate{rows::kSection, key_of(rows::kKeys, "FR")};
inline constexpr Row kPlasticationRate{rows::kSection, key_of(rows::kKeys, "PlasticationRate")};
inline constexpr Row kScrewSpeed{rows::kSection, key_of(rows::kKeys, "ScrewSpeed")};
inline constexpr Row kNozzleContactForce{rows::kSection, key_of(rows::kKeys, "NozzleContactForce")};
inline constexpr Row kNozzleStroke{rows::kSection, key_of(rows::kKeys, "NozzleStroke")};
inline constexpr Row kHeaterWattage{rows::kSection, key_of(rows::kKeys, "HeaterWattage")};
inline constexpr Row kTemperatureControlZones{rows::kSection,
                                              key_of(rows::kKeys, "TemperatureControlZones")};
inline constexpr Row kClampingForce{rows::kSection, key_of(rows::kKeys, "Size")};
inline constexpr Row kOpeningStroke{rows::kSection, key_of(rows::kKeys, "OpeningStroke")};
inline constexpr Row kMaxDaylight{rows::kSection, key_of(rows::kKeys, "MaxDaylight")};
inline constexpr Row kMoldHeight{rows::kSection, key_of(rows::kKeys, "MoldHeight")};
inline constexpr Row kTieBarsDistance{rows::kSection,
                                      key_of(rows::kKeys, "DistanceBetweenTieBars(HxV)")};
inline constexpr Row kPlatenSize{rows::kSection, key_of(rows::kKeys, "PlatenSize(HxV)")};
inline constexpr Row kEjectorPoint{rows::kSection, key_of(rows::kKeys, "EjectorPoint")};
inline constexpr Row kEjectorForce{rows::kSection, key_of(rows::kKeys, "EjectorForce")};
inline constexpr Row kEjectorStroke{rows::kSection, key_of(rows::kKeys, "EjectorStroke")};
inline constexpr Row kMachineWeight{rows::kSection, key_of(rows::kKeys, "MachineWeight")};
inline constexpr Row kDimension{rows::kSection, key_of(rows::kKeys, "MachineDimension(LxWxH)")};
inline constexpr Row kBarrelCompressionCtrl{rows::kSection,
                                            key_of(rows::kKeys, "BarrelCompressionCtrl")};

}  // namespace machine

/// [Moldbase]
namespace moldbase {

namespace rows = qel::moldbase;

inline constexpr Row kRow{rows::kSection, Manipulator::KEY_INDEX};

}  // namespace moldbase

/// [MoldMetalMaterial]
namespace mold_metal {

namespace rows = qel::mold_metal_material;

inline constexpr Row kRow{rows::kSection, Manipulator::KEY_INDEX};

}  // namespace mold_metal

/// [PartingSurface]
namespace parting_surface {

namespace rows = qel::parting_surface;

inline constexpr Row kCavityPart{rows::kSection, key_of(rows::kKeys, "CavityPart")};
inline constexpr Row kCavityMoldBase{rows::kSection, key_of(rows::kKeys, "CavityMoldBase")};
inline constexpr Row kCorePart{rows::kSection, key_of(rows::kKeys, "CorePart")};
inline constexpr Row kCoreMoldBase{rows::kSection, key_of(rows::kKeys, "CoreMoldBase")};

}  // namespace parting_surface

/// [EjectCriteria]
namespace eject_criteria {

namespace rows = qel::eject_criteria;

inline constexpr Row kTotalSensorNode{rows::kSection, key_of(rows::kKeys, "TotalSensorNode")};
inline constexpr Row kTotalCriteriaNode{rows::kSection, key_of(rows::kKeys, "TotalCriteriaNode")};
inline constexpr Row kSensorNode{rows::kSection, Manipulator::KEY_SENSOR_NODE};
inline constexpr Row kCriteriaNode{rows::kSection, Manipulator::KEY_CRITERIA_NODE};

}  // namespace eject_criteria

/// [PartInsertInitialTemperature]
namespace part_insert {

namespace rows = qel::part_insert_initial_temperature;

inline constexpr Row kTotalPartInsert{rows::kSection, key_of(rows::kKeys, "TotalPartInsert")};
inline constexpr Row kInsert{rows::kSection, Manipulator::KEY_PART_INSERT};

}  // namespace part_insert

/// Lines addressed by position. A header of several words is found by its first.
namespace boundary_condition {

using mold_temperature_bc_x::kPositionalSection;

}  // namespace boundary_condition

}  // namespace qel::proio
