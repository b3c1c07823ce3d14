#include "blocks/parting_surface.h"
#include "api/forward.h"

// [PartingSurface]

using namespace qel;
using namespace qel::parting_surface;

bool CQELPROReader_Manipulator::PartingSurface_ReadCavityPart(int& number, double& f2, double& f3,
                                                              double& f4) {
  return read(session_, &Session::parting_surface, kCavityPart, {}, number, f2, f3, f4);
}

bool CQELPROReader_Manipulator::PartingSurface_ReadCavityMoldbase(int& number, double& f2,
                                                                  double& f3, double& f4) {
  return read(session_, &Session::parting_surface, kCavityMoldbase, {}, number, f2, f3, f4);
}

bool CQELPROReader_Manipulator::PartingSurface_ReadCorePart(int& number, double& f2, double& f3,
                                                            double& f4) {
  return read(session_, &Session::parting_surface, kCorePart, {}, number, f2, f3, f4);
}

bool CQELPROReader_Manipulator::PartingSurface_ReadCoreMoldbase(int& number, double& f2, double& f3,
                                                                double& f4) {
  return read(session_, &Session::parting_surface, kCoreMoldbase, {}, number, f2, f3, f4);
}

bool CQELPROWriter_Manipulator::PartingSurface_WriteCavityPart(int number, double f2, double f3,
                                                               double f4) {
  return write(session_, &Session::parting_surface, kCavityPart, {}, number, f2, f3, f4);
}

bool CQELPROWriter_Manipulator::PartingSurface_WriteCavityMoldbase(int number, double f2, double f3,
                                                                   double f4) {
  return write(session_, &Session::parting_surface, kCavityMoldbase, {}, number, f2, f3, f4);
}

bool CQELPROWriter_Manipulator::PartingSurface_WriteCorePart(int number, double f2, double f3,
                                                             double f4) {
  return write(session_, &Session::parting_surface, kCorePart, {}, number, f2, f3, f4);
}

bool CQELPROWriter_Manipulator::PartingSurface_WriteCoreMoldbase(int number, double f2, double f3,
                                                                 double f4) {
  return write(session_, &Session::parting_surface, kCoreMoldbase, {}, number, f2, f3, f4);
}
