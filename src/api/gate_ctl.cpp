#include "blocks/gate_ctl.h"
#include "api/forward.h"

// [GateCTL]

using namespace qel;
using namespace qel::gate_ctl;

bool CQELPROReader_Manipulator::GateCTL_ReadAutoShutOffValveGateEOP(int& value) {
  return read(session_, &Session::gate_ctl, kAutoShutOffValveGateEOP, {}, value);
}

bool CQELPROReader_Manipulator::GateCTL_ReadStartTime(double& value, int gate) {
  return read(session_, &Session::gate_ctl, kST, at_point(gate), value);
}

bool CQELPROReader_Manipulator::GateCTL_ReadEndTime(double& value, int gate) {
  return read(session_, &Session::gate_ctl, kET, at_point(gate), value);
}

bool CQELPROWriter_Manipulator::GateCTL_WriteStartTime(double value, int gate) {
  return write(session_, &Session::gate_ctl, kST, at_point(gate), value);
}

bool CQELPROWriter_Manipulator::GateCTL_WriteEndTime(double value, int gate) {
  return write(session_, &Session::gate_ctl, kET, at_point(gate), value);
}
