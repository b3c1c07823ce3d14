#pragma once

#include <cstdio>
#include <string>

#include "QELPROEngine/export.h"

class CQELPROWriter;

/// Writes a process file, key by key. The file on disk is changed before a member returns; there is no save step.
///
/// Every section member writes one key: an entry that exists is replaced where it stands, a new one is added at the end of
/// its section, a missing section is added at the end of the file. Reals are written as "%g" writes them, six significant
/// digits with at least three in the exponent, whatever the program's locale is. Arguments stand as for the reader: the
/// value or values, the point number, the number of the section.
///
/// A member yields false, and the file keeps every byte, when there is no file, when it cannot be opened for writing or has
/// no room, and when the text could not be read back: a line break inside it, more than 255 characters for a value of
/// several fields, or a line of more than 4095 characters.
///
/// A key that its section lacks but a later section holds is replaced there; this is how the files have always been
/// written.
///
/// Copies share one session. One object is used by one thread at a time; different objects and files need no lock.
class QELPROENGINE_API CQELPROWriter_Manipulator {
 public:
  CQELPROWriter_Manipulator();
  CQELPROWriter_Manipulator(const CQELPROWriter_Manipulator& other);
  CQELPROWriter_Manipulator& operator=(const CQELPROWriter_Manipulator& other);
  virtual ~CQELPROWriter_Manipulator();

  /// Chooses the file; one that does not exist is created empty. False when it cannot be opened for writing.
  /// `GetFilePath` hands the caller's own pointer back, so the text should stay valid while the file is in use.
  bool SetFilePath(const char* path);
  /// The same for a file that exists already: a wide path never creates one. New keys of existing sections, and
  /// `WriteString` and `WriteItems`, need a narrow path.
  bool SetFilePath(const wchar_t* path);
  /// Writes through a stream that the caller opened for reading and writing, and keeps open. False for null. New keys of
  /// existing sections need a narrow path.
  bool SetFilePtr(std::FILE*& stream);
  /// Closes a lent stream; otherwise there is nothing to close.
  void CloseFile();
  /// The pointer that was given to `SetFilePath`; null after a wide path or a stream. False before any file was set.
  bool GetFilePath(const char*& path);

  /// Writes any key of any section, named with its brackets.
  bool WriteString(const char* section, const char* key, const char* value);
  /// The same with a value formatted as printf does, with "." as the decimal point in every locale.
  bool WriteItems(const char* section, const char* key, const char* format, ...);

  // [FileHeader]: what the file is, who wrote it and when.

  /// "Name": the file's name.
  bool FileHeader_WriteName(char* text);
  /// "Type": the file's type, such as PRO.
  bool FileHeader_WriteType(char* text);
  /// "Date": the date of the last change, such as 2026/11/15 09:05:07.
  bool FileHeader_WriteDate(char* text);
  /// "Date": the local date and time of this moment, such as 2026/11/15 09:05:07.
  bool FileHeader_WriteDate();
  /// "CreateBy": the program that wrote the file.
  bool FileHeader_WriteCreateBy(char* text);
  /// "Remark": a remark.
  bool FileHeader_WriteRemark(char* text);

  // [CaeHeader]: the release and project that the analysis belongs to.

  /// "Version": the suite's version.
  bool CaeHeader_WriteVersion(char* text);
  /// "Release": the suite's release.
  bool CaeHeader_WriteRelease(char* text);
  /// "Project": the project.
  bool CaeHeader_WriteProject(char* text);
  /// "Engineer": the engineer.
  bool CaeHeader_WriteEngineer(char* text);
  /// "Parent": the file that this one was made from.
  bool CaeHeader_WriteParent(char* text);
  /// "Type": the kind of analysis, such as Injection.
  bool CaeHeader_WriteType(char* text);
  /// "FileVersion": the version of the file's layout, as text.
  bool CaeHeader_WriteFileVersion(char* text);
  /// "FileType": the file's type code.
  bool CaeHeader_WriteFileType(int value);
  /// "SmartSetting": the code of the guided setting.
  bool CaeHeader_WriteSmartSetting(int value);

  // [Summary]: counts of the model, by which the other sections are numbered.

  /// "TotalNdivz": the number of mesh layers.
  bool Summary_WriteTotalLayer(int value);
  /// "TotalNodeEM": the number of melt entrances.
  bool Summary_WriteTotalMeltEntrance(int value);
  /// "TotalNodeEC": the number of coolant entrances.
  bool Summary_WriteTotalCoolantEntrance(int value);
  /// "TotalGateCTL": the number of valve gates.
  bool Summary_WriteTotalValveGate(int value);
  /// "VacuumIndex": the vacuum code.
  bool Summary_WriteVacuumIndex(int value);
  /// "SkinRatio": the skin ratio.
  bool Summary_WriteSkinRatio(double value);
  /// "PEOFasPPack": 1 where the pressure at the end of filling is the packing pressure.
  bool Summary_WritePEOFasPPack(int value);
  /// "TotalNodeMB": the number of mold bases.
  bool Summary_WriteTotalMoldbase(int value);
  /// "TotalNodeBC": the number of boundary conditions.
  bool Summary_WriteTotalBoundaryCondition(int value);
  /// "TotalNodeEG": the number of gas entrances.
  bool Summary_WriteTotalGasEntrance(int value);
  /// "TotalNodeMMM": the number of mold metal materials.
  bool Summary_WriteTotalMoldMetalMaterial(int value);
  /// "SymVolRatio": the symmetry volume ratio, an integer: 0.5 reads as 0.
  bool Summary_WriteSymmetryVolumeRatio(int value);
  /// "TotalNodeHR": the number of heating rods.
  bool Summary_WriteTotalHeatingRod(int value);
  /// "IsTransientInletConv": 1 where the inlet conversion is transient, else 0.
  bool Summary_WriteTransientInletConv(int value);

  // [Unit]: the units in which the file's values are given; they are fixed.

  /// "Time" sec, "Temp" oC, "Pres" MPa, "FR" cc/sec, "IP" MPa, "PP" MPa, "Volume" cc, in this order. Stores that fail are
  /// passed over.
  void WriteUnitBlock();

  // [FlowCTL]: what controls filling, packing, the V/P switch-over and the begin of curing.

  /// "FlowCtrl": the code of what controls filling.
  bool FlowCTL_WriteFlowCtrl(int value);
  /// "VPSwitchCtrl": the V/P switch-over criterion: 0 filled volume, 1 ram position, 2 injection pressure, 3 a further
  /// one over the filled volume.
  bool FlowCTL_WriteVPSwitchCtrl(int value);
  /// "PackingCtrl": the code of what controls packing.
  bool FlowCTL_WritePackingCtrl(int value);
  /// "MoldTemperature": the mold temperature, in oC.
  bool FlowCTL_WriteMoldTemperature(double value);
  /// "MeltTemperature": the melt temperature, in oC.
  bool FlowCTL_WriteMeltTemperature(double value);
  /// "InjectionTime": the injection time, in sec.
  bool FlowCTL_WriteInjectionTime(double value);
  /// "VolumeFilled": the filled volume at the V/P switch-over.
  bool FlowCTL_WriteVolumeFilled(double value);
  /// "RamPosition": the ram position at the V/P switch-over.
  bool FlowCTL_WriteRamPosition(double value);
  /// "InjectionPressure": the injection pressure at the V/P switch-over, in MPa.
  bool FlowCTL_WriteInjectionPressure(double value);
  /// "CureSwitch": when curing begins.
  bool FlowCTL_WriteCureSwitch(double value);
  /// "CureEnterType": the code of what makes curing begin. Every index addresses the one entry.
  bool FlowCTL_WriteCureEnterType(int value, int index);
  /// "CureEnterSwch": the switch value at which curing begins. Every index addresses the one entry.
  bool FlowCTL_WriteCureEnterSwitch(double value, int index);
  /// "CureEnterTime": the time at which curing begins, in sec. Every index addresses the one entry.
  bool FlowCTL_WriteCureEnterTime(double value, int index);

  // [Flow-%ld]: the filling stage of an inlet.

  /// "FillTime": the filling time, in sec.
  bool FlowX_WriteFillingTime(double value, int inlet);
  /// "MaxFillingTime": the longest filling time, in sec.
  bool FlowX_WriteMaxFillingTime(double value, int inlet);
  /// "MeltTemp": the melt temperature, in oC.
  bool FlowX_WriteMeltTemperature(double value, int inlet);
  /// "MoldTemp": the mold temperature, in oC.
  bool FlowX_WriteMoldTemperature(double value, int inlet);
  /// "InjectPres": the injection pressure, in MPa.
  bool FlowX_WriteInjectPressure(double value, int inlet);
  /// "PreFill": the pre-fill.
  bool FlowX_WritePreFill(double value, int inlet);
  /// "InjVol": the injected volume, in cc.
  bool FlowX_WriteInjectVolume(double value, int inlet);
  /// "TransTime": the filling time of transfer molding, in sec.
  bool FlowX_WriteTransferTime(double value, int inlet);
  /// "MaxTransferTime": the longest filling time of transfer molding, in sec.
  bool FlowX_WriteMaxTransferTime(double value, int inlet);
  /// "ResnTemp": the resin temperature of transfer molding, in oC.
  bool FlowX_WriteResinTemperature(double value, int inlet);
  /// "TransPres": the transfer pressure, in MPa.
  bool FlowX_WriteTransferPressure(double value, int inlet);
  /// "InitConv": the conversion at the start.
  bool FlowX_WriteInitConversion(double value, int inlet);
  /// "FRDisplayType": how the flow rate profile is shown.
  bool FlowX_WriteFRDisplayType(int value, int inlet);
  /// "IPDisplayType": how the injection pressure profile is shown.
  bool FlowX_WriteIPDisplayType(int value, int inlet);
  /// "TPDisplayType": how the transfer pressure profile is shown.
  bool FlowX_WriteTPDisplayType(int value, int inlet);
  /// "FRProfileType": how the flow rate profile was entered.
  bool FlowX_WriteFRProfileType(int value, int inlet);
  /// "IPProfileType": how the injection pressure profile was entered.
  bool FlowX_WriteIPProfileType(int value, int inlet);
  /// "TPProfileType": how the transfer pressure profile was entered.
  bool FlowX_WriteTPProfileType(int value, int inlet);
  /// "FRStrokeMode": the stroke mode of the flow rate profile.
  bool FlowX_WriteFRStrokeMode(int value, int inlet);
  /// "IPStrokeMode": the stroke mode of the injection pressure profile.
  bool FlowX_WriteIPStrokeMode(int value, int inlet);
  /// "TPStrokeMode": the stroke mode of the transfer pressure profile.
  bool FlowX_WriteTPStrokeMode(int value, int inlet);
  /// "FRSet": the number of flow rate points.
  bool FlowX_WriteFRSection(int value, int inlet);
  /// "FR-%d": a point of the flow rate profile.
  bool FlowX_WriteFRProfile(double x, double y, int point, int inlet);
  /// "IPSet": the number of injection pressure points.
  bool FlowX_WriteIPSection(int value, int inlet);
  /// "IP-%d": a point of the injection pressure profile.
  bool FlowX_WriteIPProfile(double x, double y, int point, int inlet);
  /// "TPSet": the number of transfer pressure points.
  bool FlowX_WriteTPSection(int value, int inlet);
  /// "TP-%d": a point of the transfer pressure profile.
  bool FlowX_WriteTPProfile(double x, double y, int point, int inlet);
  /// "UserFRSet": the number of flow rate points as the user entered them.
  bool FlowX_WriteUserFRSection(int value, int inlet);
  /// "UserFR-%d": a point of the flow rate profile as the user entered it.
  bool FlowX_WriteUserFRProfile(double x, double y, int point, int inlet);
  /// "UserIPSet": the number of injection pressure points as the user entered them.
  bool FlowX_WriteUserIPSection(int value, int inlet);
  /// "UserIP-%d": a point of the injection pressure profile as the user entered it.
  bool FlowX_WriteUserIPProfile(double x, double y, int point, int inlet);
  /// "UserTPSet": the number of transfer pressure points as the user entered them.
  bool FlowX_WriteUserTPSection(int value, int inlet);
  /// "UserTP-%d": a point of the transfer pressure profile as the user entered it.
  bool FlowX_WriteUserTPProfile(double x, double y, int point, int inlet);

  // [Pack-%d]: the packing stage of an inlet.

  /// "PackTime": the packing time, in sec.
  bool PackX_WritePackTime(double value, int inlet);
  /// "PackPres": the packing pressure, in MPa.
  bool PackX_WritePackPressure(double value, int inlet);
  /// "PackSwch": the switch value of packing.
  bool PackX_WritePackSwitch(double value, int inlet);
  /// "IgnoreLimitation": the code for ignoring the limits.
  bool PackX_WriteIgnoreLimitation(int value, int inlet);
  /// "MaxEOFRatio": the largest ratio to the pressure at the end of filling.
  bool PackX_WriteMaxEOFRatio(double value, int inlet);
  /// "PPDisplayType": how the packing pressure profile is shown.
  bool PackX_WritePPDisplayType(int value, int inlet);
  /// "PPProfileType": how the packing pressure profile was entered.
  bool PackX_WritePPProfileType(int value, int inlet);
  /// "PPSet": the number of packing pressure points.
  bool PackX_WritePPSection(int value, int inlet);
  /// "PP-%d": a point of the packing pressure profile.
  bool PackX_WritePPProfile(double x, double y, int point, int inlet);
  /// "UserPPSet": the number of packing pressure points as the user entered them.
  bool PackX_WriteUserPPSection(int value, int inlet);
  /// "UserPP-%d": a point of the packing pressure profile as the user entered it.
  bool PackX_WriteUserPPProfile(double x, double y, int point, int inlet);

  // [Cure-%d]: the curing stage of an inlet.

  /// "CureTime": the curing time, in sec.
  bool CureX_WriteCureTime(double value, int inlet);
  /// "CurePres": the curing pressure, in MPa.
  bool CureX_WriteCurePressure(double value, int inlet);
  /// "CureSwch": the switch value of curing.
  bool CureX_WriteCureSwitch(double value, int inlet);
  /// "CPDisplayType": how the curing pressure profile is shown.
  bool CureX_WriteCPDisplayType(int value, int inlet);
  /// "PPProfileType": how the curing pressure profile was entered; the key is the packing stage's.
  bool CureX_WriteCPProfileType(int value, int inlet);
  /// "CPSet": the number of curing pressure points.
  bool CureX_WriteCPSection(int value, int inlet);
  /// "CP-%d": a point of the curing pressure profile.
  bool CureX_WriteCPProfile(double x, double y, int point, int inlet);
  /// "UserCPSet": the number of curing pressure points as the user entered them.
  bool CureX_WriteUserCPSection(int value, int inlet);
  /// "UserCP-%d": a point of the curing pressure profile as the user entered it.
  bool CureX_WriteUserCPProfile(double x, double y, int point, int inlet);

  // [Project]: the mesh and material files and the volumes of the project.

  /// "Mesh": the mesh file.
  bool Project_WriteMesh(char* text);
  /// "Material": the material file.
  bool Project_WriteMaterial(char* text);
  /// "CavVol": the volume of the cavity, in cc.
  bool Project_WriteCavityVolume(double value);
  /// "CushionVol": the volume of the cushion, in cc.
  bool Project_WriteCushionVolume(double value);

  // [RamPosition]: profiles over the ram's stroke, and the V/P switch-over by ram position.

  /// "RamDir": the code of the ram's direction.
  bool RamPosition_WriteRamDirection(int value);
  /// "IsVPswitch": the code of the V/P switch-over by ram position.
  bool RamPosition_WriteIsVPSwitch(int value);
  /// "VPswitchRam": the ram position of the V/P switch-over.
  bool RamPosition_WriteVPSwitchRamPosition(double value);
  /// "SuckBack": the suck-back.
  bool RamPosition_WriteSuckBack(double value);
  /// "RP_FRSet": the number of flow rate points.
  bool RamPosition_WriteRamFRSection(int value);
  /// "RP_FR-%d": a point of the flow rate profile.
  bool RamPosition_WriteRamFRProfile(double x, double y, int point);
  /// "RP_FR-%d": the x of a flow rate point; written alone, it is the whole value.
  bool RamPosition_WriteRamFRProfile(double value, int point);
  /// "RP_IPSet": the number of injection pressure points.
  bool RamPosition_WriteRamIPSection(int value);
  /// "RP_IP-%d": a point of the injection pressure profile.
  bool RamPosition_WriteRamIPProfile(double x, double y, int point);
  /// "RP_IP-%d": the x of an injection pressure point; written alone, it is the whole value.
  bool RamPosition_WriteRamIPProfile(double value, int point);

  // [GasF-%d]: gas-assisted filling at a gas inlet.

  /// "GasTime": the gas injection time, in sec.
  bool GasFX_WriteGasTime(double value, int inlet);
  /// "GasPres": the gas pressure, in MPa.
  bool GasFX_WriteGasPressure(double value, int inlet);
  /// "GasSwch": the switch value of the gas.
  bool GasFX_WriteGasSwitch(double value, int inlet);
  /// "DelayTime": the delay time, in sec.
  bool GasFX_WriteDelayTime(double value, int inlet);
  /// "GRDisplayType": how the gas flow rate profile is shown.
  bool GasFX_WriteGRDisplayType(int value, int inlet);
  /// "GRProfileType": how the gas flow rate profile was entered.
  bool GasFX_WriteGRProfileType(int value, int inlet);
  /// "GPDisplayType": how the gas pressure profile is shown.
  bool GasFX_WriteGPDisplayType(int value, int inlet);
  /// "GPProfileType": how the gas pressure profile was entered.
  bool GasFX_WriteGPProfileType(int value, int inlet);
  /// "GRSet": the number of gas flow rate points; the member for the user's reads it too.
  bool GasFX_WriteGRSection(int value, int inlet);
  /// "GR-%d": a point of the gas flow rate profile; the member for the user's reads it too.
  bool GasFX_WriteGRProfile(double x, double y, int point, int inlet);
  /// "GPSet": the number of gas pressure points; the member for the user's reads it too.
  bool GasFX_WriteGPSection(int value, int inlet);
  /// "GP-%d": a point of the gas pressure profile; the member for the user's reads it too.
  bool GasFX_WriteGPProfile(double x, double y, int point, int inlet);
  /// "UserGRSet": the number of gas flow rate points as the user entered them; no member reads it.
  bool GasFX_WriteUserGRSection(int value, int inlet);
  /// "UserGR-%d": a point of the gas flow rate profile as the user entered it; no member reads it.
  bool GasFX_WriteUserGRProfile(double x, double y, int point, int inlet);
  /// "UserGPSet": the number of gas pressure points as the user entered them; no member reads it.
  bool GasFX_WriteUserGPSection(int value, int inlet);
  /// "USerGP-%d": a point of the gas pressure profile as the user entered it, under a key with a capital S; no member
  /// reads it.
  bool GasFX_WriteUserGPProfile(double x, double y, int point, int inlet);

  // [TransientInletConv]: pellet pre-heating and initial conversion where the inlet conversion is transient.

  /// "InitConversionType": the code of the initial conversion.
  bool TransientInletConv_WriteInitConversionType(int value);
  /// "InitPelletConv": the initial conversion of the pellet.
  bool TransientInletConv_WriteInitPelletConversion(double value);
  /// "PelletDiameter": the pellet's diameter.
  bool TransientInletConv_WritePelletDiameter(double value);
  /// "PelletHeight": the pellet's height.
  bool TransientInletConv_WritePelletHeight(double value);
  /// "PreHeatTime": the pre-heating time, in sec.
  bool TransientInletConv_WritePreHeatTime(double value);

  // [ICPackage]: pellet pre-heating and initial conversion of IC package encapsulation.

  /// "InitConversionType": the code of the initial conversion.
  bool ICPackage_WriteInitConversionType(int value);
  /// "InitConversion": the initial conversion of the pellet.
  bool ICPackage_WriteInitPelletConversion(double value);
  /// "PelletDiameter": the pellet's diameter.
  bool ICPackage_WritePelletDiameter(double value);
  /// "PelletHeight": the pellet's height.
  bool ICPackage_WritePelletHeight(double value);
  /// "PreHeatingTime": the pre-heating time, in sec.
  bool ICPackage_WritePreHeatTime(double value);

  // [MicrocellularMolding]: foaming and gas dosage.

  /// "FoamDurationTime": how long foaming lasts, in sec.
  bool MicrocellularMolding_WriteFoamDurationTime(double value);
  /// "StartFoamingType": the code of what makes foaming begin.
  bool MicrocellularMolding_WriteStartFoamingType(int value);
  /// "VolumeFilled": the filled volume at which foaming begins.
  bool MicrocellularMolding_WriteVolumeFilled(double value);
  /// "PreInjectedVolume": the volume injected before.
  bool MicrocellularMolding_WritePreInjectedVolume(double value);
  /// "InitialGasConcentrationType": the code of how the initial gas concentration is given.
  bool MicrocellularMolding_WriteInitialGasConcentrationType(int value);
  /// "GasDosageAmount": the amount of gas.
  bool MicrocellularMolding_WriteGasDosageAmount(double value);
  /// "GasSaturationPressure": the saturation pressure of the gas, in MPa.
  bool MicrocellularMolding_WriteGasSaturationPressure(double value);
  /// "NozzleShutoff": the code of the nozzle shut-off.
  bool MicrocellularMolding_WriteNozzleShutoff(int value);
  /// "AdvancedType": the code of the advanced setting.
  bool MicrocellularMolding_WriteAdvancedType(int value);
  /// "RamPosition": the ram position.
  bool MicrocellularMolding_WriteRamPosition(double value);
  /// "PartWeight": the weight of the part.
  bool MicrocellularMolding_WritePartWeight(double value);

  // [AdvancedSetting]: the mold's opening direction, the clamp force and the cycle time.

  /// "OpenDirection": the direction in which the mold opens: x, y, z.
  bool AdvancedSetting_WriteOpenDirection(double x, double y, double z);
  /// "ClampForce": the clamp force.
  bool AdvancedSetting_WriteClampForce(double value);

  // [Cool]: cycle times, temperatures and the kind of cooling.

  /// "CoolTime": the cooling time, in sec.
  bool Cool_WriteCoolTime(double value);
  /// "OpenTime": the time the mold is open, in sec.
  bool Cool_WriteMoldOpenTime(double value);
  /// "EjectTemp": the ejection temperature, in oC.
  bool Cool_WriteEjectTemperature(double value);
  /// "AirTemp": the air temperature, in oC.
  bool Cool_WriteAirTemperature(double value);
  /// "InitialMoldbaseTemperature": the mold base's initial temperature, in oC.
  bool Cool_WriteInitMoldTemperature(double value);
  /// "CoolantTemp": the coolant temperature, in oC.
  bool Cool_WriteCoolantTemperature(double value);
  /// "CoolantFR": the coolant flow rate, in cc/sec.
  bool Cool_WriteCoolantFlowRate(double value);
  /// "CoolingType": the code of the kind of cooling.
  bool Cool_WriteCoolingType(int value);

  // [CoolCTL]: the coolant at each entrance.

  /// "T-%d": the coolant temperature at an entrance, in oC.
  bool CoolCTL_WriteCoolantTemperature(double value, int entrance);
  /// "F-%d": the coolant flow rate at an entrance, in cc/sec.
  bool CoolCTL_WriteCoolantFlowRate(double value, int entrance);
  /// "P-%d": the coolant pressure at an entrance, in MPa.
  bool CoolCTL_WroteCoolantPressure(double value, int entrance);
  /// "M-%d": the coolant system of an entrance.
  bool CoolCTL_WriteCoolantSystem(int value, int entrance);

  // [Coolant]: the coolants, one line each.

  /// "%d": a coolant: four properties, its system, its name (one word), a real, an integer; what the text does not
  /// supply is 0, the name null.
  bool Coolant_WriteCoolant(double p1, double p2, double p3, double p4, int system, char* name, double f7, int f8, int coolant);

  // [VarCoolCTL]: variable cooling.

  /// "CoolantNo": the number of entries.
  bool VarCoolCTL_WriteCoolantCount(int value);
  /// "Coolant-%d": an entry of four reals and an integer; what the text does not supply is 0.
  bool VarCoolCTL_WriteCoolant(double f1, double f2, double f3, double f4, int f5, int entry);

  // [CoolChannel-%d]: a cooling channel.

  /// "Diameter": the channel's diameter.
  bool CoolChannelX_WriteDiameter(double value, int channel);
  /// "GroupID": the channel's group.
  bool CoolChannelX_WriteGroupID(int value, int channel);
  /// "TimeSet": the number of control points.
  bool CoolChannelX_WriteTimeSection(int value, int channel);
  /// "TCP-%d": a control point by flow rate: a real, the coolant system, the temperature, the flow rate, an integer;
  /// what the text does not supply is 0.
  bool CoolChannelX_WriteControlPointSetting(double f1, int system, double temperature, double flow, int f5, int point, int channel);
  /// "TCPP-%d": a control point by pressure: a real, the coolant system, the temperature, the pressure, an integer;
  /// what the text does not supply is 0.
  bool CoolChannelX_WritePressureControlPointSetting(double f1, int system, double temperature, double flow, int f5, int point, int channel);

  // [Machine]: the injection molding machine.

  /// "Maker": the maker.
  bool Machine_WriteMaker(char* text);
  /// "Grade": the grade.
  bool Machine_WriteGrade(char* text);
  /// "LastModifiedDate": the date of the last change.
  bool Machine_WriteLastModifiedDate(char* text);
  /// "Remark": a remark.
  bool Machine_WriteRemark(char* text);
  /// "Diameter": the screw diameter.
  bool Machine_WriteDiameter(double value);
  /// "MaxRamPos": the longest ram position.
  bool Machine_WriteMaxRamPos(double value);
  /// "ShotVolume": the shot volume.
  bool Machine_WriteShotVolume(double value);
  /// "Weight": the shot weight.
  bool Machine_WriteShotWeight(double value);
  /// "MaxMachinePres": the highest injection pressure.
  bool Machine_WriteInjectionPressure(double value);
  /// "HoldingPressure": the holding pressure.
  bool Machine_WriteHoldingPressure(double value);
  /// "InjectionSpeed": the injection speed.
  bool Machine_WriteInjectionSpeed(double value);
  /// "FR": the highest flow rate.
  bool Machine_WriteFlowRate(double value);
  /// "PlasticationRate": the plastication rate.
  bool Machine_WritePlasticationRate(double value);
  /// "ScrewSpeed": the screw speed.
  bool Machine_WriteScrewSpeed(double value);
  /// "NozzleContactForce": the contact force of the nozzle.
  bool Machine_WriteNozzleContactForce(double value);
  /// "NozzleStroke": the nozzle's stroke.
  bool Machine_WriteNozzleStroke(double value);
  /// "HeaterWattage": the heater's wattage.
  bool Machine_WriteHeaterWattage(double value);
  /// "TemperatureControlZones": the number of temperature control zones; 4+2 reads as 6.
  bool Machine_WriteTemperatureControlZones(int value);
  /// "Size": the clamp force.
  bool Machine_WriteClampForce(double value);
  /// "OpeningStroke": the opening stroke.
  bool Machine_WriteOpeningStroke(double value);
  /// "MaxDaylight": the largest daylight.
  bool Machine_WriteMaxDaylight(double value);
  /// "MoldHeight": the mold height.
  bool Machine_WriteMoldHeight(double value);
  /// "DistanceBetweenTieBars(HxV)": the distance between the tie bars, as text.
  bool Machine_WriteDistanceBetweenTieBars(char* text);
  /// "DistanceBetweenTieBars(HxV)": the distance between the tie bars: horizontal, vertical.
  bool Machine_WriteDistanceBetweenTieBars(double first, double second);
  /// "PlatenSize(HxV)": the size of the platen, as text.
  bool Machine_WritePlatenSize(char* text);
  /// "PlatenSize(HxV)": the size of the platen: horizontal, vertical.
  bool Machine_WritePlatenSize(double first, double second);
  /// "EjectorPoint": the number of ejector points.
  bool Machine_WriteEjectorPoint(int value);
  /// "EjectorForce": the ejector's force.
  bool Machine_WriteEjectorForce(double value);
  /// "EjectorStroke": the ejector's stroke.
  bool Machine_WriteEjectorStroke(double value);
  /// "MachineWeight": the machine's weight.
  bool Machine_WriteMachineWeight(double value);
  /// "MachineDimension(LxWxH)": the machine's size, as text.
  bool Machine_WriteMachineDimension(char* text);
  /// "MachineDimension(LxWxH)": the machine's size: length, width, height.
  bool Machine_WriteMachineDimension(double length, double width, double height);

  // [Moldbase]: the mold bases, one material line each.

  /// "%d": a mold base: three reals, its name, which may hold blanks, three reals.
  bool Moldbase_WriteMoldbase(double f1, double f2, double f3, char* name, double f5, double f6, double f7, int row);

  // [MoldMetalMaterial]: the mold metals, one material line each.

  /// "%d": a mold metal: three reals, its name, which may hold blanks, three reals.
  bool MoldMetalMaterial_WriteMaterial(double f1, double f2, double f3, char* name, double f5, double f6, double f7, int row);

  // [MoldbaseInfo]: numbered mold bases with their names.

  /// "MB-%d": a number and the name, which stands in double quotes.
  bool MoldbaseInfo_WriteMoldbaseInfo(int number, char* name, int moldbase);

  // [MoldThermalBoundaryType]: the heat transfer between melt and mold.

  /// "Type": the code of the kind of heat transfer.
  bool MoldTemperatureBoundaryType_WriteHTCType(int value);
  /// "Flow": the coefficient in filling, with a note that reading passes over.
  bool MoldTemperatureBoundaryType_WriteHTCFlow(double value, char* note);
  /// "Pack": the coefficient in packing, with a note that reading passes over.
  bool MoldTemperatureBoundaryType_WriteHTCPack(double value, char* note);
  /// "Detached_HTC": the coefficient where the part is detached, with a note that reading passes over.
  bool MoldTemperatureBoundaryType_WriteHTCDetached(double value, char* note);
  /// "HotRunner_HTC": the coefficient in the hot runner, with a note that reading passes over.
  bool MoldTemperatureBoundaryType_WriteHTCHotRunner(double value, char* note);

  // [PartingSurface]: the cavity and core sides.

  /// "CavityPart": the part on the cavity side: an integer and three reals; what the text does not supply is 0.
  bool PartingSurface_WriteCavityPart(int number, double f2, double f3, double f4);
  /// "CavityMoldbase": the mold base on the cavity side: an integer and three reals; what the text does not supply is
  /// 0.
  bool PartingSurface_WriteCavityMoldbase(int number, double f2, double f3, double f4);
  /// "CorePart": the part on the core side: an integer and three reals; what the text does not supply is 0.
  bool PartingSurface_WriteCorePart(int number, double f2, double f3, double f4);
  /// "CoreMoldbase": the mold base on the core side: an integer and three reals; what the text does not supply is 0.
  bool PartingSurface_WriteCoreMoldbase(int number, double f2, double f3, double f4);

  // [GateCTL]: when each gate is open.

  /// "ST-%d": the start time of a gate, in sec.
  bool GateCTL_WriteStartTime(double value, int gate);
  /// "ET-%d": the end time of a gate, in sec.
  bool GateCTL_WriteEndTime(double value, int gate);

  // [GateValve-%d]: a valve gate.

  /// "GCId": the valve gate's identifier.
  bool GateValveX_WriteGateValveID(int value, int valve);
  /// "GCSet": the number of control points.
  bool GateValveX_WriteControlPoint(int value, int valve);
  /// "GC-%d": a control point: the switching value, an integer, the mode. "GCSet" is raised to `point` where it is lower; a
  /// valve without "GCSet" has one point.
  bool GateValveX_WriteGateSetting(double value, int number, int mode, int point, int valve);
  /// "GC-%d": a control point as its mode has it: 1 and 4 the first three, 2 and 3 all four, any other an empty value.
  bool GateValveX_WriteGateSetting(double value, int number, int mode, int last, int point, int valve);
  /// The same for the first valve whose "GCId" is `id`, among as many as "TotalGateCTL" of [Summary] says; a valve without
  /// "GCId" has 0. False, and nothing is written, where there is none.
  bool GateValveX_WriteGateSettingByValveGateID(double value, int number, int mode, int point, int id);
  bool GateValveX_WriteGateSettingByValveGateID(double value, int number, int mode, int last, int point, int id);

  // [EjectCriteria]: the sensor and criteria nodes that decide ejection.

  /// "TotalSensorNode": the number of sensor nodes.
  bool EjectCriteria_WriteTotalSensorNode(int value);
  /// "SensorNode-%d": the node of a sensor.
  bool EjectCriteria_WriteSensorNode(int value, int sensor);
  /// "TotalCriteriaNode": the number of criteria nodes.
  bool EjectCriteria_WriteTotalCriteriaNode(int value);
  /// "CriteriaNode-%d": the node of a criterion, and the criterion's value.
  bool EjectCriteria_WriteCriteriaNode(int node, double value, int criterion);

  // [PartInsertInitialTemperature]: the initial temperature of each part insert.

  /// "TotalPartInsert": the number of part inserts.
  bool PartInsertInitialTemperature_WriteTotalPartInsert(int value);
  /// "PartInsert-%d": an insert: its identifier, its name (the first word of it), its initial temperature, in oC.
  bool PartInsertInitialTemperature_WritePartInsert(int id, char* name, double temperature, int insert);

  // [MoldInsertInitialTemperature]: the initial temperature of each mold insert.

  /// "TotalMoldInsert": the number of mold inserts.
  bool MoldInsertInitialTemperature_WriteTotalMoldInsert(int value);
  /// "MoldInsert-%d": an insert: its identifier, its name (the first word of it), its initial temperature, in oC.
  bool MoldInsertInitialTemperature_WriteMoldInsert(int id, char* name, double temperature, int insert);

  // [PartInsertContactAngle]: the contact angle of each part insert group.

  /// "GroupCount": the number of groups.
  bool PartInsertContactAngle_WriteGroupCount(int value);
  /// "%d", the group's number: the name, which is put in double quotes and should hold none, and the angle.
  bool PartInsertContactAngle_WriteGroup(int group, const char* name, double angle);

  // [MoldTemperatureBC-%d]: a mold temperature boundary condition. These members rename the block for the rest of the
  // session: do positional writes (below) first, or through a writer of their own.

  /// "BCName": its name.
  bool MoldTemperatureBCX_WriteName(char* text, int bc);
  /// "BCDisplayType": how it is shown.
  bool MoldTemperatureBCX_WriteDisplayType(int value, int bc);
  /// "BCNodeCount": the number of its nodes.
  bool MoldTemperatureBCX_WriteNodeCount(int value, int bc);
  /// "BC-%d": a point of its profile.
  bool MoldTemperatureBCX_WriteBCProfile(double x, double y, int point, int bc);

  // [SURFACE ELEMENT BOUNDARY CONDITION NAME]: lines addressed by position, from 1; see the reader.

  /// Header line `line`: the number of setting lines of the condition, its name, an integer. A position behind the last
  /// line adds a line.
  bool MoldTemperatureBCX_WriteBC(int first, char* name, int second, int line);
  /// Setting line `setting` of condition `bc`, written as "bc = a<tab>b"; the first setting line stands behind `offset`
  /// header lines. False where the header lines before it are not there.
  bool MoldTemperatureBCX_WriteBCSetting(double a, double b, int setting, int bc, int offset);

 private:
  bool OpenSession();

  CQELPROWriter* session_ = nullptr;
  std::string path_;
};
