#include "blocks/machine.h"
#include "api/forward.h"

// [Machine]

using namespace qel;
using namespace qel::machine;

bool CQELPROReader_Manipulator::Machine_ReadMaker(char*& text) {
  return read(session_, &Session::machine, kMaker, {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadGrade(char*& text) {
  return read(session_, &Session::machine, kGrade, {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadLastModifiedDate(char*& text) {
  return read(session_, &Session::machine, kLastModifiedDate, {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadRemark(char*& text) {
  return read(session_, &Session::machine, kRemark, {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadDiameter(double& value) {
  return read(session_, &Session::machine, kDiameter, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadMaxRamPos(double& value) {
  return read(session_, &Session::machine, kMaxRamPos, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadShotVolume(double& value) {
  return read(session_, &Session::machine, kShotVolume, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadShotWeight(double& value) {
  return read(session_, &Session::machine, kWeight, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadInjectionPressure(double& value) {
  return read(session_, &Session::machine, kMaxMachinePres, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadHoldingPressure(double& value) {
  return read(session_, &Session::machine, kHoldingPressure, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadInjectionSpeed(double& value) {
  return read(session_, &Session::machine, kInjectionSpeed, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadFlowRate(double& value) {
  return read(session_, &Session::machine, kFR, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadPlasticationRate(double& value) {
  return read(session_, &Session::machine, kPlasticationRate, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadScrewSpeed(double& value) {
  return read(session_, &Session::machine, kScrewSpeed, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadNozzleContactForce(double& value) {
  return read(session_, &Session::machine, kNozzleContactForce, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadNozzleStroke(double& value) {
  return read(session_, &Session::machine, kNozzleStroke, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadHeaterWattage(double& value) {
  return read(session_, &Session::machine, kHeaterWattage, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadTemperatureControlZones(int& value) {
  return read(session_, &Session::machine, kTemperatureControlZones, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadClampForce(double& value) {
  return read(session_, &Session::machine, kSize, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadOpeningStroke(double& value) {
  return read(session_, &Session::machine, kOpeningStroke, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadMaxDaylight(double& value) {
  return read(session_, &Session::machine, kMaxDaylight, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadMoldHeight(double& value) {
  return read(session_, &Session::machine, kMoldHeight, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadDistanceBetweenTieBars(char*& text) {
  return read(session_, &Session::machine, kDistanceBetweenTieBarsText, {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadDistanceBetweenTieBars(double& first, double& second) {
  return read(session_, &Session::machine, kDistanceBetweenTieBars, {}, first, second);
}

bool CQELPROReader_Manipulator::Machine_ReadPlatenSize(char*& text) {
  return read(session_, &Session::machine, kPlatenSizeText, {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadPlatenSize(double& first, double& second) {
  return read(session_, &Session::machine, kPlatenSize, {}, first, second);
}

bool CQELPROReader_Manipulator::Machine_ReadEjectorPoint(int& value) {
  return read(session_, &Session::machine, kEjectorPoint, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadEjectorForce(double& value) {
  return read(session_, &Session::machine, kEjectorForce, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadEjectorStroke(double& value) {
  return read(session_, &Session::machine, kEjectorStroke, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadMachineWeight(double& value) {
  return read(session_, &Session::machine, kMachineWeight, {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadMachineDimension(char*& text) {
  return read(session_, &Session::machine, kMachineDimensionText, {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadMachineDimension(double& length, double& width,
                                                             double& height) {
  return read(session_, &Session::machine, kMachineDimension, {}, length, width, height);
}

bool CQELPROReader_Manipulator::Machine_ReadBarrelCompressionCtrl(int& value) {
  return read(session_, &Session::machine, kBarrelCompressionCtrl, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteMaker(char* text) {
  return write(session_, &Session::machine, kMaker, {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteGrade(char* text) {
  return write(session_, &Session::machine, kGrade, {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteLastModifiedDate(char* text) {
  return write(session_, &Session::machine, kLastModifiedDate, {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteRemark(char* text) {
  return write(session_, &Session::machine, kRemark, {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteDiameter(double value) {
  return write(session_, &Session::machine, kDiameter, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteMaxRamPos(double value) {
  return write(session_, &Session::machine, kMaxRamPos, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteShotVolume(double value) {
  return write(session_, &Session::machine, kShotVolume, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteShotWeight(double value) {
  return write(session_, &Session::machine, kWeight, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteInjectionPressure(double value) {
  return write(session_, &Session::machine, kMaxMachinePres, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteHoldingPressure(double value) {
  return write(session_, &Session::machine, kHoldingPressure, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteInjectionSpeed(double value) {
  return write(session_, &Session::machine, kInjectionSpeed, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteFlowRate(double value) {
  return write(session_, &Session::machine, kFR, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WritePlasticationRate(double value) {
  return write(session_, &Session::machine, kPlasticationRate, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteScrewSpeed(double value) {
  return write(session_, &Session::machine, kScrewSpeed, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteNozzleContactForce(double value) {
  return write(session_, &Session::machine, kNozzleContactForce, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteNozzleStroke(double value) {
  return write(session_, &Session::machine, kNozzleStroke, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteHeaterWattage(double value) {
  return write(session_, &Session::machine, kHeaterWattage, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteTemperatureControlZones(int value) {
  return write(session_, &Session::machine, kTemperatureControlZones, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteClampForce(double value) {
  return write(session_, &Session::machine, kSize, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteOpeningStroke(double value) {
  return write(session_, &Session::machine, kOpeningStroke, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteMaxDaylight(double value) {
  return write(session_, &Session::machine, kMaxDaylight, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteMoldHeight(double value) {
  return write(session_, &Session::machine, kMoldHeight, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteDistanceBetweenTieBars(char* text) {
  return write(session_, &Session::machine, kDistanceBetweenTieBarsText, {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteDistanceBetweenTieBars(double first, double second) {
  return write(session_, &Session::machine, kDistanceBetweenTieBars, {}, first, second);
}

bool CQELPROWriter_Manipulator::Machine_WritePlatenSize(char* text) {
  return write(session_, &Session::machine, kPlatenSizeText, {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WritePlatenSize(double first, double second) {
  return write(session_, &Session::machine, kPlatenSize, {}, first, second);
}

bool CQELPROWriter_Manipulator::Machine_WriteEjectorPoint(int value) {
  return write(session_, &Session::machine, kEjectorPoint, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteEjectorForce(double value) {
  return write(session_, &Session::machine, kEjectorForce, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteEjectorStroke(double value) {
  return write(session_, &Session::machine, kEjectorStroke, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteMachineWeight(double value) {
  return write(session_, &Session::machine, kMachineWeight, {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteMachineDimension(char* text) {
  return write(session_, &Session::machine, kMachineDimensionText, {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteMachineDimension(double length, double width,
                                                              double height) {
  return write(session_, &Session::machine, kMachineDimension, {}, length, width, height);
}
