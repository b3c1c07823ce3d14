#include "blocks/pack_x.h"
#include "api/forward.h"

// [Pack-%d]

using namespace qel;
using namespace qel::pack_x;

bool CQELPROReader_Manipulator::PackX_ReadPackTime(double& value, int inlet) {
  return read(session_, &Session::pack_x, kPackTime, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPackPressure(double& value, int inlet) {
  return read(session_, &Session::pack_x, kPackPres, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPackSwitch(double& value, int inlet) {
  return read(session_, &Session::pack_x, kPackSwch, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadIgnoreLimitation(int& value, int inlet) {
  return read(session_, &Session::pack_x, kIgnoreLimitation, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadMaxEOFRatio(double& value, int inlet) {
  return read(session_, &Session::pack_x, kMaxEOFRatio, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPPDisplayType(int& value, int inlet) {
  return read(session_, &Session::pack_x, kPPDisplayType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPPProfileType(int& value, int inlet) {
  return read(session_, &Session::pack_x, kPPProfileType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPPSection(int& value, int inlet) {
  return read(session_, &Session::pack_x, kPPSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPPProfile(double& x, double& y, int point, int inlet) {
  return read(session_, &Session::pack_x, kPPPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::PackX_ReadUserPPSection(int& value, int inlet) {
  return read(session_, &Session::pack_x, kUserPPSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadUserPPProfile(double& x, double& y, int point,
                                                        int inlet) {
  return read(session_, &Session::pack_x, kUserPPPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::PackX_WritePackTime(double value, int inlet) {
  return write(session_, &Session::pack_x, kPackTime, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePackPressure(double value, int inlet) {
  return write(session_, &Session::pack_x, kPackPres, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePackSwitch(double value, int inlet) {
  return write(session_, &Session::pack_x, kPackSwch, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WriteIgnoreLimitation(int value, int inlet) {
  return write(session_, &Session::pack_x, kIgnoreLimitation, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WriteMaxEOFRatio(double value, int inlet) {
  return write(session_, &Session::pack_x, kMaxEOFRatio, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePPDisplayType(int value, int inlet) {
  return write(session_, &Session::pack_x, kPPDisplayType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePPProfileType(int value, int inlet) {
  return write(session_, &Session::pack_x, kPPProfileType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePPSection(int value, int inlet) {
  return write(session_, &Session::pack_x, kPPSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePPProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::pack_x, kPPPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::PackX_WriteUserPPSection(int value, int inlet) {
  return write(session_, &Session::pack_x, kUserPPSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WriteUserPPProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::pack_x, kUserPPPoint, at_point(point, inlet), x, y);
}
