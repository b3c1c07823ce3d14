#pragma once

#include <cstdio>

#include "QELPROEngine/export.h"

class CQELPROReader;

/// Reads a process file, key by key.
///
/// A process file is plain text: section headers such as "[Unit]" and entries such as "FillTime = 1.5". Numbered sections
/// ("[Flow-1]" is the first inlet's filling stage) take their number as a member's last argument; points of a profile
/// ("FR-1" is the first flow rate point) take theirs before it. Numbers count from 1 and are used as they are given.
///
/// Every section member reads one key, and yields false when there is no file, or when the section or the key is not
/// there: its outputs are untouched then. It yields true once the key is found, even where its text does not scan: what
/// cannot be scanned keeps the caller's value, unless the member says otherwise. Reals and integers scan as "%lf" and
/// "%d" do, whatever the program's locale is.
///
/// A text result points into a buffer of the thread. It stays valid until the thread's next read through any reader or
/// writer; copy it to keep it, and never free it.
///
/// A reader assumes that its file stays as it is. Offsets that it learnt in one file are kept when it is pointed at
/// another: use a new reader for each file. Copies share one open file; the last of them closes it. One object is used by
/// one thread at a time; different objects need no lock.
class QELPROENGINE_API CQELPROReader_Manipulator {
 public:
  CQELPROReader_Manipulator();
  CQELPROReader_Manipulator(const CQELPROReader_Manipulator& other);
  CQELPROReader_Manipulator& operator=(const CQELPROReader_Manipulator& other);
  virtual ~CQELPROReader_Manipulator();

  /// Opens a file for reading. False when it cannot be opened; a file that was open before is closed all the same.
  /// `GetFilePath` hands the caller's own pointer back, so the text should stay valid while the file is in use.
  bool SetFilePath(const char* path);
  bool SetFilePath(const wchar_t* path);
  /// Reads through a stream that the caller opened and keeps open. False for null. Lookups through a lent stream scan it
  /// from the top, and search for a key beyond the end of its section.
  bool SetFilePtr(std::FILE*& stream);
  /// Closes the file, or the lent stream. Every read fails from then on, until a file is set again.
  void CloseFile();
  /// The pointer that was given to `SetFilePath`; null after a wide path or a stream. False before any file was set.
  bool GetFilePath(const char*& path);

  /// The value of any key of any section, named with its brackets. With a buffer the value is copied there, and `value`
  /// points to it; a value that does not fit `size` yields false. Without one (null) it stands in the thread's own buffer.
  bool ReadString(const char* section, const char* key, char*& value, char* buffer, unsigned int size);
  /// As `ReadString`, by another search: the section begins behind the first line that mentions its name, and the key may
  /// stand in a later section. `size` is not looked at: the buffer must be large enough. Only for a file given by a
  /// narrow path.
  bool ReadValue(const char* section, const char* key, char*& value, char* buffer, unsigned int size);

  // [FileHeader]: what the file is, who wrote it and when.

  /// "Name": the file's name.
  bool FileHeader_ReadName(char*& text);
  /// "Type": the file's type, such as PRO.
  bool FileHeader_ReadType(char*& text);
  /// "Date": the date of the last change, such as 2026/11/15 09:05:07.
  bool FileHeader_ReadDate(char*& text);
  /// "CreateBy": the program that wrote the file.
  bool FileHeader_ReadCreateBy(char*& text);
  /// "Remark": a remark.
  bool FileHeader_ReadRemark(char*& text);

  // [CaeHeader]: the release and project that the analysis belongs to.

  /// "Version": the suite's version.
  bool CaeHeader_ReadVersion(char*& text);
  /// "Release": the suite's release.
  bool CaeHeader_ReadRelease(char*& text);
  /// "Project": the project.
  bool CaeHeader_ReadProject(char*& text);
  /// "Engineer": the engineer.
  bool CaeHeader_ReadEngineer(char*& text);
  /// "Parent": the file that this one was made from.
  bool CaeHeader_ReadParent(char*& text);
  /// "Type": the kind of analysis, such as Injection.
  bool CaeHeader_ReadType(char*& text);
  /// "FileVersion": the version of the file's layout, as text.
  bool CaeHeader_ReadFileVersion(char*& text);
  /// "FileVersion": the version of the file's layout, as a number.
  bool CaeHeader_ReadFileVersion(int& value);
  /// "FileType": the file's type code.
  bool CaeHeader_ReadFileType(int& value);
  /// "SmartSetting": the code of the guided setting.
  bool CaeHeader_ReadSmartSetting(int& value);
  /// "SettingMode": the code of the setting mode.
  bool CaeHeader_ReadSettingMode(int& value);
  /// "ProjectType": the project type: 8 co-injection, 11 two melt entrances; a second number is dropped.
  bool CaeHeader_ReadProjectType(int& value);

  // [Summary]: counts of the model, by which the other sections are numbered.

  /// "TotalNdivz": the number of mesh layers.
  bool Summary_ReadTotalLayer(int& value);
  /// "TotalNodeEM": the number of melt entrances.
  bool Summary_ReadTotalMeltEntrance(int& value);
  /// "TotalNodeEC": the number of coolant entrances.
  bool Summary_ReadTotalCoolantEntrance(int& value);
  /// "TotalGateCTL": the number of valve gates.
  bool Summary_ReadTotalValveGate(int& value);
  /// "VacuumIndex": the vacuum code.
  bool Summary_ReadVacuumIndex(int& value);
  /// "SkinRatio": the skin ratio.
  bool Summary_ReadSkinRatio(double& value);
  /// "PEOFasPPack": 1 where the pressure at the end of filling is the packing pressure.
  bool Summary_ReadPEOFasPPack(int& value);
  /// "TotalNodeMB": the number of mold bases.
  bool Summary_ReadTotalMoldbase(int& value);
  /// "TotalNodeBC": the number of boundary conditions.
  bool Summary_ReadTotalBoundaryCondition(int& value);
  /// "TotalNodeEG": the number of gas entrances.
  bool Summary_ReadTotalGasEntrance(int& value);
  /// "TotalNodeMMM": the number of mold metal materials.
  bool Summary_ReadTotalMoldMetalMaterial(int& value);
  /// "SymVolRatio": the symmetry volume ratio, an integer: 0.5 reads as 0.
  bool Summary_ReadSymmetryVolumeRatio(int& value);
  /// "TotalNodeHR": the number of heating rods.
  bool Summary_ReadTotalHeatingRod(int& value);
  /// "IsTransientInletConv": 1 where the inlet conversion is transient, else 0.
  bool Summary_ReadTransientInletConv(int& value);
  /// "TotalOverFlowCTL": the number of overflows.
  bool Summary_ReadTotalOverFlowCTL(int& value);

  // [FlowCTL]: what controls filling, packing, the V/P switch-over and the begin of curing.

  /// "FlowCtrl": the code of what controls filling.
  bool FlowCTL_ReadFlowCtrl(int& value);
  /// "VPSwitchCtrl": the V/P switch-over criterion: 0 filled volume, 1 ram position, 2 injection pressure, 3 a further
  /// one over the filled volume.
  bool FlowCTL_ReadVPSwitchCtrl(int& value);
  /// "PackingCtrl": the code of what controls packing.
  bool FlowCTL_ReadPackingCtrl(int& value);
  /// "MoldTemperature": the mold temperature, in oC.
  bool FlowCTL_ReadMoldTemperature(double& value);
  /// "MeltTemperature": the melt temperature, in oC.
  bool FlowCTL_ReadMeltTemperature(double& value);
  /// "InjectionTime": the injection time, in sec.
  bool FlowCTL_ReadInjectionTime(double& value);
  /// "VolumeFilled": the filled volume at the V/P switch-over.
  bool FlowCTL_ReadVolumeFilled(double& value);
  /// "RamPosition": the ram position at the V/P switch-over.
  bool FlowCTL_ReadRamPosition(double& value);
  /// "InjectionPressure": the injection pressure at the V/P switch-over, in MPa.
  bool FlowCTL_ReadInjectionPressure(double& value);
  /// "CureSwitch": when curing begins.
  bool FlowCTL_ReadCureSwitch(double& value);
  /// "CureTempCtrl": the code of the curing temperature's control.
  bool FlowCTL_ReadCureTempCtrl(int& value);
  /// "CureEnterType": the code of what makes curing begin. Every index addresses the one entry.
  bool FlowCTL_ReadCureEnterType(int& value, int index);
  /// "CureEnterSwch": the switch value at which curing begins. Every index addresses the one entry.
  bool FlowCTL_ReadCureEnterSwitch(double& value, int index);
  /// "CureEnterTime": the time at which curing begins, in sec. Every index addresses the one entry.
  bool FlowCTL_ReadCureEnterTime(double& value, int index);

  // [FlowCTLInfo]: how many melt inlets the run has, and what controls each.

  /// "TotalInlet": the number of inlets.
  bool FlowCTLInfo_ReadTotalInlet(int& value);
  /// "FlowCTL-%d": two control codes of an inlet, the second its control type; a number that is missing is 0.
  bool FlowCTLInfo_ReadFlowCTL(int& first, int& second, int inlet);

  // [Flow-%ld]: the filling stage of an inlet.

  /// "FillTime": the filling time, in sec.
  bool FlowX_ReadFillingTime(double& value, int inlet);
  /// "MaxFillingTime": the longest filling time, in sec.
  bool FlowX_ReadMaxFillingTime(double& value, int inlet);
  /// "MeltTemp": the melt temperature, in oC.
  bool FlowX_ReadMeltTemperature(double& value, int inlet);
  /// "MoldTemp": the mold temperature, in oC.
  bool FlowX_ReadMoldTemperature(double& value, int inlet);
  /// "InjectPres": the injection pressure, in MPa.
  bool FlowX_ReadInjectPressure(double& value, int inlet);
  /// "PreFill": the pre-fill.
  bool FlowX_ReadPreFill(double& value, int inlet);
  /// "InjVol": the injected volume, in cc.
  bool FlowX_ReadInjectVolume(double& value, int inlet);
  /// "TransTime": the filling time of transfer molding, in sec.
  bool FlowX_ReadTransferTime(double& value, int inlet);
  /// "MaxTransferTime": the longest filling time of transfer molding, in sec.
  bool FlowX_ReadMaxTransferTime(double& value, int inlet);
  /// "ResnTemp": the resin temperature of transfer molding, in oC.
  bool FlowX_ReadResinTemperature(double& value, int inlet);
  /// "TransPres": the transfer pressure, in MPa.
  bool FlowX_ReadTransferPressure(double& value, int inlet);
  /// "InitConv": the conversion at the start.
  bool FlowX_ReadInitConv(double& value, int inlet);
  /// "InitConv": the conversion at the start.
  bool FlowX_ReadInitConversion(double& value, int inlet);
  /// "MaxFR": the highest flow rate, in cc/sec.
  bool FlowX_ReadMaxFR(double& value, int inlet);
  /// "MaxPress": the highest pressure, in MPa.
  bool FlowX_ReadMaxPress(double& value, int inlet);
  /// "IsPushBack": 1 where the melt is pushed back.
  bool FlowX_ReadIsPushBack(int& value, int inlet);
  /// "PushBackEnterTime": the time at which push-back begins, in sec.
  bool FlowX_ReadPushBackEnterTime(double& value, int inlet);
  /// "PushBackTime": how long push-back lasts, in sec.
  bool FlowX_ReadPushBackTime(double& value, int inlet);
  /// "FRDisplayType": how the flow rate profile is shown.
  bool FlowX_ReadFRDisplayType(int& value, int inlet);
  /// "IPDisplayType": how the injection pressure profile is shown.
  bool FlowX_ReadIPDisplayType(int& value, int inlet);
  /// "TPDisplayType": how the transfer pressure profile is shown.
  bool FlowX_ReadTPDisplayType(int& value, int inlet);
  /// "FRProfileType": how the flow rate profile was entered.
  bool FlowX_ReadFRProfileType(int& value, int inlet);
  /// "IPProfileType": how the injection pressure profile was entered.
  bool FlowX_ReadIPProfileType(int& value, int inlet);
  /// "TPProfileType": how the transfer pressure profile was entered.
  bool FlowX_ReadTPProfileType(int& value, int inlet);
  /// "FRStrokeMode": the stroke mode of the flow rate profile.
  bool FlowX_ReadFRStrokeMode(int& value, int inlet);
  /// "IPStrokeMode": the stroke mode of the injection pressure profile.
  bool FlowX_ReadIPStrokeMode(int& value, int inlet);
  /// "TPStrokeMode": the stroke mode of the transfer pressure profile.
  bool FlowX_ReadTPStrokeMode(int& value, int inlet);
  /// "FRSet": the number of flow rate points.
  bool FlowX_ReadFRSection(int& value, int inlet);
  /// "FR-%d": a point of the flow rate profile.
  bool FlowX_ReadFRProfile(double& x, double& y, int point, int inlet);
  /// "IPSet": the number of injection pressure points.
  bool FlowX_ReadIPSection(int& value, int inlet);
  /// "IP-%d": a point of the injection pressure profile.
  bool FlowX_ReadIPProfile(double& x, double& y, int point, int inlet);
  /// "TPSet": the number of transfer pressure points.
  bool FlowX_ReadTPSection(int& value, int inlet);
  /// "TP-%d": a point of the transfer pressure profile.
  bool FlowX_ReadTPProfile(double& x, double& y, int point, int inlet);
  /// "UserFRSet": the number of flow rate points as the user entered them.
  bool FlowX_ReadUserFRSection(int& value, int inlet);
  /// "UserFR-%d": a point of the flow rate profile as the user entered it.
  bool FlowX_ReadUserFRProfile(double& x, double& y, int point, int inlet);
  /// "UserIPSet": the number of injection pressure points as the user entered them.
  bool FlowX_ReadUserIPSection(int& value, int inlet);
  /// "UserIP-%d": a point of the injection pressure profile as the user entered it.
  bool FlowX_ReadUserIPProfile(double& x, double& y, int point, int inlet);
  /// "UserTPSet": the number of transfer pressure points as the user entered them.
  bool FlowX_ReadUserTPSection(int& value, int inlet);
  /// "UserTP-%d": a point of the transfer pressure profile as the user entered it.
  bool FlowX_ReadUserTPProfile(double& x, double& y, int point, int inlet);

  // [Flow-%ld-Skin2nd]: the filling stage of a co-injection run's second skin.

  /// "FillTime": the filling time, in sec.
  bool FlowXSkin2nd_ReadFillingTime(double& value, int inlet);
  /// "FRSet": the number of flow rate points.
  bool FlowXSkin2nd_ReadFRSection(int& value, int inlet);
  /// "FR-%d": a point of the flow rate profile.
  bool FlowXSkin2nd_ReadFRProfile(double& x, double& y, int point, int inlet);
  /// "IPSet": the number of injection pressure points.
  bool FlowXSkin2nd_ReadIPSection(int& value, int inlet);
  /// "IP-%d": a point of the injection pressure profile.
  bool FlowXSkin2nd_ReadIPProfile(double& x, double& y, int point, int inlet);
  /// "Skin2ndEnterType": the code of what makes the second skin enter.
  bool FlowXSkin2nd_ReadSkin2ndEnterType(int& value, int inlet);
  /// "Skin2ndEnterSwch": the switch value at which the second skin enters.
  bool FlowXSkin2nd_ReadSkin2ndEnterSwch(double& value, int inlet);
  /// "Skin2ndEnterTime": the time at which the second skin enters, in sec.
  bool FlowXSkin2nd_ReadSkin2ndEnterTime(double& value, int inlet);

  // [Pack-%d]: the packing stage of an inlet.

  /// "PackTime": the packing time, in sec.
  bool PackX_ReadPackTime(double& value, int inlet);
  /// "PackPres": the packing pressure, in MPa.
  bool PackX_ReadPackPressure(double& value, int inlet);
  /// "PackSwch": the switch value of packing.
  bool PackX_ReadPackSwitch(double& value, int inlet);
  /// "IgnoreLimitation": the code for ignoring the limits.
  bool PackX_ReadIgnoreLimitation(int& value, int inlet);
  /// "MaxEOFRatio": the largest ratio to the pressure at the end of filling.
  bool PackX_ReadMaxEOFRatio(double& value, int inlet);
  /// "PPDisplayType": how the packing pressure profile is shown.
  bool PackX_ReadPPDisplayType(int& value, int inlet);
  /// "PPProfileType": how the packing pressure profile was entered.
  bool PackX_ReadPPProfileType(int& value, int inlet);
  /// "PPSet": the number of packing pressure points.
  bool PackX_ReadPPSection(int& value, int inlet);
  /// "PP-%d": a point of the packing pressure profile.
  bool PackX_ReadPPProfile(double& x, double& y, int point, int inlet);
  /// "UserPPSet": the number of packing pressure points as the user entered them.
  bool PackX_ReadUserPPSection(int& value, int inlet);
  /// "UserPP-%d": a point of the packing pressure profile as the user entered it.
  bool PackX_ReadUserPPProfile(double& x, double& y, int point, int inlet);

  // [Cure-%d]: the curing stage of an inlet.

  /// "CureTime": the curing time, in sec.
  bool CureX_ReadCureTime(double& value, int inlet);
  /// "CurePres": the curing pressure, in MPa.
  bool CureX_ReadCurePressure(double& value, int inlet);
  /// "CureTemp": the curing temperature, in oC.
  bool CureX_ReadCureTemperature(double& value, int inlet);
  /// "CureSwch": the switch value of curing.
  bool CureX_ReadCureSwitch(double& value, int inlet);
  /// "CPDisplayType": how the curing pressure profile is shown.
  bool CureX_ReadCPDisplayType(int& value, int inlet);
  /// "PPProfileType": how the curing pressure profile was entered; the key is the packing stage's.
  bool CureX_ReadCPProfileType(int& value, int inlet);
  /// "CPSet": the number of curing pressure points.
  bool CureX_ReadCPSection(int& value, int inlet);
  /// "CP-%d": a point of the curing pressure profile.
  bool CureX_ReadCPProfile(double& x, double& y, int point, int inlet);
  /// "UserCPSet": the number of curing pressure points as the user entered them.
  bool CureX_ReadUserCPSection(int& value, int inlet);
  /// "UserCP-%d": a point of the curing pressure profile as the user entered it.
  bool CureX_ReadUserCPProfile(double& x, double& y, int point, int inlet);
  /// "CTDisplayType": how the curing temperature profile is shown.
  bool CureX_ReadCTDisplayType(int& value, int inlet);
  /// "CTProfileType": how the curing temperature profile was entered.
  bool CureX_ReadCTProfileType(int& value, int inlet);
  /// "CTSet": the number of curing temperature points.
  bool CureX_ReadCTSection(int& value, int inlet);
  /// "CT-%d": a point of the curing temperature profile.
  bool CureX_ReadCTProfile(double& x, double& y, int point, int inlet);
  /// "UserCTSet": the number of curing temperature points as the user entered them.
  bool CureX_ReadUserCTSection(int& value, int inlet);
  /// "UserCT-%d": a point of the curing temperature profile as the user entered it.
  bool CureX_ReadUserCTProfile(double& x, double& y, int point, int inlet);

  // [Project]: the mesh and material files and the volumes of the project.

  /// "Mesh": the mesh file.
  bool Project_ReadMesh(char*& text);
  /// "Material": the material file.
  bool Project_ReadMaterial(char*& text);
  /// "MeshID": the mesh's identifier.
  bool Project_ReadMeshID(char*& text);
  /// "CavVol": the volume of the cavity, in cc.
  bool Project_ReadCavityVolume(double& value);
  /// "CushionVol": the volume of the cushion, in cc.
  bool Project_ReadCushionVolume(double& value);
  /// "ClampFaceArea": the projected area that the clamp holds.
  bool Project_ReadClampFaceArea(double& value);

  // [RamPosition]: profiles over the ram's stroke, and the V/P switch-over by ram position.

  /// "RamDir": the code of the ram's direction.
  bool RamPosition_ReadRamDirection(int& value);
  /// "IsVPswitch": the code of the V/P switch-over by ram position.
  bool RamPosition_ReadIsVPSwitch(int& value);
  /// "VPswitchRam": the ram position of the V/P switch-over.
  bool RamPosition_ReadVPSwitchRamPosition(double& value);
  /// "SuckBack": the suck-back.
  bool RamPosition_ReadSuckBack(double& value);
  /// "RP_FRSet": the number of flow rate points.
  bool RamPosition_ReadRamFRSection(int& value);
  /// "RP_FR-%d": a point of the flow rate profile.
  bool RamPosition_ReadRamFRProfile(double& x, double& y, int point);
  /// "RP_FR-%d": the x of a flow rate point; written alone, it is the whole value.
  bool RamPosition_ReadRamFRProfile(double& value, int point);
  /// "RP_IPSet": the number of injection pressure points.
  bool RamPosition_ReadRamIPSection(int& value);
  /// "RP_IP-%d": a point of the injection pressure profile.
  bool RamPosition_ReadRamIPProfile(double& x, double& y, int point);
  /// "RP_IP-%d": the x of an injection pressure point; written alone, it is the whole value.
  bool RamPosition_ReadRamIPProfile(double& value, int point);

  // [GasF-%d]: gas-assisted filling at a gas inlet.

  /// "GasTime": the gas injection time, in sec.
  bool GasFX_ReadGasTime(double& value, int inlet);
  /// "GasPres": the gas pressure, in MPa.
  bool GasFX_ReadGasPressure(double& value, int inlet);
  /// "GasSwch": the switch value of the gas.
  bool GasFX_ReadGasSwitch(double& value, int inlet);
  /// "DelayTime": the delay time, in sec.
  bool GasFX_ReadDelayTime(double& value, int inlet);
  /// "GRDisplayType": how the gas flow rate profile is shown.
  bool GasFX_ReadGRDisplayType(int& value, int inlet);
  /// "GRProfileType": how the gas flow rate profile was entered.
  bool GasFX_ReadGRProfileType(int& value, int inlet);
  /// "GPDisplayType": how the gas pressure profile is shown.
  bool GasFX_ReadGPDisplayType(int& value, int inlet);
  /// "GPProfileType": how the gas pressure profile was entered.
  bool GasFX_ReadGPProfileType(int& value, int inlet);
  /// "GRSet": the number of gas flow rate points; the member for the user's reads it too.
  bool GasFX_ReadGRSection(int& value, int inlet);
  /// "GRSet": the number of gas flow rate points; the member for the user's reads it too.
  bool GasFX_ReadUserGRSection(int& value, int inlet);
  /// "GR-%d": a point of the gas flow rate profile; the member for the user's reads it too.
  bool GasFX_ReadGRProfile(double& x, double& y, int point, int inlet);
  /// "GR-%d": a point of the gas flow rate profile; the member for the user's reads it too.
  bool GasFX_ReadUserGRProfile(double& x, double& y, int point, int inlet);
  /// "GPSet": the number of gas pressure points; the member for the user's reads it too.
  bool GasFX_ReadGPSection(int& value, int inlet);
  /// "GPSet": the number of gas pressure points; the member for the user's reads it too.
  bool GasFX_ReadUserGPSection(int& value, int inlet);
  /// "GP-%d": a point of the gas pressure profile; the member for the user's reads it too.
  bool GasFX_ReadGPProfile(double& x, double& y, int point, int inlet);
  /// "GP-%d": a point of the gas pressure profile; the member for the user's reads it too.
  bool GasFX_ReadUserGPProfile(double& x, double& y, int point, int inlet);

  // [TransientInletConv]: pellet pre-heating and initial conversion where the inlet conversion is transient.

  /// "InitConversionType": the code of the initial conversion.
  bool TransientInletConv_ReadInitConversionType(int& value);
  /// "InitPelletConv": the initial conversion of the pellet.
  bool TransientInletConv_ReadInitPelletConversion(double& value);
  /// "PelletDiameter": the pellet's diameter.
  bool TransientInletConv_ReadPelletDiameter(double& value);
  /// "PelletHeight": the pellet's height.
  bool TransientInletConv_ReadPelletHeight(double& value);
  /// "PreHeatTime": the pre-heating time, in sec.
  bool TransientInletConv_ReadPreHeatTime(double& value);

  // [ICPackage]: pellet pre-heating and initial conversion of IC package encapsulation.

  /// "InitConversionType": the code of the initial conversion.
  bool ICPackage_ReadInitConversionType(int& value);
  /// "InitConversion": the initial conversion of the pellet.
  bool ICPackage_ReadInitPelletConversion(double& value);
  /// "PelletDiameter": the pellet's diameter.
  bool ICPackage_ReadPelletDiameter(double& value);
  /// "PelletHeight": the pellet's height.
  bool ICPackage_ReadPelletHeight(double& value);
  /// "PreHeatingTime": the pre-heating time, in sec.
  bool ICPackage_ReadPreHeatTime(double& value);

  // [MicrocellularMolding]: foaming and gas dosage.

  /// "FoamDurationTime": how long foaming lasts, in sec.
  bool MicrocellularMolding_ReadFoamDurationTime(double& value);
  /// "StartFoamingType": the code of what makes foaming begin.
  bool MicrocellularMolding_ReadStartFoamingType(int& value);
  /// "VolumeFilled": the filled volume at which foaming begins.
  bool MicrocellularMolding_ReadVolumeFilled(double& value);
  /// "PreInjectedVolume": the volume injected before.
  bool MicrocellularMolding_ReadPreInjectedVolume(double& value);
  /// "InitialGasConcentrationType": the code of how the initial gas concentration is given.
  bool MicrocellularMolding_ReadInitialGasConcentrationType(int& value);
  /// "GasDosageAmount": the amount of gas.
  bool MicrocellularMolding_ReadGasDosageAmount(double& value);
  /// "GasSaturationPressure": the saturation pressure of the gas, in MPa.
  bool MicrocellularMolding_ReadGasSaturationPressure(double& value);
  /// "NozzleShutoff": the code of the nozzle shut-off.
  bool MicrocellularMolding_ReadNozzleShutoff(int& value);
  /// "AdvancedType": the code of the advanced setting.
  bool MicrocellularMolding_ReadAdvancedType(int& value);
  /// "RamPosition": the ram position.
  bool MicrocellularMolding_ReadRamPosition(double& value);
  /// "PartWeight": the weight of the part.
  bool MicrocellularMolding_ReadPartWeight(double& value);

  // [AdvancedSetting]: the mold's opening direction, the clamp force and the cycle time.

  /// "OpenDirection": the direction in which the mold opens: x, y, z.
  bool AdvancedSetting_ReadOpenDirection(double& x, double& y, double& z);
  /// "ClampForce": the clamp force.
  bool AdvancedSetting_ReadClampForce(double& value);
  /// "CycleTime": the cycle time, in sec; a text that holds no number is 0.
  bool AdvancedSetting_ReadCycleTime(double& value);

  // [Cool]: cycle times, temperatures and the kind of cooling.

  /// "CoolTime": the cooling time, in sec.
  bool Cool_ReadCoolTime(double& value);
  /// "OpenTime": the time the mold is open, in sec.
  bool Cool_ReadMoldOpenTime(double& value);
  /// "EjectTemp": the ejection temperature, in oC.
  bool Cool_ReadEjectTemperature(double& value);
  /// "AirTemp": the air temperature, in oC.
  bool Cool_ReadAirTemperature(double& value);
  /// "InitialMoldbaseTemperature": the mold base's initial temperature, in oC.
  bool Cool_ReadInitMoldTemperature(double& value);
  /// "CoolantTemp": the coolant temperature, in oC.
  bool Cool_ReadCoolantTemperature(double& value);
  /// "CoolantFR": the coolant flow rate, in cc/sec.
  bool Cool_ReadCoolantFlowRate(double& value);
  /// "CoolingType": the code of the kind of cooling.
  bool Cool_ReadCoolingType(int& value);
  /// "ControlType": what cooling channels are controlled by: 1 pressure, otherwise flow rate.
  bool Cool_ReadControlType(int& value);

  // [CoolCTL]: the coolant at each entrance.

  /// "T-%d": the coolant temperature at an entrance, in oC.
  bool CoolCTL_ReadCoolantTemperature(double& value, int entrance);
  /// "F-%d": the coolant flow rate at an entrance, in cc/sec.
  bool CoolCTL_ReadCoolantFlowRate(double& value, int entrance);
  /// "P-%d": the coolant pressure at an entrance, in MPa.
  bool CoolCTL_ReadCoolantPressure(double& value, int entrance);
  /// "M-%d": the coolant system of an entrance.
  bool CoolCTL_ReadCoolantSystem(int& value, int entrance);

  // [Coolant]: the coolants, one line each.

  /// "%d": a coolant: four properties, its system, its name (one word), a real, an integer; what the text does not
  /// supply is 0, the name null.
  bool Coolant_ReadCoolant(double& p1, double& p2, double& p3, double& p4, int& system, char*& name, double& f7, int& f8, int coolant);

  // [VarCoolCTL]: variable cooling.

  /// "CoolantNo": the number of entries.
  bool VarCoolCTL_ReadCoolantCount(int& value);
  /// "Coolant-%d": an entry of four reals and an integer; what the text does not supply is 0.
  bool VarCoolCTL_ReadCoolant(double& f1, double& f2, double& f3, double& f4, int& f5, int entry);

  // [CoolChannel-%d]: a cooling channel.

  /// "Diameter": the channel's diameter.
  bool CoolChannelX_ReadDiameter(double& value, int channel);
  /// "GroupID": the channel's group.
  bool CoolChannelX_ReadGroupID(int& value, int channel);
  /// "TimeSet": the number of control points.
  bool CoolChannelX_ReadTimeSection(int& value, int channel);
  /// "TCPP-%d" where "ControlType" of [Cool] is 1, otherwise "TCP-%d": a real, the coolant system, the temperature, the
  /// pressure or the flow rate, an integer; what the text does not supply is 0.
  bool CoolChannelX_ReadControlPointSetting(double& f1, int& system, double& temperature, double& flow, int& f5, int point, int channel);
  /// "TCPP-%d": a control point by pressure: a real, the coolant system, the temperature, the pressure, an integer;
  /// what the text does not supply is 0.
  bool CoolChannelX_ReadPressureControlPointSetting(double& f1, int& system, double& temperature, double& flow, int& f5, int point, int channel);

  // [MoldPreheat]: preheating of the mold.

  /// "MoldPreHeatType": the code of the kind of preheating.
  bool Cool_ReadMoldPreheatType(int& value);
  /// "MoldPreHeatTime": the preheating time, in sec.
  bool Cool_ReadMoldPreheatTime(double& value);
  /// "MoldPreHeatTemperature": the preheating temperature, in oC.
  bool Cool_ReadMoldPreheatTemperature(double& value);
  /// "MaxMoldPreHeatTime": the longest preheating time, in sec.
  bool Cool_ReadMaxMoldPreHeatTime(double& value);
  /// "ControlType": what preheat channels are controlled by: 1 pressure, otherwise flow rate.
  bool Cool_ReadMoldPreheat_ControlType(int& value);

  // [MPreheat_CoolChannel-%d]: a channel that preheats the mold.

  /// "Diameter": the channel's diameter.
  bool MoldPreheat_CoolChannelX_ReadDiameter(double& value, int channel);
  /// "GroupID": the channel's group.
  bool MoldPreheat_CoolChannelX_ReadGroupID(int& value, int channel);
  /// "TimeSet": the number of control points.
  bool MoldPreheat_CoolChannelX_ReadTimeSection(int& value, int channel);
  /// "TCPP-%d" where "ControlType" of [MoldPreheat] is 1, otherwise "TCP-%d": a real, the coolant system, the temperature, the
  /// pressure or the flow rate, an integer; what the text does not supply is 0.
  bool MoldPreheat_CoolChannelX_ReadControlPointSetting(double& f1, int& system, double& temperature, double& flow, int& f5, int point, int channel);
  /// "TCPP-%d": a control point by pressure: a real, the coolant system, the temperature, the pressure, an integer;
  /// what the text does not supply is 0.
  bool MoldPreheat_CoolChannelX_ReadPressureControlPointSetting(double& f1, int& system, double& temperature, double& flow, int& f5, int point,
                                                                int channel);

  // [Machine]: the injection molding machine.

  /// "Maker": the maker.
  bool Machine_ReadMaker(char*& text);
  /// "Grade": the grade.
  bool Machine_ReadGrade(char*& text);
  /// "LastModifiedDate": the date of the last change.
  bool Machine_ReadLastModifiedDate(char*& text);
  /// "Remark": a remark.
  bool Machine_ReadRemark(char*& text);
  /// "Diameter": the screw diameter.
  bool Machine_ReadDiameter(double& value);
  /// "MaxRamPos": the longest ram position.
  bool Machine_ReadMaxRamPos(double& value);
  /// "ShotVolume": the shot volume.
  bool Machine_ReadShotVolume(double& value);
  /// "Weight": the shot weight.
  bool Machine_ReadShotWeight(double& value);
  /// "MaxMachinePres": the highest injection pressure.
  bool Machine_ReadInjectionPressure(double& value);
  /// "HoldingPressure": the holding pressure.
  bool Machine_ReadHoldingPressure(double& value);
  /// "InjectionSpeed": the injection speed.
  bool Machine_ReadInjectionSpeed(double& value);
  /// "FR": the highest flow rate.
  bool Machine_ReadFlowRate(double& value);
  /// "PlasticationRate": the plastication rate.
  bool Machine_ReadPlasticationRate(double& value);
  /// "ScrewSpeed": the screw speed.
  bool Machine_ReadScrewSpeed(double& value);
  /// "NozzleContactForce": the contact force of the nozzle.
  bool Machine_ReadNozzleContactForce(double& value);
  /// "NozzleStroke": the nozzle's stroke.
  bool Machine_ReadNozzleStroke(double& value);
  /// "HeaterWattage": the heater's wattage.
  bool Machine_ReadHeaterWattage(double& value);
  /// "TemperatureControlZones": the number of temperature control zones; 4+2 reads as 6.
  bool Machine_ReadTemperatureControlZones(int& value);
  /// "Size": the clamp force.
  bool Machine_ReadClampForce(double& value);
  /// "OpeningStroke": the opening stroke.
  bool Machine_ReadOpeningStroke(double& value);
  /// "MaxDaylight": the largest daylight.
  bool Machine_ReadMaxDaylight(double& value);
  /// "MoldHeight": the mold height.
  bool Machine_ReadMoldHeight(double& value);
  /// "DistanceBetweenTieBars(HxV)": the distance between the tie bars, as text.
  bool Machine_ReadDistanceBetweenTieBars(char*& text);
  /// "DistanceBetweenTieBars(HxV)": the distance between the tie bars: horizontal, vertical.
  bool Machine_ReadDistanceBetweenTieBars(double& first, double& second);
  /// "PlatenSize(HxV)": the size of the platen, as text.
  bool Machine_ReadPlatenSize(char*& text);
  /// "PlatenSize(HxV)": the size of the platen: horizontal, vertical.
  bool Machine_ReadPlatenSize(double& first, double& second);
  /// "EjectorPoint": the number of ejector points.
  bool Machine_ReadEjectorPoint(int& value);
  /// "EjectorForce": the ejector's force.
  bool Machine_ReadEjectorForce(double& value);
  /// "EjectorStroke": the ejector's stroke.
  bool Machine_ReadEjectorStroke(double& value);
  /// "MachineWeight": the machine's weight.
  bool Machine_ReadMachineWeight(double& value);
  /// "MachineDimension(LxWxH)": the machine's size, as text.
  bool Machine_ReadMachineDimension(char*& text);
  /// "MachineDimension(LxWxH)": the machine's size: length, width, height.
  bool Machine_ReadMachineDimension(double& length, double& width, double& height);
  /// "BarrelCompressionCtrl": the code of the barrel compression's control.
  bool Machine_ReadBarrelCompressionCtrl(int& value);

  // [Moldbase]: the mold bases, one material line each.

  /// "%d": a mold base: three reals, its name, which may hold blanks, three reals.
  bool Moldbase_ReadMoldbase(double& f1, double& f2, double& f3, char*& name, double& f5, double& f6, double& f7, int row);

  // [MoldMetalMaterial]: the mold metals, one material line each.

  /// "%d": a mold metal: three reals, its name, which may hold blanks, three reals.
  bool MoldMetalMaterial_ReadMaterial(double& f1, double& f2, double& f3, char*& name, double& f5, double& f6, double& f7, int row);

  // [MoldbaseInfo]: numbered mold bases with their names.

  /// "MB-%d": a number and the name, which stands in double quotes.
  bool MoldbaseInfo_ReadMoldbaseInfo(int& number, char*& name, int moldbase);

  // [MoldThermalBoundaryType]: the heat transfer between melt and mold.

  /// "Type": the code of the kind of heat transfer.
  bool MoldTemperatureBoundaryType_ReadHTCType(int& value);
  /// "Flow": the coefficient in filling, with a note that reading passes over.
  bool MoldTemperatureBoundaryType_ReadHTCFlow(double& value);
  /// "Pack": the coefficient in packing, with a note that reading passes over.
  bool MoldTemperatureBoundaryType_ReadHTCPack(double& value);
  /// "Detached_HTC": the coefficient where the part is detached, with a note that reading passes over.
  bool MoldTemperatureBoundaryType_ReadHTCDetached(double& value);
  /// "HotRunner_HTC": the coefficient in the hot runner, with a note that reading passes over.
  bool MoldTemperatureBoundaryType_ReadHTCHotRunner(double& value);

  // [PartingSurface]: the cavity and core sides.

  /// "CavityPart": the part on the cavity side: an integer and three reals; what the text does not supply is 0.
  bool PartingSurface_ReadCavityPart(int& number, double& f2, double& f3, double& f4);
  /// "CavityMoldbase": the mold base on the cavity side: an integer and three reals; what the text does not supply is
  /// 0.
  bool PartingSurface_ReadCavityMoldbase(int& number, double& f2, double& f3, double& f4);
  /// "CorePart": the part on the core side: an integer and three reals; what the text does not supply is 0.
  bool PartingSurface_ReadCorePart(int& number, double& f2, double& f3, double& f4);
  /// "CoreMoldbase": the mold base on the core side: an integer and three reals; what the text does not supply is 0.
  bool PartingSurface_ReadCoreMoldbase(int& number, double& f2, double& f3, double& f4);

  // [GateCTL]: when each gate is open.

  /// "AutoShutOffValveGateEOP": 1 where valve gates shut at the end of packing.
  bool GateCTL_ReadAutoShutOffValveGateEOP(int& value);
  /// "ST-%d": the start time of a gate, in sec.
  bool GateCTL_ReadStartTime(double& value, int gate);
  /// "ET-%d": the end time of a gate, in sec.
  bool GateCTL_ReadEndTime(double& value, int gate);

  // [GateValve-%d]: a valve gate.

  /// "GCId": the valve gate's identifier.
  bool GeteValveX_ReadValveGateID(int& value, int valve);
  /// "GCSet": the number of control points.
  bool GateValveX_ReadControlPoint(int& value, int valve);
  /// "GC-%d": a control point: the switching value, an integer, the mode, an integer (-1 for modes 1 and 4); what the
  /// text does not supply is 0.
  bool GateValveX_ReadGateSetting(double& value, int& number, int& mode, int& last, int point, int valve);
  /// "GC-%d": a control point without its last integer.
  bool GateValveX_ReadGateSetting(double& value, int& number, int& mode, int point, int valve);

  // [OFGateValve-%d]: the valve of an overflow.

  /// "GCId": the overflow's identifier.
  bool OverflowX_ReadOverflowID(int& value, int overflow);
  /// "GCSet": the number of control points.
  bool OverflowX_ReadControlPoint(int& value, int overflow);
  /// "GC-%d": a control point: the switching value, an integer, the mode, an integer (-1 for modes 1 and 4); what the
  /// text does not supply is 0.
  bool OverflowX_ReadGateSetting(double& value, int& number, int& mode, int& last, int point, int overflow);
  /// "GC-%d": a control point without its last integer.
  bool OverflowX_ReadGateSetting(double& value, int& number, int& mode, int point, int overflow);

  // [EjectCriteria]: the sensor and criteria nodes that decide ejection.

  /// "TotalSensorNode": the number of sensor nodes.
  bool EjectCriteria_ReadTotalSensorNode(int& value);
  /// "SensorNode-%d": the node of a sensor.
  bool EjectCriteria_ReadSensorNode(int& value, int sensor);
  /// "TotalCriteriaNode": the number of criteria nodes.
  bool EjectCriteria_ReadTotalCriteriaNode(int& value);
  /// "CriteriaNode-%d": the node of a criterion, and the criterion's value.
  bool EjectCriteria_ReadCriteriaNode(int& node, double& value, int criterion);

  // [PartInsertInitialTemperature]: the initial temperature of each part insert.

  /// "TotalPartInsert": the number of part inserts.
  bool PartInsertInitialTemperature_ReadTotalPartInsert(int& value);
  /// "PartInsert-%d": an insert: its identifier, its name (the first word of it), its initial temperature, in oC.
  bool PartInsertInitialTemperature_ReadPartInsert(int& id, char*& name, double& temperature, int insert);
  /// "PartInsert-%d": an insert: its identifier, its name, which may hold blanks, its initial temperature, in oC, and an
  /// integer. Four pieces between tabs are these four. Otherwise a last word that is an integer not above `insert` is the
  /// fourth, and one above it is the temperature; the fourth is `insert` then.
  bool PartInsertInitialTemperature_ReadPartInsert(int& id, char*& name, double& temperature, int& fourth, int insert);

  // [MoldInsertInitialTemperature]: the initial temperature of each mold insert.

  /// "TotalMoldInsert": the number of mold inserts.
  bool MoldInsertInitialTemperature_ReadTotalMoldInsert(int& value);
  /// "MoldInsert-%d": an insert: its identifier, its name (the first word of it), its initial temperature, in oC.
  bool MoldInsertInitialTemperature_ReadMoldInsert(int& id, char*& name, double& temperature, int insert);
  /// "MoldInsert-%d": an insert: its identifier, its name, which may hold blanks, its initial temperature, in oC, and an
  /// integer. Four pieces between tabs are these four. Otherwise a last word that is an integer not above `insert` is the
  /// fourth, and one above it is the temperature; the fourth is `insert` then.
  bool MoldInsertInitialTemperature_ReadMoldInsert(int& id, char*& name, double& temperature, int& fourth, int insert);

  // [PartInsertContactAngle]: the contact angle of each part insert group.

  /// "GroupCount": the number of groups.
  bool PartInsertContactAngle_ReadGroupCount(int& value);
  /// "%d", the group's number: the angle behind the name in double quotes. False for a line without two double quotes.
  bool PartInsertContactAngle_ReadAngle(int group, double& angle);
  /// The angle of the first group of exactly this name, among as many as "GroupCount" says. A group that is missing, or
  /// has no quoted name, ends the search.
  bool PartInsertContactAngle_ReadAngle(const char* name, double& angle);

  // [MoldTemperatureBC-%d]: a mold temperature boundary condition. These members rename the block for the rest of the
  // session: do positional reads (below) first, or through a reader of their own.

  /// "BCName": its name.
  bool MoldTemperatureBCX_ReadName(char*& text, int bc);
  /// "BCDisplayType": how it is shown.
  bool MoldTemperatureBCX_ReadDisplayType(int& value, int bc);
  /// "BCNodeCount": the number of its nodes.
  bool MoldTemperatureBCX_ReadNodeCount(int& value, int bc);
  /// "BC-%d": a point of its profile.
  bool MoldTemperatureBCX_ReadBCProfile(double& x, double& y, int point, int bc);

  // [SURFACE ELEMENT BOUNDARY CONDITION NAME]: lines addressed by position, from 1: first one header line for each boundary
  // condition, then the setting lines of all of them, one condition after the other.

  /// Header line `line`: the number of setting lines of the condition, its name, an integer. On a reader that was given a
  /// path, the second and every later call gives the line of the first one again; read several lines through a lent stream.
  bool MoldTemperatureBCX_ReadBC(int& first, char*& name, int& second, int line);
  /// Setting line `setting` of condition `bc`, where the first setting line stands behind `offset` header lines: two reals.
  /// False where the header lines before it, or the line itself, are not there.
  bool MoldTemperatureBCX_ReadBCSetting(double& a, double& b, int setting, int bc, int offset);

 private:
  bool OpenSession();

  CQELPROReader* session_ = nullptr;
  unsigned int raw_reads_disabled_ = 0;
};
