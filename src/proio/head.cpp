#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// [FileHeader]

bool CPROIO_Manipulator::GetFileName(char*& text) { return Get(file_header::kName, text); }
bool CPROIO_Manipulator::SetFileName(char* text) { return Set(file_header::kName, text); }
bool CPROIO_Manipulator::GetFileDate(char*& text) { return Get(file_header::kDate, text); }
bool CPROIO_Manipulator::SetType(char* text) { return Set(file_header::kType, text); }
bool CPROIO_Manipulator::SetCreateBy(char* text) { return Set(file_header::kCreateBy, text); }
bool CPROIO_Manipulator::SetRemark(char* text) { return Set(file_header::kRemark, text); }

// [CaeHeader]

bool CPROIO_Manipulator::SetVersion(char* text) { return Set(cae_header::kVersion, text); }
bool CPROIO_Manipulator::SetRelease(char* text) { return Set(cae_header::kRelease, text); }
bool CPROIO_Manipulator::GetProjectPath(char*& text) { return Get(cae_header::kProject, text); }
bool CPROIO_Manipulator::SetProject(char* text) { return Set(cae_header::kProject, text); }
bool CPROIO_Manipulator::SetEngineer(char* text) { return Set(cae_header::kEngineer, text); }
bool CPROIO_Manipulator::SetParent(char* text) { return Set(cae_header::kParent, text); }
bool CPROIO_Manipulator::GetCAEType(char*& text) { return Get(cae_header::kType, text); }
bool CPROIO_Manipulator::SetCAEType(char* text) { return Set(cae_header::kType, text); }
bool CPROIO_Manipulator::GetFileVersion(int& value) { return Get(cae_header::kFileVersion, value); }
bool CPROIO_Manipulator::SetFileVersion(int value) { return Set(cae_header::kFileVersion, value); }
bool CPROIO_Manipulator::GetFileType(int& value) { return Get(cae_header::kFileType, value); }
bool CPROIO_Manipulator::SetFileType(int value) { return Set(cae_header::kFileType, value); }
bool CPROIO_Manipulator::GetSmartSetting(int& value) {
  return Get(cae_header::kSmartSetting, value);
}
bool CPROIO_Manipulator::SetSmartSetting(int value) {
  return Set(cae_header::kSmartSetting, value);
}

// [Unit]

bool CPROIO_Manipulator::SetUnitTime() { return Set(unit::kTime, "sec       Time"); }
bool CPROIO_Manipulator::SetUnitTemperature() { return Set(unit::kTemp, "oC        Temperature"); }
bool CPROIO_Manipulator::SetUnitPressure() { return Set(unit::kPres, "MPa       Pressure"); }
bool CPROIO_Manipulator::SetUnitFlowRate() { return Set(unit::kFR, "cc/sec    FlowRate"); }
bool CPROIO_Manipulator::SetUnitInjectPressure() {
  return Set(unit::kIP, "MPa       InjectPressure");
}
bool CPROIO_Manipulator::SetUnitPackPressure() { return Set(unit::kPP, "MPa       PackPressure"); }
bool CPROIO_Manipulator::SetUnitVolume() { return Set(unit::kVolum, "cc        Volume"); }
