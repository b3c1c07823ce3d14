// Made by "./dev generate" from the rows of src/blocks.
// clang-format off

#include "api/members.h"

using namespace qel;

// [FileHeader]

bool CQELPROReader_Manipulator::FileHeader_ReadName(char*& text) {
  return read<CQELPROBlockIOFileHeader, Text>(session_, "Name", {}, text);
}

bool CQELPROReader_Manipulator::FileHeader_ReadType(char*& text) {
  return read<CQELPROBlockIOFileHeader, Text>(session_, "Type", {}, text);
}

bool CQELPROReader_Manipulator::FileHeader_ReadDate(char*& text) {
  return read<CQELPROBlockIOFileHeader, Text>(session_, "Date", {}, text);
}

bool CQELPROReader_Manipulator::FileHeader_ReadCreateBy(char*& text) {
  return read<CQELPROBlockIOFileHeader, Text>(session_, "CreateBy", {}, text);
}

bool CQELPROReader_Manipulator::FileHeader_ReadRemark(char*& text) {
  return read<CQELPROBlockIOFileHeader, Text>(session_, "Remark", {}, text);
}

// [CaeHeader]

bool CQELPROReader_Manipulator::CaeHeader_ReadVersion(char*& text) {
  return read<CQELPROBlockIOCaeHeader, Text>(session_, "Version", {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadRelease(char*& text) {
  return read<CQELPROBlockIOCaeHeader, Text>(session_, "Release", {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadProject(char*& text) {
  return read<CQELPROBlockIOCaeHeader, Text>(session_, "Project", {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadEngineer(char*& text) {
  return read<CQELPROBlockIOCaeHeader, Text>(session_, "Engineer", {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadParent(char*& text) {
  return read<CQELPROBlockIOCaeHeader, Text>(session_, "Parent", {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadType(char*& text) {
  return read<CQELPROBlockIOCaeHeader, Text>(session_, "Type", {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadFileVersion(char*& text) {
  return read<CQELPROBlockIOCaeHeader, Text>(session_, "FileVersion", {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadFileVersion(int& value) {
  return read<CQELPROBlockIOCaeHeader, Integer>(session_, "FileVersion", {}, value);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadFileType(int& value) {
  return read<CQELPROBlockIOCaeHeader, Integer>(session_, "FileType", {}, value);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadSmartSetting(int& value) {
  return read<CQELPROBlockIOCaeHeader, Integer>(session_, "SmartSetting", {}, value);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadSettingMode(int& value) {
  return read<CQELPROBlockIOCaeHeader, Integer>(session_, "SettingMode", {}, value);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadProjectType(int& value) {
  return read<CQELPROBlockIOCaeHeader, FirstOfIntegerPair>(session_, "ProjectType", {}, value);
}

// [Summary]

bool CQELPROReader_Manipulator::Summary_ReadTotalLayer(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "TotalNdivz", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalMeltEntrance(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeEM", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalCoolantEntrance(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeEC", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalValveGate(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "TotalGateCTL", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadVacuumIndex(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "VacuumIndex", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadSkinRatio(double& value) {
  return read<CQELPROBlockIOSummary, Real>(session_, "SkinRatio", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadPEOFasPPack(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "PEOFasPPack", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalMoldbase(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeMB", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalBoundaryCondition(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeBC", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalGasEntrance(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeEG", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalMoldMetalMaterial(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeMMM", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadSymmetryVolumeRatio(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "SymVolRatio", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalHeatingRod(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "TotalNodeHR", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTransientInletConv(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "IsTransientInletConv", {}, value);
}

bool CQELPROReader_Manipulator::Summary_ReadTotalOverFlowCTL(int& value) {
  return read<CQELPROBlockIOSummary, Integer>(session_, "TotalOverFlowCTL", {}, value);
}

// [FlowCTL]

bool CQELPROReader_Manipulator::FlowCTL_ReadFlowCtrl(int& value) {
  return read<CQELPROBlockIOFlowCTL, Integer>(session_, "FlowCtrl", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadVPSwitchCtrl(int& value) {
  return read<CQELPROBlockIOFlowCTL, Integer>(session_, "VPSwitchCtrl", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadPackingCtrl(int& value) {
  return read<CQELPROBlockIOFlowCTL, Integer>(session_, "PackingCtrl", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadMoldTemperature(double& value) {
  return read<CQELPROBlockIOFlowCTL, Real>(session_, "MoldTemperature", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadMeltTemperature(double& value) {
  return read<CQELPROBlockIOFlowCTL, Real>(session_, "MeltTemperature", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadInjectionTime(double& value) {
  return read<CQELPROBlockIOFlowCTL, Real>(session_, "InjectionTime", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadVolumeFilled(double& value) {
  return read<CQELPROBlockIOFlowCTL, Real>(session_, "VolumeFilled", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadRamPosition(double& value) {
  return read<CQELPROBlockIOFlowCTL, Real>(session_, "RamPosition", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadInjectionPressure(double& value) {
  return read<CQELPROBlockIOFlowCTL, Real>(session_, "InjectionPressure", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadCureSwitch(double& value) {
  return read<CQELPROBlockIOFlowCTL, Real>(session_, "CureSwitch", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadCureTempCtrl(int& value) {
  return read<CQELPROBlockIOFlowCTL, Integer>(session_, "CureTempCtrl", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadCureEnterType(int& value, int /*index*/) {
  return read<CQELPROBlockIOFlowCTL, Integer>(session_, "CureEnterType", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadCureEnterSwitch(double& value, int /*index*/) {
  return read<CQELPROBlockIOFlowCTL, Real>(session_, "CureEnterSwch", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTL_ReadCureEnterTime(double& value, int /*index*/) {
  return read<CQELPROBlockIOFlowCTL, Real>(session_, "CureEnterTime", {}, value);
}

// [Flow-%ld]

bool CQELPROReader_Manipulator::FlowX_ReadFillingTime(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "FillTime", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMaxFillingTime(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "MaxFillingTime", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMeltTemperature(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "MeltTemp", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMoldTemperature(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "MoldTemp", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadInjectPressure(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "InjectPres", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadPreFill(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "PreFill", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadInjectVolume(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "InjVol", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTransferTime(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "TransTime", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMaxTransferTime(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "MaxTransferTime", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadResinTemperature(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "ResnTemp", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTransferPressure(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "TransPres", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadInitConv(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "InitConv", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadInitConversion(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "InitConv", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMaxFR(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "MaxFR", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadMaxPress(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "MaxPress", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadIsPushBack(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "IsPushBack", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadPushBackEnterTime(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "PushBackEnterTime", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadPushBackTime(double& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Real>(session_, "PushBackTime", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadFRDisplayType(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "FRDisplayType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadIPDisplayType(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "IPDisplayType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTPDisplayType(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "TPDisplayType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadFRProfileType(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "FRProfileType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadIPProfileType(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "IPProfileType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTPProfileType(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "TPProfileType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadFRStrokeMode(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "FRStrokeMode", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadIPStrokeMode(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "IPStrokeMode", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTPStrokeMode(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "TPStrokeMode", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadFRSection(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "FRSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadFRProfile(double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOFlowX, RealPair>(session_, "FR-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowX_ReadIPSection(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "IPSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadIPProfile(double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOFlowX, RealPair>(session_, "IP-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowX_ReadTPSection(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "TPSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadTPProfile(double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOFlowX, RealPair>(session_, "TP-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserFRSection(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "UserFRSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserFRProfile(
    double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOFlowX, RealPair>(session_, "UserFR-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserIPSection(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "UserIPSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserIPProfile(
    double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOFlowX, RealPair>(session_, "UserIP-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserTPSection(int& value, int inlet) {
  return read<CQELPROBlockIOFlowX, Integer>(session_, "UserTPSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowX_ReadUserTPProfile(
    double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOFlowX, RealPair>(session_, "UserTP-%d", at_point(point, inlet), x, y);
}

// [Pack-%d]

bool CQELPROReader_Manipulator::PackX_ReadPackTime(double& value, int inlet) {
  return read<CQELPROBlockIOPackX, Real>(session_, "PackTime", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPackPressure(double& value, int inlet) {
  return read<CQELPROBlockIOPackX, Real>(session_, "PackPres", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPackSwitch(double& value, int inlet) {
  return read<CQELPROBlockIOPackX, Real>(session_, "PackSwch", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadIgnoreLimitation(int& value, int inlet) {
  return read<CQELPROBlockIOPackX, Integer>(session_, "IgnoreLimitation", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadMaxEOFRatio(double& value, int inlet) {
  return read<CQELPROBlockIOPackX, Real>(session_, "MaxEOFRatio", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPPDisplayType(int& value, int inlet) {
  return read<CQELPROBlockIOPackX, Integer>(session_, "PPDisplayType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPPProfileType(int& value, int inlet) {
  return read<CQELPROBlockIOPackX, Integer>(session_, "PPProfileType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPPSection(int& value, int inlet) {
  return read<CQELPROBlockIOPackX, Integer>(session_, "PPSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadPPProfile(double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOPackX, RealPair>(session_, "PP-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::PackX_ReadUserPPSection(int& value, int inlet) {
  return read<CQELPROBlockIOPackX, Integer>(session_, "UserPPSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::PackX_ReadUserPPProfile(
    double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOPackX, RealPair>(session_, "UserPP-%d", at_point(point, inlet), x, y);
}

// [Cure-%d]

bool CQELPROReader_Manipulator::CureX_ReadCureTime(double& value, int inlet) {
  return read<CQELPROBlockIOCureX, Real>(session_, "CureTime", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCurePressure(double& value, int inlet) {
  return read<CQELPROBlockIOCureX, Real>(session_, "CurePres", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCureTemperature(double& value, int inlet) {
  return read<CQELPROBlockIOCureX, Real>(session_, "CureTemp", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCureSwitch(double& value, int inlet) {
  return read<CQELPROBlockIOCureX, Real>(session_, "CureSwch", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCPDisplayType(int& value, int inlet) {
  return read<CQELPROBlockIOCureX, Integer>(session_, "CPDisplayType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCPProfileType(int& value, int inlet) {
  return read<CQELPROBlockIOCureX, Integer>(session_, "PPProfileType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCPSection(int& value, int inlet) {
  return read<CQELPROBlockIOCureX, Integer>(session_, "CPSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCPProfile(double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOCureX, RealPair>(session_, "CP-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::CureX_ReadUserCPSection(int& value, int inlet) {
  return read<CQELPROBlockIOCureX, Integer>(session_, "UserCPSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadUserCPProfile(
    double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOCureX, RealPair>(session_, "UserCP-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::CureX_ReadCTDisplayType(int& value, int inlet) {
  return read<CQELPROBlockIOCureX, Integer>(session_, "CTDisplayType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCTProfileType(int& value, int inlet) {
  return read<CQELPROBlockIOCureX, Integer>(session_, "CTProfileType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCTSection(int& value, int inlet) {
  return read<CQELPROBlockIOCureX, Integer>(session_, "CTSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadCTProfile(double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOCureX, RealPair>(session_, "CT-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::CureX_ReadUserCTSection(int& value, int inlet) {
  return read<CQELPROBlockIOCureX, Integer>(session_, "UserCTSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::CureX_ReadUserCTProfile(
    double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOCureX, RealPair>(session_, "UserCT-%d", at_point(point, inlet), x, y);
}

// [Cool]

bool CQELPROReader_Manipulator::Cool_ReadCoolTime(double& value) {
  return read<CQELPROBlockIOCool, Real>(session_, "CoolTime", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadMoldOpenTime(double& value) {
  return read<CQELPROBlockIOCool, Real>(session_, "OpenTime", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadEjectTemperature(double& value) {
  return read<CQELPROBlockIOCool, Real>(session_, "EjectTemp", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadAirTemperature(double& value) {
  return read<CQELPROBlockIOCool, Real>(session_, "AirTemp", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadInitMoldTemperature(double& value) {
  return read<CQELPROBlockIOCool, Real>(session_, "InitialMoldbaseTemperature", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadCoolantTemperature(double& value) {
  return read<CQELPROBlockIOCool, Real>(session_, "CoolantTemp", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadCoolantFlowRate(double& value) {
  return read<CQELPROBlockIOCool, Real>(session_, "CoolantFR", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadCoolingType(int& value) {
  return read<CQELPROBlockIOCool, Integer>(session_, "CoolingType", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadControlType(int& value) {
  return read<CQELPROBlockIOCool, Integer>(session_, "ControlType", {}, value);
}

// [CoolCTL]

bool CQELPROReader_Manipulator::CoolCTL_ReadCoolantTemperature(double& value, int entrance) {
  return read<CQELPROBlockIOCoolCTL, Real>(session_, "T-%d", at_point(entrance), value);
}

bool CQELPROReader_Manipulator::CoolCTL_ReadCoolantFlowRate(double& value, int entrance) {
  return read<CQELPROBlockIOCoolCTL, Real>(session_, "F-%d", at_point(entrance), value);
}

bool CQELPROReader_Manipulator::CoolCTL_ReadCoolantPressure(double& value, int entrance) {
  return read<CQELPROBlockIOCoolCTL, Real>(session_, "P-%d", at_point(entrance), value);
}

bool CQELPROReader_Manipulator::CoolCTL_ReadCoolantSystem(int& value, int entrance) {
  return read<CQELPROBlockIOCoolCTL, Integer>(session_, "M-%d", at_point(entrance), value);
}

// [Coolant]

bool CQELPROReader_Manipulator::Coolant_ReadCoolant(
    double& p1, double& p2, double& p3, double& p4, int& system, char*& name, double& f7, int& f8,
    int coolant) {
  return read<CQELPROBlockIOCoolant, CoolantLine>(
      session_, "%d", at_point(coolant), p1, p2, p3, p4, system, name, f7, f8);
}

// [CoolChannel-%d]

bool CQELPROReader_Manipulator::CoolChannelX_ReadDiameter(double& value, int channel) {
  return read<CQELPROBlockIOCoolChannelX, Real>(session_, "Diameter", in_section(channel), value);
}

bool CQELPROReader_Manipulator::CoolChannelX_ReadGroupID(int& value, int channel) {
  return read<CQELPROBlockIOCoolChannelX, Integer>(session_, "GroupID", in_section(channel), value);
}

bool CQELPROReader_Manipulator::CoolChannelX_ReadTimeSection(int& value, int channel) {
  return read<CQELPROBlockIOCoolChannelX, Integer>(session_, "TimeSet", in_section(channel), value);
}

bool CQELPROReader_Manipulator::CoolChannelX_ReadPressureControlPointSetting(
    double& f1, int& system, double& temperature, double& flow, int& f5, int point, int channel) {
  return read<CQELPROBlockIOCoolChannelX, ControlPoint>(
      session_, "TCPP-%d", at_point(point, channel), f1, system, temperature, flow, f5);
}

// [VarCoolCTL]

bool CQELPROReader_Manipulator::VarCoolCTL_ReadCoolantCount(int& value) {
  return read<CQELPROBlockIOVarCoolCTL, Integer>(session_, "CoolantNo", {}, value);
}

bool CQELPROReader_Manipulator::VarCoolCTL_ReadCoolant(
    double& f1, double& f2, double& f3, double& f4, int& f5, int entry) {
  return read<CQELPROBlockIOVarCoolCTL, FourRealsAndInteger>(
      session_, "Coolant-%d", at_point(entry), f1, f2, f3, f4, f5);
}

// [GateCTL]

bool CQELPROReader_Manipulator::GateCTL_ReadAutoShutOffValveGateEOP(int& value) {
  return read<CQELPROBlockIOGateCTL, Integer>(session_, "AutoShutOffValveGateEOP", {}, value);
}

bool CQELPROReader_Manipulator::GateCTL_ReadStartTime(double& value, int gate) {
  return read<CQELPROBlockIOGateCTL, Real>(session_, "ST-%d", at_point(gate), value);
}

bool CQELPROReader_Manipulator::GateCTL_ReadEndTime(double& value, int gate) {
  return read<CQELPROBlockIOGateCTL, Real>(session_, "ET-%d", at_point(gate), value);
}

// [GateValve-%d]

bool CQELPROReader_Manipulator::GeteValveX_ReadValveGateID(int& value, int valve) {
  return read<CQELPROBlockIOGateValveX, Integer>(session_, "GCId", in_section(valve), value);
}

bool CQELPROReader_Manipulator::GateValveX_ReadControlPoint(int& value, int valve) {
  return read<CQELPROBlockIOGateValveX, Integer>(session_, "GCSet", in_section(valve), value);
}

bool CQELPROReader_Manipulator::GateValveX_ReadGateSetting(
    double& value, int& number, int& mode, int& last, int point, int valve) {
  return read<CQELPROBlockIOGateValveX, GatePoint>(
      session_, "GC-%d", at_point(point, valve), value, number, mode, last);
}

bool CQELPROReader_Manipulator::GateValveX_ReadGateSetting(
    double& value, int& number, int& mode, int point, int valve) {
  return read<CQELPROBlockIOGateValveX, GatePointShort>(
      session_, "GC-%d", at_point(point, valve), value, number, mode);
}

// [Machine]

bool CQELPROReader_Manipulator::Machine_ReadMaker(char*& text) {
  return read<CQELPROBlockIOMachine, Text>(session_, "Maker", {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadGrade(char*& text) {
  return read<CQELPROBlockIOMachine, Text>(session_, "Grade", {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadLastModifiedDate(char*& text) {
  return read<CQELPROBlockIOMachine, Text>(session_, "LastModifiedDate", {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadRemark(char*& text) {
  return read<CQELPROBlockIOMachine, Text>(session_, "Remark", {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadDiameter(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "Diameter", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadMaxRamPos(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "MaxRamPos", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadShotVolume(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "ShotVolume", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadShotWeight(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "Weight", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadInjectionPressure(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "MaxMachinePres", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadHoldingPressure(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "HoldingPressure", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadInjectionSpeed(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "InjectionSpeed", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadFlowRate(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "FR", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadPlasticationRate(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "PlasticationRate", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadScrewSpeed(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "ScrewSpeed", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadNozzleContactForce(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "NozzleContactForce", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadNozzleStroke(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "NozzleStroke", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadHeaterWattage(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "HeaterWattage", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadTemperatureControlZones(int& value) {
  return read<CQELPROBlockIOMachine, ZoneCount>(session_, "TemperatureControlZones", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadClampForce(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "Size", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadOpeningStroke(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "OpeningStroke", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadMaxDaylight(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "MaxDaylight", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadMoldHeight(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "MoldHeight", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadDistanceBetweenTieBars(char*& text) {
  return read<CQELPROBlockIOMachine, Text>(session_, "DistanceBetweenTieBars(HxV)", {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadDistanceBetweenTieBars(double& first, double& second) {
  return read<CQELPROBlockIOMachine, SizePair>(
      session_, "DistanceBetweenTieBars(HxV)", {}, first, second);
}

bool CQELPROReader_Manipulator::Machine_ReadPlatenSize(char*& text) {
  return read<CQELPROBlockIOMachine, Text>(session_, "PlatenSize(HxV)", {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadPlatenSize(double& first, double& second) {
  return read<CQELPROBlockIOMachine, SizePair>(session_, "PlatenSize(HxV)", {}, first, second);
}

bool CQELPROReader_Manipulator::Machine_ReadEjectorPoint(int& value) {
  return read<CQELPROBlockIOMachine, Integer>(session_, "EjectorPoint", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadEjectorForce(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "EjectorForce", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadEjectorStroke(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "EjectorStroke", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadMachineWeight(double& value) {
  return read<CQELPROBlockIOMachine, Real>(session_, "MachineWeight", {}, value);
}

bool CQELPROReader_Manipulator::Machine_ReadMachineDimension(char*& text) {
  return read<CQELPROBlockIOMachine, Text>(session_, "MachineDimension(LxWxH)", {}, text);
}

bool CQELPROReader_Manipulator::Machine_ReadMachineDimension(
    double& length, double& width, double& height) {
  return read<CQELPROBlockIOMachine, SizeTriple>(
      session_, "MachineDimension(LxWxH)", {}, length, width, height);
}

bool CQELPROReader_Manipulator::Machine_ReadBarrelCompressionCtrl(int& value) {
  return read<CQELPROBlockIOMachine, Integer>(session_, "BarrelCompressionCtrl", {}, value);
}

// [Project]

bool CQELPROReader_Manipulator::Project_ReadMesh(char*& text) {
  return read<CQELPROBlockIOProject, Text>(session_, "Mesh", {}, text);
}

bool CQELPROReader_Manipulator::Project_ReadMaterial(char*& text) {
  return read<CQELPROBlockIOProject, Text>(session_, "Material", {}, text);
}

bool CQELPROReader_Manipulator::Project_ReadMeshID(char*& text) {
  return read<CQELPROBlockIOProject, Text>(session_, "MeshID", {}, text);
}

bool CQELPROReader_Manipulator::Project_ReadCavityVolume(double& value) {
  return read<CQELPROBlockIOProject, Real>(session_, "CavVol", {}, value);
}

bool CQELPROReader_Manipulator::Project_ReadCushionVolume(double& value) {
  return read<CQELPROBlockIOProject, Real>(session_, "CushionVol", {}, value);
}

bool CQELPROReader_Manipulator::Project_ReadClampFaceArea(double& value) {
  return read<CQELPROBlockIOProject, Real>(session_, "ClampFaceArea", {}, value);
}

// [RamPosition]

bool CQELPROReader_Manipulator::RamPosition_ReadRamDirection(int& value) {
  return read<CQELPROBlockIORamPosition, Integer>(session_, "RamDir", {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadIsVPSwitch(int& value) {
  return read<CQELPROBlockIORamPosition, Integer>(session_, "IsVPswitch", {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadVPSwitchRamPosition(double& value) {
  return read<CQELPROBlockIORamPosition, Real>(session_, "VPswitchRam", {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadSuckBack(double& value) {
  return read<CQELPROBlockIORamPosition, Real>(session_, "SuckBack", {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamFRSection(int& value) {
  return read<CQELPROBlockIORamPosition, Integer>(session_, "RP_FRSet", {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamFRProfile(double& x, double& y, int point) {
  return read<CQELPROBlockIORamPosition, RealPair>(session_, "RP_FR-%d", at_point(point), x, y);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamFRProfile(double& value, int point) {
  return read<CQELPROBlockIORamPosition, Real>(session_, "RP_FR-%d", at_point(point), value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamIPSection(int& value) {
  return read<CQELPROBlockIORamPosition, Integer>(session_, "RP_IPSet", {}, value);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamIPProfile(double& x, double& y, int point) {
  return read<CQELPROBlockIORamPosition, RealPair>(session_, "RP_IP-%d", at_point(point), x, y);
}

bool CQELPROReader_Manipulator::RamPosition_ReadRamIPProfile(double& value, int point) {
  return read<CQELPROBlockIORamPosition, Real>(session_, "RP_IP-%d", at_point(point), value);
}

// [Moldbase]

bool CQELPROReader_Manipulator::Moldbase_ReadMoldbase(
    double& f1, double& f2, double& f3, char*& name, double& f5, double& f6, double& f7, int row) {
  return read<CQELPROBlockIOMoldbase, MoldbaseLine>(
      session_, "%d", at_point(row), f1, f2, f3, name, f5, f6, f7);
}

// [MoldMetalMaterial]

bool CQELPROReader_Manipulator::MoldMetalMaterial_ReadMaterial(
    double& f1, double& f2, double& f3, char*& name, double& f5, double& f6, double& f7, int row) {
  return read<CQELPROBlockIOMoldMetalMaterial, MoldMetalLine>(
      session_, "%d", at_point(row), f1, f2, f3, name, f5, f6, f7);
}

// [MoldTemperatureBC-%d]

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadName(char*& text, int bc) {
  return read<CQELPROBlockIOMoldTemperatureBCX, Text>(session_, "BCName", in_section(bc), text);
}

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadDisplayType(int& value, int bc) {
  return read<CQELPROBlockIOMoldTemperatureBCX, Integer>(
      session_, "BCDisplayType", in_section(bc), value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadNodeCount(int& value, int bc) {
  return read<CQELPROBlockIOMoldTemperatureBCX, Integer>(
      session_, "BCNodeCount", in_section(bc), value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadBCProfile(
    double& x, double& y, int point, int bc) {
  return read<CQELPROBlockIOMoldTemperatureBCX, RealPair>(
      session_, "BC-%d", at_point(point, bc), x, y);
}

// [GasF-%d]

bool CQELPROReader_Manipulator::GasFX_ReadGasTime(double& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Real>(session_, "GasTime", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGasPressure(double& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Real>(session_, "GasPres", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGasSwitch(double& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Real>(session_, "GasSwch", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadDelayTime(double& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Real>(session_, "DelayTime", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGRDisplayType(int& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Integer>(session_, "GRDisplayType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGRProfileType(int& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Integer>(session_, "GRProfileType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGPDisplayType(int& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Integer>(session_, "GPDisplayType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGPProfileType(int& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Integer>(session_, "GPProfileType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGRSection(int& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Integer>(session_, "GRSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadUserGRSection(int& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Integer>(session_, "GRSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGRProfile(double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOGasFX, RealPair>(session_, "GR-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::GasFX_ReadUserGRProfile(
    double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOGasFX, RealPair>(session_, "GR-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::GasFX_ReadGPSection(int& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Integer>(session_, "GPSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadUserGPSection(int& value, int inlet) {
  return read<CQELPROBlockIOGasFX, Integer>(session_, "GPSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::GasFX_ReadGPProfile(double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOGasFX, RealPair>(session_, "GP-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::GasFX_ReadUserGPProfile(
    double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOGasFX, RealPair>(session_, "GP-%d", at_point(point, inlet), x, y);
}

// [AdvancedSetting]

bool CQELPROReader_Manipulator::AdvancedSetting_ReadOpenDirection(double& x, double& y, double& z) {
  return read<CQELPROBlockIOAdvancedSetting, RealTriple>(session_, "OpenDirection", {}, x, y, z);
}

bool CQELPROReader_Manipulator::AdvancedSetting_ReadClampForce(double& value) {
  return read<CQELPROBlockIOAdvancedSetting, Real>(session_, "ClampForce", {}, value);
}

// [TransientInletConv]

bool CQELPROReader_Manipulator::TransientInletConv_ReadInitConversionType(int& value) {
  return read<CQELPROBlockIOTransientInletConv, Integer>(session_, "InitConversionType", {}, value);
}

bool CQELPROReader_Manipulator::TransientInletConv_ReadInitPelletConversion(double& value) {
  return read<CQELPROBlockIOTransientInletConv, Real>(session_, "InitPelletConv", {}, value);
}

bool CQELPROReader_Manipulator::TransientInletConv_ReadPelletDiameter(double& value) {
  return read<CQELPROBlockIOTransientInletConv, Real>(session_, "PelletDiameter", {}, value);
}

bool CQELPROReader_Manipulator::TransientInletConv_ReadPelletHeight(double& value) {
  return read<CQELPROBlockIOTransientInletConv, Real>(session_, "PelletHeight", {}, value);
}

bool CQELPROReader_Manipulator::TransientInletConv_ReadPreHeatTime(double& value) {
  return read<CQELPROBlockIOTransientInletConv, Real>(session_, "PreHeatTime", {}, value);
}

// [MoldThermalBoundaryType]

bool CQELPROReader_Manipulator::MoldTemperatureBoundaryType_ReadHTCType(int& value) {
  return read<CQELPROBlockIOMoldThermalBoundaryType, Integer>(session_, "Type", {}, value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBoundaryType_ReadHTCFlow(double& value) {
  return read<CQELPROBlockIOMoldThermalBoundaryType, RealWithNote>(session_, "Flow", {}, value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBoundaryType_ReadHTCPack(double& value) {
  return read<CQELPROBlockIOMoldThermalBoundaryType, RealWithNote>(session_, "Pack", {}, value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBoundaryType_ReadHTCDetached(double& value) {
  return read<CQELPROBlockIOMoldThermalBoundaryType, RealWithNote>(
      session_, "Detached_HTC", {}, value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBoundaryType_ReadHTCHotRunner(double& value) {
  return read<CQELPROBlockIOMoldThermalBoundaryType, RealWithNote>(
      session_, "HotRunner_HTC", {}, value);
}

// [ICPackage]

bool CQELPROReader_Manipulator::ICPackage_ReadInitConversionType(int& value) {
  return read<CQELPROBlockIOICPackage, Integer>(session_, "InitConversionType", {}, value);
}

bool CQELPROReader_Manipulator::ICPackage_ReadInitPelletConversion(double& value) {
  return read<CQELPROBlockIOICPackage, Real>(session_, "InitConversion", {}, value);
}

bool CQELPROReader_Manipulator::ICPackage_ReadPelletDiameter(double& value) {
  return read<CQELPROBlockIOICPackage, Real>(session_, "PelletDiameter", {}, value);
}

bool CQELPROReader_Manipulator::ICPackage_ReadPelletHeight(double& value) {
  return read<CQELPROBlockIOICPackage, Real>(session_, "PelletHeight", {}, value);
}

bool CQELPROReader_Manipulator::ICPackage_ReadPreHeatTime(double& value) {
  return read<CQELPROBlockIOICPackage, Real>(session_, "PreHeatingTime", {}, value);
}

// [PartingSurface]

bool CQELPROReader_Manipulator::PartingSurface_ReadCavityPart(
    int& number, double& f2, double& f3, double& f4) {
  return read<CQELPROBlockIOPartingSurface, IntegerAndThreeReals>(
      session_, "CavityPart", {}, number, f2, f3, f4);
}

bool CQELPROReader_Manipulator::PartingSurface_ReadCavityMoldbase(
    int& number, double& f2, double& f3, double& f4) {
  return read<CQELPROBlockIOPartingSurface, IntegerAndThreeReals>(
      session_, "CavityMoldbase", {}, number, f2, f3, f4);
}

bool CQELPROReader_Manipulator::PartingSurface_ReadCorePart(
    int& number, double& f2, double& f3, double& f4) {
  return read<CQELPROBlockIOPartingSurface, IntegerAndThreeReals>(
      session_, "CorePart", {}, number, f2, f3, f4);
}

bool CQELPROReader_Manipulator::PartingSurface_ReadCoreMoldbase(
    int& number, double& f2, double& f3, double& f4) {
  return read<CQELPROBlockIOPartingSurface, IntegerAndThreeReals>(
      session_, "CoreMoldbase", {}, number, f2, f3, f4);
}

// [EjectCriteria]

bool CQELPROReader_Manipulator::EjectCriteria_ReadTotalSensorNode(int& value) {
  return read<CQELPROBlockIOEjectCriteria, Integer>(session_, "TotalSensorNode", {}, value);
}

bool CQELPROReader_Manipulator::EjectCriteria_ReadSensorNode(int& value, int sensor) {
  return read<CQELPROBlockIOEjectCriteria, Integer>(
      session_, "SensorNode-%d", at_point(sensor), value);
}

bool CQELPROReader_Manipulator::EjectCriteria_ReadTotalCriteriaNode(int& value) {
  return read<CQELPROBlockIOEjectCriteria, Integer>(session_, "TotalCriteriaNode", {}, value);
}

bool CQELPROReader_Manipulator::EjectCriteria_ReadCriteriaNode(
    int& node, double& value, int criterion) {
  return read<CQELPROBlockIOEjectCriteria, IntegerAndReal>(
      session_, "CriteriaNode-%d", at_point(criterion), node, value);
}

// [PartInsertInitialTemperature]

bool CQELPROReader_Manipulator::PartInsertInitialTemperature_ReadTotalPartInsert(int& value) {
  return read<CQELPROBlockIOPartInsertInitialTemperature, Integer>(
      session_, "TotalPartInsert", {}, value);
}

bool CQELPROReader_Manipulator::PartInsertInitialTemperature_ReadPartInsert(
    int& id, char*& name, double& temperature, int insert) {
  return read<CQELPROBlockIOPartInsertInitialTemperature, PartInsertLine>(
      session_, "PartInsert-%d", at_point(insert), id, name, temperature);
}

bool CQELPROReader_Manipulator::PartInsertInitialTemperature_ReadPartInsert(
    int& id, char*& name, double& temperature, int& fourth, int insert) {
  return read<CQELPROBlockIOPartInsertInitialTemperature, PartInsertLineOfFour>(
      session_, "PartInsert-%d", at_point(insert), id, name, temperature, fourth);
}

// [MoldInsertInitialTemperature]

bool CQELPROReader_Manipulator::MoldInsertInitialTemperature_ReadTotalMoldInsert(int& value) {
  return read<CQELPROBlockIOMoldInsertInitialTemperature, Integer>(
      session_, "TotalMoldInsert", {}, value);
}

bool CQELPROReader_Manipulator::MoldInsertInitialTemperature_ReadMoldInsert(
    int& id, char*& name, double& temperature, int insert) {
  return read<CQELPROBlockIOMoldInsertInitialTemperature, MoldInsertLine>(
      session_, "MoldInsert-%d", at_point(insert), id, name, temperature);
}

bool CQELPROReader_Manipulator::MoldInsertInitialTemperature_ReadMoldInsert(
    int& id, char*& name, double& temperature, int& fourth, int insert) {
  return read<CQELPROBlockIOMoldInsertInitialTemperature, MoldInsertLineOfFour>(
      session_, "MoldInsert-%d", at_point(insert), id, name, temperature, fourth);
}

// [MoldbaseInfo]

bool CQELPROReader_Manipulator::MoldbaseInfo_ReadMoldbaseInfo(
    int& number, char*& name, int moldbase) {
  return read<CQELPROBlockIOMoldbaseInfo, IntegerAndQuotedName>(
      session_, "MB-%d", at_point(moldbase), number, name);
}

// [MoldPreheat]

bool CQELPROReader_Manipulator::Cool_ReadMoldPreheatType(int& value) {
  return read<CQELPROBlockIOMoldPreHeat, Integer>(session_, "MoldPreHeatType", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadMoldPreheatTime(double& value) {
  return read<CQELPROBlockIOMoldPreHeat, Real>(session_, "MoldPreHeatTime", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadMoldPreheatTemperature(double& value) {
  return read<CQELPROBlockIOMoldPreHeat, Real>(session_, "MoldPreHeatTemperature", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadMaxMoldPreHeatTime(double& value) {
  return read<CQELPROBlockIOMoldPreHeat, Real>(session_, "MaxMoldPreHeatTime", {}, value);
}

bool CQELPROReader_Manipulator::Cool_ReadMoldPreheat_ControlType(int& value) {
  return read<CQELPROBlockIOMoldPreHeat, Integer>(session_, "ControlType", {}, value);
}

// [MPreheat_CoolChannel-%d]

bool CQELPROReader_Manipulator::MoldPreheat_CoolChannelX_ReadDiameter(double& value, int channel) {
  return read<CQELPROBlockIOMoldPreHeatCoolChannelX, Real>(
      session_, "Diameter", in_section(channel), value);
}

bool CQELPROReader_Manipulator::MoldPreheat_CoolChannelX_ReadGroupID(int& value, int channel) {
  return read<CQELPROBlockIOMoldPreHeatCoolChannelX, Integer>(
      session_, "GroupID", in_section(channel), value);
}

bool CQELPROReader_Manipulator::MoldPreheat_CoolChannelX_ReadTimeSection(int& value, int channel) {
  return read<CQELPROBlockIOMoldPreHeatCoolChannelX, Integer>(
      session_, "TimeSet", in_section(channel), value);
}

bool CQELPROReader_Manipulator::MoldPreheat_CoolChannelX_ReadPressureControlPointSetting(
    double& f1, int& system, double& temperature, double& flow, int& f5, int point, int channel) {
  return read<CQELPROBlockIOMoldPreHeatCoolChannelX, ControlPoint>(
      session_, "TCPP-%d", at_point(point, channel), f1, system, temperature, flow, f5);
}

// [MicrocellularMolding]

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadFoamDurationTime(double& value) {
  return read<CQELPROBlockIOMicroCellularMolding, Real>(session_, "FoamDurationTime", {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadStartFoamingType(int& value) {
  return read<CQELPROBlockIOMicroCellularMolding, Integer>(session_, "StartFoamingType", {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadVolumeFilled(double& value) {
  return read<CQELPROBlockIOMicroCellularMolding, Real>(session_, "VolumeFilled", {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadPreInjectedVolume(double& value) {
  return read<CQELPROBlockIOMicroCellularMolding, Real>(session_, "PreInjectedVolume", {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadInitialGasConcentrationType(int& value) {
  return read<CQELPROBlockIOMicroCellularMolding, Integer>(
      session_, "InitialGasConcentrationType", {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadGasDosageAmount(double& value) {
  return read<CQELPROBlockIOMicroCellularMolding, Real>(session_, "GasDosageAmount", {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadGasSaturationPressure(double& value) {
  return read<CQELPROBlockIOMicroCellularMolding, Real>(
      session_, "GasSaturationPressure", {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadNozzleShutoff(int& value) {
  return read<CQELPROBlockIOMicroCellularMolding, Integer>(session_, "NozzleShutoff", {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadAdvancedType(int& value) {
  return read<CQELPROBlockIOMicroCellularMolding, Integer>(session_, "AdvancedType", {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadRamPosition(double& value) {
  return read<CQELPROBlockIOMicroCellularMolding, Real>(session_, "RamPosition", {}, value);
}

bool CQELPROReader_Manipulator::MicrocellularMolding_ReadPartWeight(double& value) {
  return read<CQELPROBlockIOMicroCellularMolding, Real>(session_, "PartWeight", {}, value);
}

// [FlowCTLInfo]

bool CQELPROReader_Manipulator::FlowCTLInfo_ReadTotalInlet(int& value) {
  return read<CQELPROBlockIOFlowCTLInfo, Integer>(session_, "TotalInlet", {}, value);
}

bool CQELPROReader_Manipulator::FlowCTLInfo_ReadFlowCTL(int& first, int& second, int inlet) {
  return read<CQELPROBlockIOFlowCTLInfo, IntegerPair>(
      session_, "FlowCTL-%d", at_point(inlet), first, second);
}

// [OFGateValve-%d]

bool CQELPROReader_Manipulator::OverflowX_ReadOverflowID(int& value, int overflow) {
  return read<CQELPROBlockIOOverflow, Integer>(session_, "GCId", in_section(overflow), value);
}

bool CQELPROReader_Manipulator::OverflowX_ReadControlPoint(int& value, int overflow) {
  return read<CQELPROBlockIOOverflow, Integer>(session_, "GCSet", in_section(overflow), value);
}

bool CQELPROReader_Manipulator::OverflowX_ReadGateSetting(
    double& value, int& number, int& mode, int& last, int point, int overflow) {
  return read<CQELPROBlockIOOverflow, GatePoint>(
      session_, "GC-%d", at_point(point, overflow), value, number, mode, last);
}

bool CQELPROReader_Manipulator::OverflowX_ReadGateSetting(
    double& value, int& number, int& mode, int point, int overflow) {
  return read<CQELPROBlockIOOverflow, GatePointShort>(
      session_, "GC-%d", at_point(point, overflow), value, number, mode);
}

// [PartInsertContactAngle]

bool CQELPROReader_Manipulator::PartInsertContactAngle_ReadGroupCount(int& value) {
  return read<CQELPROBlockIOPartInsertContactAngle, Integer>(session_, "GroupCount", {}, value);
}

// [Flow-%ld-Skin2nd]

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadFillingTime(double& value, int inlet) {
  return read<CQELPROBlockIOCoInjectionFlowX, Real>(session_, "FillTime", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadFRSection(int& value, int inlet) {
  return read<CQELPROBlockIOCoInjectionFlowX, Integer>(session_, "FRSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadFRProfile(
    double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOCoInjectionFlowX, RealPair>(
      session_, "FR-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadIPSection(int& value, int inlet) {
  return read<CQELPROBlockIOCoInjectionFlowX, Integer>(session_, "IPSet", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadIPProfile(
    double& x, double& y, int point, int inlet) {
  return read<CQELPROBlockIOCoInjectionFlowX, RealPair>(
      session_, "IP-%d", at_point(point, inlet), x, y);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadSkin2ndEnterType(int& value, int inlet) {
  return read<CQELPROBlockIOCoInjectionFlowX, Integer>(
      session_, "Skin2ndEnterType", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadSkin2ndEnterSwch(double& value, int inlet) {
  return read<CQELPROBlockIOCoInjectionFlowX, Real>(
      session_, "Skin2ndEnterSwch", in_section(inlet), value);
}

bool CQELPROReader_Manipulator::FlowXSkin2nd_ReadSkin2ndEnterTime(double& value, int inlet) {
  return read<CQELPROBlockIOCoInjectionFlowX, Real>(
      session_, "Skin2ndEnterTime", in_section(inlet), value);
}
