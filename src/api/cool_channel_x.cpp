#include "blocks/cool_channel_x.h"
#include "api/forward.h"

// [CoolChannel-%d]

using namespace qel;
using namespace qel::cool_channel_x;

bool CQELPROReader_Manipulator::CoolChannelX_ReadDiameter(double& value, int channel) {
  return read(session_, &Session::cool_channel_x, kDiameter, in_section(channel), value);
}

bool CQELPROReader_Manipulator::CoolChannelX_ReadGroupID(int& value, int channel) {
  return read(session_, &Session::cool_channel_x, kGroupID, in_section(channel), value);
}

bool CQELPROReader_Manipulator::CoolChannelX_ReadTimeSection(int& value, int channel) {
  return read(session_, &Session::cool_channel_x, kTimeSet, in_section(channel), value);
}

bool CQELPROReader_Manipulator::CoolChannelX_ReadPressureControlPointSetting(
    double& f1, int& system, double& temperature, double& flow, int& f5, int point, int channel) {
  return read(session_, &Session::cool_channel_x, kPressureControlPoint, at_point(point, channel),
              f1, system, temperature, flow, f5);
}

bool CQELPROWriter_Manipulator::CoolChannelX_WriteDiameter(double value, int channel) {
  return write(session_, &Session::cool_channel_x, kDiameter, in_section(channel), value);
}

bool CQELPROWriter_Manipulator::CoolChannelX_WriteGroupID(int value, int channel) {
  return write(session_, &Session::cool_channel_x, kGroupID, in_section(channel), value);
}

bool CQELPROWriter_Manipulator::CoolChannelX_WriteTimeSection(int value, int channel) {
  return write(session_, &Session::cool_channel_x, kTimeSet, in_section(channel), value);
}

bool CQELPROWriter_Manipulator::CoolChannelX_WriteControlPointSetting(double f1, int system,
                                                                      double temperature,
                                                                      double flow, int f5,
                                                                      int point, int channel) {
  return write(session_, &Session::cool_channel_x, kFlowControlPoint, at_point(point, channel), f1,
               system, temperature, flow, f5);
}

bool CQELPROWriter_Manipulator::CoolChannelX_WritePressureControlPointSetting(
    double f1, int system, double temperature, double flow, int f5, int point, int channel) {
  return write(session_, &Session::cool_channel_x, kPressureControlPoint, at_point(point, channel),
               f1, system, temperature, flow, f5);
}

bool CQELPROReader_Manipulator::CoolChannelX_ReadControlPointSetting(double& f1, int& system,
                                                                     double& temperature,
                                                                     double& flow, int& f5,
                                                                     int point, int channel) {
  int control = 0;
  Cool_ReadControlType(control);
  return read(session_, &Session::cool_channel_x,
              control == kControlByPressure ? kPressureControlPoint : kFlowControlPoint,
              at_point(point, channel), f1, system, temperature, flow, f5);
}
