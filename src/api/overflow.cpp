#include "blocks/overflow.h"
#include "api/forward.h"

// [OFGateValve-%d]

using namespace qel;
using namespace qel::overflow;

bool CQELPROReader_Manipulator::OverflowX_ReadOverflowID(int& value, int overflow) {
  return read(session_, &Session::overflow, kGCId, in_section(overflow), value);
}

bool CQELPROReader_Manipulator::OverflowX_ReadControlPoint(int& value, int overflow) {
  return read(session_, &Session::overflow, kGCSet, in_section(overflow), value);
}

bool CQELPROReader_Manipulator::OverflowX_ReadGateSetting(double& value, int& number, int& mode,
                                                          int& last, int point, int overflow) {
  return read(session_, &Session::overflow, kGCPoint, at_point(point, overflow), value, number,
              mode, last);
}

bool CQELPROReader_Manipulator::OverflowX_ReadGateSetting(double& value, int& number, int& mode,
                                                          int point, int overflow) {
  return read(session_, &Session::overflow, kGCPointShort, at_point(point, overflow), value, number,
              mode);
}
