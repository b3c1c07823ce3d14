#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

// [AdvancedSetting]

bool CPROIO_Manipulator::GetMoldClampingForce(double& value) {
  return GetGated(advanced_setting::kMoldClampingForce, value);
}
bool CPROIO_Manipulator::SetMoldClampingForce(double value) {
  return Set(advanced_setting::kMoldClampingForce, value);
}
bool CPROIO_Manipulator::GetMoldOpenDirection(double& x, double& y, double& z) {
  return GetGated(advanced_setting::kMoldOpenDirection, x, y, z);
}
bool CPROIO_Manipulator::SetMoldOpenDirection(double x, double y, double z) {
  return Set(advanced_setting::kMoldOpenDirection, x, y, z);
}

// [TransientInletConv]

bool CPROIO_Manipulator::GetInitPelletConv(double& value) {
  return GetGated(transient_inlet_conv::kInitPelletConv, value);
}
bool CPROIO_Manipulator::SetInitPelletConv(double value) {
  return Set(transient_inlet_conv::kInitPelletConv, value);
}
bool CPROIO_Manipulator::GetPelletDiameter(double& value) {
  return GetGated(transient_inlet_conv::kPelletDiameter, value);
}
bool CPROIO_Manipulator::SetPelletDiameter(double value) {
  return Set(transient_inlet_conv::kPelletDiameter, value);
}
bool CPROIO_Manipulator::GetPelletHeight(double& value) {
  return GetGated(transient_inlet_conv::kPelletHeight, value);
}
bool CPROIO_Manipulator::SetPelletHeight(double value) {
  return Set(transient_inlet_conv::kPelletHeight, value);
}
bool CPROIO_Manipulator::GetPreHeatTime(double& value) {
  return GetGated(transient_inlet_conv::kPreHeatTime, value);
}
bool CPROIO_Manipulator::SetPreHeatTime(double value) {
  return Set(transient_inlet_conv::kPreHeatTime, value);
}

// [ICPackage]

bool CPROIO_Manipulator::GetICInitConversionType(int& value) {
  return Get(ic_package::kInitConversionType, value);
}
bool CPROIO_Manipulator::GetICInitConversion(double& value) {
  return Get(ic_package::kInitConversion, value);
}
bool CPROIO_Manipulator::GetICPelletDiameter(double& value) {
  return Get(ic_package::kPelletDiameter, value);
}
bool CPROIO_Manipulator::GetICPelletHeight(double& value) {
  return Get(ic_package::kPelletHeight, value);
}
bool CPROIO_Manipulator::GetICPreHeatingTime(double& value) {
  return Get(ic_package::kPreHeatingTime, value);
}

// [MoldThermalBoundaryType]

bool CPROIO_Manipulator::GetMoldThermalBoundaryType(int& value) {
  return Get(mold_thermal_boundary::kType, value);
}
bool CPROIO_Manipulator::SetMoldThermalBoundaryType(int value) {
  return Set(mold_thermal_boundary::kType, value);
}
bool CPROIO_Manipulator::GetFlowHeatTransferCoefficient(double& value) {
  return Get(mold_thermal_boundary::kFlowHeatTransferCoefficient, value);
}
bool CPROIO_Manipulator::SetFlowHeatTransferCoefficient(double value) {
  return SetCoefficient(mold_thermal_boundary::kFlowHeatTransferCoefficient, value);
}
bool CPROIO_Manipulator::GetPackHeatTransferCoefficient(double& value) {
  return Get(mold_thermal_boundary::kPackHeatTransferCoefficient, value);
}
bool CPROIO_Manipulator::SetPackHeatTransferCoefficient(double value) {
  return SetCoefficient(mold_thermal_boundary::kPackHeatTransferCoefficient, value);
}

// The file's date stays as it is, on purpose: the two coefficients have always been written without
// a stamp.
bool CPROIO_Manipulator::SetCoefficient(const Row& row, double value) {
  constexpr const char* kUnit = "        (W/m^2.K)";
  return qel::attempt([&] {
    return IsOK(Write(SectionOf(row), KeyOf(row), (qel::fields::print_one(value) + kUnit).c_str(),
                      false, kByKey));
  });
}
