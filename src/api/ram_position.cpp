#include "blocks/ram_position.h"
#include "api/forward.h"

// [RamPosition]

using namespace qel;
using namespace qel::ram_position;

bool CQELPROReader_Manipulator::RamPosition_ReadRamDirection(int& value) {
  return read(session_, &Session::ram_position, kRamDir, {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadIsVPSwitch(int& value) {
  return read(session_, &Session::ram_position, kIsVPswitch, {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadVPSwitchRamPosition(double& value) {
  return read(session_, &Session::ram_position, kVPswitchRam, {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadSuckBack(double& value) {
  return read(session_, &Session::ram_position, kSuckBack, {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamFRSection(int& value) {
  return read(session_, &Session::ram_position, kRP_FRSet, {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamFRProfile(double& x, double& y, int point) {
  return read(session_, &Session::ram_position, kRP_FRPoint, at_point(point), x, y);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamFRProfile(double& value, int point) {
  return read(session_, &Session::ram_position, kRP_FRSingle, at_point(point), value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamIPSection(int& value) {
  return read(session_, &Session::ram_position, kRP_IPSet, {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamIPProfile(double& x, double& y, int point) {
  return read(session_, &Session::ram_position, kRP_IPPoint, at_point(point), x, y);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamIPProfile(double& value, int point) {
  return read(session_, &Session::ram_position, kRP_IPSingle, at_point(point), value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamDirection(int value) {
  return write(session_, &Session::ram_position, kRamDir, {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteIsVPSwitch(int value) {
  return write(session_, &Session::ram_position, kIsVPswitch, {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteVPSwitchRamPosition(double value) {
  return write(session_, &Session::ram_position, kVPswitchRam, {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteSuckBack(double value) {
  return write(session_, &Session::ram_position, kSuckBack, {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamFRSection(int value) {
  return write(session_, &Session::ram_position, kRP_FRSet, {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamFRProfile(double x, double y, int point) {
  return write(session_, &Session::ram_position, kRP_FRPoint, at_point(point), x, y);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamFRProfile(double value, int point) {
  return write(session_, &Session::ram_position, kRP_FRSingle, at_point(point), value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamIPSection(int value) {
  return write(session_, &Session::ram_position, kRP_IPSet, {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamIPProfile(double x, double y, int point) {
  return write(session_, &Session::ram_position, kRP_IPPoint, at_point(point), x, y);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamIPProfile(double value, int point) {
  return write(session_, &Session::ram_position, kRP_IPSingle, at_point(point), value);
}
