#include "blocks/mold_metal_material.h"
#include "api/forward.h"

// [MoldMetalMaterial]

using namespace qel;
using namespace qel::mold_metal_material;

bool CQELPROReader_Manipulator::MoldMetalMaterial_ReadMaterial(double& f1, double& f2, double& f3,
                                                               char*& name, double& f5, double& f6,
                                                               double& f7, int row) {
  return read(session_, &Session::mold_metal_material, kMaterial, at_point(row), f1, f2, f3, name,
              f5, f6, f7);
}

bool CQELPROWriter_Manipulator::MoldMetalMaterial_WriteMaterial(double f1, double f2, double f3,
                                                                char* name, double f5, double f6,
                                                                double f7, int row) {
  return write(session_, &Session::mold_metal_material, kMaterial, at_point(row), f1, f2, f3, name,
               f5, f6, f7);
}
