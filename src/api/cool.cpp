#include "blocks/cool.h"
#include "api/forward.h"

// [Cool]

using namespace qel;
using namespace qel::cool;

bool CQELPROReader_Manipulator::Cool_ReadCoolTime(double& value) {
  return read(session_, &Session::cool, kCoolTime, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadMoldOpenTime(double& value) {
  return read(session_, &Session::cool, kOpenTime, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadEjectTemperature(double& value) {
  return read(session_, &Session::cool, kEjectTemp, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadAirTemperature(double& value) {
  return read(session_, &Session::cool, kAirTemp, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadInitMoldTemperature(double& value) {
  return read(session_, &Session::cool, kInitialMoldbaseTemperature, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadCoolantTemperature(double& value) {
  return read(session_, &Session::cool, kCoolantTemp, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadCoolantFlowRate(double& value) {
  return read(session_, &Session::cool, kCoolantFR, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadCoolingType(int& value) {
  return read(session_, &Session::cool, kCoolingType, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadControlType(int& value) {
  return read(session_, &Session::cool, kControlType, {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteCoolTime(double value) {
  return write(session_, &Session::cool, kCoolTime, {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteMoldOpenTime(double value) {
  return write(session_, &Session::cool, kOpenTime, {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteEjectTemperature(double value) {
  return write(session_, &Session::cool, kEjectTemp, {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteAirTemperature(double value) {
  return write(session_, &Session::cool, kAirTemp, {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteInitMoldTemperature(double value) {
  return write(session_, &Session::cool, kInitialMoldbaseTemperature, {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteCoolantTemperature(double value) {
  return write(session_, &Session::cool, kCoolantTemp, {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteCoolantFlowRate(double value) {
  return write(session_, &Session::cool, kCoolantFR, {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteCoolingType(int value) {
  return write(session_, &Session::cool, kCoolingType, {}, value);
}
