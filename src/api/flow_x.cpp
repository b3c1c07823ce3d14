#include "blocks/flow_x.h"
#include "api/forward.h"

// [Flow-%ld]

using namespace qel;
using namespace qel::flow_x;

bool CQELPROReader_Manipulator::FlowX_ReadFillingTime(double& value, int inlet) {
  return read(session_, &Session::flow_x, kFillTime, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMaxFillingTime(double& value, int inlet) {
  return read(session_, &Session::flow_x, kMaxFillingTime, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMeltTemperature(double& value, int inlet) {
  return read(session_, &Session::flow_x, kMeltTemp, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMoldTemperature(double& value, int inlet) {
  return read(session_, &Session::flow_x, kMoldTemp, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadInjectPressure(double& value, int inlet) {
  return read(session_, &Session::flow_x, kInjectPres, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadPreFill(double& value, int inlet) {
  return read(session_, &Session::flow_x, kPreFill, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadInjectVolume(double& value, int inlet) {
  return read(session_, &Session::flow_x, kInjVol, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTransferTime(double& value, int inlet) {
  return read(session_, &Session::flow_x, kTransTime, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMaxTransferTime(double& value, int inlet) {
  return read(session_, &Session::flow_x, kMaxTransferTime, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadResinTemperature(double& value, int inlet) {
  return read(session_, &Session::flow_x, kResnTemp, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTransferPressure(double& value, int inlet) {
  return read(session_, &Session::flow_x, kTransPres, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadInitConv(double& value, int inlet) {
  return read(session_, &Session::flow_x, kInitConv, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadInitConversion(double& value, int inlet) {
  return read(session_, &Session::flow_x, kInitConv, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMaxFR(double& value, int inlet) {
  return read(session_, &Session::flow_x, kMaxFR, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMaxPress(double& value, int inlet) {
  return read(session_, &Session::flow_x, kMaxPress, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadIsPushBack(int& value, int inlet) {
  return read(session_, &Session::flow_x, kIsPushBack, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadPushBackEnterTime(double& value, int inlet) {
  return read(session_, &Session::flow_x, kPushBackEnterTime, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadPushBackTime(double& value, int inlet) {
  return read(session_, &Session::flow_x, kPushBackTime, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadFRDisplayType(int& value, int inlet) {
  return read(session_, &Session::flow_x, kFRDisplayType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadIPDisplayType(int& value, int inlet) {
  return read(session_, &Session::flow_x, kIPDisplayType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTPDisplayType(int& value, int inlet) {
  return read(session_, &Session::flow_x, kTPDisplayType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadFRProfileType(int& value, int inlet) {
  return read(session_, &Session::flow_x, kFRProfileType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadIPProfileType(int& value, int inlet) {
  return read(session_, &Session::flow_x, kIPProfileType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTPProfileType(int& value, int inlet) {
  return read(session_, &Session::flow_x, kTPProfileType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadFRStrokeMode(int& value, int inlet) {
  return read(session_, &Session::flow_x, kFRStrokeMode, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadIPStrokeMode(int& value, int inlet) {
  return read(session_, &Session::flow_x, kIPStrokeMode, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTPStrokeMode(int& value, int inlet) {
  return read(session_, &Session::flow_x, kTPStrokeMode, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadFRSection(int& value, int inlet) {
  return read(session_, &Session::flow_x, kFRSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadFRProfile(double& x, double& y, int point, int inlet) {
  return read(session_, &Session::flow_x, kFRPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowX_ReadIPSection(int& value, int inlet) {
  return read(session_, &Session::flow_x, kIPSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadIPProfile(double& x, double& y, int point, int inlet) {
  return read(session_, &Session::flow_x, kIPPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowX_ReadTPSection(int& value, int inlet) {
  return read(session_, &Session::flow_x, kTPSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTPProfile(double& x, double& y, int point, int inlet) {
  return read(session_, &Session::flow_x, kTPPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserFRSection(int& value, int inlet) {
  return read(session_, &Session::flow_x, kUserFRSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserFRProfile(double& x, double& y, int point,
                                                        int inlet) {
  return read(session_, &Session::flow_x, kUserFRPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserIPSection(int& value, int inlet) {
  return read(session_, &Session::flow_x, kUserIPSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserIPProfile(double& x, double& y, int point,
                                                        int inlet) {
  return read(session_, &Session::flow_x, kUserIPPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserTPSection(int& value, int inlet) {
  return read(session_, &Session::flow_x, kUserTPSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserTPProfile(double& x, double& y, int point,
                                                        int inlet) {
  return read(session_, &Session::flow_x, kUserTPPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::FlowX_WriteFillingTime(double value, int inlet) {
  return write(session_, &Session::flow_x, kFillTime, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteMaxFillingTime(double value, int inlet) {
  return write(session_, &Session::flow_x, kMaxFillingTime, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteMeltTemperature(double value, int inlet) {
  return write(session_, &Session::flow_x, kMeltTemp, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteMoldTemperature(double value, int inlet) {
  return write(session_, &Session::flow_x, kMoldTemp, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteInjectPressure(double value, int inlet) {
  return write(session_, &Session::flow_x, kInjectPres, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WritePreFill(double value, int inlet) {
  return write(session_, &Session::flow_x, kPreFill, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteInjectVolume(double value, int inlet) {
  return write(session_, &Session::flow_x, kInjVol, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTransferTime(double value, int inlet) {
  return write(session_, &Session::flow_x, kTransTime, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteMaxTransferTime(double value, int inlet) {
  return write(session_, &Session::flow_x, kMaxTransferTime, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteResinTemperature(double value, int inlet) {
  return write(session_, &Session::flow_x, kResnTemp, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTransferPressure(double value, int inlet) {
  return write(session_, &Session::flow_x, kTransPres, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteInitConversion(double value, int inlet) {
  return write(session_, &Session::flow_x, kInitConv, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteFRDisplayType(int value, int inlet) {
  return write(session_, &Session::flow_x, kFRDisplayType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteIPDisplayType(int value, int inlet) {
  return write(session_, &Session::flow_x, kIPDisplayType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTPDisplayType(int value, int inlet) {
  return write(session_, &Session::flow_x, kTPDisplayType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteFRProfileType(int value, int inlet) {
  return write(session_, &Session::flow_x, kFRProfileType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteIPProfileType(int value, int inlet) {
  return write(session_, &Session::flow_x, kIPProfileType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTPProfileType(int value, int inlet) {
  return write(session_, &Session::flow_x, kTPProfileType, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteFRStrokeMode(int value, int inlet) {
  return write(session_, &Session::flow_x, kFRStrokeMode, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteIPStrokeMode(int value, int inlet) {
  return write(session_, &Session::flow_x, kIPStrokeMode, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTPStrokeMode(int value, int inlet) {
  return write(session_, &Session::flow_x, kTPStrokeMode, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteFRSection(int value, int inlet) {
  return write(session_, &Session::flow_x, kFRSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteFRProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::flow_x, kFRPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::FlowX_WriteIPSection(int value, int inlet) {
  return write(session_, &Session::flow_x, kIPSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteIPProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::flow_x, kIPPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTPSection(int value, int inlet) {
  return write(session_, &Session::flow_x, kTPSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTPProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::flow_x, kTPPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserFRSection(int value, int inlet) {
  return write(session_, &Session::flow_x, kUserFRSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserFRProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::flow_x, kUserFRPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserIPSection(int value, int inlet) {
  return write(session_, &Session::flow_x, kUserIPSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserIPProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::flow_x, kUserIPPoint, at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserTPSection(int value, int inlet) {
  return write(session_, &Session::flow_x, kUserTPSet, in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserTPProfile(double x, double y, int point, int inlet) {
  return write(session_, &Session::flow_x, kUserTPPoint, at_point(point, inlet), x, y);
}
