// Made by "./dev generate" from the rows of src/blocks.
// clang-format off

#include "api/members.h"

using namespace qel;

// [FileHeader]

bool CQELPROWriter_Manipulator::FileHeader_WriteName(char* text) {
  return write<CQELPROBlockIOFileHeader, Text>(session_, "Name", {}, text);
}

bool CQELPROWriter_Manipulator::FileHeader_WriteType(char* text) {
  return write<CQELPROBlockIOFileHeader, Text>(session_, "Type", {}, text);
}

bool CQELPROWriter_Manipulator::FileHeader_WriteCreateBy(char* text) {
  return write<CQELPROBlockIOFileHeader, Text>(session_, "CreateBy", {}, text);
}

bool CQELPROWriter_Manipulator::FileHeader_WriteRemark(char* text) {
  return write<CQELPROBlockIOFileHeader, Text>(session_, "Remark", {}, text);
}

// [CaeHeader]

bool CQELPROWriter_Manipulator::CaeHeader_WriteVersion(char* text) {
  return write<CQELPROBlockIOCaeHeader, Text>(session_, "Version", {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteRelease(char* text) {
  return write<CQELPROBlockIOCaeHeader, Text>(session_, "Release", {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteProject(char* text) {
  return write<CQELPROBlockIOCaeHeader, Text>(session_, "Project", {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteEngineer(char* text) {
  return write<CQELPROBlockIOCaeHeader, Text>(session_, "Engineer", {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteParent(char* text) {
  return write<CQELPROBlockIOCaeHeader, Text>(session_, "Parent", {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteType(char* text) {
  return write<CQELPROBlockIOCaeHeader, Text>(session_, "Type", {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteFileVersion(char* text) {
  return write<CQELPROBlockIOCaeHeader, Text>(session_, "FileVersion", {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteFileType(int value) {
  return write<CQELPROBlockIOCaeHeader, Integer>(session_, "FileType", {}, value);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteSmartSetting(int value) {
  return write<CQELPROBlockIOCaeHeader, Integer>(session_, "SmartSetting", {}, value);
}

// [Summary]

bool CQELPROWriter_Manipulator::Summary_WriteTotalLayer(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "TotalNdivz", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalMeltEntrance(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeEM", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalCoolantEntrance(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeEC", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalValveGate(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "TotalGateCTL", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteVacuumIndex(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "VacuumIndex", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteSkinRatio(double value) {
  return write<CQELPROBlockIOSummary, Real>(session_, "SkinRatio", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WritePEOFasPPack(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "PEOFasPPack", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalMoldbase(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeMB", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalBoundaryCondition(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeBC", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalGasEntrance(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeEG", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalMoldMetalMaterial(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeMMM", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteSymmetryVolumeRatio(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "SymVolRatio", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTotalHeatingRod(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeHR", {}, value);
}

bool CQELPROWriter_Manipulator::Summary_WriteTransientInletConv(int value) {
  return write<CQELPROBlockIOSummary, Integer>(session_, "IsTransientInletConv", {}, value);
}

// [FlowCTL]

bool CQELPROWriter_Manipulator::FlowCTL_WriteFlowCtrl(int value) {
  return write<CQELPROBlockIOFlowCTL, Integer>(session_, "FlowCtrl", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteVPSwitchCtrl(int value) {
  return write<CQELPROBlockIOFlowCTL, Integer>(session_, "VPSwitchCtrl", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WritePackingCtrl(int value) {
  return write<CQELPROBlockIOFlowCTL, Integer>(session_, "PackingCtrl", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteMoldTemperature(double value) {
  return write<CQELPROBlockIOFlowCTL, Real>(session_, "MoldTemperature", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteMeltTemperature(double value) {
  return write<CQELPROBlockIOFlowCTL, Real>(session_, "MeltTemperature", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteInjectionTime(double value) {
  return write<CQELPROBlockIOFlowCTL, Real>(session_, "InjectionTime", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteVolumeFilled(double value) {
  return write<CQELPROBlockIOFlowCTL, Real>(session_, "VolumeFilled", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteRamPosition(double value) {
  return write<CQELPROBlockIOFlowCTL, Real>(session_, "RamPosition", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteInjectionPressure(double value) {
  return write<CQELPROBlockIOFlowCTL, Real>(session_, "InjectionPressure", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteCureSwitch(double value) {
  return write<CQELPROBlockIOFlowCTL, Real>(session_, "CureSwitch", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteCureEnterType(int value, int /*index*/) {
  return write<CQELPROBlockIOFlowCTL, Integer>(session_, "CureEnterType", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteCureEnterSwitch(double value, int /*index*/) {
  return write<CQELPROBlockIOFlowCTL, Real>(session_, "CureEnterSwch", {}, value);
}

bool CQELPROWriter_Manipulator::FlowCTL_WriteCureEnterTime(double value, int /*index*/) {
  return write<CQELPROBlockIOFlowCTL, Real>(session_, "CureEnterTime", {}, value);
}

// [Flow-%ld]

bool CQELPROWriter_Manipulator::FlowX_WriteFillingTime(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "FillTime", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteMaxFillingTime(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "MaxFillingTime", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteMeltTemperature(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "MeltTemp", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteMoldTemperature(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "MoldTemp", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteInjectPressure(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "InjectPres", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WritePreFill(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "PreFill", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteInjectVolume(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "InjVol", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTransferTime(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "TransTime", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteMaxTransferTime(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "MaxTransferTime", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteResinTemperature(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "ResnTemp", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTransferPressure(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "TransPres", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteInitConversion(double value, int inlet) {
  return write<CQELPROBlockIOFlowX, Real>(session_, "InitConv", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteFRDisplayType(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "FRDisplayType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteIPDisplayType(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "IPDisplayType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTPDisplayType(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "TPDisplayType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteFRProfileType(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "FRProfileType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteIPProfileType(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "IPProfileType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTPProfileType(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "TPProfileType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteFRStrokeMode(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "FRStrokeMode", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteIPStrokeMode(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "IPStrokeMode", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTPStrokeMode(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "TPStrokeMode", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteFRSection(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "FRSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteFRProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOFlowX, RealPair>(session_, "FR-%d", at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::FlowX_WriteIPSection(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "IPSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteIPProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOFlowX, RealPair>(session_, "IP-%d", at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTPSection(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "TPSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteTPProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOFlowX, RealPair>(session_, "TP-%d", at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserFRSection(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "UserFRSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserFRProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOFlowX, RealPair>(session_, "UserFR-%d", at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserIPSection(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "UserIPSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserIPProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOFlowX, RealPair>(session_, "UserIP-%d", at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserTPSection(int value, int inlet) {
  return write<CQELPROBlockIOFlowX, Integer>(session_, "UserTPSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::FlowX_WriteUserTPProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOFlowX, RealPair>(session_, "UserTP-%d", at_point(point, inlet), x, y);
}

// [Pack-%d]

bool CQELPROWriter_Manipulator::PackX_WritePackTime(double value, int inlet) {
  return write<CQELPROBlockIOPackX, Real>(session_, "PackTime", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePackPressure(double value, int inlet) {
  return write<CQELPROBlockIOPackX, Real>(session_, "PackPres", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePackSwitch(double value, int inlet) {
  return write<CQELPROBlockIOPackX, Real>(session_, "PackSwch", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WriteIgnoreLimitation(int value, int inlet) {
  return write<CQELPROBlockIOPackX, Integer>(
      session_, "IgnoreLimitation", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WriteMaxEOFRatio(double value, int inlet) {
  return write<CQELPROBlockIOPackX, Real>(session_, "MaxEOFRatio", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePPDisplayType(int value, int inlet) {
  return write<CQELPROBlockIOPackX, Integer>(session_, "PPDisplayType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePPProfileType(int value, int inlet) {
  return write<CQELPROBlockIOPackX, Integer>(session_, "PPProfileType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePPSection(int value, int inlet) {
  return write<CQELPROBlockIOPackX, Integer>(session_, "PPSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WritePPProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOPackX, RealPair>(session_, "PP-%d", at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::PackX_WriteUserPPSection(int value, int inlet) {
  return write<CQELPROBlockIOPackX, Integer>(session_, "UserPPSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::PackX_WriteUserPPProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOPackX, RealPair>(session_, "UserPP-%d", at_point(point, inlet), x, y);
}

// [Cure-%d]

bool CQELPROWriter_Manipulator::CureX_WriteCureTime(double value, int inlet) {
  return write<CQELPROBlockIOCureX, Real>(session_, "CureTime", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCurePressure(double value, int inlet) {
  return write<CQELPROBlockIOCureX, Real>(session_, "CurePres", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCureSwitch(double value, int inlet) {
  return write<CQELPROBlockIOCureX, Real>(session_, "CureSwch", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCPDisplayType(int value, int inlet) {
  return write<CQELPROBlockIOCureX, Integer>(session_, "CPDisplayType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCPProfileType(int value, int inlet) {
  return write<CQELPROBlockIOCureX, Integer>(session_, "PPProfileType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCPSection(int value, int inlet) {
  return write<CQELPROBlockIOCureX, Integer>(session_, "CPSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteCPProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOCureX, RealPair>(session_, "CP-%d", at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::CureX_WriteUserCPSection(int value, int inlet) {
  return write<CQELPROBlockIOCureX, Integer>(session_, "UserCPSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::CureX_WriteUserCPProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOCureX, RealPair>(session_, "UserCP-%d", at_point(point, inlet), x, y);
}

// [Cool]

bool CQELPROWriter_Manipulator::Cool_WriteCoolTime(double value) {
  return write<CQELPROBlockIOCool, Real>(session_, "CoolTime", {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteMoldOpenTime(double value) {
  return write<CQELPROBlockIOCool, Real>(session_, "OpenTime", {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteEjectTemperature(double value) {
  return write<CQELPROBlockIOCool, Real>(session_, "EjectTemp", {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteAirTemperature(double value) {
  return write<CQELPROBlockIOCool, Real>(session_, "AirTemp", {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteInitMoldTemperature(double value) {
  return write<CQELPROBlockIOCool, Real>(session_, "InitialMoldbaseTemperature", {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteCoolantTemperature(double value) {
  return write<CQELPROBlockIOCool, Real>(session_, "CoolantTemp", {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteCoolantFlowRate(double value) {
  return write<CQELPROBlockIOCool, Real>(session_, "CoolantFR", {}, value);
}

bool CQELPROWriter_Manipulator::Cool_WriteCoolingType(int value) {
  return write<CQELPROBlockIOCool, Integer>(session_, "CoolingType", {}, value);
}

// [CoolCTL]

bool CQELPROWriter_Manipulator::CoolCTL_WriteCoolantTemperature(double value, int entrance) {
  return write<CQELPROBlockIOCoolCTL, Real>(session_, "T-%d", at_point(entrance), value);
}

bool CQELPROWriter_Manipulator::CoolCTL_WriteCoolantFlowRate(double value, int entrance) {
  return write<CQELPROBlockIOCoolCTL, Real>(session_, "F-%d", at_point(entrance), value);
}

bool CQELPROWriter_Manipulator::CoolCTL_WroteCoolantPressure(double value, int entrance) {
  return write<CQELPROBlockIOCoolCTL, Real>(session_, "P-%d", at_point(entrance), value);
}

bool CQELPROWriter_Manipulator::CoolCTL_WriteCoolantSystem(int value, int entrance) {
  return write<CQELPROBlockIOCoolCTL, Integer>(session_, "M-%d", at_point(entrance), value);
}

// [Coolant]

bool CQELPROWriter_Manipulator::Coolant_WriteCoolant(
    double p1, double p2, double p3, double p4, int system, char* name, double f7, int f8,
    int coolant) {
  return write<CQELPROBlockIOCoolant, CoolantLine>(
      session_, "%d", at_point(coolant), p1, p2, p3, p4, system, name, f7, f8);
}

// [CoolChannel-%d]

bool CQELPROWriter_Manipulator::CoolChannelX_WriteDiameter(double value, int channel) {
  return write<CQELPROBlockIOCoolChannelX, Real>(session_, "Diameter", in_section(channel), value);
}

bool CQELPROWriter_Manipulator::CoolChannelX_WriteGroupID(int value, int channel) {
  return write<CQELPROBlockIOCoolChannelX, Integer>(
      session_, "GroupID", in_section(channel), value);
}

bool CQELPROWriter_Manipulator::CoolChannelX_WriteTimeSection(int value, int channel) {
  return write<CQELPROBlockIOCoolChannelX, Integer>(
      session_, "TimeSet", in_section(channel), value);
}

bool CQELPROWriter_Manipulator::CoolChannelX_WriteControlPointSetting(
    double f1, int system, double temperature, double flow, int f5, int point, int channel) {
  return write<CQELPROBlockIOCoolChannelX, ControlPoint>(
      session_, "TCP-%d", at_point(point, channel), f1, system, temperature, flow, f5);
}

bool CQELPROWriter_Manipulator::CoolChannelX_WritePressureControlPointSetting(
    double f1, int system, double temperature, double flow, int f5, int point, int channel) {
  return write<CQELPROBlockIOCoolChannelX, ControlPoint>(
      session_, "TCPP-%d", at_point(point, channel), f1, system, temperature, flow, f5);
}

// [VarCoolCTL]

bool CQELPROWriter_Manipulator::VarCoolCTL_WriteCoolantCount(int value) {
  return write<CQELPROBlockIOVarCoolCTL, Integer>(session_, "CoolantNo", {}, value);
}

bool CQELPROWriter_Manipulator::VarCoolCTL_WriteCoolant(
    double f1, double f2, double f3, double f4, int f5, int entry) {
  return write<CQELPROBlockIOVarCoolCTL, FourRealsAndInteger>(
      session_, "Coolant-%d", at_point(entry), f1, f2, f3, f4, f5);
}

// [GateCTL]

bool CQELPROWriter_Manipulator::GateCTL_WriteStartTime(double value, int gate) {
  return write<CQELPROBlockIOGateCTL, Real>(session_, "ST-%d", at_point(gate), value);
}

bool CQELPROWriter_Manipulator::GateCTL_WriteEndTime(double value, int gate) {
  return write<CQELPROBlockIOGateCTL, Real>(session_, "ET-%d", at_point(gate), value);
}

// [GateValve-%d]

bool CQELPROWriter_Manipulator::GateValveX_WriteGateValveID(int value, int valve) {
  return write<CQELPROBlockIOGateValveX, Integer>(session_, "GCId", in_section(valve), value);
}

bool CQELPROWriter_Manipulator::GateValveX_WriteControlPoint(int value, int valve) {
  return write<CQELPROBlockIOGateValveX, Integer>(session_, "GCSet", in_section(valve), value);
}

// [Machine]

bool CQELPROWriter_Manipulator::Machine_WriteMaker(char* text) {
  return write<CQELPROBlockIOMachine, Text>(session_, "Maker", {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteGrade(char* text) {
  return write<CQELPROBlockIOMachine, Text>(session_, "Grade", {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteLastModifiedDate(char* text) {
  return write<CQELPROBlockIOMachine, Text>(session_, "LastModifiedDate", {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteRemark(char* text) {
  return write<CQELPROBlockIOMachine, Text>(session_, "Remark", {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteDiameter(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "Diameter", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteMaxRamPos(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "MaxRamPos", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteShotVolume(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "ShotVolume", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteShotWeight(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "Weight", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteInjectionPressure(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "MaxMachinePres", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteHoldingPressure(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "HoldingPressure", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteInjectionSpeed(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "InjectionSpeed", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteFlowRate(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "FR", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WritePlasticationRate(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "PlasticationRate", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteScrewSpeed(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "ScrewSpeed", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteNozzleContactForce(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "NozzleContactForce", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteNozzleStroke(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "NozzleStroke", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteHeaterWattage(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "HeaterWattage", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteTemperatureControlZones(int value) {
  return write<CQELPROBlockIOMachine, ZoneCount>(session_, "TemperatureControlZones", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteClampForce(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "Size", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteOpeningStroke(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "OpeningStroke", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteMaxDaylight(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "MaxDaylight", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteMoldHeight(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "MoldHeight", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteDistanceBetweenTieBars(char* text) {
  return write<CQELPROBlockIOMachine, Text>(session_, "DistanceBetweenTieBars(HxV)", {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteDistanceBetweenTieBars(double first, double second) {
  return write<CQELPROBlockIOMachine, SizePair>(
      session_, "DistanceBetweenTieBars(HxV)", {}, first, second);
}

bool CQELPROWriter_Manipulator::Machine_WritePlatenSize(char* text) {
  return write<CQELPROBlockIOMachine, Text>(session_, "PlatenSize(HxV)", {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WritePlatenSize(double first, double second) {
  return write<CQELPROBlockIOMachine, SizePair>(session_, "PlatenSize(HxV)", {}, first, second);
}

bool CQELPROWriter_Manipulator::Machine_WriteEjectorPoint(int value) {
  return write<CQELPROBlockIOMachine, Integer>(session_, "EjectorPoint", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteEjectorForce(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "EjectorForce", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteEjectorStroke(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "EjectorStroke", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteMachineWeight(double value) {
  return write<CQELPROBlockIOMachine, Real>(session_, "MachineWeight", {}, value);
}

bool CQELPROWriter_Manipulator::Machine_WriteMachineDimension(char* text) {
  return write<CQELPROBlockIOMachine, Text>(session_, "MachineDimension(LxWxH)", {}, text);
}

bool CQELPROWriter_Manipulator::Machine_WriteMachineDimension(
    double length, double width, double height) {
  return write<CQELPROBlockIOMachine, SizeTriple>(
      session_, "MachineDimension(LxWxH)", {}, length, width, height);
}

// [Project]

bool CQELPROWriter_Manipulator::Project_WriteMesh(char* text) {
  return write<CQELPROBlockIOProject, Text>(session_, "Mesh", {}, text);
}

bool CQELPROWriter_Manipulator::Project_WriteMaterial(char* text) {
  return write<CQELPROBlockIOProject, Text>(session_, "Material", {}, text);
}

bool CQELPROWriter_Manipulator::Project_WriteCavityVolume(double value) {
  return write<CQELPROBlockIOProject, Real>(session_, "CavVol", {}, value);
}

bool CQELPROWriter_Manipulator::Project_WriteCushionVolume(double value) {
  return write<CQELPROBlockIOProject, Real>(session_, "CushionVol", {}, value);
}

// [RamPosition]

bool CQELPROWriter_Manipulator::RamPosition_WriteRamDirection(int value) {
  return write<CQELPROBlockIORamPosition, Integer>(session_, "RamDir", {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteIsVPSwitch(int value) {
  return write<CQELPROBlockIORamPosition, Integer>(session_, "IsVPswitch", {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteVPSwitchRamPosition(double value) {
  return write<CQELPROBlockIORamPosition, Real>(session_, "VPswitchRam", {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteSuckBack(double value) {
  return write<CQELPROBlockIORamPosition, Real>(session_, "SuckBack", {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamFRSection(int value) {
  return write<CQELPROBlockIORamPosition, Integer>(session_, "RP_FRSet", {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamFRProfile(double x, double y, int point) {
  return write<CQELPROBlockIORamPosition, RealPair>(session_, "RP_FR-%d", at_point(point), x, y);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamFRProfile(double value, int point) {
  return write<CQELPROBlockIORamPosition, Real>(session_, "RP_FR-%d", at_point(point), value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamIPSection(int value) {
  return write<CQELPROBlockIORamPosition, Integer>(session_, "RP_IPSet", {}, value);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamIPProfile(double x, double y, int point) {
  return write<CQELPROBlockIORamPosition, RealPair>(session_, "RP_IP-%d", at_point(point), x, y);
}

bool CQELPROWriter_Manipulator::RamPosition_WriteRamIPProfile(double value, int point) {
  return write<CQELPROBlockIORamPosition, Real>(session_, "RP_IP-%d", at_point(point), value);
}

// [Moldbase]

bool CQELPROWriter_Manipulator::Moldbase_WriteMoldbase(
    double f1, double f2, double f3, char* name, double f5, double f6, double f7, int row) {
  return write<CQELPROBlockIOMoldbase, MoldbaseLine>(
      session_, "%d", at_point(row), f1, f2, f3, name, f5, f6, f7);
}

// [MoldMetalMaterial]

bool CQELPROWriter_Manipulator::MoldMetalMaterial_WriteMaterial(
    double f1, double f2, double f3, char* name, double f5, double f6, double f7, int row) {
  return write<CQELPROBlockIOMoldMetalMaterial, MoldMetalLine>(
      session_, "%d", at_point(row), f1, f2, f3, name, f5, f6, f7);
}

// [MoldTemperatureBC-%d]

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteName(char* text, int bc) {
  return write<CQELPROBlockIOMoldTemperatureBCX, Text>(session_, "BCName", in_section(bc), text);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteDisplayType(int value, int bc) {
  return write<CQELPROBlockIOMoldTemperatureBCX, Integer>(
      session_, "BCDisplayType", in_section(bc), value);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteNodeCount(int value, int bc) {
  return write<CQELPROBlockIOMoldTemperatureBCX, Integer>(
      session_, "BCNodeCount", in_section(bc), value);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteBCProfile(
    double x, double y, int point, int bc) {
  return write<CQELPROBlockIOMoldTemperatureBCX, RealPair>(
      session_, "BC-%d", at_point(point, bc), x, y);
}

// [GasF-%d]

bool CQELPROWriter_Manipulator::GasFX_WriteGasTime(double value, int inlet) {
  return write<CQELPROBlockIOGasFX, Real>(session_, "GasTime", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGasPressure(double value, int inlet) {
  return write<CQELPROBlockIOGasFX, Real>(session_, "GasPres", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGasSwitch(double value, int inlet) {
  return write<CQELPROBlockIOGasFX, Real>(session_, "GasSwch", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteDelayTime(double value, int inlet) {
  return write<CQELPROBlockIOGasFX, Real>(session_, "DelayTime", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGRDisplayType(int value, int inlet) {
  return write<CQELPROBlockIOGasFX, Integer>(session_, "GRDisplayType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGRProfileType(int value, int inlet) {
  return write<CQELPROBlockIOGasFX, Integer>(session_, "GRProfileType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGPDisplayType(int value, int inlet) {
  return write<CQELPROBlockIOGasFX, Integer>(session_, "GPDisplayType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGPProfileType(int value, int inlet) {
  return write<CQELPROBlockIOGasFX, Integer>(session_, "GPProfileType", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGRSection(int value, int inlet) {
  return write<CQELPROBlockIOGasFX, Integer>(session_, "GRSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGRProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOGasFX, RealPair>(session_, "GR-%d", at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGPSection(int value, int inlet) {
  return write<CQELPROBlockIOGasFX, Integer>(session_, "GPSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteGPProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOGasFX, RealPair>(session_, "GP-%d", at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::GasFX_WriteUserGRSection(int value, int inlet) {
  return write<CQELPROBlockIOGasFX, Integer>(session_, "UserGRSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteUserGRProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOGasFX, RealPair>(session_, "UserGR-%d", at_point(point, inlet), x, y);
}

bool CQELPROWriter_Manipulator::GasFX_WriteUserGPSection(int value, int inlet) {
  return write<CQELPROBlockIOGasFX, Integer>(session_, "UserGPSet", in_section(inlet), value);
}

bool CQELPROWriter_Manipulator::GasFX_WriteUserGPProfile(double x, double y, int point, int inlet) {
  return write<CQELPROBlockIOGasFX, RealPair>(session_, "USerGP-%d", at_point(point, inlet), x, y);
}

// [AdvancedSetting]

bool CQELPROWriter_Manipulator::AdvancedSetting_WriteOpenDirection(double x, double y, double z) {
  return write<CQELPROBlockIOAdvancedSetting, RealTriple>(session_, "OpenDirection", {}, x, y, z);
}

bool CQELPROWriter_Manipulator::AdvancedSetting_WriteClampForce(double value) {
  return write<CQELPROBlockIOAdvancedSetting, Real>(session_, "ClampForce", {}, value);
}

// [TransientInletConv]

bool CQELPROWriter_Manipulator::TransientInletConv_WriteInitConversionType(int value) {
  return write<CQELPROBlockIOTransientInletConv, Integer>(
      session_, "InitConversionType", {}, value);
}

bool CQELPROWriter_Manipulator::TransientInletConv_WriteInitPelletConversion(double value) {
  return write<CQELPROBlockIOTransientInletConv, Real>(session_, "InitPelletConv", {}, value);
}

bool CQELPROWriter_Manipulator::TransientInletConv_WritePelletDiameter(double value) {
  return write<CQELPROBlockIOTransientInletConv, Real>(session_, "PelletDiameter", {}, value);
}

bool CQELPROWriter_Manipulator::TransientInletConv_WritePelletHeight(double value) {
  return write<CQELPROBlockIOTransientInletConv, Real>(session_, "PelletHeight", {}, value);
}

bool CQELPROWriter_Manipulator::TransientInletConv_WritePreHeatTime(double value) {
  return write<CQELPROBlockIOTransientInletConv, Real>(session_, "PreHeatTime", {}, value);
}

// [MoldThermalBoundaryType]

bool CQELPROWriter_Manipulator::MoldTemperatureBoundaryType_WriteHTCType(int value) {
  return write<CQELPROBlockIOMoldThermalBoundaryType, Integer>(session_, "Type", {}, value);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBoundaryType_WriteHTCFlow(double value, char* note) {
  return write<CQELPROBlockIOMoldThermalBoundaryType, RealWithNote>(
      session_, "Flow", {}, value, note);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBoundaryType_WriteHTCPack(double value, char* note) {
  return write<CQELPROBlockIOMoldThermalBoundaryType, RealWithNote>(
      session_, "Pack", {}, value, note);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBoundaryType_WriteHTCDetached(
    double value, char* note) {
  return write<CQELPROBlockIOMoldThermalBoundaryType, RealWithNote>(
      session_, "Detached_HTC", {}, value, note);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBoundaryType_WriteHTCHotRunner(
    double value, char* note) {
  return write<CQELPROBlockIOMoldThermalBoundaryType, RealWithNote>(
      session_, "HotRunner_HTC", {}, value, note);
}

// [ICPackage]

bool CQELPROWriter_Manipulator::ICPackage_WriteInitConversionType(int value) {
  return write<CQELPROBlockIOICPackage, Integer>(session_, "InitConversionType", {}, value);
}

bool CQELPROWriter_Manipulator::ICPackage_WriteInitPelletConversion(double value) {
  return write<CQELPROBlockIOICPackage, Real>(session_, "InitConversion", {}, value);
}

bool CQELPROWriter_Manipulator::ICPackage_WritePelletDiameter(double value) {
  return write<CQELPROBlockIOICPackage, Real>(session_, "PelletDiameter", {}, value);
}

bool CQELPROWriter_Manipulator::ICPackage_WritePelletHeight(double value) {
  return write<CQELPROBlockIOICPackage, Real>(session_, "PelletHeight", {}, value);
}

bool CQELPROWriter_Manipulator::ICPackage_WritePreHeatTime(double value) {
  return write<CQELPROBlockIOICPackage, Real>(session_, "PreHeatingTime", {}, value);
}

// [PartingSurface]

bool CQELPROWriter_Manipulator::PartingSurface_WriteCavityPart(
    int number, double f2, double f3, double f4) {
  return write<CQELPROBlockIOPartingSurface, IntegerAndThreeReals>(
      session_, "CavityPart", {}, number, f2, f3, f4);
}

bool CQELPROWriter_Manipulator::PartingSurface_WriteCavityMoldbase(
    int number, double f2, double f3, double f4) {
  return write<CQELPROBlockIOPartingSurface, IntegerAndThreeReals>(
      session_, "CavityMoldbase", {}, number, f2, f3, f4);
}

bool CQELPROWriter_Manipulator::PartingSurface_WriteCorePart(
    int number, double f2, double f3, double f4) {
  return write<CQELPROBlockIOPartingSurface, IntegerAndThreeReals>(
      session_, "CorePart", {}, number, f2, f3, f4);
}

bool CQELPROWriter_Manipulator::PartingSurface_WriteCoreMoldbase(
    int number, double f2, double f3, double f4) {
  return write<CQELPROBlockIOPartingSurface, IntegerAndThreeReals>(
      session_, "CoreMoldbase", {}, number, f2, f3, f4);
}

// [EjectCriteria]

bool CQELPROWriter_Manipulator::EjectCriteria_WriteTotalSensorNode(int value) {
  return write<CQELPROBlockIOEjectCriteria, Integer>(session_, "TotalSensorNode", {}, value);
}

bool CQELPROWriter_Manipulator::EjectCriteria_WriteSensorNode(int value, int sensor) {
  return write<CQELPROBlockIOEjectCriteria, Integer>(
      session_, "SensorNode-%d", at_point(sensor), value);
}

bool CQELPROWriter_Manipulator::EjectCriteria_WriteTotalCriteriaNode(int value) {
  return write<CQELPROBlockIOEjectCriteria, Integer>(session_, "TotalCriteriaNode", {}, value);
}

bool CQELPROWriter_Manipulator::EjectCriteria_WriteCriteriaNode(
    int node, double value, int criterion) {
  return write<CQELPROBlockIOEjectCriteria, IntegerAndReal>(
      session_, "CriteriaNode-%d", at_point(criterion), node, value);
}

// [PartInsertInitialTemperature]

bool CQELPROWriter_Manipulator::PartInsertInitialTemperature_WriteTotalPartInsert(int value) {
  return write<CQELPROBlockIOPartInsertInitialTemperature, Integer>(
      session_, "TotalPartInsert", {}, value);
}

bool CQELPROWriter_Manipulator::PartInsertInitialTemperature_WritePartInsert(
    int id, char* name, double temperature, int insert) {
  return write<CQELPROBlockIOPartInsertInitialTemperature, PartInsertLine>(
      session_, "PartInsert-%d", at_point(insert), id, name, temperature);
}

// [MoldInsertInitialTemperature]

bool CQELPROWriter_Manipulator::MoldInsertInitialTemperature_WriteTotalMoldInsert(int value) {
  return write<CQELPROBlockIOMoldInsertInitialTemperature, Integer>(
      session_, "TotalMoldInsert", {}, value);
}

bool CQELPROWriter_Manipulator::MoldInsertInitialTemperature_WriteMoldInsert(
    int id, char* name, double temperature, int insert) {
  return write<CQELPROBlockIOMoldInsertInitialTemperature, MoldInsertLine>(
      session_, "MoldInsert-%d", at_point(insert), id, name, temperature);
}

// [MoldbaseInfo]

bool CQELPROWriter_Manipulator::MoldbaseInfo_WriteMoldbaseInfo(
    int number, char* name, int moldbase) {
  return write<CQELPROBlockIOMoldbaseInfo, IntegerAndQuotedName>(
      session_, "MB-%d", at_point(moldbase), number, name);
}

// [MicrocellularMolding]

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteFoamDurationTime(double value) {
  return write<CQELPROBlockIOMicroCellularMolding, Real>(session_, "FoamDurationTime", {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteStartFoamingType(int value) {
  return write<CQELPROBlockIOMicroCellularMolding, Integer>(
      session_, "StartFoamingType", {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteVolumeFilled(double value) {
  return write<CQELPROBlockIOMicroCellularMolding, Real>(session_, "VolumeFilled", {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WritePreInjectedVolume(double value) {
  return write<CQELPROBlockIOMicroCellularMolding, Real>(session_, "PreInjectedVolume", {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteInitialGasConcentrationType(int value) {
  return write<CQELPROBlockIOMicroCellularMolding, Integer>(
      session_, "InitialGasConcentrationType", {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteGasDosageAmount(double value) {
  return write<CQELPROBlockIOMicroCellularMolding, Real>(session_, "GasDosageAmount", {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteGasSaturationPressure(double value) {
  return write<CQELPROBlockIOMicroCellularMolding, Real>(
      session_, "GasSaturationPressure", {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteNozzleShutoff(int value) {
  return write<CQELPROBlockIOMicroCellularMolding, Integer>(session_, "NozzleShutoff", {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteAdvancedType(int value) {
  return write<CQELPROBlockIOMicroCellularMolding, Integer>(session_, "AdvancedType", {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WriteRamPosition(double value) {
  return write<CQELPROBlockIOMicroCellularMolding, Real>(session_, "RamPosition", {}, value);
}

bool CQELPROWriter_Manipulator::MicrocellularMolding_WritePartWeight(double value) {
  return write<CQELPROBlockIOMicroCellularMolding, Real>(session_, "PartWeight", {}, value);
}

// [PartInsertContactAngle]

bool CQELPROWriter_Manipulator::PartInsertContactAngle_WriteGroupCount(int value) {
  return write<CQELPROBlockIOPartInsertContactAngle, Integer>(session_, "GroupCount", {}, value);
}
