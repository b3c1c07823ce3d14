#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// [FlowCTL]

bool CPROIO_Manipulator::GetFlowCTLFlowCtrl(int& value) { return Get(flow_ctl::kFlowCtrl, value); }
bool CPROIO_Manipulator::GetFlowCTLVPSwitchCtrl(int& value) {
  return Get(flow_ctl::kVPSwitchCtrl, value);
}
bool CPROIO_Manipulator::GetFlowCTLPackingCtrl(int& value) {
  return Get(flow_ctl::kPackingCtrl, value);
}
bool CPROIO_Manipulator::GetFlowCTLMoldTemperature(double& value) {
  return Get(flow_ctl::kMoldTemperature, value);
}
bool CPROIO_Manipulator::GetFlowCTLMeltTemperature(double& value) {
  return Get(flow_ctl::kMeltTemperature, value);
}
bool CPROIO_Manipulator::GetFlowCTLInjectionTime(double& value) {
  return Get(flow_ctl::kInjectionTime, value);
}
bool CPROIO_Manipulator::GetFlowCTLVolumeFilled(double& value) {
  return Get(flow_ctl::kVolumeFilled, value);
}
bool CPROIO_Manipulator::GetFlowCTLRamPosition(double& value) {
  return Get(flow_ctl::kRamPosition, value);
}
bool CPROIO_Manipulator::GetFlowCTLInjectionPressure(double& value) {
  return Get(flow_ctl::kInjectionPressure, value);
}

// [Output]

bool CPROIO_Manipulator::GetOutputTimeStep(int& value) { return Get(output::kTimeStep, value); }
bool CPROIO_Manipulator::SetOutputTimeStep(int value) { return Set(output::kTimeStep, value); }
bool CPROIO_Manipulator::GetOutputTimeFill(double& value) { return Get(output::kTimeFill, value); }
bool CPROIO_Manipulator::SetOutputTimeFill(double value) { return Set(output::kTimeFill, value); }
bool CPROIO_Manipulator::GetOutputTimePack(double& value) { return Get(output::kTimePack, value); }
bool CPROIO_Manipulator::SetOutputTimePack(double value) { return Set(output::kTimePack, value); }

// [Project]

bool CPROIO_Manipulator::GetProjectMesh(char*& text) { return Get(project::kMesh, text); }
bool CPROIO_Manipulator::SetProjectMesh(char* text) { return Set(project::kMesh, text); }
bool CPROIO_Manipulator::GetProjectMaterial(char*& text) { return Get(project::kMaterial, text); }
bool CPROIO_Manipulator::SetProjectMaterial(char* text) { return Set(project::kMaterial, text); }
bool CPROIO_Manipulator::GetCavityVolume(double& value) {
  return Get(project::kCavityVolume, value);
}
bool CPROIO_Manipulator::SetCavityVolume(double value) {
  return Set(project::kCavityVolume, value);
}
bool CPROIO_Manipulator::GetCushionVolume(double& value) {
  return Get(project::kCushionVolume, value);
}
bool CPROIO_Manipulator::SetCushionVolume(double value) {
  return Set(project::kCushionVolume, value);
}
