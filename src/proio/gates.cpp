#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// [GateCTL]

bool CPROIO_Manipulator::GetValveGateStartTime(int gate, double& value) {
  return Get(gate_ctl::kStartTime.at(gate), value);
}
bool CPROIO_Manipulator::SetValveGateStartTime(int gate, double value) {
  return Set(gate_ctl::kStartTime.at(gate), value);
}
bool CPROIO_Manipulator::GetValveGateEndTime(int gate, double& value) {
  return Get(gate_ctl::kEndTime.at(gate), value);
}
bool CPROIO_Manipulator::SetValveGateEndTime(int gate, double value) {
  return Set(gate_ctl::kEndTime.at(gate), value);
}

// [GateValve-%d]

bool CPROIO_Manipulator::GetValveGateControlNo(int gate, int& value) {
  return Get(gate_valve::kControlNo.in(gate), value);
}
bool CPROIO_Manipulator::SetValveGateControlNo(int gate, int value) {
  return Set(gate_valve::kControlNo.in(gate), value);
}
bool CPROIO_Manipulator::GetValveGateTimeSwitch(int gate, double& time, int& flag) {
  return Get(gate_valve::kControlRow.in(gate).at(gate), time, flag);
}
bool CPROIO_Manipulator::SetValveGateTimeSwitch(int gate, double time, int flag) {
  return Set(gate_valve::kControlRow.in(gate).at(gate), time, flag);
}
bool CPROIO_Manipulator::GetValveGateControlData(int gate, int row, double& value, int& second,
                                                 int& mode, int& fourth) {
  return Get(gate_valve::kControlRow.in(gate).at(row), value, second, mode, fourth);
}
bool CPROIO_Manipulator::SetValveGateControlData(int gate, int row, double value, int second,
                                                 int mode, int fourth) {
  const Row entry = gate_valve::kControlRow.in(gate).at(row);
  const bool has_fourth = mode == 2 || mode == 3;
  return has_fourth ? Set(entry, value, second, mode, fourth) : Set(entry, value, second, mode);
}

// [OFGateValve-%d]

bool CPROIO_Manipulator::GetOverFlowControlNo(int gate, int& value) {
  return Get(overflow::kControlNo.in(gate), value);
}
bool CPROIO_Manipulator::GetOverFlowTimeSwitch(int gate, double& time, int& flag) {
  return Get(overflow::kControlRow.in(gate).at(gate), time, flag);
}
bool CPROIO_Manipulator::GetOverFlowControlData(int gate, int row, double& value, int& second,
                                                int& mode, int& fourth) {
  return Get(overflow::kControlRow.in(gate).at(row), value, second, mode, fourth);
}
