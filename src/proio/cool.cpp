#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// [Cool]

bool CPROIO_Manipulator::GetCoolTime(double& value) { return Get(cool::kCoolTime, value); }
bool CPROIO_Manipulator::SetCoolTime(double value) { return Set(cool::kCoolTime, value); }
bool CPROIO_Manipulator::GetOpenTime(double& value) { return Get(cool::kOpenTime, value); }
bool CPROIO_Manipulator::SetOpenTime(double value) { return Set(cool::kOpenTime, value); }
bool CPROIO_Manipulator::GetEjectTemperature(double& value) {
  return Get(cool::kEjectTemperature, value);
}
bool CPROIO_Manipulator::SetEjectTemperature(double value) {
  return Set(cool::kEjectTemperature, value);
}
bool CPROIO_Manipulator::GetAirTemperature(double& value) {
  return Get(cool::kAirTemperature, value);
}
bool CPROIO_Manipulator::SetAirTemperature(double value) {
  return Set(cool::kAirTemperature, value);
}
bool CPROIO_Manipulator::GetInitMoldTemperature(double& value) {
  return Get(cool::kInitMoldTemperature, value);
}
bool CPROIO_Manipulator::GetCoolingType(int& value) { return Get(cool::kCoolingType, value); }
bool CPROIO_Manipulator::GetCoolantTemperature(double& value) {
  return Get(cool::kCoolantTemperature, value);
}
bool CPROIO_Manipulator::SetCoolantTemperature(double value) {
  return Set(cool::kCoolantTemperature, value);
}
bool CPROIO_Manipulator::GetCoolantFlowRate(double& value) {
  return Get(cool::kCoolantFlowRate, value);
}
bool CPROIO_Manipulator::SetCoolantFlowRate(double value) {
  return Set(cool::kCoolantFlowRate, value);
}
bool CPROIO_Manipulator::GetAutoSetCoolTime(int& value) {
  return Get(cool::kAutoSetCoolTime, value);
}
bool CPROIO_Manipulator::SetAutoSetCoolTime(int value) {
  return Set(cool::kAutoSetCoolTime, value);
}
bool CPROIO_Manipulator::GetAutoSetCoolTime(bool& flag) {
  return GetFlag(cool::kAutoSetCoolTime, flag);
}
bool CPROIO_Manipulator::SetAutoSetCoolTime(bool flag) { return SetAutoSetCoolTime(flag ? 1 : 0); }

// [CoolCTL]

bool CPROIO_Manipulator::GetCoolCTLTemperature(int circuit, double& value) {
  return Get(cool_ctl::kTemperature.at(circuit), value);
}
bool CPROIO_Manipulator::SetCoolCTLTemperature(int circuit, double value) {
  return Set(cool_ctl::kTemperature.at(circuit), value);
}
bool CPROIO_Manipulator::GetCoolCTLFlowRate(int circuit, double& value) {
  return Get(cool_ctl::kFlowRate.at(circuit), value);
}
bool CPROIO_Manipulator::SetCoolCTLFlowRate(int circuit, double value) {
  return Set(cool_ctl::kFlowRate.at(circuit), value);
}
bool CPROIO_Manipulator::GetCoolCTLSystem(int circuit, int& value) {
  return Get(cool_ctl::kSystem.at(circuit), value);
}
bool CPROIO_Manipulator::SetCoolCTLSystem(int circuit, int value) {
  return Set(cool_ctl::kSystem.at(circuit), value);
}

// [Coolant]

bool CPROIO_Manipulator::GetCoolant(int row, double& first, double& second, double& third,
                                    double& fourth, int& fifth, char*& name, double& seventh,
                                    int& eighth) {
  return GetZeroed(coolant::kRow.at(row), first, second, third, fourth, fifth,
                   Word{name, &Scratch::coolant_name}, seventh, eighth);
}
bool CPROIO_Manipulator::SetCoolant(int row, double first, double second, double third,
                                    double fourth, int fifth, char* name, double seventh,
                                    int eighth) {
  return Set(coolant::kRow.at(row), first, second, third, fourth, fifth, name, seventh, eighth);
}

// [VarCoolCTL]

bool CPROIO_Manipulator::GetTotalCoolantNo(int& value) {
  return Get(var_cool_ctl::kTotalCoolantNo, value);
}
bool CPROIO_Manipulator::SetTotalCoolantNo(int value) {
  return Set(var_cool_ctl::kTotalCoolantNo, value);
}
bool CPROIO_Manipulator::GetCoolant(int row, double& first, double& second, double& third,
                                    double& fourth, int& fifth) {
  return GetZeroed(var_cool_ctl::kRow.at(row), first, second, third, fourth, fifth);
}
bool CPROIO_Manipulator::SetCoolant(int row, double first, double second, double third,
                                    double fourth, int fifth) {
  return Set(var_cool_ctl::kRow.at(row), first, second, third, fourth, fifth);
}
