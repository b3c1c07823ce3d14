#include "blocks/ic_package.h"
#include "api/forward.h"

// [ICPackage]

using namespace qel;
using namespace qel::ic_package;

bool CQELPROReader_Manipulator::ICPackage_ReadInitConversionType(int& value) {
  return read(session_, &Session::ic_package, kInitConversionType, {}, value);
}

bool CQELPROReader_Manipulator::ICPackage_ReadInitPelletConversion(double& value) {
  return read(session_, &Session::ic_package, kInitConversion, {}, value);
}

bool CQELPROReader_Manipulator::ICPackage_ReadPelletDiameter(double& value) {
  return read(session_, &Session::ic_package, kPelletDiameter, {}, value);
}

bool CQELPROReader_Manipulator::ICPackage_ReadPelletHeight(double& value) {
  return read(session_, &Session::ic_package, kPelletHeight, {}, value);
}

bool CQELPROReader_Manipulator::ICPackage_ReadPreHeatTime(double& value) {
  return read(session_, &Session::ic_package, kPreHeatingTime, {}, value);
}

bool CQELPROWriter_Manipulator::ICPackage_WriteInitConversionType(int value) {
  return write(session_, &Session::ic_package, kInitConversionType, {}, value);
}

bool CQELPROWriter_Manipulator::ICPackage_WriteInitPelletConversion(double value) {
  return write(session_, &Session::ic_package, kInitConversion, {}, value);
}

bool CQELPROWriter_Manipulator::ICPackage_WritePelletDiameter(double value) {
  return write(session_, &Session::ic_package, kPelletDiameter, {}, value);
}

bool CQELPROWriter_Manipulator::ICPackage_WritePelletHeight(double value) {
  return write(session_, &Session::ic_package, kPelletHeight, {}, value);
}

bool CQELPROWriter_Manipulator::ICPackage_WritePreHeatTime(double value) {
  return write(session_, &Session::ic_package, kPreHeatingTime, {}, value);
}
