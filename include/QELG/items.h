#pragma once

/// The items of a simulator process: what each setter stores, its getter gives back. A getter
/// yields false, and leaves its output alone, while the item was never set. Texts are copied when
/// they are set; a text that a getter hands out lives until the item is set again or its object
/// goes. A null text is not stored. Values are in the units of the process file.

#include "QELG/export.h"

class QELG_SimulatorProcess;
class QELG_SimulatorFlowPackProcess;

// Items of the whole process.

// [CaeHeader]
QELG_API void set_process_ProjectType(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_ProjectType(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_FlagUNF(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_FlagUNF(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_FlagEncapsulationCM(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_FlagEncapsulationCM(const QELG_SimulatorProcess& process,
                                              unsigned int& value);

// [Summary]
QELG_API void set_process_TotalNodeEM(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalNodeEM(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_TotalNodeEC(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalNodeEC(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_TotalGateCTL(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalGateCTL(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_TotalNodeMB(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalNodeMB(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_TotalNodeBC(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalNodeBC(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_TotalNodeMMM(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalNodeMMM(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_SymVolRatio(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_SymVolRatio(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_TotalNodeHR(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalNodeHR(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_TotalSTLNodeEC(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalSTLNodeEC(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_TotalSTLNodeHR(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalSTLNodeHR(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_TotalGrpCCL(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalGrpCCL(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_TotalGrpCCS(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalGrpCCS(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_TotalOverFlowCTL(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_TotalOverFlowCTL(const QELG_SimulatorProcess& process,
                                           unsigned int& value);
QELG_API void set_process_IsTransientInletConv(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_IsTransientInletConv(const QELG_SimulatorProcess& process,
                                               unsigned int& value);

// [FlowCTL]
QELG_API void set_process_FlowCtrl(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_FlowCtrl(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_VPSwitchCtrl(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_VPSwitchCtrl(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_PackingCtrl(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_PackingCtrl(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_MoldTemperature(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_MoldTemperature(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_MeltTemperature(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_MeltTemperature(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_InjectionTime(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_InjectionTime(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_VolumeFilled(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_VolumeFilled(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_RamPosition(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_RamPosition(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_InjectionPressure(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_InjectionPressure(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_CureEnterType(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_CureEnterType(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_CureEnterSwch(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_CureEnterSwch(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_CureEnterTime(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_CureEnterTime(const QELG_SimulatorProcess& process, double& value);

// Heat transfer, [MoldThermalBoundaryType]
QELG_API void set_process_HTC_HeatTransferType(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_HTC_HeatTransferType(const QELG_SimulatorProcess& process,
                                               unsigned int& value);
QELG_API void set_process_HTC_Flow(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_HTC_Flow(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_HTC_Pack(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_HTC_Pack(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_HTC_Detached(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_HTC_Detached(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_HTC_HotRunner(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_HTC_HotRunner(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_HTC_UserMode(QELG_SimulatorProcess& process, unsigned int value);
QELG_API bool get_process_HTC_UserMode(const QELG_SimulatorProcess& process, unsigned int& value);
QELG_API void set_process_HTC_NuNum(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_HTC_NuNum(const QELG_SimulatorProcess& process, double& value);

// The machine, [Machine]
QELG_API void set_process_machine_Maker(QELG_SimulatorProcess& process, const char* value);
QELG_API bool get_process_machine_Maker(const QELG_SimulatorProcess& process, const char*& value);
QELG_API void set_process_machine_Grade(QELG_SimulatorProcess& process, const char* value);
QELG_API bool get_process_machine_Grade(const QELG_SimulatorProcess& process, const char*& value);
QELG_API void set_process_machine_Remark(QELG_SimulatorProcess& process, const char* value);
QELG_API bool get_process_machine_Remark(const QELG_SimulatorProcess& process, const char*& value);
QELG_API void set_process_machine_Diameter(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_Diameter(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_machine_MaxRamPos(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_MaxRamPos(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_machine_ShotVolume(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_ShotVolume(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_machine_Weight(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_Weight(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_machine_MaxMachinePres(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_MaxMachinePres(const QELG_SimulatorProcess& process,
                                                 double& value);
QELG_API void set_process_machine_MaxFlowRate(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_MaxFlowRate(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_machine_ClampForce(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_ClampForce(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_machine_BarrelCompressionCtrl(QELG_SimulatorProcess& process,
                                                        unsigned int value);
QELG_API bool get_process_machine_BarrelCompressionCtrl(const QELG_SimulatorProcess& process,
                                                        unsigned int& value);
QELG_API void set_process_machine_NozzleVolume(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_NozzleVolume(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_machine_MachineEnergyType(QELG_SimulatorProcess& process,
                                                    unsigned int value);
QELG_API bool get_process_machine_MachineEnergyType(const QELG_SimulatorProcess& process,
                                                    unsigned int& value);
QELG_API void set_process_machine_HydraulicPressureTransferFactor(QELG_SimulatorProcess& process,
                                                                  double value);
QELG_API bool get_process_machine_HydraulicPressureTransferFactor(
    const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_machine_PITCHSIZE(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_PITCHSIZE(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_machine_SCREWSPEED(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_SCREWSPEED(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_machine_SCREWDIAFEED(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_SCREWDIAFEED(const QELG_SimulatorProcess& process, double& value);
QELG_API void set_process_machine_SCREWDIATRANSITION(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_SCREWDIATRANSITION(const QELG_SimulatorProcess& process,
                                                     double& value);
QELG_API void set_process_machine_SCREWDIAMETERING(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_SCREWDIAMETERING(const QELG_SimulatorProcess& process,
                                                   double& value);
QELG_API void set_process_machine_CHANNELDEEPFEED(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_CHANNELDEEPFEED(const QELG_SimulatorProcess& process,
                                                  double& value);
QELG_API void set_process_machine_CHANNELDEEPMETERING(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_CHANNELDEEPMETERING(const QELG_SimulatorProcess& process,
                                                      double& value);
QELG_API void set_process_machine_SECTIONDEPFEED(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_SECTIONDEPFEED(const QELG_SimulatorProcess& process,
                                                 double& value);
QELG_API void set_process_machine_SECTIONDEPTRANSITION(QELG_SimulatorProcess& process,
                                                       double value);
QELG_API bool get_process_machine_SECTIONDEPTRANSITION(const QELG_SimulatorProcess& process,
                                                       double& value);
QELG_API void set_process_machine_SECTIONDEPMETERING(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_SECTIONDEPMETERING(const QELG_SimulatorProcess& process,
                                                     double& value);
QELG_API void set_process_machine_NUMBERPITCHFEED(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_NUMBERPITCHFEED(const QELG_SimulatorProcess& process,
                                                  double& value);
QELG_API void set_process_machine_NUMBERPITCHTRANSITION(QELG_SimulatorProcess& process,
                                                        double value);
QELG_API bool get_process_machine_NUMBERPITCHTRANSITION(const QELG_SimulatorProcess& process,
                                                        double& value);
QELG_API void set_process_machine_NUMBERPITCHMETERING(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_NUMBERPITCHMETERING(const QELG_SimulatorProcess& process,
                                                      double& value);
QELG_API void set_process_machine_NOZZLEDIAMETER(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_NOZZLEDIAMETER(const QELG_SimulatorProcess& process,
                                                 double& value);
QELG_API void set_process_machine_NOZZLELENGTH(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_machine_NOZZLELENGTH(const QELG_SimulatorProcess& process, double& value);

// [RamPosition]
QELG_API void set_process_SuckBack(QELG_SimulatorProcess& process, double value);
QELG_API bool get_process_SuckBack(const QELG_SimulatorProcess& process, double& value);

// Items of one inlet.

// Flow control of the inlet, [FlowCTLInfo]
QELG_API void set_process_InletControlType(QELG_SimulatorFlowPackProcess& inlet,
                                           unsigned int value);
QELG_API bool get_process_InletControlType(const QELG_SimulatorFlowPackProcess& inlet,
                                           unsigned int& value);

// Filling, [Flow-1]
QELG_API void set_process_FillTime(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_FillTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_MeltTemp(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_MeltTemp(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_MoldTemp(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_MoldTemp(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_InjectPres(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_InjectPres(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_FRDisplayType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
QELG_API bool get_process_FRDisplayType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
QELG_API void set_process_IPDisplayType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
QELG_API bool get_process_IPDisplayType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
QELG_API void set_process_FRProfileType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
QELG_API bool get_process_FRProfileType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
QELG_API void set_process_IPProfileType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
QELG_API bool get_process_IPProfileType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
QELG_API void set_process_MaxFR(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_MaxFR(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_MaxFillingTime(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_MaxFillingTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_FlowPackMode(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
QELG_API bool get_process_FlowPackMode(const QELG_SimulatorFlowPackProcess& inlet,
                                       unsigned int& value);
QELG_API void set_process_HotRunnerTemperatureDiff(QELG_SimulatorFlowPackProcess& inlet,
                                                   double value);
QELG_API bool get_process_HotRunnerTemperatureDiff(const QELG_SimulatorFlowPackProcess& inlet,
                                                   double& value);
QELG_API void set_process_Material(QELG_SimulatorFlowPackProcess& inlet, const char* value);
QELG_API bool get_process_Material(const QELG_SimulatorFlowPackProcess& inlet, const char*& value);
QELG_API void set_process_CoreEnterType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
QELG_API bool get_process_CoreEnterType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
QELG_API void set_process_CoreEnterSwch(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_CoreEnterSwch(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_CoreEnterTime(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_CoreEnterTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_FluidTemp(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_FluidTemp(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_FluidEnterType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
QELG_API bool get_process_FluidEnterType(const QELG_SimulatorFlowPackProcess& inlet,
                                         unsigned int& value);
QELG_API void set_process_FluidEnterSwch(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_FluidEnterSwch(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_FluidEnterTime(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_FluidEnterTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_FluidDelayTime(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_FluidDelayTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_InitConv(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_InitConv(const QELG_SimulatorFlowPackProcess& inlet, double& value);

// Packing and curing, [Pack-1] and [Cure-1]
QELG_API void set_process_PackTime(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_PackTime(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_PackPres(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_PackPres(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_PackSwch(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_PackSwch(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_MaxEOFRatio(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_MaxEOFRatio(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_PPDisplayType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
QELG_API bool get_process_PPDisplayType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
QELG_API void set_process_PPProfileType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
QELG_API bool get_process_PPProfileType(const QELG_SimulatorFlowPackProcess& inlet,
                                        unsigned int& value);
QELG_API void set_process_MaxPressSlop(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_MaxPressSlop(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_Shutoff(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
QELG_API bool get_process_Shutoff(const QELG_SimulatorFlowPackProcess& inlet, unsigned int& value);
QELG_API void set_process_MaterialType(QELG_SimulatorFlowPackProcess& inlet, unsigned int value);
QELG_API bool get_process_MaterialType(const QELG_SimulatorFlowPackProcess& inlet,
                                       unsigned int& value);
QELG_API void set_process_FluidPres(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_FluidPres(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_FluidMaxFR(QELG_SimulatorFlowPackProcess& inlet, double value);
QELG_API bool get_process_FluidMaxFR(const QELG_SimulatorFlowPackProcess& inlet, double& value);
QELG_API void set_process_FluidProfileType(QELG_SimulatorFlowPackProcess& inlet,
                                           unsigned int value);
QELG_API bool get_process_FluidProfileType(const QELG_SimulatorFlowPackProcess& inlet,
                                           unsigned int& value);
