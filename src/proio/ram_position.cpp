#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// [RamPosition]

bool CPROIO_Manipulator::GetScrewDirection(int& value) {
  return Get(ram_position::kScrewDirection, value);
}
bool CPROIO_Manipulator::SetScrewDirection(int value) {
  return Set(ram_position::kScrewDirection, value);
}
bool CPROIO_Manipulator::GetVPSwitch(int& value) { return Get(ram_position::kVPSwitch, value); }
bool CPROIO_Manipulator::SetVPSwitch(int value) { return Set(ram_position::kVPSwitch, value); }
bool CPROIO_Manipulator::GetVPSwitch(bool& flag) { return GetFlag(ram_position::kVPSwitch, flag); }
bool CPROIO_Manipulator::SetVPSwitch(bool flag) { return SetVPSwitch(flag ? 1 : 0); }
bool CPROIO_Manipulator::GetVPSwitchPosition(double& value) {
  return Get(ram_position::kVPSwitchPosition, value);
}
bool CPROIO_Manipulator::SetVPSwitchPosition(double value) {
  return Set(ram_position::kVPSwitchPosition, value);
}
bool CPROIO_Manipulator::GetRamFRSection(int& count) {
  return Get(ram_position::kRamFRCount, count);
}
bool CPROIO_Manipulator::SetRamFRSection(int count) {
  return Set(ram_position::kRamFRCount, count);
}
bool CPROIO_Manipulator::GetRamFRProfile(int point, double& x, double& y) {
  return Get(ram_position::kRamFRPoint.at(point), x, y);
}
bool CPROIO_Manipulator::SetRamFRProfile(int point, double x, double y) {
  return Set(ram_position::kRamFRPoint.at(point), x, y);
}
bool CPROIO_Manipulator::GetRamIPSection(int& count) {
  return Get(ram_position::kRamIPCount, count);
}
bool CPROIO_Manipulator::SetRamIPSection(int count) {
  return Set(ram_position::kRamIPCount, count);
}
bool CPROIO_Manipulator::GetRamIPProfile(int point, double& x, double& y) {
  return Get(ram_position::kRamIPPoint.at(point), x, y);
}
bool CPROIO_Manipulator::SetRamIPProfile(int point, double x, double y) {
  return Set(ram_position::kRamIPPoint.at(point), x, y);
}

// [QuickSetting]

bool CPROIO_Manipulator::GetQSScrewDirection(int& value) {
  return Get(quick_setting::kScrewDirection, value);
}
bool CPROIO_Manipulator::SetQSScrewDirection(int value) {
  return Set(quick_setting::kScrewDirection, value);
}
bool CPROIO_Manipulator::GetQSProfileType(int& value) {
  return Get(quick_setting::kProfileType, value);
}
bool CPROIO_Manipulator::SetQSProfileType(int value) {
  return Set(quick_setting::kProfileType, value);
}
bool CPROIO_Manipulator::GetQSIsSameSetting(int& value) {
  return Get(quick_setting::kIsSameSetting, value);
}
bool CPROIO_Manipulator::SetQSIsSameSetting(int value) {
  return Set(quick_setting::kIsSameSetting, value);
}
bool CPROIO_Manipulator::GetQSFRSettingType(int& value) {
  return Get(quick_setting::kFRSettingType, value);
}
bool CPROIO_Manipulator::SetQSFRSettingType(int value) {
  return Set(quick_setting::kFRSettingType, value);
}
bool CPROIO_Manipulator::GetQSIPSettingType(int& value) {
  return Get(quick_setting::kIPSettingType, value);
}
bool CPROIO_Manipulator::SetQSIPSettingType(int value) {
  return Set(quick_setting::kIPSettingType, value);
}
bool CPROIO_Manipulator::GetQSPPSettingType(int& value) {
  return Get(quick_setting::kPPSettingType, value);
}
bool CPROIO_Manipulator::SetQSPPSettingType(int value) {
  return Set(quick_setting::kPPSettingType, value);
}
bool CPROIO_Manipulator::GetQSFRSection(int& count) {
  return Get(quick_setting::kQSFRCount, count);
}
bool CPROIO_Manipulator::SetQSFRSection(int count) { return Set(quick_setting::kQSFRCount, count); }
bool CPROIO_Manipulator::GetQSFRProfile(int point, double& x, double& y) {
  return Get(quick_setting::kQSFRPoint.at(point), x, y);
}
bool CPROIO_Manipulator::SetQSFRProfile(int point, double x, double y) {
  return Set(quick_setting::kQSFRPoint.at(point), x, y);
}
bool CPROIO_Manipulator::GetQSIPSection(int& count) {
  return Get(quick_setting::kQSIPCount, count);
}
bool CPROIO_Manipulator::SetQSIPSection(int count) { return Set(quick_setting::kQSIPCount, count); }
bool CPROIO_Manipulator::GetQSIPProfile(int point, double& x, double& y) {
  return Get(quick_setting::kQSIPPoint.at(point), x, y);
}
bool CPROIO_Manipulator::SetQSIPProfile(int point, double x, double y) {
  return Set(quick_setting::kQSIPPoint.at(point), x, y);
}
bool CPROIO_Manipulator::GetQSPPSection(int& count) {
  return Get(quick_setting::kQSPPCount, count);
}
bool CPROIO_Manipulator::SetQSPPSection(int count) { return Set(quick_setting::kQSPPCount, count); }
bool CPROIO_Manipulator::GetQSPPProfile(int point, double& x, double& y) {
  return Get(quick_setting::kQSPPPoint.at(point), x, y);
}
bool CPROIO_Manipulator::SetQSPPProfile(int point, double x, double y) {
  return Set(quick_setting::kQSPPPoint.at(point), x, y);
}
