#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// [Pack-%d]

bool CPROIO_Manipulator::GetPackTime(double& value, int stage) {
  return Get(pack::kPackTime.in(stage), value);
}
bool CPROIO_Manipulator::SetPackTime(double value, int stage) {
  return Set(pack::kPackTime.in(stage), value);
}
bool CPROIO_Manipulator::GetPackPressure(double& value, int stage) {
  return Get(pack::kPackPressure.in(stage), value);
}
bool CPROIO_Manipulator::SetPackPressure(double value, int stage) {
  return Set(pack::kPackPressure.in(stage), value);
}
bool CPROIO_Manipulator::GetPackSwitch(double& value, int stage) {
  return Get(pack::kPackSwitch.in(stage), value);
}
bool CPROIO_Manipulator::SetPackSwitch(double value, int stage) {
  return Set(pack::kPackSwitch.in(stage), value);
}
bool CPROIO_Manipulator::GetPPDisplayType(int& value, int stage) {
  return Get(pack::kPPDisplayType.in(stage), value);
}
bool CPROIO_Manipulator::GetPPSection(int& count, int stage) {
  return Get(pack::kPPCount.in(stage), count);
}
bool CPROIO_Manipulator::SetPPSection(int count, int stage) {
  return Set(pack::kPPCount.in(stage), count);
}
bool CPROIO_Manipulator::GetPPProfile(int point, double& x, double& y, int stage) {
  return Get(pack::kPPPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::SetPPProfile(int point, double x, double y, int stage) {
  return Set(pack::kPPPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::GetUserPPSection(int& count, int stage) {
  return Get(pack::kUserPPCount.in(stage), count);
}
bool CPROIO_Manipulator::GetUserPPProfile(int point, double& x, double& y, int stage) {
  return Get(pack::kUserPPPoint.in(stage).at(point), x, y);
}

// [Cure-%d]

bool CPROIO_Manipulator::GetCureTime(double& value, int stage) {
  return Get(cure::kCureTime.in(stage), value);
}
bool CPROIO_Manipulator::SetCureTime(double value, int stage) {
  return Set(cure::kCureTime.in(stage), value);
}
bool CPROIO_Manipulator::GetCurePressure(double& value, int stage) {
  return Get(cure::kCurePressure.in(stage), value);
}
bool CPROIO_Manipulator::SetCurePressure(double value, int stage) {
  return Set(cure::kCurePressure.in(stage), value);
}
bool CPROIO_Manipulator::GetCureSwitch(double& value, int stage) {
  return Get(cure::kCureSwitch.in(stage), value);
}
bool CPROIO_Manipulator::SetCureSwitch(double value, int stage) {
  return Set(cure::kCureSwitch.in(stage), value);
}
bool CPROIO_Manipulator::GetCPDisplayType(int& value, int stage) {
  return Get(cure::kCPDisplayType.in(stage), value);
}
bool CPROIO_Manipulator::GetCPSection(int& count, int stage) {
  return Get(cure::kCPCount.in(stage), count);
}
bool CPROIO_Manipulator::SetCPSection(int count, int stage) {
  return Set(cure::kCPCount.in(stage), count);
}
bool CPROIO_Manipulator::GetCPProfile(int point, double& x, double& y, int stage) {
  return Get(cure::kCPPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::SetCPProfile(int point, double x, double y, int stage) {
  return Set(cure::kCPPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::GetUserCPSection(int& count, int stage) {
  return Get(cure::kUserCPCount.in(stage), count);
}
bool CPROIO_Manipulator::GetUserCPProfile(int point, double& x, double& y, int stage) {
  return Get(cure::kUserCPPoint.in(stage).at(point), x, y);
}
