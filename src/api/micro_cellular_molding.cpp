#include "blocks/micro_cellular_molding.h"
#include "api/forward.h"

// [MicrocellularMolding]

using namespace qel;
using namespace qel::micro_cellular_molding;

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadFoamDurationTime(double& value) {
  return read(session_, &Session::micro_cellular_molding, kFoamDurationTime, {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadStartFoamingType(int& value) {
  return read(session_, &Session::micro_cellular_molding, kStartFoamingType, {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadVolumeFilled(double& value) {
  return read(session_, &Session::micro_cellular_molding, kVolumeFilled, {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadPreInjectedVolume(double& value) {
  return read(session_, &Session::micro_cellular_molding, kPreInjectedVolume, {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadInitialGasConcentrationType(int& value) {
  return read(session_, &Session::micro_cellular_molding, kInitialGasConcentrationType, {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadGasDosageAmount(double& value) {
  return read(session_, &Session::micro_cellular_molding, kGasDosageAmount, {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadGasSaturationPressure(double& value) {
  return read(session_, &Session::micro_cellular_molding, kGasSaturationPressure, {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadNozzleShutoff(int& value) {
  return read(session_, &Session::micro_cellular_molding, kNozzleShutoff, {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadAdvancedType(int& value) {
  return read(session_, &Session::micro_cellular_molding, kAdvancedType, {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadRamPosition(double& value) {
  return read(session_, &Session::micro_cellular_molding, kRamPosition, {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadPartWeight(double& value) {
  return read(session_, &Session::micro_cellular_molding, kPartWeight, {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteFoamDurationTime(double value) {
  return write(session_, &Session::micro_cellular_molding, kFoamDurationTime, {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteStartFoamingType(int value) {
  return write(session_, &Session::micro_cellular_molding, kStartFoamingType, {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteVolumeFilled(double value) {
  return write(session_, &Session::micro_cellular_molding, kVolumeFilled, {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WritePreInjectedVolume(double value) {
  return write(session_, &Session::micro_cellular_molding, kPreInjectedVolume, {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteInitialGasConcentrationType(int value) {
  return write(session_, &Session::micro_cellular_molding, kInitialGasConcentrationType, {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteGasDosageAmount(double value) {
  return write(session_, &Session::micro_cellular_molding, kGasDosageAmount, {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteGasSaturationPressure(double value) {
  return write(session_, &Session::micro_cellular_molding, kGasSaturationPressure, {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteNozzleShutoff(int value) {
  return write(session_, &Session::micro_cellular_molding, kNozzleShutoff, {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteAdvancedType(int value) {
  return write(session_, &Session::micro_cellular_molding, kAdvancedType, {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteRamPosition(double value) {
  return write(session_, &Session::micro_cellular_molding, kRamPosition, {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WritePartWeight(double value) {
  return write(session_, &Session::micro_cellular_molding, kPartWeight, {}, value);
}
