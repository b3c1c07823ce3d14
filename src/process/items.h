#pragma once

#include <string_view>
#include <variant>

#include "QELG/QELG.h"
#include "blocks/cae_header.h"
#include "blocks/cure_x.h"
#include "blocks/flow_ctl.h"
#include "blocks/flow_x.h"
#include "blocks/machine.h"
#include "blocks/mold_thermal_boundary_type.h"
#include "blocks/pack_x.h"
#include "blocks/ram_position.h"
#include "blocks/summary.h"

/// Which key of the process file goes to which setter of the simulator's process object. The
/// setter's type says how the text is converted. Where several keys of one table feed one setter,
/// the last one that is there wins.
namespace qel::loading {

template <class Target>
struct Item {
  std::string_view key;
  std::variant<void (*)(Target&, unsigned int), void (*)(Target&, double),
               void (*)(Target&, const char*)>
      set;
};

// [CaeHeader], beside "ProjectType"
inline constexpr Item<QELG_SimulatorProcess> kCaeHeader[] = {
    {key_of(cae_header::kKeys, "FlagUNF"), set_process_FlagUNF},
    {key_of(cae_header::kKeys, "FlagEncapsulationCM"), set_process_FlagEncapsulationCM},
};

// [Summary]
inline constexpr Item<QELG_SimulatorProcess> kSummary[] = {
    {key_of(summary::kKeys, "TotalNodeEM"), set_process_TotalNodeEM},
    {key_of(summary::kKeys, "TotalNodeEC"), set_process_TotalNodeEC},
    {key_of(summary::kKeys, "TotalGateCTL"), set_process_TotalGateCTL},
    {key_of(summary::kKeys, "TotalNodeMB"), set_process_TotalNodeMB},
    {key_of(summary::kKeys, "TotalNodeBC"), set_process_TotalNodeBC},
    {key_of(summary::kKeys, "TotalNodeMMM"), set_process_TotalNodeMMM},
    {key_of(summary::kKeys, "SymVolRatio"), set_process_SymVolRatio},
    {key_of(summary::kKeys, "TotalNodeHR"), set_process_TotalNodeHR},
    {key_of(summary::kKeys, "TotalSTLNodeEC"), set_process_TotalSTLNodeEC},
    {key_of(summary::kKeys, "TotalSTLNodeHR"), set_process_TotalSTLNodeHR},
    {key_of(summary::kKeys, "TotalGrpCCL"), set_process_TotalGrpCCL},
    {key_of(summary::kKeys, "TotalGrpCCS"), set_process_TotalGrpCCS},
    {key_of(summary::kKeys, "TotalOverFlowCTL"), set_process_TotalOverFlowCTL},
    {key_of(summary::kKeys, "IsTransientInletConv"), set_process_IsTransientInletConv},
};

// [FlowCTL]
inline constexpr Item<QELG_SimulatorProcess> kFlowCTL[] = {
    {key_of(flow_ctl::kKeys, "FlowCtrl"), set_process_FlowCtrl},
    {key_of(flow_ctl::kKeys, "VPSwitchCtrl"), set_process_VPSwitchCtrl},
    {key_of(flow_ctl::kKeys, "PackingCtrl"), set_process_PackingCtrl},
    {key_of(flow_ctl::kKeys, "MoldTemperature"), set_process_MoldTemperature},
    {key_of(flow_ctl::kKeys, "MeltTemperature"), set_process_MeltTemperature},
    {key_of(flow_ctl::kKeys, "InjectionTime"), set_process_InjectionTime},
    {key_of(flow_ctl::kKeys, "VolumeFilled"), set_process_VolumeFilled},
    {key_of(flow_ctl::kKeys, "RamPosition"), set_process_RamPosition},
    {key_of(flow_ctl::kKeys, "InjectionPressure"), set_process_InjectionPressure},
    {key_of(flow_ctl::kKeys, "CureEnterType"), set_process_CureEnterType},
    {key_of(flow_ctl::kKeys, "CureEnterSwch"), set_process_CureEnterSwch},
    {key_of(flow_ctl::kKeys, "CureEnterTime"), set_process_CureEnterTime},
};

// [MoldThermalBoundaryType]
inline constexpr Item<QELG_SimulatorProcess> kMoldThermalBoundaryType[] = {
    {key_of(mold_thermal_boundary_type::kKeys, "Type"), set_process_HTC_HeatTransferType},
    {key_of(mold_thermal_boundary_type::kKeys, "Flow"), set_process_HTC_Flow},
    {key_of(mold_thermal_boundary_type::kKeys, "Pack"), set_process_HTC_Pack},
    {key_of(mold_thermal_boundary_type::kKeys, "Detached_HTC"), set_process_HTC_Detached},
    {key_of(mold_thermal_boundary_type::kKeys, "HotRunner_HTC"), set_process_HTC_HotRunner},
    {key_of(mold_thermal_boundary_type::kKeys, "UserMode"), set_process_HTC_UserMode},
    {key_of(mold_thermal_boundary_type::kKeys, "NuNum"), set_process_HTC_NuNum},
};

// [Machine]
inline constexpr Item<QELG_SimulatorProcess> kMachine[] = {
    {key_of(machine::kKeys, "Maker"), set_process_machine_Maker},
    {key_of(machine::kKeys, "Grade"), set_process_machine_Grade},
    {key_of(machine::kKeys, "Remark"), set_process_machine_Remark},
    {key_of(machine::kKeys, "Diameter"), set_process_machine_Diameter},
    {key_of(machine::kKeys, "MaxRamPos"), set_process_machine_MaxRamPos},
    {key_of(machine::kKeys, "ShotVolume"), set_process_machine_ShotVolume},
    {key_of(machine::kKeys, "Weight"), set_process_machine_Weight},
    {key_of(machine::kKeys, "MaxMachinePres"), set_process_machine_MaxMachinePres},
    {key_of(machine::kKeys, "FR"), set_process_machine_MaxFlowRate},
    {key_of(machine::kKeys, "Size"), set_process_machine_ClampForce},
    {key_of(machine::kKeys, "BarrelCompressionCtrl"), set_process_machine_BarrelCompressionCtrl},
    {key_of(machine::kKeys, "NozzleVolume"), set_process_machine_NozzleVolume},
    {key_of(machine::kKeys, "MachineEnergyType"), set_process_machine_MachineEnergyType},
    {key_of(machine::kKeys, "HydraulicPressureTransferFactor"),
     set_process_machine_HydraulicPressureTransferFactor},
    {key_of(machine::kKeys, "PITCHSIZE"), set_process_machine_PITCHSIZE},
    {key_of(machine::kKeys, "SCREWSPEED"), set_process_machine_SCREWSPEED},
    {key_of(machine::kKeys, "SCREWDIAFEED"), set_process_machine_SCREWDIAFEED},
    {key_of(machine::kKeys, "SCREWDIATRANSITION"), set_process_machine_SCREWDIATRANSITION},
    {key_of(machine::kKeys, "SCREWDIAMETERING"), set_process_machine_SCREWDIAMETERING},
    {key_of(machine::kKeys, "CHANNELDEEPFEED"), set_process_machine_CHANNELDEEPFEED},
    {key_of(machine::kKeys, "CHANNELDEEPMETERING"), set_process_machine_CHANNELDEEPMETERING},
    {key_of(machine::kKeys, "SECTIONDEPFEED"), set_process_machine_SECTIONDEPFEED},
    {key_of(machine::kKeys, "SECTIONDEPTRANSITION"), set_process_machine_SECTIONDEPTRANSITION},
    {key_of(machine::kKeys, "SECTIONDEPMETERING"), set_process_machine_SECTIONDEPMETERING},
    {key_of(machine::kKeys, "NUMBERPITCHFEED"), set_process_machine_NUMBERPITCHFEED},
    {key_of(machine::kKeys, "NUMBERPITCHTRANSITION"), set_process_machine_NUMBERPITCHTRANSITION},
    {key_of(machine::kKeys, "NUMBERPITCHMETERING"), set_process_machine_NUMBERPITCHMETERING},
    {key_of(machine::kKeys, "NOZZLEDIAMETER"), set_process_machine_NOZZLEDIAMETER},
    {key_of(machine::kKeys, "NOZZLELENGTH"), set_process_machine_NOZZLELENGTH},
};

// [RamPosition]
inline constexpr Item<QELG_SimulatorProcess> kRamPosition[] = {
    {key_of(ram_position::kKeys, "SuckBack"), set_process_SuckBack},
};

// A filling section; the last four are the names of transfer molding.
inline constexpr Item<QELG_SimulatorFlowPackProcess> kFlow[] = {
    {key_of(flow_x::kKeys, "FillTime"), set_process_FillTime},
    {key_of(flow_x::kKeys, "MeltTemp"), set_process_MeltTemp},
    {key_of(flow_x::kKeys, "MoldTemp"), set_process_MoldTemp},
    {key_of(flow_x::kKeys, "InjectPres"), set_process_InjectPres},
    {key_of(flow_x::kKeys, "FRDisplayType"), set_process_FRDisplayType},
    {key_of(flow_x::kKeys, "IPDisplayType"), set_process_IPDisplayType},
    {key_of(flow_x::kKeys, "FRProfileType"), set_process_FRProfileType},
    {key_of(flow_x::kKeys, "IPProfileType"), set_process_IPProfileType},
    {key_of(flow_x::kKeys, "MaxFR"), set_process_MaxFR},
    {key_of(flow_x::kKeys, "MaxFillingTime"), set_process_MaxFillingTime},
    {key_of(flow_x::kKeys, "FlowPackMode"), set_process_FlowPackMode},
    {key_of(flow_x::kKeys, "HotRunnerTemperatureDiff"), set_process_HotRunnerTemperatureDiff},
    {key_of(flow_x::kKeys, "Material"), set_process_Material},
    {key_of(flow_x::kKeys, "CoreEnterType"), set_process_CoreEnterType},
    {key_of(flow_x::kKeys, "CoreEnterSwch"), set_process_CoreEnterSwch},
    {key_of(flow_x::kKeys, "CoreEnterTime"), set_process_CoreEnterTime},
    {key_of(flow_x::kKeys, "FluidTemp"), set_process_FluidTemp},
    {key_of(flow_x::kKeys, "FluidEnterType"), set_process_FluidEnterType},
    {key_of(flow_x::kKeys, "FluidEnterSwch"), set_process_FluidEnterSwch},
    {key_of(flow_x::kKeys, "FluidEnterTime"), set_process_FluidEnterTime},
    {key_of(flow_x::kKeys, "FluidDelayTime"), set_process_FluidDelayTime},
    {key_of(flow_x::kKeys, "InitConv"), set_process_InitConv},
    {key_of(flow_x::kKeys, "TransTime"), set_process_FillTime},
    {key_of(flow_x::kKeys, "ResnTemp"), set_process_MeltTemp},
    {key_of(flow_x::kKeys, "TransPres"), set_process_InjectPres},
    {key_of(flow_x::kKeys, "MaxTransferTime"), set_process_MaxFillingTime},
};

// A packing section
inline constexpr Item<QELG_SimulatorFlowPackProcess> kPack[] = {
    {key_of(pack_x::kKeys, "PackTime"), set_process_PackTime},
    {key_of(pack_x::kKeys, "PackPres"), set_process_PackPres},
    {key_of(pack_x::kKeys, "PackSwch"), set_process_PackSwch},
    {key_of(pack_x::kKeys, "MaxEOFRatio"), set_process_MaxEOFRatio},
    {key_of(pack_x::kKeys, "PPDisplayType"), set_process_PPDisplayType},
    {key_of(pack_x::kKeys, "PPProfileType"), set_process_PPProfileType},
    {key_of(pack_x::kKeys, "MaxPressSlop"), set_process_MaxPressSlop},
    {key_of(pack_x::kKeys, "Shutoff"), set_process_Shutoff},
    {key_of(pack_x::kKeys, "MaterialType"), set_process_MaterialType},
    {key_of(pack_x::kKeys, "FluidPres"), set_process_FluidPres},
    {key_of(pack_x::kKeys, "FluidMaxFR"), set_process_FluidMaxFR},
    {key_of(pack_x::kKeys, "FluidProfileType"), set_process_FluidProfileType},
};

// A curing section; it feeds the setters of packing, and its profile type stands under the key of
// packing.
inline constexpr Item<QELG_SimulatorFlowPackProcess> kCure[] = {
    {key_of(cure_x::kKeys, "CureTime"), set_process_PackTime},
    {key_of(cure_x::kKeys, "CurePres"), set_process_PackPres},
    {key_of(cure_x::kKeys, "CureSwch"), set_process_PackSwch},
    {key_of(cure_x::kKeys, "CPDisplayType"), set_process_PPDisplayType},
    {key_of(cure_x::kKeys, "PPProfileType"), set_process_PPProfileType},
};

}  // namespace qel::loading
