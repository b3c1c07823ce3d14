#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// The order is that of the entries in a new file. Where memory fails the rest is left, so that
// another call keeps to that order.
bool CPROIO_Manipulator::SetDefault() {
  constexpr int kStage = 1;
  return Set(file_header::kName, "Default.pro") && Set(file_header::kType, "PRO") &&
         Set(file_header::kCreateBy, "PROIO Manipulator (QELProcEngine.dll)") &&
         Set(file_header::kRemark, "Default process condition setting") &&

         Set(cae_header::kVersion, "Vantor") && Set(cae_header::kRelease, "") &&
         Set(cae_header::kProject, "") && Set(cae_header::kEngineer, "") &&
         Set(cae_header::kParent, "") && Set(cae_header::kType, "Injection") &&
         SetFileVersion(1008) &&  // the layout without what the gated getters serve
         SetFileType(0) &&

         SetMeshLayer(6) && SetMeltEntranceNo(1) && SetCoolantNo(0) &&

         SetUnitTime() && SetUnitTemperature() && SetUnitPressure() && SetUnitFlowRate() &&
         SetUnitInjectPressure() && SetUnitPackPressure() && SetUnitVolume() &&

         SetFillTime(1.0, kStage) && SetMeltTemperature(230.0, kStage) &&
         SetMoldTemperature(70.0, kStage) && SetInjectPressure(150.0, kStage) &&
         SetPreFill(100.0, kStage) && SetFRSection(2, kStage) &&
         SetFRProfile(1, 0.0, 50.0, kStage) && SetFRProfile(2, 100.0, 50.0, kStage);
}
