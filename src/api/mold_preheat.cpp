#include "blocks/mold_preheat.h"
#include "api/forward.h"

// [MoldPreheat]

using namespace qel;
using namespace qel::mold_preheat;

bool CQELPROReader_Manipulator::Cool_ReadMoldPreheatType(int& value) {
  return read(session_, &Session::mold_preheat, kMoldPreHeatType, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadMoldPreheatTime(double& value) {
  return read(session_, &Session::mold_preheat, kMoldPreHeatTime, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadMoldPreheatTemperature(double& value) {
  return read(session_, &Session::mold_preheat, kMoldPreHeatTemperature, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadMaxMoldPreHeatTime(double& value) {
  return read(session_, &Session::mold_preheat, kMaxMoldPreHeatTime, {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadMoldPreheat_ControlType(int& value) {
  return read(session_, &Session::mold_preheat, kControlType, {}, value);
}
