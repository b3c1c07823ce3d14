#pragma once

/// @file
/// The simulator's process object: what a molding simulation runs on.

#include <memory>

#include "QELG/data.h"
#include "QELG/export.h"
#include "QELG/items.h"

/// One melt inlet's flow control, filling, packing and curing.
///
/// Making one throws nothing. Where there is no memory for what it holds, setters store nothing,
/// and the lists to fill are null, until there is some.
class QELG_API QELG_SimulatorFlowPackProcess {
 public:
  QELG_SimulatorFlowPackProcess();
  QELG_SimulatorFlowPackProcess(const QELG_SimulatorFlowPackProcess&) = delete;
  QELG_SimulatorFlowPackProcess& operator=(const QELG_SimulatorFlowPackProcess&) = delete;
  virtual ~QELG_SimulatorFlowPackProcess();

  /// The flow rate profile, to fill: "FR-%d" of [Flow-%d].
  QELG_Profile* GetFlowRateProfile_mod();
  /// The injection pressure profile, to fill: "IP-%d", then "TP-%d" of [Flow-%d].
  QELG_Profile* GetInjectionPressureProfile_mod();
  /// The packing pressure profile, to fill: "PP-%d" of [Pack-%d], then "CP-%d" of [Cure-%d].
  QELG_Profile* GetPackingPressureProfile_mod();
  /// The fluid pressure profile, to fill: "Fluid-%d" of [Pack-%d].
  QELG_Profile* GetFluidPressureProfile_mod();
  /// The flow rate profile: "FR-%d" of [Flow-%d].
  const QELG_Profile* GetFlowRateProfile() const;
  /// The injection pressure profile: "IP-%d", then "TP-%d" of [Flow-%d].
  const QELG_Profile* GetInjectionPressureProfile() const;
  /// The packing pressure profile: "PP-%d" of [Pack-%d], then "CP-%d" of [Cure-%d].
  const QELG_Profile* GetPackingPressureProfile() const;
  /// The fluid pressure profile: "Fluid-%d" of [Pack-%d].
  const QELG_Profile* GetFluidPressureProfile() const;

  /// The time constants of the flow rate, to fill: "TimeConstFR-%d" of [Flow-%d].
  QELG_Array<double>* GetFlowRateTimeConstants_mod();
  /// The time constants of the injection pressure, to fill: "TimeConstIP-%d" of [Flow-%d].
  QELG_Array<double>* GetInjectionPressureTimeConstants_mod();
  /// The time constants of the packing pressure, to fill: "TimeConstPP-%d" of [Flow-%d].
  QELG_Array<double>* GetPackingPressureTimeConstants_mod();
  /// The time constants of the flow rate: "TimeConstFR-%d" of [Flow-%d].
  const QELG_Array<double>* GetFlowRateTimeConstants() const;
  /// The time constants of the injection pressure: "TimeConstIP-%d" of [Flow-%d].
  const QELG_Array<double>* GetInjectionPressureTimeConstants() const;
  /// The time constants of the packing pressure: "TimeConstPP-%d" of [Flow-%d].
  const QELG_Array<double>* GetPackingPressureTimeConstants() const;

  struct Data;
  /// What the object holds, which the library alone knows; items have setters and getters. Null
  /// where there is no memory for it, which is asked for again with each call.
  Data* data();
  /// The same, to look at.
  const Data* data() const { return data_.get(); }

 private:
  std::unique_ptr<Data> data_;
};

/// A whole run: its inlets, numbered from 0 here, the machine and what holds for all inlets.
///
/// Making one throws nothing. Where there is no memory for what it holds, setters store nothing,
/// and the lists to fill are null, until there is some.
class QELG_API QELG_SimulatorProcess {
 public:
  QELG_SimulatorProcess();
  QELG_SimulatorProcess(const QELG_SimulatorProcess&) = delete;
  QELG_SimulatorProcess& operator=(const QELG_SimulatorProcess&) = delete;
  virtual ~QELG_SimulatorProcess();

  /// So many inlets a process has at most.
  static constexpr unsigned int kMostInlets = 4096;

  /// Adds an inlet after the last one; the process owns it. Null once there are `kMostInlets`, and
  /// where there is no memory for it.
  QELG_SimulatorFlowPackProcess* AppendFlowPackProcess();
  /// How many inlets there are.
  unsigned int GetNumOfInlets() const;
  /// The inlet at an index from 0 on, to fill; null where there is none.
  QELG_SimulatorFlowPackProcess* GetFlowPackOfInlet_mod(unsigned int inlet);
  /// The inlet at an index from 0 on; null where there is none.
  const QELG_SimulatorFlowPackProcess* GetFlowPackOfInlet(unsigned int inlet) const;

  /// The ram positions of the flow rate profile, to fill: "RP_FR-%d" of [RamPosition].
  QELG_Array<double>* GetFlowRateRamPosition_mod();
  /// The ram positions of the injection pressure profile, to fill: "RP_IP-%d" of [RamPosition].
  QELG_Array<double>* GetInjectionPressureRamPosition_mod();
  /// The ram positions of the flow rate profile: "RP_FR-%d" of [RamPosition].
  const QELG_Array<double>* GetFlowRateRamPosition() const;
  /// The ram positions of the injection pressure profile: "RP_IP-%d" of [RamPosition].
  const QELG_Array<double>* GetInjectionPressureRamPosition() const;

  struct Data;
  /// What the object holds, which the library alone knows; items have setters and getters. Null
  /// where there is no memory for it, which is asked for again with each call.
  Data* data();
  /// The same, to look at.
  const Data* data() const { return data_.get(); }

 private:
  std::unique_ptr<Data> data_;
};
