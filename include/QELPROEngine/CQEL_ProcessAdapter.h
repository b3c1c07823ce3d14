#pragma once

#include "QELPROEngine/constant_text.h"
#include "QELPROEngine/export.h"

class CQELPROWriter_Manipulator;

/// Writes the gate and cooling data of a process file in a few calls. One adapter serves one file
/// in its life.
///
/// Every member that writes yields false before a file was set. A text is read during the call
/// alone, and never changed. Copies share the file.
class QELPROENGINE_API CQEL_ProcessAdapter {
 public:
  /// An adapter without a file: set one before anything else.
  CQEL_ProcessAdapter();
  /// A copy shares the file.
  CQEL_ProcessAdapter(const CQEL_ProcessAdapter& other);
  /// Shares the other's file, and lets go of its own.
  CQEL_ProcessAdapter& operator=(const CQEL_ProcessAdapter& other);
  ~CQEL_ProcessAdapter();

  /// Opens the file for writing, and creates it where it is missing. A second path is refused, also
  /// after a first one that failed. The text is not copied: `GetMaterialTemperature` opens it
  /// again.
  bool SetProcessPath(const char* path);
  /// Closes the file; call it before the adapter goes.
  void EndFile();

  // These yield true once a file is set, whatever became of the writing.

  /// "TotalGateCTL" of [Summary]: the number of valve gates.
  bool SetGateCount(int n);
  /// "ST-%d" and "ET-%d" of [GateCTL]: the start and end time of a gate, in sec.
  bool SetGateCTL_Time(double start, double end, int gate);
  /// "GCSet" of [GateValve-%d]: the number of control points of a valve gate.
  bool SetGateValveX_ControlPoint(int count, int valve);
  /// "GC-%d" of [GateValve-%d], a control point of a valve gate, as the writer's
  /// GateValveX_WriteGateSetting with as many arguments; the flag is written as 0 or 1.
  bool SetGateValveX_GateSetting(double value, bool flag, int mode, int point, int valve);

  // These yield whether the entry was written.

  /// "GC-%d" of [GateValve-%d], a control point of a valve gate, as the writer's
  /// GateValveX_WriteGateSetting with as many arguments; the flag is written as 0 or 1.
  bool SetGateValveX_GateSetting(double value, bool flag, int mode, int last, int point, int valve);
  /// "T-%d" of [CoolCTL]: the coolant temperature at an entrance, in oC.
  bool SetCoolCTL_WriteCoolantTemperature(double value, int entrance);
  /// "F-%d" of [CoolCTL]: the coolant flow rate at an entrance, in cc/sec.
  bool SetCoolCTL_WriteCoolantFlowRate(double value, int entrance);
  /// "M-%d" of [CoolCTL]: the coolant system of an entrance.
  bool SetCoolCTL_WriteCoolantSystem(int value, int entrance);
  /// "P-%d" of [CoolCTL]: the coolant pressure at an entrance, in MPa, from a whole number.
  bool SetCoolCTL_WroteCoolantPressure(int value, int entrance);
  /// "%d" of [Coolant], a coolant's line: four properties (density, specific heat, thermal
  /// conductivity, viscosity), the coolant system, the name, the channel's diameter and group. The
  /// name is written as it is given; its reader takes one word.
  bool SetCoolant_WriteCoolant(double p1, double p2, double p3, double p4, int system, char* name,
                               double f7, int f8, int coolant);
  /// [Coolant] "%d", from a name that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetCoolant_WriteCoolant(double p1, double p2, double p3, double p4,
                                                int system, Char* name, double f7, int f8,
                                                int coolant) {
    return SetCoolant_WriteCoolant(p1, p2, p3, p4, system, const_cast<char*>(name), f7, f8,
                                   coolant);
  }
  /// "Diameter" of [CoolChannel-%d]: the diameter of a channel.
  bool SetCoolChannelX_WriteDiameter(double value, int channel);
  /// "GroupID" of [CoolChannel-%d]: the group that a channel belongs to.
  bool SetCoolChannelX_WriteGroupID(int value, int channel);
  /// "TimeSet" of [CoolChannel-%d]: the number of control points of a channel.
  bool SetCoolChannelX_WriteTimeSection(int value, int channel);
  /// "TCP-%d" of [CoolChannel-%d]: a control point by flow rate, whatever "ControlType" of [Cool]
  /// says.
  bool SetCoolChannelX_WriteControlPointSetting(double f1, int system, double temperature,
                                                double flow, int f5, int point, int channel);
  /// "TCPP-%d" of [CoolChannel-%d]: a control point by pressure, whatever "ControlType" of [Cool]
  /// says.
  bool SetCoolChannelX_WritePressureControlPointSetting(double f1, int system, double temperature,
                                                        double pressure, int f5, int point,
                                                        int channel);

  /// Everything of one cooling channel: "T-%d", "F-%d" and "M-%d" of [CoolCTL], the line "%d" of
  /// [Coolant], "Diameter", "GroupID" and "TimeSet" of [CoolChannel-%d], and its first control
  /// point, under "TCPP-%d" where `use_pressure` is not 0, otherwise under "TCP-%d". True once a
  /// file is set, whatever became of the writing.
  bool SetCoolingChannelData(int channel, int group, double diameter, int time_set,
                             double temperature, double flow_rate, int system, double pressure,
                             double point_time, int point_flag, double prop1, double prop2,
                             double prop3, double prop4, char* name, int use_pressure);
  /// The same member, from a name that is constant, such as a literal.
  template <class Char>
  qel::IfConstant<Char> SetCoolingChannelData(int channel, int group, double diameter, int time_set,
                                              double temperature, double flow_rate, int system,
                                              double pressure, double point_time, int point_flag,
                                              double prop1, double prop2, double prop3,
                                              double prop4, Char* name, int use_pressure) {
    return SetCoolingChannelData(channel, group, diameter, time_set, temperature, flow_rate, system,
                                 pressure, point_time, point_flag, prop1, prop2, prop3, prop4,
                                 const_cast<char*>(name), use_pressure);
  }

  /// The properties of a coolant: density (g/cm^3), specific heat (erg/(g K)), thermal conductivity
  /// (erg/(s cm K)), viscosity (poise). Kinds 0 and 2 are water, 1 an oil; any other kind sets all
  /// but the third to 0, and leaves that one alone.
  void GetMaterialDefaultValue(int kind, double& p1, double& p2, double& p3, double& p4);
  /// "MoldTemperature" and "MeltTemperature" of [FlowCTL], in oC. An output keeps its value where
  /// the file has none.
  void GetMaterialTemperature(double& mold, double& melt);

 private:
  CQELPROWriter_Manipulator* writer_ = nullptr;
  const char* path_ = nullptr;
};
