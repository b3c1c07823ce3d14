#include "blocks/transient_inlet_conv.h"
#include "api/forward.h"

// [TransientInletConv]

using namespace qel;
using namespace qel::transient_inlet_conv;

bool CQELPROReader_Manipulator::TransientInletConv_ReadInitConversionType(int& value) {
  return read(session_, &Session::transient_inlet_conv, kInitConversionType, {}, value);
}

bool CQELPROReader_Manipulator::TransientInletConv_ReadInitPelletConversion(double& value) {
  return read(session_, &Session::transient_inlet_conv, kInitPelletConv, {}, value);
}

bool CQELPROReader_Manipulator::TransientInletConv_ReadPelletDiameter(double& value) {
  return read(session_, &Session::transient_inlet_conv, kPelletDiameter, {}, value);
}

bool CQELPROReader_Manipulator::TransientInletConv_ReadPelletHeight(double& value) {
  return read(session_, &Session::transient_inlet_conv, kPelletHeight, {}, value);
}

bool CQELPROReader_Manipulator::TransientInletConv_ReadPreHeatTime(double& value) {
  return read(session_, &Session::transient_inlet_conv, kPreHeatTime, {}, value);
}

bool CQELPROWriter_Manipulator::TransientInletConv_WriteInitConversionType(int value) {
  return write(session_, &Session::transient_inlet_conv, kInitConversionType, {}, value);
}

bool CQELPROWriter_Manipulator::TransientInletConv_WriteInitPelletConversion(double value) {
  return write(session_, &Session::transient_inlet_conv, kInitPelletConv, {}, value);
}

bool CQELPROWriter_Manipulator::TransientInletConv_WritePelletDiameter(double value) {
  return write(session_, &Session::transient_inlet_conv, kPelletDiameter, {}, value);
}

bool CQELPROWriter_Manipulator::TransientInletConv_WritePelletHeight(double value) {
  return write(session_, &Session::transient_inlet_conv, kPelletHeight, {}, value);
}

bool CQELPROWriter_Manipulator::TransientInletConv_WritePreHeatTime(double value) {
  return write(session_, &Session::transient_inlet_conv, kPreHeatTime, {}, value);
}
