#include "blocks/cool_ctl.h"
#include "api/forward.h"

// [CoolCTL]

using namespace qel;
using namespace qel::cool_ctl;

bool CQELPROReader_Manipulator::CoolCTL_ReadCoolantTemperature(double& value, int entrance) {
  return read(session_, &Session::cool_ctl, kT, at_point(entrance), value);
}

bool CQELPROReader_Manipulator::CoolCTL_ReadCoolantFlowRate(double& value, int entrance) {
  return read(session_, &Session::cool_ctl, kF, at_point(entrance), value);
}

bool CQELPROReader_Manipulator::CoolCTL_ReadCoolantPressure(double& value, int entrance) {
  return read(session_, &Session::cool_ctl, kP, at_point(entrance), value);
}

bool CQELPROReader_Manipulator::CoolCTL_ReadCoolantSystem(int& value, int entrance) {
  return read(session_, &Session::cool_ctl, kM, at_point(entrance), value);
}

bool CQELPROWriter_Manipulator::CoolCTL_WriteCoolantTemperature(double value, int entrance) {
  return write(session_, &Session::cool_ctl, kT, at_point(entrance), value);
}

bool CQELPROWriter_Manipulator::CoolCTL_WriteCoolantFlowRate(double value, int entrance) {
  return write(session_, &Session::cool_ctl, kF, at_point(entrance), value);
}

bool CQELPROWriter_Manipulator::CoolCTL_WroteCoolantPressure(double value, int entrance) {
  return write(session_, &Session::cool_ctl, kP, at_point(entrance), value);
}

bool CQELPROWriter_Manipulator::CoolCTL_WriteCoolantSystem(int value, int entrance) {
  return write(session_, &Session::cool_ctl, kM, at_point(entrance), value);
}
