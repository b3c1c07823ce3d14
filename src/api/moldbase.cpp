#include "blocks/moldbase.h"
#include "api/forward.h"

// [Moldbase]

using namespace qel;
using namespace qel::moldbase;

bool CQELPROReader_Manipulator::Moldbase_ReadMoldbase(double& f1, double& f2, double& f3,
                                                      char*& name, double& f5, double& f6,
                                                      double& f7, int row) {
  return read(session_, &Session::moldbase, kMoldbase, at_point(row), f1, f2, f3, name, f5, f6, f7);
}

bool CQELPROWriter_Manipulator::Moldbase_WriteMoldbase(double f1, double f2, double f3, char* name,
                                                       double f5, double f6, double f7, int row) {
  return write(session_, &Session::moldbase, kMoldbase, at_point(row), f1, f2, f3, name, f5, f6,
               f7);
}
