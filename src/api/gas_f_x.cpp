#include "blocks/gas_f_x.h"
#include "api/forward.h"

// [GasF-%d]

using namespace qel;
using namespace qel::gas_f_x;

bool CQELPROReader_Manipulator::GasFX_ReadGasTime(double& value, int inlet) {
  return read(session_, &Session::gas_f_x, kGasTime, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGasPressure(double& value, int inlet) {
  return read(session_, &Session::gas_f_x, kGasPres, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGasSwitch(double& value, int inlet) {
  return read(session_, &Session::gas_f_x, kGasSwch, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadDelayTime(double& value, int inlet) {
  return read(session_, &Session::gas_f_x, kDelayTime, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGRDisplayType(int& value, int inlet) {
  return read(session_, &Session::gas_f_x, kGRDisplayType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGRProfileType(int& value, int inlet) {
  return read(session_, &Session::gas_f_x, kGRProfileType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGPDisplayType(int& value, int inlet) {
  return read(session_, &Session::gas_f_x, kGPDisplayType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGPProfileType(int& value, int inlet) {
  return read(session_, &Session::gas_f_x, kGPProfileType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGRSection(int& value, int inlet) {
  return read(session_, &Session::gas_f_x, kGRSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadUserGRSection(int& value, int inlet) {
  return read(session_, &Session::gas_f_x, kGRSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGRProfile(double& x, double& y, int point, int inlet) {
  return read(session_, &Session::gas_f_x, kGRPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::GasFX_ReadUserGRProfile(double& x, double& y, int point,
                                                        int inlet) {
  return read(session_, &Session::gas_f_x, kGRPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::GasFX_ReadGPSection(int& value, int inlet) {
  return read(session_, &Session::gas_f_x, kGPSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadUserGPSection(int& value, int inlet) {
  return read(session_, &Session::gas_f_x, kGPSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGPProfile(double& x, double& y, int point, int inlet) {
  return read(session_, &Session::gas_f_x, kGPPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::GasFX_ReadUserGPProfile(double& x, double& y, int point,
                                                        int inlet) {
  return read(session_, &Session::gas_f_x, kGPPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGasTime(double value, int inlet) {
  return write(session_, &Session::gas_f_x, kGasTime, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGasPressure(double value, int inlet) {
  return write(session_, &Session::gas_f_x, kGasPres, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGasSwitch(double value, int inlet) {
  return write(session_, &Session::gas_f_x, kGasSwch, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteDelayTime(double value, int inlet) {
  return write(session_, &Session::gas_f_x, kDelayTime, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGRDisplayType(int value, int inlet) {
  return write(session_, &Session::gas_f_x, kGRDisplayType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGRProfileType(int value, int inlet) {
  return write(session_, &Session::gas_f_x, kGRProfileType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGPDisplayType(int value, int inlet) {
  return write(session_, &Session::gas_f_x, kGPDisplayType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGPProfileType(int value, int inlet) {
  return write(session_, &Session::gas_f_x, kGPProfileType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGRSection(int value, int inlet) {
  return write(session_, &Session::gas_f_x, kGRSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGRProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::gas_f_x, kGRPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGPSection(int value, int inlet) {
  return write(session_, &Session::gas_f_x, kGPSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGPProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::gas_f_x, kGPPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::GasFX_WriteUserGRSection(int value, int inlet) {
  return write(session_, &Session::gas_f_x, kUserGRSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteUserGRProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::gas_f_x, kUserGRPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::GasFX_WriteUserGPSection(int value, int inlet) {
  return write(session_, &Session::gas_f_x, kUserGPSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteUserGPProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::gas_f_x, kUSerGPPoint, at_point(point, inlet), x, y);
}
