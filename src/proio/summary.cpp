#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// [Summary]

bool CPROIO_Manipulator::GetMeshLayer(int& value) { return Get(summary::kMeshLayer, value); }
bool CPROIO_Manipulator::SetMeshLayer(int value) { return Set(summary::kMeshLayer, value); }
bool CPROIO_Manipulator::GetMeltEntranceNo(int& value) {
  return Get(summary::kMeltEntranceNo, value);
}
bool CPROIO_Manipulator::SetMeltEntranceNo(int value) {
  return Set(summary::kMeltEntranceNo, value);
}
bool CPROIO_Manipulator::GetCoolantNo(int& value) { return Get(summary::kCoolantNo, value); }
bool CPROIO_Manipulator::SetCoolantNo(int value) { return Set(summary::kCoolantNo, value); }
bool CPROIO_Manipulator::GetValveGateNo(int& value) { return Get(summary::kValveGateNo, value); }
bool CPROIO_Manipulator::SetValveGateNo(int value) { return Set(summary::kValveGateNo, value); }
bool CPROIO_Manipulator::GetVacuumIndex(int& value) { return Get(summary::kVacuumIndex, value); }
bool CPROIO_Manipulator::SetVacuumIndex(int value) { return Set(summary::kVacuumIndex, value); }
bool CPROIO_Manipulator::GetSkinRatio(double& value) { return Get(summary::kSkinRatio, value); }
bool CPROIO_Manipulator::SetSkinRatio(double value) { return Set(summary::kSkinRatio, value); }
bool CPROIO_Manipulator::GetMultiTimeStep(int& value) {
  return Get(summary::kMultiTimeStep, value);
}
bool CPROIO_Manipulator::SetMultiTimeStep(int value) { return Set(summary::kMultiTimeStep, value); }
bool CPROIO_Manipulator::GetPpackAsPeof(int& value) { return Get(summary::kPpackAsPeof, value); }
bool CPROIO_Manipulator::SetPpackAsPeof(int value) { return Set(summary::kPpackAsPeof, value); }
bool CPROIO_Manipulator::GetPpackAsPeof(bool& flag) { return GetFlag(summary::kPpackAsPeof, flag); }
bool CPROIO_Manipulator::SetPpackAsPeof(bool flag) { return SetPpackAsPeof(flag ? 1 : 0); }
bool CPROIO_Manipulator::GetMoldbaseNo(int& value) { return Get(summary::kMoldbaseNo, value); }
bool CPROIO_Manipulator::SetMoldbaseNo(int value) { return Set(summary::kMoldbaseNo, value); }
bool CPROIO_Manipulator::GetBoundaryConditionNo(int& value) {
  return Get(summary::kBoundaryConditionNo, value);
}
bool CPROIO_Manipulator::SetBoundaryConditionNo(int value) {
  return Set(summary::kBoundaryConditionNo, value);
}
bool CPROIO_Manipulator::GetGasEntranceNo(int& value) {
  return Get(summary::kGasEntranceNo, value);
}
bool CPROIO_Manipulator::SetGasEntranceNo(int value) { return Set(summary::kGasEntranceNo, value); }
bool CPROIO_Manipulator::GetMoldMetalMaterialNo(int& value) {
  return Get(summary::kMoldMetalMaterialNo, value);
}
bool CPROIO_Manipulator::SetMoldMetalMaterialNo(int value) {
  return Set(summary::kMoldMetalMaterialNo, value);
}
bool CPROIO_Manipulator::GetSymVolRatio(int& value) { return Get(summary::kSymVolRatio, value); }
bool CPROIO_Manipulator::SetSymVolRatio(int value) { return Set(summary::kSymVolRatio, value); }
bool CPROIO_Manipulator::GetHeatingRodNo(int& value) { return Get(summary::kHeatingRodNo, value); }
bool CPROIO_Manipulator::SetHeatingRodNo(int value) { return Set(summary::kHeatingRodNo, value); }

// Unlike the flag getters that forward to an integer getter, this one yields whether the key was
// read.
bool CPROIO_Manipulator::GetIsTransientInletConv(bool& flag) {
  int value = 0;
  const bool found = GetGated(summary::kIsTransientInletConv, value);
  flag = value == 1;
  return found;
}
bool CPROIO_Manipulator::SetIsTransientInletConv(bool flag) {
  return Set(summary::kIsTransientInletConv, flag ? 1 : 0);
}
