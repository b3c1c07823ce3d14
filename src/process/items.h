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
    {cae_header::kFlagUNF.text, set_process_FlagUNF},
    {cae_header::kFlagEncapsulationCM.text, set_process_FlagEncapsulationCM},
};

// [Summary]
inline constexpr Item<QELG_SimulatorProcess> kSummary[] = {
    {summary::kTotalNodeEM.text, set_process_TotalNodeEM},
    {summary::kTotalNodeEC.text, set_process_TotalNodeEC},
    {summary::kTotalGateCTL.text, set_process_TotalGateCTL},
    {summary::kTotalNodeMB.text, set_process_TotalNodeMB},
    {summary::kTotalNodeBC.text, set_process_TotalNodeBC},
    {summary::kTotalNodeMMM.text, set_process_TotalNodeMMM},
    {summary::kSymVolRatio.text, set_process_SymVolRatio},
    {summary::kTotalNodeHR.text, set_process_TotalNodeHR},
    {summary::kTotalSTLNodeEC.text, set_process_TotalSTLNodeEC},
    {summary::kTotalSTLNodeHR.text, set_process_TotalSTLNodeHR},
    {summary::kTotalGrpCCL.text, set_process_TotalGrpCCL},
    {summary::kTotalGrpCCS.text, set_process_TotalGrpCCS},
    {summary::kTotalOverFlowCTL.text, set_process_TotalOverFlowCTL},
    {summary::kIsTransientInletConv.text, set_process_IsTransientInletConv},
};

// [FlowCTL]
inline constexpr Item<QELG_SimulatorProcess> kFlowCTL[] = {
    {flow_ctl::kFlowCtrl.text, set_process_FlowCtrl},
    {flow_ctl::kVPSwitchCtrl.text, set_process_VPSwitchCtrl},
    {flow_ctl::kPackingCtrl.text, set_process_PackingCtrl},
    {flow_ctl::kMoldTemperature.text, set_process_MoldTemperature},
    {flow_ctl::kMeltTemperature.text, set_process_MeltTemperature},
    {flow_ctl::kInjectionTime.text, set_process_InjectionTime},
    {flow_ctl::kVolumeFilled.text, set_process_VolumeFilled},
    {flow_ctl::kRamPosition.text, set_process_RamPosition},
    {flow_ctl::kInjectionPressure.text, set_process_InjectionPressure},
    {flow_ctl::kCureEnterType.text, set_process_CureEnterType},
    {flow_ctl::kCureEnterSwch.text, set_process_CureEnterSwch},
    {flow_ctl::kCureEnterTime.text, set_process_CureEnterTime},
};

// [MoldThermalBoundaryType]
inline constexpr Item<QELG_SimulatorProcess> kMoldThermalBoundaryType[] = {
    {mold_thermal_boundary_type::kType.text, set_process_HTC_HeatTransferType},
    {mold_thermal_boundary_type::kFlow.text, set_process_HTC_Flow},
    {mold_thermal_boundary_type::kPack.text, set_process_HTC_Pack},
    {mold_thermal_boundary_type::kDetached_HTC.text, set_process_HTC_Detached},
    {mold_thermal_boundary_type::kHotRunner_HTC.text, set_process_HTC_HotRunner},
    {mold_thermal_boundary_type::kUserMode.text, set_process_HTC_UserMode},
    {mold_thermal_boundary_type::kNuNum.text, set_process_HTC_NuNum},
};

// [Machine]
inline constexpr Item<QELG_SimulatorProcess> kMachine[] = {
    {machine::kMaker.text, set_process_machine_Maker},
    {machine::kGrade.text, set_process_machine_Grade},
    {machine::kRemark.text, set_process_machine_Remark},
    {machine::kDiameter.text, set_process_machine_Diameter},
    {machine::kMaxRamPos.text, set_process_machine_MaxRamPos},
    {machine::kShotVolume.text, set_process_machine_ShotVolume},
    {machine::kWeight.text, set_process_machine_Weight},
    {machine::kMaxMachinePres.text, set_process_machine_MaxMachinePres},
    {machine::kFR.text, set_process_machine_MaxFlowRate},
    {machine::kSize.text, set_process_machine_ClampForce},
    {machine::kBarrelCompressionCtrl.text, set_process_machine_BarrelCompressionCtrl},
    {machine::kNozzleVolume.text, set_process_machine_NozzleVolume},
    {machine::kMachineEnergyType.text, set_process_machine_MachineEnergyType},
    {machine::kHydraulicPressureTransferFactor.text,
     set_process_machine_HydraulicPressureTransferFactor},
    {machine::kPITCHSIZE.text, set_process_machine_PITCHSIZE},
    {machine::kSCREWSPEED.text, set_process_machine_SCREWSPEED},
    {machine::kSCREWDIAFEED.text, set_process_machine_SCREWDIAFEED},
    {machine::kSCREWDIATRANSITION.text, set_process_machine_SCREWDIATRANSITION},
    {machine::kSCREWDIAMETERING.text, set_process_machine_SCREWDIAMETERING},
    {machine::kCHANNELDEEPFEED.text, set_process_machine_CHANNELDEEPFEED},
    {machine::kCHANNELDEEPMETERING.text, set_process_machine_CHANNELDEEPMETERING},
    {machine::kSECTIONDEPFEED.text, set_process_machine_SECTIONDEPFEED},
    {machine::kSECTIONDEPTRANSITION.text, set_process_machine_SECTIONDEPTRANSITION},
    {machine::kSECTIONDEPMETERING.text, set_process_machine_SECTIONDEPMETERING},
    {machine::kNUMBERPITCHFEED.text, set_process_machine_NUMBERPITCHFEED},
    {machine::kNUMBERPITCHTRANSITION.text, set_process_machine_NUMBERPITCHTRANSITION},
    {machine::kNUMBERPITCHMETERING.text, set_process_machine_NUMBERPITCHMETERING},
    {machine::kNOZZLEDIAMETER.text, set_process_machine_NOZZLEDIAMETER},
    {machine::kNOZZLELENGTH.text, set_process_machine_NOZZLELENGTH},
};

// [RamPosition]
inline constexpr Item<QELG_SimulatorProcess> kRamPosition[] = {
    {ram_position::kSuckBack.text, set_process_SuckBack},
};

// A filling section; the last four are the names of transfer molding.
inline constexpr Item<QELG_SimulatorFlowPackProcess> kFlow[] = {
    {flow_x::kFillTime.text, set_process_FillTime},
    {flow_x::kMeltTemp.text, set_process_MeltTemp},
    {flow_x::kMoldTemp.text, set_process_MoldTemp},
    {flow_x::kInjectPres.text, set_process_InjectPres},
    {flow_x::kFRDisplayType.text, set_process_FRDisplayType},
    {flow_x::kIPDisplayType.text, set_process_IPDisplayType},
    {flow_x::kFRProfileType.text, set_process_FRProfileType},
    {flow_x::kIPProfileType.text, set_process_IPProfileType},
    {flow_x::kMaxFR.text, set_process_MaxFR},
    {flow_x::kMaxFillingTime.text, set_process_MaxFillingTime},
    {flow_x::kFlowPackMode.text, set_process_FlowPackMode},
    {flow_x::kHotRunnerTemperatureDiff.text, set_process_HotRunnerTemperatureDiff},
    {flow_x::kMaterial.text, set_process_Material},
    {flow_x::kCoreEnterType.text, set_process_CoreEnterType},
    {flow_x::kCoreEnterSwch.text, set_process_CoreEnterSwch},
    {flow_x::kCoreEnterTime.text, set_process_CoreEnterTime},
    {flow_x::kFluidTemp.text, set_process_FluidTemp},
    {flow_x::kFluidEnterType.text, set_process_FluidEnterType},
    {flow_x::kFluidEnterSwch.text, set_process_FluidEnterSwch},
    {flow_x::kFluidEnterTime.text, set_process_FluidEnterTime},
    {flow_x::kFluidDelayTime.text, set_process_FluidDelayTime},
    {flow_x::kInitConv.text, set_process_InitConv},
    {flow_x::kTransTime.text, set_process_FillTime},
    {flow_x::kResnTemp.text, set_process_MeltTemp},
    {flow_x::kTransPres.text, set_process_InjectPres},
    {flow_x::kMaxTransferTime.text, set_process_MaxFillingTime},
};

// A packing section
inline constexpr Item<QELG_SimulatorFlowPackProcess> kPack[] = {
    {pack_x::kPackTime.text, set_process_PackTime},
    {pack_x::kPackPres.text, set_process_PackPres},
    {pack_x::kPackSwch.text, set_process_PackSwch},
    {pack_x::kMaxEOFRatio.text, set_process_MaxEOFRatio},
    {pack_x::kPPDisplayType.text, set_process_PPDisplayType},
    {pack_x::kPPProfileType.text, set_process_PPProfileType},
    {pack_x::kMaxPressSlop.text, set_process_MaxPressSlop},
    {pack_x::kShutoff.text, set_process_Shutoff},
    {pack_x::kMaterialType.text, set_process_MaterialType},
    {pack_x::kFluidPres.text, set_process_FluidPres},
    {pack_x::kFluidMaxFR.text, set_process_FluidMaxFR},
    {pack_x::kFluidProfileType.text, set_process_FluidProfileType},
};

// A curing section; it feeds the setters of packing, and its profile type stands under the key of
// packing.
inline constexpr Item<QELG_SimulatorFlowPackProcess> kCure[] = {
    {cure_x::kCureTime.text, set_process_PackTime},
    {cure_x::kCurePres.text, set_process_PackPres},
    {cure_x::kCureSwch.text, set_process_PackSwch},
    {cure_x::kCPDisplayType.text, set_process_PPDisplayType},
    {cure_x::kPPProfileType.text, set_process_PPProfileType},
};

}  // namespace qel::loading
