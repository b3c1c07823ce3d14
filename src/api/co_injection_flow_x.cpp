#include "blocks/co_injection_flow_x.h"
#include "api/forward.h"

// [Flow-%ld-Skin2nd]

using namespace qel;
using namespace qel::co_injection_flow_x;

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadFillingTime(double& value, int inlet) {
  return read(session_, &Session::co_injection_flow_x, kFillTime, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadFRSection(int& value, int inlet) {
  return read(session_, &Session::co_injection_flow_x, kFRSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadFRProfile(double& x, double& y, int point,
                                                           int inlet) {
  return read(session_, &Session::co_injection_flow_x, kFRPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadIPSection(int& value, int inlet) {
  return read(session_, &Session::co_injection_flow_x, kIPSet, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadIPProfile(double& x, double& y, int point,
                                                           int inlet) {
  return read(session_, &Session::co_injection_flow_x, kIPPoint, at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadSkin2ndEnterType(int& value, int inlet) {
  return read(session_, &Session::co_injection_flow_x, kSkin2ndEnterType, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadSkin2ndEnterSwch(double& value, int inlet) {
  return read(session_, &Session::co_injection_flow_x, kSkin2ndEnterSwch, in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadSkin2ndEnterTime(double& value, int inlet) {
  return read(session_, &Session::co_injection_flow_x, kSkin2ndEnterTime, in_section(inlet), value);
}
