#include "blocks/cure_x.h"
#include "api/forward.h"

// [Cure-%d]

using namespace qel;
using namespace qel::cure_x;

bool CQELPROReader_Manipulator::CureX_ReadCureTime(double& value, int inlet) {
  return read(session_, &Session::cure_x, kCureTime, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCurePressure(double& value, int inlet) {
  return read(session_, &Session::cure_x, kCurePres, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCureTemperature(double& value, int inlet) {
  return read(session_, &Session::cure_x, kCureTemp, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCureSwitch(double& value, int inlet) {
  return read(session_, &Session::cure_x, kCureSwch, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCPDisplayType(int& value, int inlet) {
  return read(session_, &Session::cure_x, kCPDisplayType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCPProfileType(int& value, int inlet) {
  return read(session_, &Session::cure_x, kPPProfileType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCPSection(int& value, int inlet) {
  return read(session_, &Session::cure_x, kCPSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCPProfile(double& x, double& y, int point, int inlet) {
  return read(session_, &Session::cure_x, kCPPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::CureX_ReadUserCPSection(int& value, int inlet) {
  return read(session_, &Session::cure_x, kUserCPSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadUserCPProfile(double& x, double& y, int point,
                                                        int inlet) {
  return read(session_, &Session::cure_x, kUserCPPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::CureX_ReadCTDisplayType(int& value, int inlet) {
  return read(session_, &Session::cure_x, kCTDisplayType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCTProfileType(int& value, int inlet) {
  return read(session_, &Session::cure_x, kCTProfileType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCTSection(int& value, int inlet) {
  return read(session_, &Session::cure_x, kCTSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCTProfile(double& x, double& y, int point, int inlet) {
  return read(session_, &Session::cure_x, kCTPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::CureX_ReadUserCTSection(int& value, int inlet) {
  return read(session_, &Session::cure_x, kUserCTSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadUserCTProfile(double& x, double& y, int point,
                                                        int inlet) {
  return read(session_, &Session::cure_x, kUserCTPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::CureX_WriteCureTime(double value, int inlet) {
  return write(session_, &Session::cure_x, kCureTime, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCurePressure(double value, int inlet) {
  return write(session_, &Session::cure_x, kCurePres, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCureSwitch(double value, int inlet) {
  return write(session_, &Session::cure_x, kCureSwch, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCPDisplayType(int value, int inlet) {
  return write(session_, &Session::cure_x, kCPDisplayType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCPProfileType(int value, int inlet) {
  return write(session_, &Session::cure_x, kPPProfileType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCPSection(int value, int inlet) {
  return write(session_, &Session::cure_x, kCPSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCPProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::cure_x, kCPPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::CureX_WriteUserCPSection(int value, int inlet) {
  return write(session_, &Session::cure_x, kUserCPSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteUserCPProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::cure_x, kUserCPPoint, at_point(point, inlet), x, y);
}
