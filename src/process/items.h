#pragma once

#include <variant>

#include "QELG/QELG.h"

/// Which key of the process file goes to which setter of the simulator's process object. The setter's type says how the
/// text is converted. Where several keys of one table feed one setter, the last one that is there wins.
namespace qel::loading {

template <class Target>
struct Item {
  const char* key;
  std::variant<void (*)(Target&, unsigned int), void (*)(Target&, double), void (*)(Target&, const char*)> set;
};

// [CaeHeader], beside "ProjectType"
inline constexpr Item<QELG_SimulatorProcess> kCaeHeader[] = {
    {"FlagUNF", set_process_FlagUNF},
    {"FlagEncapsulationCM", set_process_FlagEncapsulationCM},
};

// [Summary]
inline constexpr Item<QELG_SimulatorProcess> kSummary[] = {
    {"TotalNodeEM", set_process_TotalNodeEM},           {"TotalNodeEC", set_process_TotalNodeEC},
    {"TotalGateCTL", set_process_TotalGateCTL},         {"TotalNodeMB", set_process_TotalNodeMB},
    {"TotalNodeBC", set_process_TotalNodeBC},           {"TotalNodeMMM", set_process_TotalNodeMMM},
    {"SymVolRatio", set_process_SymVolRatio},           {"TotalNodeHR", set_process_TotalNodeHR},
    {"TotalSTLNodeEC", set_process_TotalSTLNodeEC},     {"TotalSTLNodeHR", set_process_TotalSTLNodeHR},
    {"TotalGrpCCL", set_process_TotalGrpCCL},           {"TotalGrpCCS", set_process_TotalGrpCCS},
    {"TotalOverFlowCTL", set_process_TotalOverFlowCTL}, {"IsTransientInletConv", set_process_IsTransientInletConv},
};

// [FlowCTL]
inline constexpr Item<QELG_SimulatorProcess> kFlowCTL[] = {
    {"FlowCtrl", set_process_FlowCtrl},
    {"VPSwitchCtrl", set_process_VPSwitchCtrl},
    {"PackingCtrl", set_process_PackingCtrl},
    {"MoldTemperature", set_process_MoldTemperature},
    {"MeltTemperature", set_process_MeltTemperature},
    {"InjectionTime", set_process_InjectionTime},
    {"VolumeFilled", set_process_VolumeFilled},
    {"RamPosition", set_process_RamPosition},
    {"InjectionPressure", set_process_InjectionPressure},
    {"CureEnterType", set_process_CureEnterType},
    {"CureEnterSwch", set_process_CureEnterSwch},
    {"CureEnterTime", set_process_CureEnterTime},
};

// [MoldThermalBoundaryType]
inline constexpr Item<QELG_SimulatorProcess> kMoldThermalBoundaryType[] = {
    {"Type", set_process_HTC_HeatTransferType},
    {"Flow", set_process_HTC_Flow},
    {"Pack", set_process_HTC_Pack},
    {"Detached_HTC", set_process_HTC_Detached},
    {"HotRunner_HTC", set_process_HTC_HotRunner},
    {"UserMode", set_process_HTC_UserMode},
    {"NuNum", set_process_HTC_NuNum},
};

// [Machine]
inline constexpr Item<QELG_SimulatorProcess> kMachine[] = {
    {"Maker", set_process_machine_Maker},
    {"Grade", set_process_machine_Grade},
    {"Remark", set_process_machine_Remark},
    {"Diameter", set_process_machine_Diameter},
    {"MaxRamPos", set_process_machine_MaxRamPos},
    {"ShotVolume", set_process_machine_ShotVolume},
    {"Weight", set_process_machine_Weight},
    {"MaxMachinePres", set_process_machine_MaxMachinePres},
    {"FR", set_process_machine_MaxFlowRate},
    {"Size", set_process_machine_ClampForce},
    {"BarrelCompressionCtrl", set_process_machine_BarrelCompressionCtrl},
    {"NozzleVolume", set_process_machine_NozzleVolume},
    {"MachineEnergyType", set_process_machine_MachineEnergyType},
    {"HydraulicPressureTransferFactor", set_process_machine_HydraulicPressureTransferFactor},
    {"PITCHSIZE", set_process_machine_PITCHSIZE},
    {"SCREWSPEED", set_process_machine_SCREWSPEED},
    {"SCREWDIAFEED", set_process_machine_SCREWDIAFEED},
    {"SCREWDIATRANSITION", set_process_machine_SCREWDIATRANSITION},
    {"SCREWDIAMETERING", set_process_machine_SCREWDIAMETERING},
    {"CHANNELDEEPFEED", set_process_machine_CHANNELDEEPFEED},
    {"CHANNELDEEPMETERING", set_process_machine_CHANNELDEEPMETERING},
    {"SECTIONDEPFEED", set_process_machine_SECTIONDEPFEED},
    {"SECTIONDEPTRANSITION", set_process_machine_SECTIONDEPTRANSITION},
    {"SECTIONDEPMETERING", set_process_machine_SECTIONDEPMETERING},
    {"NUMBERPITCHFEED", set_process_machine_NUMBERPITCHFEED},
    {"NUMBERPITCHTRANSITION", set_process_machine_NUMBERPITCHTRANSITION},
    {"NUMBERPITCHMETERING", set_process_machine_NUMBERPITCHMETERING},
    {"NOZZLEDIAMETER", set_process_machine_NOZZLEDIAMETER},
    {"NOZZLELENGTH", set_process_machine_NOZZLELENGTH},
};

// [RamPosition]
inline constexpr Item<QELG_SimulatorProcess> kRamPosition[] = {
    {"SuckBack", set_process_SuckBack},
};

// A filling section; the last four are the names of transfer molding.
inline constexpr Item<QELG_SimulatorFlowPackProcess> kFlow[] = {
    {"FillTime", set_process_FillTime},
    {"MeltTemp", set_process_MeltTemp},
    {"MoldTemp", set_process_MoldTemp},
    {"InjectPres", set_process_InjectPres},
    {"FRDisplayType", set_process_FRDisplayType},
    {"IPDisplayType", set_process_IPDisplayType},
    {"FRProfileType", set_process_FRProfileType},
    {"IPProfileType", set_process_IPProfileType},
    {"MaxFR", set_process_MaxFR},
    {"MaxFillingTime", set_process_MaxFillingTime},
    {"FlowPackMode", set_process_FlowPackMode},
    {"HotRunnerTemperatureDiff", set_process_HotRunnerTemperatureDiff},
    {"Material", set_process_Material},
    {"CoreEnterType", set_process_CoreEnterType},
    {"CoreEnterSwch", set_process_CoreEnterSwch},
    {"CoreEnterTime", set_process_CoreEnterTime},
    {"FluidTemp", set_process_FluidTemp},
    {"FluidEnterType", set_process_FluidEnterType},
    {"FluidEnterSwch", set_process_FluidEnterSwch},
    {"FluidEnterTime", set_process_FluidEnterTime},
    {"FluidDelayTime", set_process_FluidDelayTime},
    {"InitConv", set_process_InitConv},
    {"TransTime", set_process_FillTime},
    {"ResnTemp", set_process_MeltTemp},
    {"TransPres", set_process_InjectPres},
    {"MaxTransferTime", set_process_MaxFillingTime},
};

// A packing section
inline constexpr Item<QELG_SimulatorFlowPackProcess> kPack[] = {
    {"PackTime", set_process_PackTime},           {"PackPres", set_process_PackPres},
    {"PackSwch", set_process_PackSwch},           {"MaxEOFRatio", set_process_MaxEOFRatio},
    {"PPDisplayType", set_process_PPDisplayType}, {"PPProfileType", set_process_PPProfileType},
    {"MaxPressSlop", set_process_MaxPressSlop},   {"Shutoff", set_process_Shutoff},
    {"MaterialType", set_process_MaterialType},   {"FluidPres", set_process_FluidPres},
    {"FluidMaxFR", set_process_FluidMaxFR},       {"FluidProfileType", set_process_FluidProfileType},
};

// A curing section; it feeds the setters of packing, and its profile type stands under the key of packing.
inline constexpr Item<QELG_SimulatorFlowPackProcess> kCure[] = {
    {"CureTime", set_process_PackTime},           {"CurePres", set_process_PackPres},           {"CureSwch", set_process_PackSwch},
    {"CPDisplayType", set_process_PPDisplayType}, {"PPProfileType", set_process_PPProfileType},
};

}  // namespace qel::loading
