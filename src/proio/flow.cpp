#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// [Flow-%d]

bool CPROIO_Manipulator::GetFillTime(double& value, int stage) {
  return Get(flow::kFillTime.in(stage), value);
}
bool CPROIO_Manipulator::SetFillTime(double value, int stage) {
  return Set(flow::kFillTime.in(stage), value);
}
bool CPROIO_Manipulator::GetMeltTemperature(double& value, int stage) {
  return Get(flow::kMeltTemperature.in(stage), value);
}
bool CPROIO_Manipulator::SetMeltTemperature(double value, int stage) {
  return Set(flow::kMeltTemperature.in(stage), value);
}
bool CPROIO_Manipulator::GetMoldTemperature(double& value, int stage) {
  return Get(flow::kMoldTemperature.in(stage), value);
}
bool CPROIO_Manipulator::SetMoldTemperature(double value, int stage) {
  return Set(flow::kMoldTemperature.in(stage), value);
}
bool CPROIO_Manipulator::GetInjectPressure(double& value, int stage) {
  return Get(flow::kInjectPressure.in(stage), value);
}
bool CPROIO_Manipulator::SetInjectPressure(double value, int stage) {
  return Set(flow::kInjectPressure.in(stage), value);
}
bool CPROIO_Manipulator::GetPreFill(double& value, int stage) {
  return Get(flow::kPreFill.in(stage), value);
}
bool CPROIO_Manipulator::SetPreFill(double value, int stage) {
  return Set(flow::kPreFill.in(stage), value);
}
bool CPROIO_Manipulator::GetInjectVolume(double& value, int stage) {
  return Get(flow::kInjectVolume.in(stage), value);
}
bool CPROIO_Manipulator::SetInjectVolume(double value, int stage) {
  return Set(flow::kInjectVolume.in(stage), value);
}
bool CPROIO_Manipulator::GetTransferTime(double& value, int stage) {
  return Get(flow::kTransferTime.in(stage), value);
}
bool CPROIO_Manipulator::SetTransferTime(double value, int stage) {
  return Set(flow::kTransferTime.in(stage), value);
}
bool CPROIO_Manipulator::GetResinTemperature(double& value, int stage) {
  return Get(flow::kResinTemperature.in(stage), value);
}
bool CPROIO_Manipulator::SetResinTemperature(double value, int stage) {
  return Set(flow::kResinTemperature.in(stage), value);
}
bool CPROIO_Manipulator::GetTransferPressure(double& value, int stage) {
  return Get(flow::kTransferPressure.in(stage), value);
}
bool CPROIO_Manipulator::SetTransferPressure(double value, int stage) {
  return Set(flow::kTransferPressure.in(stage), value);
}
bool CPROIO_Manipulator::GetInitialConversion(double& value, int stage) {
  return Get(flow::kInitialConversion.in(stage), value);
}
bool CPROIO_Manipulator::SetInitialConversion(double value, int stage) {
  return Set(flow::kInitialConversion.in(stage), value);
}
bool CPROIO_Manipulator::GetEndConversion(double& value, int stage) {
  return Get(flow::kEndConversion.in(stage), value);
}
bool CPROIO_Manipulator::SetEndConversion(double value, int stage) {
  return Set(flow::kEndConversion.in(stage), value);
}
bool CPROIO_Manipulator::GetFRDisplayType(int& value, int stage) {
  return Get(flow::kFRDisplayType.in(stage), value);
}
bool CPROIO_Manipulator::GetIPDisplayType(int& value, int stage) {
  return Get(flow::kIPDisplayType.in(stage), value);
}
bool CPROIO_Manipulator::GetTPDisplayType(int& value, int stage) {
  return Get(flow::kTPDisplayType.in(stage), value);
}
bool CPROIO_Manipulator::GetFRSection(int& count, int stage) {
  return Get(flow::kFRCount.in(stage), count);
}
bool CPROIO_Manipulator::SetFRSection(int count, int stage) {
  return Set(flow::kFRCount.in(stage), count);
}
bool CPROIO_Manipulator::GetFRProfile(int point, double& x, double& y, int stage) {
  return Get(flow::kFRPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::SetFRProfile(int point, double x, double y, int stage) {
  return Set(flow::kFRPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::GetUserFRSection(int& count, int stage) {
  return Get(flow::kUserFRCount.in(stage), count);
}
bool CPROIO_Manipulator::GetUserFRProfile(int point, double& x, double& y, int stage) {
  return Get(flow::kUserFRPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::GetIPSection(int& count, int stage) {
  return Get(flow::kIPCount.in(stage), count);
}
bool CPROIO_Manipulator::SetIPSection(int count, int stage) {
  return Set(flow::kIPCount.in(stage), count);
}
bool CPROIO_Manipulator::GetIPProfile(int point, double& x, double& y, int stage) {
  return Get(flow::kIPPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::SetIPProfile(int point, double x, double y, int stage) {
  return Set(flow::kIPPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::GetUserIPSection(int& count, int stage) {
  return Get(flow::kUserIPCount.in(stage), count);
}
bool CPROIO_Manipulator::GetUserIPProfile(int point, double& x, double& y, int stage) {
  return Get(flow::kUserIPPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::GetTPSection(int& count, int stage) {
  return Get(flow::kTPCount.in(stage), count);
}
bool CPROIO_Manipulator::SetTPSection(int count, int stage) {
  return Set(flow::kTPCount.in(stage), count);
}
bool CPROIO_Manipulator::GetTPProfile(int point, double& x, double& y, int stage) {
  return Get(flow::kTPPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::SetTPProfile(int point, double x, double y, int stage) {
  return Set(flow::kTPPoint.in(stage).at(point), x, y);
}
bool CPROIO_Manipulator::GetUserTPSection(int& count, int stage) {
  return Get(flow::kUserTPCount.in(stage), count);
}
bool CPROIO_Manipulator::GetUserTPProfile(int point, double& x, double& y, int stage) {
  return Get(flow::kUserTPPoint.in(stage).at(point), x, y);
}
