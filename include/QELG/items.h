#pragma once

/// @file
/// The items of a simulator process: what each setter stores, its getter gives back. A getter
/// yields false, and leaves its output alone, while the item was never set. Texts are copied when
/// they are set; a text that a getter hands out lives until the item is set again or its object
/// goes. A null text is not stored. Values are in the units of the process file.

#include "QELG/export.h"

class QELG_SimulatorProcess;
class QELG_SimulatorFlowPackProcess;

// Made by "./dev generate" from src/qelg/items.inc and the rows of src/blocks.
// clang-format off

// Items of the whole process.

// [CaeHeader]: the release and project that the analysis belongs to.

/// [CaeHeader] "ProjectType": the project type: 8 co-injection, 11 two melt entrances; a second
/// number is dropped.
QELG_API void set_process_ProjectType(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_ProjectType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_ProjectType(const QELG_SimulatorProcess& process, unsigned int& value);
/// [CaeHeader] "FlagUNF": a flag that goes to the simulator as it stands.
QELG_API void set_process_FlagUNF(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_FlagUNF` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FlagUNF(const QELG_SimulatorProcess& process, unsigned int& value);
/// [CaeHeader] "FlagEncapsulationCM": a flag of encapsulation that goes to the simulator as it
/// stands.
QELG_API void set_process_FlagEncapsulationCM(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_FlagEncapsulationCM` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FlagEncapsulationCM(const QELG_SimulatorProcess& process,
                                              unsigned int& value);

// [Summary]: counts of the model, by which the other sections are numbered.

/// [Summary] "TotalNodeEM": the number of melt entrances.
QELG_API void set_process_TotalNodeEM(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalNodeEM` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalNodeEM(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "TotalNodeEC": the number of coolant entrances.
QELG_API void set_process_TotalNodeEC(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalNodeEC` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalNodeEC(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "TotalGateCTL": the number of valve gates.
QELG_API void set_process_TotalGateCTL(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalGateCTL` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalGateCTL(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "TotalNodeMB": the number of mold bases.
QELG_API void set_process_TotalNodeMB(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalNodeMB` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalNodeMB(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "TotalNodeBC": the number of boundary conditions.
QELG_API void set_process_TotalNodeBC(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalNodeBC` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalNodeBC(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "TotalNodeMMM": the number of mold metal materials.
QELG_API void set_process_TotalNodeMMM(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalNodeMMM` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalNodeMMM(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "SymVolRatio": how many times the part holds the modelled volume, where only a
/// symmetric piece of it is modelled; an integer: 0.5 reads as 0.
QELG_API void set_process_SymVolRatio(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_SymVolRatio` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_SymVolRatio(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "TotalNodeHR": the number of heating rods.
QELG_API void set_process_TotalNodeHR(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalNodeHR` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalNodeHR(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "TotalSTLNodeEC": the number of coolant entrances of surface meshes.
QELG_API void set_process_TotalSTLNodeEC(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalSTLNodeEC` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalSTLNodeEC(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "TotalSTLNodeHR": the number of heating rods of surface meshes.
QELG_API void set_process_TotalSTLNodeHR(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalSTLNodeHR` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalSTLNodeHR(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "TotalGrpCCL": the number of cooling channel line groups.
QELG_API void set_process_TotalGrpCCL(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalGrpCCL` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalGrpCCL(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "TotalGrpCCS": the number of cooling channel surface groups.
QELG_API void set_process_TotalGrpCCS(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalGrpCCS` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalGrpCCS(const QELG_SimulatorProcess& process, unsigned int& value);
/// [Summary] "TotalOverFlowCTL": the number of overflow valves.
QELG_API void set_process_TotalOverFlowCTL(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_TotalOverFlowCTL` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_TotalOverFlowCTL(const QELG_SimulatorProcess& process,
                                           unsigned int& value);
/// [Summary] "IsTransientInletConv": 1 where the resin's conversion at the inlet changes with time,
/// else 0.
QELG_API void set_process_IsTransientInletConv(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_IsTransientInletConv` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_IsTransientInletConv(const QELG_SimulatorProcess& process,
                                               unsigned int& value);

// [FlowCTL]: what controls filling, packing, the switch-over from velocity to pressure control
// (V/P) and the begin of curing.

/// [FlowCTL] "FlowCtrl": a code: which quantity controls filling.
QELG_API void set_process_FlowCtrl(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_FlowCtrl` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FlowCtrl(const QELG_SimulatorProcess& process, unsigned int& value);
/// [FlowCTL] "VPSwitchCtrl": the criterion of the V/P switch-over: 0 filled volume, 1 ram position,
/// 2 injection pressure, 3 a further one over the filled volume.
QELG_API void set_process_VPSwitchCtrl(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_VPSwitchCtrl` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_VPSwitchCtrl(const QELG_SimulatorProcess& process, unsigned int& value);
/// [FlowCTL] "PackingCtrl": a code: which quantity controls packing.
QELG_API void set_process_PackingCtrl(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_PackingCtrl` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_PackingCtrl(const QELG_SimulatorProcess& process, unsigned int& value);
/// [FlowCTL] "MoldTemperature": the mold temperature, in oC.
QELG_API void set_process_MoldTemperature(QELG_SimulatorProcess& process, double value);
/// What `set_process_MoldTemperature` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_MoldTemperature(const QELG_SimulatorProcess& process, double& value);
/// [FlowCTL] "MeltTemperature": the melt temperature, in oC.
QELG_API void set_process_MeltTemperature(QELG_SimulatorProcess& process, double value);
/// What `set_process_MeltTemperature` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_MeltTemperature(const QELG_SimulatorProcess& process, double& value);
/// [FlowCTL] "InjectionTime": the injection time, in sec.
QELG_API void set_process_InjectionTime(QELG_SimulatorProcess& process, double value);
/// What `set_process_InjectionTime` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_InjectionTime(const QELG_SimulatorProcess& process, double& value);
/// [FlowCTL] "VolumeFilled": how much is filled when the V/P switch-over comes, for the criteria 0
/// and 3.
QELG_API void set_process_VolumeFilled(QELG_SimulatorProcess& process, double value);
/// What `set_process_VolumeFilled` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_VolumeFilled(const QELG_SimulatorProcess& process, double& value);
/// [FlowCTL] "RamPosition": the ram position at which the V/P switch-over comes, for criterion 1.
QELG_API void set_process_RamPosition(QELG_SimulatorProcess& process, double value);
/// What `set_process_RamPosition` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_RamPosition(const QELG_SimulatorProcess& process, double& value);
/// [FlowCTL] "InjectionPressure": the injection pressure at which the V/P switch-over comes, in
/// MPa, for criterion 2.
QELG_API void set_process_InjectionPressure(QELG_SimulatorProcess& process, double value);
/// What `set_process_InjectionPressure` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_InjectionPressure(const QELG_SimulatorProcess& process, double& value);
/// [FlowCTL] "CureEnterType": a code: what makes curing begin.
QELG_API void set_process_CureEnterType(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_CureEnterType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_CureEnterType(const QELG_SimulatorProcess& process, unsigned int& value);
/// [FlowCTL] "CureEnterSwch": the switch value at which curing begins.
QELG_API void set_process_CureEnterSwch(QELG_SimulatorProcess& process, double value);
/// What `set_process_CureEnterSwch` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_CureEnterSwch(const QELG_SimulatorProcess& process, double& value);
/// [FlowCTL] "CureEnterTime": the time at which curing begins, in sec.
QELG_API void set_process_CureEnterTime(QELG_SimulatorProcess& process, double value);
/// What `set_process_CureEnterTime` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_CureEnterTime(const QELG_SimulatorProcess& process, double& value);

// [MoldThermalBoundaryType]: the heat transfer between melt and mold.

/// [MoldThermalBoundaryType] "Type": a code: how the heat transfer between melt and mold is given.
QELG_API void set_process_HTC_HeatTransferType(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_HTC_HeatTransferType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_HTC_HeatTransferType(const QELG_SimulatorProcess& process,
                                               unsigned int& value);
/// [MoldThermalBoundaryType] "Flow": the heat transfer coefficient in filling, with a note such as
/// its unit.
QELG_API void set_process_HTC_Flow(QELG_SimulatorProcess& process, double value);
/// What `set_process_HTC_Flow` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_HTC_Flow(const QELG_SimulatorProcess& process, double& value);
/// [MoldThermalBoundaryType] "Pack": the heat transfer coefficient in packing, with a note such as
/// its unit.
QELG_API void set_process_HTC_Pack(QELG_SimulatorProcess& process, double value);
/// What `set_process_HTC_Pack` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_HTC_Pack(const QELG_SimulatorProcess& process, double& value);
/// [MoldThermalBoundaryType] "Detached_HTC": the heat transfer coefficient where the part has come
/// off the mold, with a note such as its unit.
QELG_API void set_process_HTC_Detached(QELG_SimulatorProcess& process, double value);
/// What `set_process_HTC_Detached` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_HTC_Detached(const QELG_SimulatorProcess& process, double& value);
/// [MoldThermalBoundaryType] "HotRunner_HTC": the heat transfer coefficient in the hot runner, with
/// a note such as its unit.
QELG_API void set_process_HTC_HotRunner(QELG_SimulatorProcess& process, double value);
/// What `set_process_HTC_HotRunner` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_HTC_HotRunner(const QELG_SimulatorProcess& process, double& value);
/// [MoldThermalBoundaryType] "UserMode": a code of the user's mode.
QELG_API void set_process_HTC_UserMode(QELG_SimulatorProcess& process, unsigned int value);
/// What `set_process_HTC_UserMode` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_HTC_UserMode(const QELG_SimulatorProcess& process, unsigned int& value);
/// [MoldThermalBoundaryType] "NuNum": the Nusselt number.
QELG_API void set_process_HTC_NuNum(QELG_SimulatorProcess& process, double value);
/// What `set_process_HTC_NuNum` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_HTC_NuNum(const QELG_SimulatorProcess& process, double& value);

// [Machine]: the injection molding machine.

/// [Machine] "Maker": the maker of the machine.
QELG_API void set_process_machine_Maker(QELG_SimulatorProcess& process, const char* value);
/// What `set_process_machine_Maker` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_Maker(const QELG_SimulatorProcess& process, const char*& value);
/// [Machine] "Grade": the grade of the machine: its model.
QELG_API void set_process_machine_Grade(QELG_SimulatorProcess& process, const char* value);
/// What `set_process_machine_Grade` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_Grade(const QELG_SimulatorProcess& process, const char*& value);
/// [Machine] "Remark": a remark about the machine.
QELG_API void set_process_machine_Remark(QELG_SimulatorProcess& process, const char* value);
/// What `set_process_machine_Remark` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_Remark(const QELG_SimulatorProcess& process, const char*& value);
/// [Machine] "Diameter": the diameter of the screw.
QELG_API void set_process_machine_Diameter(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_Diameter` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_Diameter(const QELG_SimulatorProcess& process, double& value);
/// [Machine] "MaxRamPos": the farthest position of the ram.
QELG_API void set_process_machine_MaxRamPos(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_MaxRamPos` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_MaxRamPos(const QELG_SimulatorProcess& process, double& value);
/// [Machine] "ShotVolume": the largest volume of a shot.
QELG_API void set_process_machine_ShotVolume(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_ShotVolume` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_ShotVolume(const QELG_SimulatorProcess& process, double& value);
/// [Machine] "Weight": the largest weight of a shot.
QELG_API void set_process_machine_Weight(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_Weight` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_Weight(const QELG_SimulatorProcess& process, double& value);
/// [Machine] "MaxMachinePres": the highest injection pressure of the machine.
QELG_API void set_process_machine_MaxMachinePres(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_MaxMachinePres` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_MaxMachinePres(const QELG_SimulatorProcess& process,
                                                 double& value);
/// [Machine] "FR": the highest flow rate of the machine.
QELG_API void set_process_machine_MaxFlowRate(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_MaxFlowRate` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_MaxFlowRate(const QELG_SimulatorProcess& process, double& value);
/// [Machine] "Size": the clamp force of the machine.
QELG_API void set_process_machine_ClampForce(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_ClampForce` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_ClampForce(const QELG_SimulatorProcess& process, double& value);
/// [Machine] "BarrelCompressionCtrl": a code: whether and how the compression of the melt in the
/// barrel counts.
QELG_API void set_process_machine_BarrelCompressionCtrl(QELG_SimulatorProcess& process,
                                                        unsigned int value);
/// What `set_process_machine_BarrelCompressionCtrl` stored; false, `value` untouched, while nothing
/// was.
QELG_API bool get_process_machine_BarrelCompressionCtrl(const QELG_SimulatorProcess& process,
                                                        unsigned int& value);
/// [Machine] "NozzleVolume": the volume of the nozzle.
QELG_API void set_process_machine_NozzleVolume(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_NozzleVolume` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_NozzleVolume(const QELG_SimulatorProcess& process, double& value);
/// [Machine] "MachineEnergyType": a code: what drives the machine.
QELG_API void set_process_machine_MachineEnergyType(QELG_SimulatorProcess& process,
                                                    unsigned int value);
/// What `set_process_machine_MachineEnergyType` stored; false, `value` untouched, while nothing
/// was.
QELG_API bool get_process_machine_MachineEnergyType(const QELG_SimulatorProcess& process,
                                                    unsigned int& value);
/// [Machine] "HydraulicPressureTransferFactor": the ratio of the injection pressure to the
/// hydraulic pressure (intensification).
QELG_API void set_process_machine_HydraulicPressureTransferFactor(QELG_SimulatorProcess& process,
                                                                  double value);
/// What `set_process_machine_HydraulicPressureTransferFactor` stored; false, `value` untouched,
/// while nothing was.
QELG_API bool get_process_machine_HydraulicPressureTransferFactor(
    const QELG_SimulatorProcess& process, double& value);
/// [Machine] "PITCHSIZE": the pitch of the screw.
QELG_API void set_process_machine_PITCHSIZE(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_PITCHSIZE` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_PITCHSIZE(const QELG_SimulatorProcess& process, double& value);
/// [Machine] "SCREWSPEED": the speed of the screw's rotation, beside "ScrewSpeed".
QELG_API void set_process_machine_SCREWSPEED(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_SCREWSPEED` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_SCREWSPEED(const QELG_SimulatorProcess& process, double& value);
/// [Machine] "SCREWDIAFEED": the screw diameter in the feed zone.
QELG_API void set_process_machine_SCREWDIAFEED(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_SCREWDIAFEED` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_SCREWDIAFEED(const QELG_SimulatorProcess& process, double& value);
/// [Machine] "SCREWDIATRANSITION": the screw diameter in the transition zone.
QELG_API void set_process_machine_SCREWDIATRANSITION(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_SCREWDIATRANSITION` stored; false, `value` untouched, while nothing
/// was.
QELG_API bool get_process_machine_SCREWDIATRANSITION(const QELG_SimulatorProcess& process,
                                                     double& value);
/// [Machine] "SCREWDIAMETERING": the screw diameter in the metering zone.
QELG_API void set_process_machine_SCREWDIAMETERING(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_SCREWDIAMETERING` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_SCREWDIAMETERING(const QELG_SimulatorProcess& process,
                                                   double& value);
/// [Machine] "CHANNELDEEPFEED": the channel depth in the feed zone.
QELG_API void set_process_machine_CHANNELDEEPFEED(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_CHANNELDEEPFEED` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_CHANNELDEEPFEED(const QELG_SimulatorProcess& process,
                                                  double& value);
/// [Machine] "CHANNELDEEPMETERING": the channel depth in the metering zone.
QELG_API void set_process_machine_CHANNELDEEPMETERING(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_CHANNELDEEPMETERING` stored; false, `value` untouched, while nothing
/// was.
QELG_API bool get_process_machine_CHANNELDEEPMETERING(const QELG_SimulatorProcess& process,
                                                      double& value);
/// [Machine] "SECTIONDEPFEED": the length of the feed zone.
QELG_API void set_process_machine_SECTIONDEPFEED(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_SECTIONDEPFEED` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_SECTIONDEPFEED(const QELG_SimulatorProcess& process,
                                                 double& value);
/// [Machine] "SECTIONDEPTRANSITION": the length of the transition zone.
QELG_API void set_process_machine_SECTIONDEPTRANSITION(QELG_SimulatorProcess& process,
                                                       double value);
/// What `set_process_machine_SECTIONDEPTRANSITION` stored; false, `value` untouched, while nothing
/// was.
QELG_API bool get_process_machine_SECTIONDEPTRANSITION(const QELG_SimulatorProcess& process,
                                                       double& value);
/// [Machine] "SECTIONDEPMETERING": the length of the metering zone.
QELG_API void set_process_machine_SECTIONDEPMETERING(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_SECTIONDEPMETERING` stored; false, `value` untouched, while nothing
/// was.
QELG_API bool get_process_machine_SECTIONDEPMETERING(const QELG_SimulatorProcess& process,
                                                     double& value);
/// [Machine] "NUMBERPITCHFEED": the number of pitches in the feed zone.
QELG_API void set_process_machine_NUMBERPITCHFEED(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_NUMBERPITCHFEED` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_NUMBERPITCHFEED(const QELG_SimulatorProcess& process,
                                                  double& value);
/// [Machine] "NUMBERPITCHTRANSITION": the number of pitches in the transition zone.
QELG_API void set_process_machine_NUMBERPITCHTRANSITION(QELG_SimulatorProcess& process,
                                                        double value);
/// What `set_process_machine_NUMBERPITCHTRANSITION` stored; false, `value` untouched, while nothing
/// was.
QELG_API bool get_process_machine_NUMBERPITCHTRANSITION(const QELG_SimulatorProcess& process,
                                                        double& value);
/// [Machine] "NUMBERPITCHMETERING": the number of pitches in the metering zone.
QELG_API void set_process_machine_NUMBERPITCHMETERING(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_NUMBERPITCHMETERING` stored; false, `value` untouched, while nothing
/// was.
QELG_API bool get_process_machine_NUMBERPITCHMETERING(const QELG_SimulatorProcess& process,
                                                      double& value);
/// [Machine] "NOZZLEDIAMETER": the diameter of the nozzle.
QELG_API void set_process_machine_NOZZLEDIAMETER(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_NOZZLEDIAMETER` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_NOZZLEDIAMETER(const QELG_SimulatorProcess& process,
                                                 double& value);
/// [Machine] "NOZZLELENGTH": the length of the nozzle.
QELG_API void set_process_machine_NOZZLELENGTH(QELG_SimulatorProcess& process, double value);
/// What `set_process_machine_NOZZLELENGTH` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_machine_NOZZLELENGTH(const QELG_SimulatorProcess& process, double& value);

// [RamPosition]: profiles over the stroke of the ram, and the switch-over from velocity to pressure
// control (V/P) by ram position.

/// [RamPosition] "SuckBack": how far the screw is pulled back after plastication, to relieve the
/// melt (suck-back).
QELG_API void set_process_SuckBack(QELG_SimulatorProcess& process, double value);
/// What `set_process_SuckBack` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_SuckBack(const QELG_SimulatorProcess& process, double& value);

// Items of one inlet.

// [FlowCTLInfo]: how many melt inlets the run has, and what controls each.

/// [FlowCTLInfo] "FlowCTL-%d]": the same two codes as the loader looks for them: the closing
/// bracket belongs to the key.
QELG_API void set_process_InletControlType(QELG_SimulatorFlowPackProcess& inlet,
                                           unsigned int value);
/// What `set_process_InletControlType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_InletControlType(const QELG_SimulatorFlowPackProcess& inlet,
                                           unsigned int& value);

// [Flow-%ld]: the filling stage of an inlet.

/// [Flow-%ld] "FillTime": the filling time, in sec. Or [Flow-%ld] "TransTime": the filling time of
/// transfer molding, in sec.
QELG_API void set_process_FillTime(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_FillTime` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FillTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "MeltTemp": the melt temperature, in oC. Or [Flow-%ld] "ResnTemp": the resin
/// temperature of transfer molding, in oC.
QELG_API void set_process_MeltTemp(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_MeltTemp` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_MeltTemp(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "MoldTemp": the mold temperature, in oC.
QELG_API void set_process_MoldTemp(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_MoldTemp` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_MoldTemp(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "InjectPres": the injection pressure, in MPa. Or [Flow-%ld] "TransPres": the pressure
/// of transfer molding, in MPa.
QELG_API void set_process_InjectPres(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_InjectPres` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_InjectPres(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "FRDisplayType": a code: how a front end shows the flow rate profile.
QELG_API void set_process_FRDisplayType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
/// What `set_process_FRDisplayType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FRDisplayType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
/// [Flow-%ld] "IPDisplayType": a code: how a front end shows the injection pressure profile.
QELG_API void set_process_IPDisplayType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
/// What `set_process_IPDisplayType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_IPDisplayType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
/// [Flow-%ld] "FRProfileType": a code: in which form the flow rate profile was entered.
QELG_API void set_process_FRProfileType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
/// What `set_process_FRProfileType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FRProfileType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
/// [Flow-%ld] "IPProfileType": a code: in which form the injection pressure profile was entered.
QELG_API void set_process_IPProfileType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
/// What `set_process_IPProfileType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_IPProfileType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
/// [Flow-%ld] "MaxFR": the limit of the flow rate, in cc/sec.
QELG_API void set_process_MaxFR(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_MaxFR` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_MaxFR(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "MaxFillingTime": the limit of the filling time, in sec. Or [Flow-%ld]
/// "MaxTransferTime": the limit of the filling time of transfer molding, in sec.
QELG_API void set_process_MaxFillingTime(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_MaxFillingTime` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_MaxFillingTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "FlowPackMode": a code of the mode of filling and packing.
QELG_API void set_process_FlowPackMode(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
/// What `set_process_FlowPackMode` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FlowPackMode(const QELG_SimulatorFlowPackProcess& inlet,
                                       unsigned int& value);
/// [Flow-%ld] "HotRunnerTemperatureDiff": how much the temperature of the hot runner differs from
/// the melt's, in oC.
QELG_API void set_process_HotRunnerTemperatureDiff(QELG_SimulatorFlowPackProcess& inlet,
                                                   double value);
/// What `set_process_HotRunnerTemperatureDiff` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_HotRunnerTemperatureDiff(const QELG_SimulatorFlowPackProcess& inlet,
                                                   double& value);
/// [Flow-%ld] "Material": the material that this inlet injects.
QELG_API void set_process_Material(QELG_SimulatorFlowPackProcess& inlet, const char* value);
/// What `set_process_Material` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_Material(const QELG_SimulatorFlowPackProcess& inlet, const char*& value);
/// [Flow-%ld] "CoreEnterType": a code: what makes the core material enter.
QELG_API void set_process_CoreEnterType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
/// What `set_process_CoreEnterType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_CoreEnterType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
/// [Flow-%ld] "CoreEnterSwch": the switch value at which the core material enters.
QELG_API void set_process_CoreEnterSwch(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_CoreEnterSwch` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_CoreEnterSwch(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "CoreEnterTime": the time at which the core material enters, in sec.
QELG_API void set_process_CoreEnterTime(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_CoreEnterTime` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_CoreEnterTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "FluidTemp": the temperature of the fluid that is injected after the melt, in oC.
QELG_API void set_process_FluidTemp(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_FluidTemp` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FluidTemp(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "FluidEnterType": a code: what makes the fluid enter.
QELG_API void set_process_FluidEnterType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
/// What `set_process_FluidEnterType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FluidEnterType(const QELG_SimulatorFlowPackProcess& inlet,
                                         unsigned int& value);
/// [Flow-%ld] "FluidEnterSwch": the switch value at which the fluid enters.
QELG_API void set_process_FluidEnterSwch(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_FluidEnterSwch` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FluidEnterSwch(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "FluidEnterTime": the time at which the fluid enters, in sec.
QELG_API void set_process_FluidEnterTime(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_FluidEnterTime` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FluidEnterTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "FluidDelayTime": how long the fluid waits, in sec.
QELG_API void set_process_FluidDelayTime(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_FluidDelayTime` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FluidDelayTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Flow-%ld] "InitConv": how far the resin's curing reaction has gone (its conversion) at the
/// start of filling.
QELG_API void set_process_InitConv(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_InitConv` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_InitConv(const QELG_SimulatorFlowPackProcess& inlet, double& value);

// [Pack-%d]: the packing stage of an inlet.

/// [Pack-%d] "PackTime": the packing time, in sec. Or [Cure-%d] "CureTime": the curing time, in
/// sec.
QELG_API void set_process_PackTime(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_PackTime` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_PackTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Pack-%d] "PackPres": the packing pressure, in MPa. Or [Cure-%d] "CurePres": the curing
/// pressure, in MPa.
QELG_API void set_process_PackPres(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_PackPres` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_PackPres(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Pack-%d] "PackSwch": the switch value at which packing takes over from filling. Or [Cure-%d]
/// "CureSwch": the switch value at which curing takes over from packing.
QELG_API void set_process_PackSwch(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_PackSwch` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_PackSwch(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Pack-%d] "MaxEOFRatio": the limit of the packing pressure, as a ratio to the pressure at the
/// end of filling.
QELG_API void set_process_MaxEOFRatio(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_MaxEOFRatio` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_MaxEOFRatio(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Pack-%d] "PPDisplayType": a code: how a front end shows the packing pressure profile. Or
/// [Cure-%d] "CPDisplayType": a code: how a front end shows the curing pressure profile.
QELG_API void set_process_PPDisplayType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
/// What `set_process_PPDisplayType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_PPDisplayType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
/// [Pack-%d] "PPProfileType": a code: in which form the packing pressure profile was entered. Or
/// [Cure-%d] "PPProfileType": a code: in which form the curing pressure profile was entered; the
/// key is the packing stage's.
QELG_API void set_process_PPProfileType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
/// What `set_process_PPProfileType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_PPProfileType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
/// [Pack-%d] "MaxPressSlop": the limit of the slope of the pressure.
QELG_API void set_process_MaxPressSlop(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_MaxPressSlop` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_MaxPressSlop(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Pack-%d] "Shutoff": a code: whether and how the inlet is shut off.
QELG_API void set_process_Shutoff(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
/// What `set_process_Shutoff` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_Shutoff(const QELG_SimulatorFlowPackProcess& inlet, unsigned int& value);
/// [Pack-%d] "MaterialType": a code of the kind of material.
QELG_API void set_process_MaterialType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
/// What `set_process_MaterialType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_MaterialType(const QELG_SimulatorFlowPackProcess& inlet,
                                       unsigned int& value);
/// [Pack-%d] "FluidPres": the pressure of the fluid, in MPa.
QELG_API void set_process_FluidPres(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_FluidPres` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FluidPres(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Pack-%d] "FluidMaxFR": the limit of the fluid's flow rate, in cc/sec.
QELG_API void set_process_FluidMaxFR(QELG_SimulatorFlowPackProcess& inlet, double value);
/// What `set_process_FluidMaxFR` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FluidMaxFR(const QELG_SimulatorFlowPackProcess& inlet, double& value);
/// [Pack-%d] "FluidProfileType": a code: in which form the fluid pressure profile was entered.
QELG_API void set_process_FluidProfileType(QELG_SimulatorFlowPackProcess& inlet,
                                           unsigned int value);
/// What `set_process_FluidProfileType` stored; false, `value` untouched, while nothing was.
QELG_API bool get_process_FluidProfileType(const QELG_SimulatorFlowPackProcess& inlet,
                                           unsigned int& value);

// clang-format on
