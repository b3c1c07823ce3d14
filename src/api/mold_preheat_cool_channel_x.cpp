#include "blocks/mold_preheat_cool_channel_x.h"
#include "api/forward.h"

// [MPreheat_CoolChannel-%d]

using namespace qel;
using namespace qel::mold_preheat_cool_channel_x;

bool CQELPROReader_Manipulator::MoldPreheat_CoolChannelX_ReadDiameter(double& value, int channel) {
  return read(session_, &Session::mold_preheat_cool_channel_x, kDiameter, in_section(channel),
              value);
}

bool CQELPROReader_Manipulator::MoldPreheat_CoolChannelX_ReadGroupID(int& value, int channel) {
  return read(session_, &Session::mold_preheat_cool_channel_x, kGroupID, in_section(channel),
              value);
}

bool CQELPROReader_Manipulator::MoldPreheat_CoolChannelX_ReadTimeSection(int& value, int channel) {
  return read(session_, &Session::mold_preheat_cool_channel_x, kTimeSet, in_section(channel),
              value);
}

bool CQELPROReader_Manipulator::MoldPreheat_CoolChannelX_ReadPressureControlPointSetting(
    double& f1, int& system, double& temperature, double& flow, int& f5, int point, int channel) {
  return read(session_, &Session::mold_preheat_cool_channel_x, kPressureControlPoint,
              at_point(point, channel), f1, system, temperature, flow, f5);
}

bool CQELPROReader_Manipulator::MoldPreheat_CoolChannelX_ReadControlPointSetting(
    double& f1, int& system, double& temperature, double& flow, int& f5, int point, int channel) {
  int control = 0;
  Cool_ReadMoldPreheat_ControlType(control);
  return read(
      session_, &Session::mold_preheat_cool_channel_x,
      control == cool_channel_x::kControlByPressure ? kPressureControlPoint : kFlowControlPoint,
      at_point(point, channel), f1, system, temperature, flow, f5);
}
