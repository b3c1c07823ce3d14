#include "blocks/gate_valve_x.h"
#include "api/forward.h"

// [GateValve-%d]

using namespace qel;
using namespace qel::gate_valve_x;

bool CQELPROReader_Manipulator::GeteValveX_ReadValveGateID(int& value, int valve) {
  return read(session_, &Session::gate_valve_x, kGCId, in_section(valve), value);
}

bool CQELPROReader_Manipulator::GateValveX_ReadControlPoint(int& value, int valve) {
  return read(session_, &Session::gate_valve_x, kGCSet, in_section(valve), value);
}

bool CQELPROReader_Manipulator::GateValveX_ReadGateSetting(double& value, int& number, int& mode,
                                                           int& last, int point, int valve) {
  return read(session_, &Session::gate_valve_x, kGCPoint, at_point(point, valve), value, number,
              mode, last);
}

bool CQELPROReader_Manipulator::GateValveX_ReadGateSetting(double& value, int& number, int& mode,
                                                           int point, int valve) {
  return read(session_, &Session::gate_valve_x, kGCPointShort, at_point(point, valve), value,
              number, mode);
}

bool CQELPROWriter_Manipulator::GateValveX_WriteGateValveID(int value, int valve) {
  return write(session_, &Session::gate_valve_x, kGCId, in_section(valve), value);
}

bool CQELPROWriter_Manipulator::GateValveX_WriteControlPoint(int value, int valve) {
  return write(session_, &Session::gate_valve_x, kGCSet, in_section(valve), value);
}

bool CQELPROWriter_Manipulator::GateValveX_WriteGateSetting(double value, int number, int mode,
                                                            int point, int valve) {
  return session_ != nullptr && attempt([&] {
           return is_done(session_->gate_valve_x.WriteGateSetting(
               GatePointShort::print(value, number, mode), point, valve));
         });
}

bool CQELPROWriter_Manipulator::GateValveX_WriteGateSetting(double value, int number, int mode,
                                                            int last, int point, int valve) {
  return session_ != nullptr && attempt([&] {
           return is_done(session_->gate_valve_x.WriteGateSetting(
               GatePoint::print(value, number, mode, last), point, valve));
         });
}

bool CQELPROWriter_Manipulator::GateValveX_WriteGateSettingByValveGateID(double value, int number,
                                                                         int mode, int point,
                                                                         int id) {
  return session_ != nullptr && attempt([&] {
           return is_done(session_->gate_valve_x.WriteGateSettingByValveGateID(
               GatePointShort::print(value, number, mode), point, id));
         });
}

bool CQELPROWriter_Manipulator::GateValveX_WriteGateSettingByValveGateID(double value, int number,
                                                                         int mode, int last,
                                                                         int point, int id) {
  return session_ != nullptr && attempt([&] {
           return is_done(session_->gate_valve_x.WriteGateSettingByValveGateID(
               GatePoint::print(value, number, mode, last), point, id));
         });
}
