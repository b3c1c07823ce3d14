#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// [Machine]

bool CPROIO_Manipulator::GetMachineMaker(char*& text) { return Get(machine::kMaker, text); }
bool CPROIO_Manipulator::SetMachineMaker(char* text) { return Set(machine::kMaker, text); }
bool CPROIO_Manipulator::GetMachineGrade(char*& text) { return Get(machine::kGrade, text); }
bool CPROIO_Manipulator::SetMachineGrade(char* text) { return Set(machine::kGrade, text); }
bool CPROIO_Manipulator::GetMachineLastModifiedDate(char*& text) {
  return Get(machine::kLastModifiedDate, text);
}
bool CPROIO_Manipulator::GetMachineRemark(char*& text) { return Get(machine::kRemark, text); }
bool CPROIO_Manipulator::SetMachineRemark(char* text) { return Set(machine::kRemark, text); }
bool CPROIO_Manipulator::GetMachineScrewDiameter(double& value) {
  return Get(machine::kScrewDiameter, value);
}
bool CPROIO_Manipulator::SetMachineScrewDiameter(double value) {
  return Set(machine::kScrewDiameter, value);
}
bool CPROIO_Manipulator::GetMachineMaxRamPosition(double& value) {
  return Get(machine::kMaxRamPosition, value);
}
bool CPROIO_Manipulator::SetMachineMaxRamPosition(double value) {
  return Set(machine::kMaxRamPosition, value);
}
bool CPROIO_Manipulator::GetMachineShotVolume(double& value) {
  return Get(machine::kShotVolume, value);
}
bool CPROIO_Manipulator::GetMachineShotWeight(double& value) {
  return Get(machine::kShotWeight, value);
}
bool CPROIO_Manipulator::SetMachineShotWeight(double value) {
  return Set(machine::kShotWeight, value);
}
bool CPROIO_Manipulator::GetMachineMaxPressure(double& value) {
  return Get(machine::kMaxPressure, value);
}
bool CPROIO_Manipulator::SetMachineMaxPressure(double value) {
  return Set(machine::kMaxPressure, value);
}
bool CPROIO_Manipulator::GetMachineHoldingPressure(double& value) {
  return Get(machine::kHoldingPressure, value);
}
bool CPROIO_Manipulator::GetMachineInjectionSpeed(double& value) {
  return Get(machine::kInjectionSpeed, value);
}
bool CPROIO_Manipulator::GetMachineMaxFlowRate(double& value) {
  return Get(machine::kMaxFlowRate, value);
}
bool CPROIO_Manipulator::SetMachineMaxFlowRate(double value) {
  return Set(machine::kMaxFlowRate, value);
}
bool CPROIO_Manipulator::GetMachinePlasticationRate(double& value) {
  return Get(machine::kPlasticationRate, value);
}
bool CPROIO_Manipulator::GetMachineScrewSpeed(double& value) {
  return Get(machine::kScrewSpeed, value);
}
bool CPROIO_Manipulator::GetMachineNozzleContactForce(double& value) {
  return Get(machine::kNozzleContactForce, value);
}
bool CPROIO_Manipulator::GetMachineNozzleStroke(double& value) {
  return Get(machine::kNozzleStroke, value);
}
bool CPROIO_Manipulator::GetMachineHeaterWattage(double& value) {
  return Get(machine::kHeaterWattage, value);
}
bool CPROIO_Manipulator::GetMachineTemperatureControlZone(int& value) {
  return Get(machine::kTemperatureControlZones, value);
}
bool CPROIO_Manipulator::GetMachineClampingForce(double& value) {
  return Get(machine::kClampingForce, value);
}
bool CPROIO_Manipulator::SetMachineClampingForce(double value) {
  return Set(machine::kClampingForce, value);
}
bool CPROIO_Manipulator::GetMachineOpeningStroke(double& value) {
  return Get(machine::kOpeningStroke, value);
}
bool CPROIO_Manipulator::GetMachineMaxDaylight(double& value) {
  return Get(machine::kMaxDaylight, value);
}
bool CPROIO_Manipulator::GetMachineMoldHeight(double& value) {
  return Get(machine::kMoldHeight, value);
}
bool CPROIO_Manipulator::GetMachineTieBarsDistance(char*& text) {
  return Get(machine::kTieBarsDistance, text);
}
bool CPROIO_Manipulator::GetMachinePlatenSize(char*& text) {
  return Get(machine::kPlatenSize, text);
}
bool CPROIO_Manipulator::GetMachineEjectorPoint(int& value) {
  return Get(machine::kEjectorPoint, value);
}
bool CPROIO_Manipulator::GetMachineEjectorForce(double& value) {
  return Get(machine::kEjectorForce, value);
}
bool CPROIO_Manipulator::GetMachineEjectorStroke(double& value) {
  return Get(machine::kEjectorStroke, value);
}
bool CPROIO_Manipulator::GetMachineWeight(double& value) {
  return Get(machine::kMachineWeight, value);
}
bool CPROIO_Manipulator::GetMachineDimension(char*& text) { return Get(machine::kDimension, text); }
bool CPROIO_Manipulator::GetBarrelCompressionCtrlType(int& value) {
  return Get(machine::kBarrelCompressionCtrl, value);
}
