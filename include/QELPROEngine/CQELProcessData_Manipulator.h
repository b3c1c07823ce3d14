#pragma once

#include "QELPROEngine/export.h"

class CQELPROReader_Manipulator;
class QELG_SimulatorProcess;
class QELG_SimulatorFlowPackProcess;

/// Turns a process file into the simulator's process object.
class QELPROENGINE_API CQELProcessData_Manipulator {
 public:
  CQELProcessData_Manipulator();
  /// A copy is ready for a load of its own.
  CQELProcessData_Manipulator(const CQELProcessData_Manipulator& other);
  /// Has no effect on either's next load.
  CQELProcessData_Manipulator& operator=(const CQELProcessData_Manipulator& other);
  ~CQELProcessData_Manipulator();

  /// A new process object, which the caller owns and deletes; null when the file cannot be read.
  ///
  /// The project type in [CaeHeader] says where the inlets come from: type 8 (co-injection) loads
  /// two inlets, both from [Flow-1-Skin] and [Pack-1-Skin]; type 11 two inlets from [Flow-EM1],
  /// [Pack-EM1] and [Flow-EM2], [Pack-EM2]; any other type as many as "TotalInlet" of [FlowCTLInfo]
  /// says (1 where it is missing), each from its [Flow-1], [Pack-1] and [Cure-1]. Values go over as
  /// they stand, without a change of unit. What the file does not hold stays unset.
  const QELG_SimulatorProcess* GetProcessDataStructure(const char* path);

  /// Lets go of a file that is still open.
  void Dispose();

 private:
  void LoadCAEHeader(QELG_SimulatorProcess& process);
  void LoadSummary(QELG_SimulatorProcess& process);
  void DetermineInletCount(QELG_SimulatorProcess& process);
  void LoadFlowCTLInfo(QELG_SimulatorFlowPackProcess& inlet, int number);
  void LoadFlowCTL(QELG_SimulatorProcess& process);
  void LoadFlow(QELG_SimulatorFlowPackProcess& inlet, char* section);
  void LoadPack(QELG_SimulatorFlowPackProcess& inlet, char* section);
  void LoadCure(QELG_SimulatorFlowPackProcess& inlet, char* section);
  void MoldThermalBoundaryType(QELG_SimulatorProcess& process);
  void LoadMachine(QELG_SimulatorProcess& process);
  void LoadRamposition(QELG_SimulatorProcess& process);
  void LoadInlets(QELG_SimulatorProcess& process);

  CQELPROReader_Manipulator* reader_ = nullptr;
};
