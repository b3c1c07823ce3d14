#pragma once

/// The simulator's process object: what a molding simulation runs on.

#include <memory>

#include "QELG/data.h"
#include "QELG/export.h"
#include "QELG/items.h"

/// One melt inlet's flow control, filling, packing and curing.
class QELG_API QELG_SimulatorFlowPackProcess {
 public:
  QELG_SimulatorFlowPackProcess();
  QELG_SimulatorFlowPackProcess(const QELG_SimulatorFlowPackProcess&) = delete;
  QELG_SimulatorFlowPackProcess& operator=(const QELG_SimulatorFlowPackProcess&) = delete;
  virtual ~QELG_SimulatorFlowPackProcess();

  QELG_Profile* GetFlowRateProfile_mod();
  QELG_Profile* GetInjectionPressureProfile_mod();
  QELG_Profile* GetPackingPressureProfile_mod();
  QELG_Profile* GetFluidPressureProfile_mod();
  const QELG_Profile* GetFlowRateProfile() const;
  const QELG_Profile* GetInjectionPressureProfile() const;
  const QELG_Profile* GetPackingPressureProfile() const;
  const QELG_Profile* GetFluidPressureProfile() const;

  QELG_Array<double>* GetFlowRateTimeConstants_mod();
  QELG_Array<double>* GetInjectionPressureTimeConstants_mod();
  QELG_Array<double>* GetPackingPressureTimeConstants_mod();
  const QELG_Array<double>* GetFlowRateTimeConstants() const;
  const QELG_Array<double>* GetInjectionPressureTimeConstants() const;
  const QELG_Array<double>* GetPackingPressureTimeConstants() const;

  struct Data;
  Data& data() { return *data_; }
  const Data& data() const { return *data_; }

 private:
  std::unique_ptr<Data> data_;
};

/// A whole run: its inlets, numbered from 0 here, the machine and what holds for all inlets.
class QELG_API QELG_SimulatorProcess {
 public:
  QELG_SimulatorProcess();
  QELG_SimulatorProcess(const QELG_SimulatorProcess&) = delete;
  QELG_SimulatorProcess& operator=(const QELG_SimulatorProcess&) = delete;
  virtual ~QELG_SimulatorProcess();

  static constexpr unsigned int kMostInlets = 4096;

  /// Adds an inlet after the last one; the process owns it. Null once there are `kMostInlets`.
  QELG_SimulatorFlowPackProcess* AppendFlowPackProcess();
  unsigned int GetNumOfInlets() const;
  /// Null for an inlet that does not exist.
  QELG_SimulatorFlowPackProcess* GetFlowPackOfInlet_mod(unsigned int inlet);
  const QELG_SimulatorFlowPackProcess* GetFlowPackOfInlet(unsigned int inlet) const;

  QELG_Array<double>* GetFlowRateRamPosition_mod();
  QELG_Array<double>* GetInjectionPressureRamPosition_mod();
  const QELG_Array<double>* GetFlowRateRamPosition() const;
  const QELG_Array<double>* GetInjectionPressureRamPosition() const;

  struct Data;
  Data& data() { return *data_; }
  const Data& data() const { return *data_; }

 private:
  std::unique_ptr<Data> data_;
};
