#include "blocks/flow_ctl.h"
#include "api/forward.h"

// [FlowCTL]

using namespace qel;
using namespace qel::flow_ctl;

bool CQELPROReader_Manipulator::FlowCTL_ReadFlowCtrl(int& value) {
  return read(session_, &Session::flow_ctl, kFlowCtrl, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadVPSwitchCtrl(int& value) {
  return read(session_, &Session::flow_ctl, kVPSwitchCtrl, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadPackingCtrl(int& value) {
  return read(session_, &Session::flow_ctl, kPackingCtrl, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadMoldTemperature(double& value) {
  return read(session_, &Session::flow_ctl, kMoldTemperature, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadMeltTemperature(double& value) {
  return read(session_, &Session::flow_ctl, kMeltTemperature, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadInjectionTime(double& value) {
  return read(session_, &Session::flow_ctl, kInjectionTime, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadVolumeFilled(double& value) {
  return read(session_, &Session::flow_ctl, kVolumeFilled, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadRamPosition(double& value) {
  return read(session_, &Session::flow_ctl, kRamPosition, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadInjectionPressure(double& value) {
  return read(session_, &Session::flow_ctl, kInjectionPressure, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadCureSwitch(double& value) {
  return read(session_, &Session::flow_ctl, kCureSwitch, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadCureTempCtrl(int& value) {
  return read(session_, &Session::flow_ctl, kCureTempCtrl, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadCureEnterType(int& value, int index) {
  return read(session_, &Session::flow_ctl, kCureEnterType, in_section(index), value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadCureEnterSwitch(double& value, int index) {
  return read(session_, &Session::flow_ctl, kCureEnterSwch, in_section(index), value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadCureEnterTime(double& value, int index) {
  return read(session_, &Session::flow_ctl, kCureEnterTime, in_section(index), value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteFlowCtrl(int value) {
  return write(session_, &Session::flow_ctl, kFlowCtrl, {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteVPSwitchCtrl(int value) {
  return write(session_, &Session::flow_ctl, kVPSwitchCtrl, {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WritePackingCtrl(int value) {
  return write(session_, &Session::flow_ctl, kPackingCtrl, {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteMoldTemperature(double value) {
  return write(session_, &Session::flow_ctl, kMoldTemperature, {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteMeltTemperature(double value) {
  return write(session_, &Session::flow_ctl, kMeltTemperature, {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteInjectionTime(double value) {
  return write(session_, &Session::flow_ctl, kInjectionTime, {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteVolumeFilled(double value) {
  return write(session_, &Session::flow_ctl, kVolumeFilled, {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteRamPosition(double value) {
  return write(session_, &Session::flow_ctl, kRamPosition, {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteInjectionPressure(double value) {
  return write(session_, &Session::flow_ctl, kInjectionPressure, {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteCureSwitch(double value) {
  return write(session_, &Session::flow_ctl, kCureSwitch, {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteCureEnterType(int value, int index) {
  return write(session_, &Session::flow_ctl, kCureEnterType, in_section(index), value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteCureEnterSwitch(double value, int index) {
  return write(session_, &Session::flow_ctl, kCureEnterSwch, in_section(index), value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteCureEnterTime(double value, int index) {
  return write(session_, &Session::flow_ctl, kCureEnterTime, in_section(index), value);
}
