#include "blocks/summary.h"
#include "api/forward.h"

// [Summary]

using namespace qel;
using namespace qel::summary;

bool CQELPROReader_Manipulator::Summary_ReadTotalLayer(int& value) {
  return read(session_, &Session::summary, kTotalNdivz, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalMeltEntrance(int& value) {
  return read(session_, &Session::summary, kTotalNodeEM, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalCoolantEntrance(int& value) {
  return read(session_, &Session::summary, kTotalNodeEC, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalValveGate(int& value) {
  return read(session_, &Session::summary, kTotalGateCTL, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadVacuumIndex(int& value) {
  return read(session_, &Session::summary, kVacuumIndex, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadSkinRatio(double& value) {
  return read(session_, &Session::summary, kSkinRatio, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadPEOFasPPack(int& value) {
  return read(session_, &Session::summary, kPEOFasPPack, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalMoldbase(int& value) {
  return read(session_, &Session::summary, kTotalNodeMB, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalBoundaryCondition(int& value) {
  return read(session_, &Session::summary, kTotalNodeBC, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalGasEntrance(int& value) {
  return read(session_, &Session::summary, kTotalNodeEG, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalMoldMetalMaterial(int& value) {
  return read(session_, &Session::summary, kTotalNodeMMM, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadSymmetryVolumeRatio(int& value) {
  return read(session_, &Session::summary, kSymVolRatio, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalHeatingRod(int& value) {
  return read(session_, &Session::summary, kTotalNodeHR, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTransientInletConv(int& value) {
  return read(session_, &Session::summary, kIsTransientInletConv, {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalOverFlowCTL(int& value) {
  return read(session_, &Session::summary, kTotalOverFlowCTL, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalLayer(int value) {
  return write(session_, &Session::summary, kTotalNdivz, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalMeltEntrance(int value) {
  return write(session_, &Session::summary, kTotalNodeEM, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalCoolantEntrance(int value) {
  return write(session_, &Session::summary, kTotalNodeEC, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalValveGate(int value) {
  return write(session_, &Session::summary, kTotalGateCTL, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteVacuumIndex(int value) {
  return write(session_, &Session::summary, kVacuumIndex, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteSkinRatio(double value) {
  return write(session_, &Session::summary, kSkinRatio, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WritePEOFasPPack(int value) {
  return write(session_, &Session::summary, kPEOFasPPack, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalMoldbase(int value) {
  return write(session_, &Session::summary, kTotalNodeMB, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalBoundaryCondition(int value) {
  return write(session_, &Session::summary, kTotalNodeBC, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalGasEntrance(int value) {
  return write(session_, &Session::summary, kTotalNodeEG, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalMoldMetalMaterial(int value) {
  return write(session_, &Session::summary, kTotalNodeMMM, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteSymmetryVolumeRatio(int value) {
  return write(session_, &Session::summary, kSymVolRatio, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalHeatingRod(int value) {
  return write(session_, &Session::summary, kTotalNodeHR, {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTransientInletConv(int value) {
  return write(session_, &Session::summary, kIsTransientInletConv, {}, value);
}
