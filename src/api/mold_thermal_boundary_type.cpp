#include "blocks/mold_thermal_boundary_type.h"
#include "api/forward.h"

// [MoldThermalBoundaryType]

using namespace qel;
using namespace qel::mold_thermal_boundary_type;

bool CQELPROReader_Manipulator::MoldTemperatureBoundaryType_ReadHTCType(int& value) {
  return read(session_, &Session::mold_thermal_boundary_type, kType, {}, value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBoundaryType_ReadHTCFlow(double& value) {
  return read(session_, &Session::mold_thermal_boundary_type, kFlow, {}, value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBoundaryType_ReadHTCPack(double& value) {
  return read(session_, &Session::mold_thermal_boundary_type, kPack, {}, value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBoundaryType_ReadHTCDetached(double& value) {
  return read(session_, &Session::mold_thermal_boundary_type, kDetached_HTC, {}, value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBoundaryType_ReadHTCHotRunner(double& value) {
  return read(session_, &Session::mold_thermal_boundary_type, kHotRunner_HTC, {}, value);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBoundaryType_WriteHTCType(int value) {
  return write(session_, &Session::mold_thermal_boundary_type, kType, {}, value);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBoundaryType_WriteHTCFlow(double value, char* note) {
  return write(session_, &Session::mold_thermal_boundary_type, kFlow, {}, value, note);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBoundaryType_WriteHTCPack(double value, char* note) {
  return write(session_, &Session::mold_thermal_boundary_type, kPack, {}, value, note);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBoundaryType_WriteHTCDetached(double value,
                                                                             char* note) {
  return write(session_, &Session::mold_thermal_boundary_type, kDetached_HTC, {}, value, note);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBoundaryType_WriteHTCHotRunner(double value,
                                                                              char* note) {
  return write(session_, &Session::mold_thermal_boundary_type, kHotRunner_HTC, {}, value, note);
}
