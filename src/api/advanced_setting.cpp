#include "blocks/advanced_setting.h"
#include "api/forward.h"
#include "platform/number.h"

// [AdvancedSetting]

using namespace qel;
using namespace qel::advanced_setting;

bool CQELPROReader_Manipulator::AdvancedSetting_ReadOpenDirection(double& x, double& y, double& z) {
  return read(session_, &Session::advanced_setting, kOpenDirection, {}, x, y, z);
}

bool CQELPROReader_Manipulator::AdvancedSetting_ReadClampForce(double& value) {
  return read(session_, &Session::advanced_setting, kClampForce, {}, value);
}

bool CQELPROWriter_Manipulator::AdvancedSetting_WriteOpenDirection(double x, double y, double z) {
  return write(session_, &Session::advanced_setting, kOpenDirection, {}, x, y, z);
}

bool CQELPROWriter_Manipulator::AdvancedSetting_WriteClampForce(double value) {
  return write(session_, &Session::advanced_setting, kClampForce, {}, value);
}

bool CQELPROReader_Manipulator::AdvancedSetting_ReadCycleTime(double& value) {
  char* text = nullptr;
  if (!ReadString(kSection, kCycleTime.text, text, nullptr, 0)) {
    return false;
  }
  value = platform::to_real(text);
  return true;
}
