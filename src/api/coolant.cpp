#include "blocks/coolant.h"
#include "api/forward.h"

// [Coolant]

using namespace qel;
using namespace qel::coolant;

bool CQELPROReader_Manipulator::Coolant_ReadCoolant(double& p1, double& p2, double& p3, double& p4,
                                                    int& system, char*& name, double& f7, int& f8,
                                                    int coolant) {
  return read(session_, &Session::coolant, kCoolant, at_point(coolant), p1, p2, p3, p4, system,
              name, f7, f8);
}

bool CQELPROWriter_Manipulator::Coolant_WriteCoolant(double p1, double p2, double p3, double p4,
                                                     int system, char* name, double f7, int f8,
                                                     int coolant) {
  return write(session_, &Session::coolant, kCoolant, at_point(coolant), p1, p2, p3, p4, system,
               name, f7, f8);
}
