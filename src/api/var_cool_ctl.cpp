#include "blocks/var_cool_ctl.h"
#include "api/forward.h"

// [VarCoolCTL]

using namespace qel;
using namespace qel::var_cool_ctl;

bool CQELPROReader_Manipulator::VarCoolCTL_ReadCoolantCount(int& value) {
  return read(session_, &Session::var_cool_ctl, kCoolantNo, {}, value);
}

bool CQELPROReader_Manipulator::VarCoolCTL_ReadCoolant(double& f1, double& f2, double& f3,
                                                       double& f4, int& f5, int entry) {
  return read(session_, &Session::var_cool_ctl, kCoolant, at_point(entry), f1, f2, f3, f4, f5);
}

bool CQELPROWriter_Manipulator::VarCoolCTL_WriteCoolantCount(int value) {
  return write(session_, &Session::var_cool_ctl, kCoolantNo, {}, value);
}

bool CQELPROWriter_Manipulator::VarCoolCTL_WriteCoolant(double f1, double f2, double f3, double f4,
                                                        int f5, int entry) {
  return write(session_, &Session::var_cool_ctl, kCoolant, at_point(entry), f1, f2, f3, f4, f5);
}
