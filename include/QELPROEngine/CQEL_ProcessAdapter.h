#pragma once

#include "QELPROEngine/export.h"

class CQELPROWriter_Manipulator;

/// Writes the gate and cooling data of a process file in a few calls. One adapter serves one file in its life.
///
/// Every member that writes yields false before a file was set. Copies share the file.
class QELPROENGINE_API CQEL_ProcessAdapter {
 public:
  CQEL_ProcessAdapter();
  CQEL_ProcessAdapter(const CQEL_ProcessAdapter& other);
  CQEL_ProcessAdapter& operator=(const CQEL_ProcessAdapter& other);
  ~CQEL_ProcessAdapter();

  /// Opens the file for writing, and creates it where it is missing. A second path is refused, also after a first one that
  /// failed.
  bool SetProcessPath(const char* path);
  /// Closes the file; call it before the adapter goes.
  void EndFile();

  // These yield true once a file is set, whatever became of the writing.

  /// "TotalGateCTL" of [Summary].
  bool SetGateCount(int n);
  /// "ST-%d" and "ET-%d" of [GateCTL]: the start and end time of a gate, in sec.
  bool SetGateCTL_Time(double start, double end, int gate);
  /// "GCSet" of [GateValve-%d].
  bool SetGateValveX_ControlPoint(int count, int valve);
  /// "GC-%d" of [GateValve-%d], as the writer's GateValveX_WriteGateSetting with as many arguments.
  bool SetGateValveX_GateSetting(double value, bool flag, int mode, int point, int valve);

  // These yield whether the entry was written.

  /// "GC-%d" of [GateValve-%d], as the writer's GateValveX_WriteGateSetting with as many arguments.
  bool SetGateValveX_GateSetting(double value, bool flag, int mode, int last, int point, int valve);
  /// "T-%d" of [CoolCTL].
  bool SetCoolCTL_WriteCoolantTemperature(double value, int entrance);
  /// "F-%d" of [CoolCTL].
  bool SetCoolCTL_WriteCoolantFlowRate(double value, int entrance);
  /// "M-%d" of [CoolCTL].
  bool SetCoolCTL_WriteCoolantSystem(int value, int entrance);
  /// "P-%d" of [CoolCTL], from a whole number.
  bool SetCoolCTL_WroteCoolantPressure(int value, int entrance);
  /// A line of [Coolant]: four properties, the coolant system, the name, a real, an integer.
  bool SetCoolant_WriteCoolant(double p1, double p2, double p3, double p4, int system, char* name, double f7, int f8, int coolant);
  /// "Diameter" of [CoolChannel-%d].
  bool SetCoolChannelX_WriteDiameter(double value, int channel);
  /// "GroupID" of [CoolChannel-%d].
  bool SetCoolChannelX_WriteGroupID(int value, int channel);
  /// "TimeSet" of [CoolChannel-%d].
  bool SetCoolChannelX_WriteTimeSection(int value, int channel);
  /// "TCP-%d" of [CoolChannel-%d].
  bool SetCoolChannelX_WriteControlPointSetting(double f1, int system, double temperature, double flow, int f5, int point, int channel);
  /// "TCPP-%d" of [CoolChannel-%d].
  bool SetCoolChannelX_WritePressureControlPointSetting(double f1, int system, double temperature, double pressure, int f5, int point, int channel);

  /// Everything of one cooling channel: "T-%d", "F-%d" and "M-%d" of [CoolCTL], the line of [Coolant], "Diameter",
  /// "GroupID" and "TimeSet" of [CoolChannel-%d], and its first control point, under "TCPP-1" where `use_pressure` is not 0,
  /// otherwise under "TCP-1". True once a file is set, whatever became of the writing.
  bool SetCoolingChannelData(int channel, int group, double diameter, int time_set, double temperature, double flow_rate, int system, double pressure,
                             double point_time, int point_flag, double prop1, double prop2, double prop3, double prop4, char* name, int use_pressure);

  /// The properties of a coolant: density (g/cm^3), specific heat (erg/(g K)), thermal conductivity (erg/(s cm K)), viscosity
  /// (poise). Kinds 0 and 2 are water, 1 an oil; any other kind sets all but the third to 0, and leaves that one alone.
  void GetMaterialDefaultValue(int kind, double& p1, double& p2, double& p3, double& p4);
  /// "MoldTemperature" and "MeltTemperature" of [FlowCTL], in oC. An output keeps its value where the file has none.
  void GetMaterialTemperature(double& mold, double& melt);

 private:
  CQELPROWriter_Manipulator* writer_ = nullptr;
  const char* path_ = nullptr;
};
