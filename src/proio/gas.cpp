#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// [GasF-%d]

bool CPROIO_Manipulator::GetGasTime(int stage, double& value) {
  return Get(gas::kGasTime.in(stage), value);
}
bool CPROIO_Manipulator::SetGasTime(int stage, double value) {
  return Set(gas::kGasTime.in(stage), value);
}
bool CPROIO_Manipulator::GetGasPressure(int stage, double& value) {
  return Get(gas::kGasPressure.in(stage), value);
}
bool CPROIO_Manipulator::SetGasPressure(int stage, double value) {
  return Set(gas::kGasPressure.in(stage), value);
}
bool CPROIO_Manipulator::GetGasSwitch(int stage, double& value) {
  return Get(gas::kGasSwitch.in(stage), value);
}
bool CPROIO_Manipulator::SetGasSwitch(int stage, double value) {
  return Set(gas::kGasSwitch.in(stage), value);
}
bool CPROIO_Manipulator::GetGasDelayTime(int stage, double& value) {
  return Get(gas::kGasDelayTime.in(stage), value);
}
bool CPROIO_Manipulator::SetGasDelayTime(int stage, double value) {
  return Set(gas::kGasDelayTime.in(stage), value);
}
bool CPROIO_Manipulator::GetGasGRDisplayType(int stage, int& value) {
  return Get(gas::kGRDisplayType.in(stage), value);
}
bool CPROIO_Manipulator::GetGasGRProfileType(int stage, int& value) {
  return Get(gas::kGRProfileType.in(stage), value);
}
bool CPROIO_Manipulator::GetGasGPDisplayType(int stage, int& value) {
  return Get(gas::kGPDisplayType.in(stage), value);
}
bool CPROIO_Manipulator::GetGasGPProfileType(int stage, int& value) {
  return Get(gas::kGPProfileType.in(stage), value);
}
bool CPROIO_Manipulator::GetGasFRSection(int stage, int& count) {
  return Get(gas::kFRCount.in(stage), count);
}
bool CPROIO_Manipulator::SetGasFRSection(int stage, int count) {
  return Set(gas::kFRCount.in(stage), count);
}
bool CPROIO_Manipulator::GetGasFRProfile(int number, double& x, double& y) {
  return Get(gas::kFRPoint.in(number).at(number), x, y);
}
bool CPROIO_Manipulator::SetGasFRProfile(int number, double x, double y) {
  return Set(gas::kFRPoint.in(number).at(number), x, y);
}
bool CPROIO_Manipulator::GetUserGasFRSection(int stage, int& count) {
  return Get(gas::kUserFRCount.in(stage), count);
}
bool CPROIO_Manipulator::GetUserGasFRProfile(int point, double& x, double& y, int stage) {
  return Get(gas::kUserFRPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::GetGasGPSection(int stage, int& count) {
  return Get(gas::kGPCount.in(stage), count);
}
bool CPROIO_Manipulator::SetGasGPSection(int stage, int count) {
  return Set(gas::kGPCount.in(stage), count);
}
bool CPROIO_Manipulator::GetGasGPProfile(int number, double& x, double& y) {
  return Get(gas::kGPPoint.in(number).at(number), x, y);
}
bool CPROIO_Manipulator::SetGasGPProfile(int number, double x, double y) {
  return Set(gas::kGPPoint.in(number).at(number), x, y);
}
bool CPROIO_Manipulator::GetUserGasGPSection(int stage, int& count) {
  return Get(gas::kUserGPCount.in(stage), count);
}
bool CPROIO_Manipulator::GetUserGasGPProfile(int point, double& x, double& y, int stage) {
  return Get(gas::kUserGPPoint.in(stage).at(point), x, y);
}
