#pragma once

#include <variant>
#include <vector>

#include "QELG/QELG.h"

/// Every item of the simulator's process object, with its setter and getter.
namespace qelpro_test {

template <class Object, class Value>
struct Accessors {
  void (*set)(Object&, Value);
  bool (*get)(const Object&, Value&);
};

template <class Object>
struct ProcessItem {
  const char* name;
  std::variant<Accessors<Object, unsigned int>, Accessors<Object, double>,
               Accessors<Object, const char*>>
      access;
};

template <class Object, class Value>
ProcessItem<Object> process_item(const char* name, void (*set)(Object&, Value),
                                 bool (*get)(const Object&, Value&)) {
  return {name, Accessors<Object, Value>{set, get}};
}

#define QELPRO_ITEM(name) process_item(#name, set_process_##name, get_process_##name)

inline const std::vector<ProcessItem<QELG_SimulatorProcess>>& process_items() {
  static const std::vector<ProcessItem<QELG_SimulatorProcess>> items = {
      QELPRO_ITEM(ProjectType),
      QELPRO_ITEM(FlagUNF),
      QELPRO_ITEM(FlagEncapsulationCM),
      QELPRO_ITEM(TotalNodeEM),
      QELPRO_ITEM(TotalNodeEC),
      QELPRO_ITEM(TotalGateCTL),
      QELPRO_ITEM(TotalNodeMB),
      QELPRO_ITEM(TotalNodeBC),
      QELPRO_ITEM(TotalNodeMMM),
      QELPRO_ITEM(SymVolRatio),
      QELPRO_ITEM(TotalNodeHR),
      QELPRO_ITEM(TotalSTLNodeEC),
      QELPRO_ITEM(TotalSTLNodeHR),
      QELPRO_ITEM(TotalGrpCCL),
      QELPRO_ITEM(TotalGrpCCS),
      QELPRO_ITEM(TotalOverFlowCTL),
      QELPRO_ITEM(IsTransientInletConv),
      QELPRO_ITEM(FlowCtrl),
      QELPRO_ITEM(VPSwitchCtrl),
      QELPRO_ITEM(PackingCtrl),
      QELPRO_ITEM(MoldTemperature),
      QELPRO_ITEM(MeltTemperature),
      QELPRO_ITEM(InjectionTime),
      QELPRO_ITEM(VolumeFilled),
      QELPRO_ITEM(RamPosition),
      QELPRO_ITEM(InjectionPressure),
      QELPRO_ITEM(CureEnterType),
      QELPRO_ITEM(CureEnterSwch),
      QELPRO_ITEM(CureEnterTime),
      QELPRO_ITEM(HTC_HeatTransferType),
      QELPRO_ITEM(HTC_Flow),
      QELPRO_ITEM(HTC_Pack),
      QELPRO_ITEM(HTC_Detached),
      QELPRO_ITEM(HTC_HotRunner),
      QELPRO_ITEM(HTC_UserMode),
      QELPRO_ITEM(HTC_NuNum),
      QELPRO_ITEM(machine_Maker),
      QELPRO_ITEM(machine_Grade),
      QELPRO_ITEM(machine_Remark),
      QELPRO_ITEM(machine_Diameter),
      QELPRO_ITEM(machine_MaxRamPos),
      QELPRO_ITEM(machine_ShotVolume),
      QELPRO_ITEM(machine_Weight),
      QELPRO_ITEM(machine_MaxMachinePres),
      QELPRO_ITEM(machine_MaxFlowRate),
      QELPRO_ITEM(machine_ClampForce),
      QELPRO_ITEM(machine_BarrelCompressionCtrl),
      QELPRO_ITEM(machine_NozzleVolume),
      QELPRO_ITEM(machine_MachineEnergyType),
      QELPRO_ITEM(machine_HydraulicPressureTransferFactor),
      QELPRO_ITEM(machine_PITCHSIZE),
      QELPRO_ITEM(machine_SCREWSPEED),
      QELPRO_ITEM(machine_SCREWDIAFEED),
      QELPRO_ITEM(machine_SCREWDIATRANSITION),
      QELPRO_ITEM(machine_SCREWDIAMETERING),
      QELPRO_ITEM(machine_CHANNELDEEPFEED),
      QELPRO_ITEM(machine_CHANNELDEEPMETERING),
      QELPRO_ITEM(machine_SECTIONDEPFEED),
      QELPRO_ITEM(machine_SECTIONDEPTRANSITION),
      QELPRO_ITEM(machine_SECTIONDEPMETERING),
      QELPRO_ITEM(machine_NUMBERPITCHFEED),
      QELPRO_ITEM(machine_NUMBERPITCHTRANSITION),
      QELPRO_ITEM(machine_NUMBERPITCHMETERING),
      QELPRO_ITEM(machine_NOZZLEDIAMETER),
      QELPRO_ITEM(machine_NOZZLELENGTH),
      QELPRO_ITEM(SuckBack),
  };
  return items;
}

inline const std::vector<ProcessItem<QELG_SimulatorFlowPackProcess>>& inlet_items() {
  static const std::vector<ProcessItem<QELG_SimulatorFlowPackProcess>> items = {
      QELPRO_ITEM(InletControlType),
      QELPRO_ITEM(FillTime),
      QELPRO_ITEM(MeltTemp),
      QELPRO_ITEM(MoldTemp),
      QELPRO_ITEM(InjectPres),
      QELPRO_ITEM(FRDisplayType),
      QELPRO_ITEM(IPDisplayType),
      QELPRO_ITEM(FRProfileType),
      QELPRO_ITEM(IPProfileType),
      QELPRO_ITEM(MaxFR),
      QELPRO_ITEM(MaxFillingTime),
      QELPRO_ITEM(FlowPackMode),
      QELPRO_ITEM(HotRunnerTemperatureDiff),
      QELPRO_ITEM(Material),
      QELPRO_ITEM(CoreEnterType),
      QELPRO_ITEM(CoreEnterSwch),
      QELPRO_ITEM(CoreEnterTime),
      QELPRO_ITEM(FluidTemp),
      QELPRO_ITEM(FluidEnterType),
      QELPRO_ITEM(FluidEnterSwch),
      QELPRO_ITEM(FluidEnterTime),
      QELPRO_ITEM(FluidDelayTime),
      QELPRO_ITEM(InitConv),
      QELPRO_ITEM(PackTime),
      QELPRO_ITEM(PackPres),
      QELPRO_ITEM(PackSwch),
      QELPRO_ITEM(MaxEOFRatio),
      QELPRO_ITEM(PPDisplayType),
      QELPRO_ITEM(PPProfileType),
      QELPRO_ITEM(MaxPressSlop),
      QELPRO_ITEM(Shutoff),
      QELPRO_ITEM(MaterialType),
      QELPRO_ITEM(FluidPres),
      QELPRO_ITEM(FluidMaxFR),
      QELPRO_ITEM(FluidProfileType),
  };
  return items;
}

#undef QELPRO_ITEM

}  // namespace qelpro_test
