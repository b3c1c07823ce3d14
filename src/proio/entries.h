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
#include "proio/entry.h"

/// Every entry that the object reads or writes, by section: names for rows of the catalogue. The
/// accessors spell no key.
namespace qel::proio {

/// [FileHeader]
namespace file_header {

namespace rows = qel::file_header;

inline constexpr Entry kName{rows::kSection, key_of(rows::kKeys, "Name")};
inline constexpr Entry kDate{rows::kSection, key_of(rows::kKeys, "Date")};
inline constexpr Entry kType{rows::kSection, key_of(rows::kKeys, "Type")};
inline constexpr Entry kCreateBy{rows::kSection, key_of(rows::kKeys, "CreateBy")};
inline constexpr Entry kRemark{rows::kSection, key_of(rows::kKeys, "Remark")};

}  // namespace file_header

/// [CaeHeader]
namespace cae_header {

namespace rows = qel::cae_header;

inline constexpr Entry kVersion{rows::kSection, key_of(rows::kKeys, "Version")};
inline constexpr Entry kRelease{rows::kSection, key_of(rows::kKeys, "Release")};
inline constexpr Entry kProject{rows::kSection, key_of(rows::kKeys, "Project")};
inline constexpr Entry kEngineer{rows::kSection, key_of(rows::kKeys, "Engineer")};
inline constexpr Entry kParent{rows::kSection, key_of(rows::kKeys, "Parent")};
inline constexpr Entry kType{rows::kSection, key_of(rows::kKeys, "Type")};
inline constexpr Entry kFileVersion{rows::kSection, key_of(rows::kKeys, "FileVersion")};
inline constexpr Entry kFileType{rows::kSection, key_of(rows::kKeys, "FileType")};
inline constexpr Entry kSmartSetting{rows::kSection, key_of(rows::kKeys, "SmartSetting")};

}  // namespace cae_header

/// [Summary]
namespace summary {

namespace rows = qel::summary;

inline constexpr Entry kMeshLayer{rows::kSection, key_of(rows::kKeys, "TotalNdivz")};
inline constexpr Entry kMeltEntranceNo{rows::kSection, key_of(rows::kKeys, "TotalNodeEM")};
inline constexpr Entry kCoolantNo{rows::kSection, key_of(rows::kKeys, "TotalNodeEC")};
inline constexpr Entry kValveGateNo{rows::kSection, key_of(rows::kKeys, "TotalGateCTL")};
inline constexpr Entry kVacuumIndex{rows::kSection, key_of(rows::kKeys, "VacuumIndex")};
inline constexpr Entry kSkinRatio{rows::kSection, key_of(rows::kKeys, "SkinRatio")};
inline constexpr Entry kMultiTimeStep{rows::kSection, key_of(rows::kKeys, "NoOutput")};
inline constexpr Entry kPpackAsPeof{rows::kSection, key_of(rows::kKeys, "PEOFasPPack")};
inline constexpr Entry kMoldbaseNo{rows::kSection, key_of(rows::kKeys, "TotalNodeMB")};
inline constexpr Entry kBoundaryConditionNo{rows::kSection, key_of(rows::kKeys, "TotalNodeBC")};
inline constexpr Entry kGasEntranceNo{rows::kSection, key_of(rows::kKeys, "TotalNodeEG")};
inline constexpr Entry kMoldMetalMaterialNo{rows::kSection, key_of(rows::kKeys, "TotalNodeMMM")};
inline constexpr Entry kSymVolRatio{rows::kSection, key_of(rows::kKeys, "SymVolRatio")};
inline constexpr Entry kHeatingRodNo{rows::kSection, key_of(rows::kKeys, "TotalNodeHR")};
inline constexpr Entry kIsTransientInletConv{rows::kSection,
                                             key_of(rows::kKeys, "IsTransientInletConv")};

}  // namespace summary

/// [Unit]
namespace unit {

namespace rows = qel::unit;

inline constexpr Entry kTime{rows::kSection, key_of(rows::kKeys, "Time")};
inline constexpr Entry kTemp{rows::kSection, key_of(rows::kKeys, "Temp")};
inline constexpr Entry kPres{rows::kSection, key_of(rows::kKeys, "Pres")};
inline constexpr Entry kFR{rows::kSection, key_of(rows::kKeys, "FR")};
inline constexpr Entry kIP{rows::kSection, key_of(rows::kKeys, "IP")};
inline constexpr Entry kPP{rows::kSection, key_of(rows::kKeys, "PP")};
inline constexpr Entry kVolum{rows::kSection, key_of(rows::kKeys, "Volum")};

}  // namespace unit

/// [Flow-%d]
namespace flow {

namespace rows = qel::flow_x;
inline constexpr auto kSection = Manipulator::BLOCK_FLOW;

inline constexpr Entry kFillTime{kSection, key_of(rows::kKeys, "FillTime")};
inline constexpr Entry kMeltTemperature{kSection, key_of(rows::kKeys, "MeltTemp")};
inline constexpr Entry kMoldTemperature{kSection, key_of(rows::kKeys, "MoldTemp")};
inline constexpr Entry kInjectPressure{kSection, key_of(rows::kKeys, "InjectPres")};
inline constexpr Entry kPreFill{kSection, key_of(rows::kKeys, "PreFill")};
inline constexpr Entry kInjectVolume{kSection, key_of(rows::kKeys, "InjVol")};
inline constexpr Entry kTransferTime{kSection, key_of(rows::kKeys, "TransTime")};
inline constexpr Entry kResinTemperature{kSection, key_of(rows::kKeys, "ResnTemp")};
inline constexpr Entry kTransferPressure{kSection, key_of(rows::kKeys, "TransPres")};
inline constexpr Entry kInitialConversion{kSection, key_of(rows::kKeys, "InitConv")};
inline constexpr Entry kEndConversion{kSection, key_of(rows::kKeys, "EndConv")};
inline constexpr Entry kFRDisplayType{kSection, key_of(rows::kKeys, "FRDisplayType")};
inline constexpr Entry kIPDisplayType{kSection, key_of(rows::kKeys, "IPDisplayType")};
inline constexpr Entry kTPDisplayType{kSection, key_of(rows::kKeys, "TPDisplayType")};
inline constexpr Entry kFRCount{kSection, key_of(rows::kKeys, "FRSet")};
inline constexpr Entry kFRPoint{kSection, Manipulator::KEY_FR};
inline constexpr Entry kUserFRCount{kSection, key_of(rows::kKeys, "UserFRSet")};
inline constexpr Entry kUserFRPoint{kSection, Manipulator::KEY_USER_FR};
inline constexpr Entry kIPCount{kSection, key_of(rows::kKeys, "IPSet")};
inline constexpr Entry kIPPoint{kSection, Manipulator::KEY_IP};
inline constexpr Entry kUserIPCount{kSection, key_of(rows::kKeys, "UserIPSet")};
inline constexpr Entry kUserIPPoint{kSection, Manipulator::KEY_USER_IP};
inline constexpr Entry kTPCount{kSection, key_of(rows::kKeys, "TPSet")};
inline constexpr Entry kTPPoint{kSection, Manipulator::KEY_TP};
inline constexpr Entry kUserTPCount{kSection, key_of(rows::kKeys, "UserTPSet")};
inline constexpr Entry kUserTPPoint{kSection, Manipulator::KEY_USER_TP};

}  // namespace flow

/// [Pack-%d]
namespace pack {

namespace rows = qel::pack_x;
inline constexpr auto kSection = Manipulator::BLOCK_PACK;

inline constexpr Entry kPackTime{kSection, key_of(rows::kKeys, "PackTime")};
inline constexpr Entry kPackPressure{kSection, key_of(rows::kKeys, "PackPres")};
inline constexpr Entry kPackSwitch{kSection, key_of(rows::kKeys, "PackSwch")};
inline constexpr Entry kPPDisplayType{kSection, key_of(rows::kKeys, "PPDisplayType")};
inline constexpr Entry kPPCount{kSection, key_of(rows::kKeys, "PPSet")};
inline constexpr Entry kPPPoint{kSection, Manipulator::KEY_PP};
inline constexpr Entry kUserPPCount{kSection, key_of(rows::kKeys, "UserPPSet")};
inline constexpr Entry kUserPPPoint{kSection, Manipulator::KEY_USER_PP};

}  // namespace pack

/// [Cure-%d]
namespace cure {

namespace rows = qel::cure_x;
inline constexpr auto kSection = Manipulator::BLOCK_CURE;

inline constexpr Entry kCureTime{kSection, key_of(rows::kKeys, "CureTime")};
inline constexpr Entry kCurePressure{kSection, key_of(rows::kKeys, "CurePres")};
inline constexpr Entry kCureSwitch{kSection, key_of(rows::kKeys, "CureSwch")};
inline constexpr Entry kCPDisplayType{kSection, key_of(rows::kKeys, "CPDisplayType")};
inline constexpr Entry kCPCount{kSection, key_of(rows::kKeys, "CPSet")};
inline constexpr Entry kCPPoint{kSection, Manipulator::KEY_CP};
inline constexpr Entry kUserCPCount{kSection, key_of(rows::kKeys, "UserCPSet")};
inline constexpr Entry kUserCPPoint{kSection, Manipulator::KEY_USER_CP};

}  // namespace cure

/// [RamPosition]
namespace ram_position {

namespace rows = qel::ram_position;

inline constexpr Entry kScrewDirection{rows::kSection, key_of(rows::kKeys, "RamDir")};
inline constexpr Entry kVPSwitch{rows::kSection, key_of(rows::kKeys, "IsVPswitch")};
inline constexpr Entry kVPSwitchPosition{rows::kSection, key_of(rows::kKeys, "VPswitchRam")};
inline constexpr Entry kRamFRCount{rows::kSection, key_of(rows::kKeys, "RP_FRSet")};
inline constexpr Entry kRamFRPoint{rows::kSection, Manipulator::KEY_RP_FR};
inline constexpr Entry kRamIPCount{rows::kSection, key_of(rows::kKeys, "RP_IPSet")};
inline constexpr Entry kRamIPPoint{rows::kSection, Manipulator::KEY_RP_IP};

}  // namespace ram_position

/// [QuickSetting]
namespace quick_setting {

namespace rows = qel::quick_setting;

inline constexpr Entry kScrewDirection{rows::kSection, key_of(rows::kKeys, "ScrewDirection")};
inline constexpr Entry kProfileType{rows::kSection, key_of(rows::kKeys, "ProfileType")};
inline constexpr Entry kIsSameSetting{rows::kSection, key_of(rows::kKeys, "IsSameSetting")};
inline constexpr Entry kFRSettingType{rows::kSection, key_of(rows::kKeys, "Q_SettingType")};
inline constexpr Entry kIPSettingType{rows::kSection, key_of(rows::kKeys, "Pi_SettingType")};
inline constexpr Entry kPPSettingType{rows::kSection, key_of(rows::kKeys, "Pp_SettingType")};
inline constexpr Entry kQSFRCount{rows::kSection, key_of(rows::kKeys, "Q_Section")};
inline constexpr Entry kQSFRPoint{rows::kSection, Manipulator::KEY_Q_SETTING};
inline constexpr Entry kQSIPCount{rows::kSection, key_of(rows::kKeys, "Pi_Section")};
inline constexpr Entry kQSIPPoint{rows::kSection, Manipulator::KEY_PI_SETTING};
inline constexpr Entry kQSPPCount{rows::kSection, key_of(rows::kKeys, "Pp_Section")};
inline constexpr Entry kQSPPPoint{rows::kSection, Manipulator::KEY_PP_SETTING};

}  // namespace quick_setting

/// [FlowCTL]
namespace flow_ctl {

namespace rows = qel::flow_ctl;

inline constexpr Entry kFlowCtrl{rows::kSection, key_of(rows::kKeys, "FlowCtrl")};
inline constexpr Entry kVPSwitchCtrl{rows::kSection, key_of(rows::kKeys, "VPSwitchCtrl")};
inline constexpr Entry kPackingCtrl{rows::kSection, key_of(rows::kKeys, "PackingCtrl")};
inline constexpr Entry kMoldTemperature{rows::kSection, key_of(rows::kKeys, "MoldTemperature")};
inline constexpr Entry kMeltTemperature{rows::kSection, key_of(rows::kKeys, "MeltTemperature")};
inline constexpr Entry kInjectionTime{rows::kSection, key_of(rows::kKeys, "InjectionTime")};
inline constexpr Entry kVolumeFilled{rows::kSection, key_of(rows::kKeys, "VolumeFilled")};
inline constexpr Entry kRamPosition{rows::kSection, key_of(rows::kKeys, "RamPosition")};
inline constexpr Entry kInjectionPressure{rows::kSection, key_of(rows::kKeys, "InjectionPressure")};

}  // namespace flow_ctl

/// [Output]
namespace output {

namespace rows = qel::output;

inline constexpr Entry kTimeStep{rows::kSection, key_of(rows::kKeys, "TimeStep")};
inline constexpr Entry kTimeFill{rows::kSection, key_of(rows::kKeys, "TimeFill")};
inline constexpr Entry kTimePack{rows::kSection, key_of(rows::kKeys, "TimePack")};

}  // namespace output

/// [Project]
namespace project {

namespace rows = qel::project;

inline constexpr Entry kMesh{rows::kSection, key_of(rows::kKeys, "Mesh")};
inline constexpr Entry kMaterial{rows::kSection, key_of(rows::kKeys, "Material")};
inline constexpr Entry kCavityVolume{rows::kSection, key_of(rows::kKeys, "CavVol")};
inline constexpr Entry kCushionVolume{rows::kSection, key_of(rows::kKeys, "CushionVol")};

}  // namespace project

/// [AdvancedSetting]
namespace advanced_setting {

namespace rows = qel::advanced_setting;

inline constexpr Entry kMoldClampingForce{rows::kSection, key_of(rows::kKeys, "ClampForce")};
inline constexpr Entry kMoldOpenDirection{rows::kSection, key_of(rows::kKeys, "OpenDirection")};

}  // namespace advanced_setting

/// [TransientInletConv]
namespace transient_inlet_conv {

namespace rows = qel::transient_inlet_conv;

inline constexpr Entry kInitPelletConv{rows::kSection, key_of(rows::kKeys, "InitPelletConv")};
inline constexpr Entry kPelletDiameter{rows::kSection, key_of(rows::kKeys, "PelletDiameter")};
inline constexpr Entry kPelletHeight{rows::kSection, key_of(rows::kKeys, "PelletHeight")};
inline constexpr Entry kPreHeatTime{rows::kSection, key_of(rows::kKeys, "PreHeatTime")};

}  // namespace transient_inlet_conv

/// [ICPackage]
namespace ic_package {

namespace rows = qel::ic_package;

inline constexpr Entry kInitConversionType{rows::kSection,
                                           key_of(rows::kKeys, "InitConversionType")};
inline constexpr Entry kInitConversion{rows::kSection, key_of(rows::kKeys, "InitConversion")};
inline constexpr Entry kPelletDiameter{rows::kSection, key_of(rows::kKeys, "PelletDiameter")};
inline constexpr Entry kPelletHeight{rows::kSection, key_of(rows::kKeys, "PelletHeight")};
inline constexpr Entry kPreHeatingTime{rows::kSection, key_of(rows::kKeys, "PreHeatingTime")};

}  // namespace ic_package

/// [MoldThermalBoundaryType]
namespace mold_thermal_boundary {

namespace rows = qel::mold_thermal_boundary_type;

inline constexpr Entry kType{rows::kSection, key_of(rows::kKeys, "Type")};
inline constexpr Entry kFlowHeatTransferCoefficient{rows::kSection, key_of(rows::kKeys, "Flow")};
inline constexpr Entry kPackHeatTransferCoefficient{rows::kSection, key_of(rows::kKeys, "Pack")};

}  // namespace mold_thermal_boundary

/// [GasF-%d]
namespace gas {

namespace rows = qel::gas_f_x;
inline constexpr auto kSection = Manipulator::BLOCK_GASF;

inline constexpr Entry kGasTime{kSection, key_of(rows::kKeys, "GasTime")};
inline constexpr Entry kGasPressure{kSection, key_of(rows::kKeys, "GasPres")};
inline constexpr Entry kGasSwitch{kSection, key_of(rows::kKeys, "GasSwch")};
inline constexpr Entry kGasDelayTime{kSection, key_of(rows::kKeys, "DelayTime")};
inline constexpr Entry kGRDisplayType{kSection, key_of(rows::kKeys, "GRDisplayType")};
inline constexpr Entry kGRProfileType{kSection, key_of(rows::kKeys, "GRProfileType")};
inline constexpr Entry kGPDisplayType{kSection, key_of(rows::kKeys, "GPDisplayType")};
inline constexpr Entry kGPProfileType{kSection, key_of(rows::kKeys, "GPProfileType")};
inline constexpr Entry kFRCount{kSection, key_of(rows::kKeys, "GRSet")};
inline constexpr Entry kFRPoint{kSection, Manipulator::KEY_GR};
inline constexpr Entry kUserFRCount{kSection, key_of(rows::kKeys, "UserGRSet")};
inline constexpr Entry kUserFRPoint{kSection, Manipulator::KEY_USER_GR};
inline constexpr Entry kGPCount{kSection, key_of(rows::kKeys, "GPSet")};
inline constexpr Entry kGPPoint{kSection, Manipulator::KEY_GP};
inline constexpr Entry kUserGPCount{kSection, key_of(rows::kKeys, "UserGPSet")};
inline constexpr Entry kUserGPPoint{kSection, Manipulator::KEY_USER_GP};

}  // namespace gas

/// [GateCTL]
namespace gate_ctl {

namespace rows = qel::gate_ctl;

inline constexpr Entry kStartTime{rows::kSection, Manipulator::KEY_ST};
inline constexpr Entry kEndTime{rows::kSection, Manipulator::KEY_ET};

}  // namespace gate_ctl

/// [GateValve-%d]
namespace gate_valve {

namespace rows = qel::gate_valve_x;
inline constexpr auto kSection = Manipulator::BLOCK_GATE_VALVE;

inline constexpr Entry kControlNo{kSection, key_of(rows::kKeys, "GCSet")};
inline constexpr Entry kControlRow{kSection, Manipulator::KEY_GC};

}  // namespace gate_valve

/// [OFGateValve-%d]
namespace overflow {

namespace rows = qel::overflow;
inline constexpr auto kSection = Manipulator::BLOCK_OF_GATE_VALVE;

inline constexpr Entry kControlNo{kSection, key_of(rows::kKeys, "GCSet")};
inline constexpr Entry kControlRow{kSection, Manipulator::KEY_GC};

}  // namespace overflow

/// [Cool]
namespace cool {

namespace rows = qel::cool;

inline constexpr Entry kCoolTime{rows::kSection, key_of(rows::kKeys, "CoolTime")};
inline constexpr Entry kOpenTime{rows::kSection, key_of(rows::kKeys, "OpenTime")};
inline constexpr Entry kEjectTemperature{rows::kSection, key_of(rows::kKeys, "EjectTemp")};
inline constexpr Entry kAirTemperature{rows::kSection, key_of(rows::kKeys, "AirTemp")};
inline constexpr Entry kInitMoldTemperature{rows::kSection,
                                            key_of(rows::kKeys, "InitialMoldbaseTemperature")};
inline constexpr Entry kCoolingType{rows::kSection, key_of(rows::kKeys, "CoolingType")};
inline constexpr Entry kCoolantTemperature{rows::kSection, key_of(rows::kKeys, "CoolantTemp")};
inline constexpr Entry kCoolantFlowRate{rows::kSection, key_of(rows::kKeys, "CoolantFR")};
inline constexpr Entry kAutoSetCoolTime{rows::kSection, key_of(rows::kKeys, "AutoSetCoolTime")};

}  // namespace cool

/// [CoolCTL]
namespace cool_ctl {

namespace rows = qel::cool_ctl;

inline constexpr Entry kTemperature{rows::kSection, Manipulator::KEY_T};
inline constexpr Entry kFlowRate{rows::kSection, Manipulator::KEY_F};
inline constexpr Entry kSystem{rows::kSection, Manipulator::KEY_M};

}  // namespace cool_ctl

/// [Coolant]
namespace coolant {

namespace rows = qel::coolant;

inline constexpr Entry kRow{rows::kSection, Manipulator::KEY_INDEX};

}  // namespace coolant

/// [VarCoolCTL]
namespace var_cool_ctl {

namespace rows = qel::var_cool_ctl;

inline constexpr Entry kTotalCoolantNo{rows::kSection, key_of(rows::kKeys, "CoolantNo")};
inline constexpr Entry kRow{rows::kSection, Manipulator::KEY_COOLANT};

}  // namespace var_cool_ctl

/// [CoolChannel-%d]
namespace cool_channel {

namespace rows = qel::cool_channel_x;
inline constexpr auto kSection = Manipulator::BLOCK_COOL_CHANNEL;

inline constexpr Entry kDiameter{kSection, key_of(rows::kKeys, "Diameter")};
inline constexpr Entry kGroupID{kSection, key_of(rows::kKeys, "GroupID")};
inline constexpr Entry kTimeSet{kSection, key_of(rows::kKeys, "TimeSet")};
inline constexpr Entry kControlPoint{kSection, Manipulator::KEY_TCP};

}  // namespace cool_channel

/// [MoldPreheat]
namespace mold_preheat {

namespace rows = qel::mold_preheat;

inline constexpr Entry kControlType{rows::kSection, key_of(rows::kKeys, "ControlType")};
inline constexpr Entry kMaxTime{rows::kSection, key_of(rows::kKeys, "MaxMoldPreHeatTime")};
inline constexpr Entry kTime{rows::kSection, key_of(rows::kKeys, "MoldPreHeatTime")};
inline constexpr Entry kTemperature{rows::kSection, key_of(rows::kKeys, "MoldPreHeatTemperature")};
inline constexpr Entry kType{rows::kSection, key_of(rows::kKeys, "MoldPreHeatType")};

}  // namespace mold_preheat

/// [MPreheat_CoolChannel-%d]
namespace preheat_channel {

namespace rows = qel::mold_preheat_cool_channel_x;
inline constexpr auto kSection = Manipulator::BLOCK_MPREHEAT_COOL_CHANNEL;

inline constexpr Entry kDiameter{kSection, key_of(rows::kKeys, "Diameter")};
inline constexpr Entry kGroupID{kSection, key_of(rows::kKeys, "GroupID")};
inline constexpr Entry kTimeSet{kSection, key_of(rows::kKeys, "TimeSet")};
inline constexpr Entry kControlPoint{kSection, Manipulator::KEY_TCP};

}  // namespace preheat_channel

/// [Machine]
namespace machine {

namespace rows = qel::machine;

inline constexpr Entry kMaker{rows::kSection, key_of(rows::kKeys, "Maker")};
inline constexpr Entry kGrade{rows::kSection, key_of(rows::kKeys, "Grade")};
inline constexpr Entry kLastModifiedDate{rows::kSection, key_of(rows::kKeys, "LastModifiedDate")};
inline constexpr Entry kRemark{rows::kSection, key_of(rows::kKeys, "Remark")};
inline constexpr Entry kScrewDiameter{rows::kSection, key_of(rows::kKeys, "Diameter")};
inline constexpr Entry kMaxRamPosition{rows::kSection, key_of(rows::kKeys, "MaxRamPos")};
inline constexpr Entry kShotVolume{rows::kSection, key_of(rows::kKeys, "ShotVolume")};
inline constexpr Entry kShotWeight{rows::kSection, key_of(rows::kKeys, "Weight")};
inline constexpr Entry kMaxPressure{rows::kSection, key_of(rows::kKeys, "MaxMachinePres")};
inline constexpr Entry kHoldingPressure{rows::kSection, key_of(rows::kKeys, "HoldingPressure")};
inline constexpr Entry kInjectionSpeed{rows::kSection, key_of(rows::kKeys, "InjectionSpeed")};
inline constexpr Entry kMaxFlowRate{rows::kSection, key_of(rows::kKeys, "FR")};
inline constexpr Entry kPlasticationRate{rows::kSection, key_of(rows::kKeys, "PlasticationRate")};
inline constexpr Entry kScrewSpeed{rows::kSection, key_of(rows::kKeys, "ScrewSpeed")};
inline constexpr Entry kNozzleContactForce{rows::kSection,
                                           key_of(rows::kKeys, "NozzleContactForce")};
inline constexpr Entry kNozzleStroke{rows::kSection, key_of(rows::kKeys, "NozzleStroke")};
inline constexpr Entry kHeaterWattage{rows::kSection, key_of(rows::kKeys, "HeaterWattage")};
inline constexpr Entry kTemperatureControlZones{rows::kSection,
                                                key_of(rows::kKeys, "TemperatureControlZones")};
inline constexpr Entry kClampingForce{rows::kSection, key_of(rows::kKeys, "Size")};
inline constexpr Entry kOpeningStroke{rows::kSection, key_of(rows::kKeys, "OpeningStroke")};
inline constexpr Entry kMaxDaylight{rows::kSection, key_of(rows::kKeys, "MaxDaylight")};
inline constexpr Entry kMoldHeight{rows::kSection, key_of(rows::kKeys, "MoldHeight")};
inline constexpr Entry kTieBarsDistance{rows::kSection,
                                        key_of(rows::kKeys, "DistanceBetweenTieBars(HxV)")};
inline constexpr Entry kPlatenSize{rows::kSection, key_of(rows::kKeys, "PlatenSize(HxV)")};
inline constexpr Entry kEjectorPoint{rows::kSection, key_of(rows::kKeys, "EjectorPoint")};
inline constexpr Entry kEjectorForce{rows::kSection, key_of(rows::kKeys, "EjectorForce")};
inline constexpr Entry kEjectorStroke{rows::kSection, key_of(rows::kKeys, "EjectorStroke")};
inline constexpr Entry kMachineWeight{rows::kSection, key_of(rows::kKeys, "MachineWeight")};
inline constexpr Entry kDimension{rows::kSection, key_of(rows::kKeys, "MachineDimension(LxWxH)")};
inline constexpr Entry kBarrelCompressionCtrl{rows::kSection,
                                              key_of(rows::kKeys, "BarrelCompressionCtrl")};

}  // namespace machine

/// [Moldbase]
namespace moldbase {

namespace rows = qel::moldbase;

inline constexpr Entry kRow{rows::kSection, Manipulator::KEY_INDEX};

}  // namespace moldbase

/// [MoldMetalMaterial]
namespace mold_metal {

namespace rows = qel::mold_metal_material;

inline constexpr Entry kRow{rows::kSection, Manipulator::KEY_INDEX};

}  // namespace mold_metal

/// [PartingSurface]
namespace parting_surface {

namespace rows = qel::parting_surface;

inline constexpr Entry kCavityPart{rows::kSection, key_of(rows::kKeys, "CavityPart")};
inline constexpr Entry kCavityMoldBase{rows::kSection, key_of(rows::kKeys, "CavityMoldBase")};
inline constexpr Entry kCorePart{rows::kSection, key_of(rows::kKeys, "CorePart")};
inline constexpr Entry kCoreMoldBase{rows::kSection, key_of(rows::kKeys, "CoreMoldBase")};

}  // namespace parting_surface

/// [EjectCriteria]
namespace eject_criteria {

namespace rows = qel::eject_criteria;

inline constexpr Entry kTotalSensorNode{rows::kSection, key_of(rows::kKeys, "TotalSensorNode")};
inline constexpr Entry kTotalCriteriaNode{rows::kSection, key_of(rows::kKeys, "TotalCriteriaNode")};
inline constexpr Entry kSensorNode{rows::kSection, Manipulator::KEY_SENSOR_NODE};
inline constexpr Entry kCriteriaNode{rows::kSection, Manipulator::KEY_CRITERIA_NODE};

}  // namespace eject_criteria

/// [PartInsertInitialTemperature]
namespace part_insert {

namespace rows = qel::part_insert_initial_temperature;

inline constexpr Entry kTotalPartInsert{rows::kSection, key_of(rows::kKeys, "TotalPartInsert")};
inline constexpr Entry kInsert{rows::kSection, Manipulator::KEY_PART_INSERT};

}  // namespace part_insert

/// Lines addressed by position. A header of several words is found by its first.
namespace boundary_condition {

using mold_temperature_bc_x::kPositionalSection;

}  // namespace boundary_condition

}  // namespace qel::proio
