#pragma once

#include "QELPROEngine/QELPRO_MMM_MECHANICAL.h"
#include "QELPROEngine/export.h"

namespace qel::proio {
struct Entry;
}

/// Reads and writes one process file, key by key: an older interface to the file that CQELPROReader_Manipulator and
/// CQELPROWriter_Manipulator serve, complete in itself. Files written by either side are read by the other.
///
/// The object holds a path and nothing else. Each getter opens the file, scans it from the top and closes it again; each
/// setter changes the file on disk before it returns. What one object writes, every other sees at its next call.
///
/// Numbers. Stage accessors take the stage last, profile points and rows come first; the gas, gate, cooling and mold
/// accessors take the number of the stage, gate, circuit, channel or row first. Numbers are used as they are given.
///
/// Getters. False when the file cannot be opened, or when the section or the key is not there; the outputs are untouched
/// then. Once the key is found the result is true, even where its text does not scan: what cannot be scanned keeps the
/// caller's value, unless the member says otherwise. Numbers scan as "%d" and "%lf" do, whatever the program's locale is.
///
/// - A key is searched for from its section's header to the end of the file: a key that its section lacks is taken from a
///   later section that has it.
/// - A line of more than 127 characters, its line break counted, is seen as several lines.
/// - A text result is all that stands behind "=" and the blanks that follow: trailing blanks and the line feed that ended
///   the line belong to it. It points into a buffer of the thread and stays valid until the thread's next read through any
///   object of this class; names of rows have buffers of their own, one for each kind. Copy it to keep it, and never free it.
///
/// Setters. An entry that exists is replaced where the search finds it, in a later section too. A new one is added at the
/// end of the file, behind a new header where the section is missing. A file that does not exist is created. The file never
/// becomes shorter: blanks fill it up. Reals are written as "%g" writes them, six significant digits with at least three in
/// the exponent. Texts are written as they are given. Every setter then writes the local time to "Date" of [FileHeader],
/// except where it says that it does not.
///
/// Setters yield true even when the file cannot be written, and the file then keeps every byte, its "Date" too. False is for
/// an object without a path, a null text, one that holds the byte 0x1A, which ends a file for other programs, a position that no
/// line can have, and for memory that is missing. What is replaced is a whole line, however long: the same store twice leaves
/// what one leaves. A text with a line break makes several lines.
///
/// Where the boundary conditions are the file's last section, a new key goes to the end of its own section: at the end of the
/// file it would be one of their lines.
///
/// Copies share the caller's path. One object is used by one thread at a time; different objects on different files need
/// no lock.
class QELPROENGINE_API CPROIO_Manipulator {
 public:
  /// The sections that hold a number, in their fixed order.
  enum BLOCK {
    BLOCK_FLOW = 1,               ///< [Flow-%d]
    BLOCK_PACK,                   ///< [Pack-%d]
    BLOCK_GASF,                   ///< [GasF-%d]
    BLOCK_GATE_VALVE,             ///< [GateValve-%d]
    BLOCK_CURE,                   ///< [Cure-%d]
    BLOCK_COOL_CHANNEL,           ///< [CoolChannel-%d]
    BLOCK_OF_GATE_VALVE,          ///< [OFGateValve-%d]
    BLOCK_MPREHEAT_COOL_CHANNEL,  ///< [MPreheat_CoolChannel-%d]
  };

  /// The keys that hold a number, in their fixed order.
  enum KEY {
    KEY_FR = 1,         ///< FR-%d
    KEY_USER_FR,        ///< UserFR-%d
    KEY_IP,             ///< IP-%d
    KEY_USER_IP,        ///< UserIP-%d
    KEY_USER_PP,        ///< UserPP-%d
    KEY_PP,             ///< PP-%d
    KEY_T,              ///< T-%d
    KEY_F,              ///< F-%d
    KEY_M,              ///< M-%d
    KEY_INDEX,          ///< %d
    KEY_ST,             ///< ST-%d
    KEY_ET,             ///< ET-%d
    KEY_RP_FR,          ///< RP_FR-%d
    KEY_RP_IP,          ///< RP_IP-%d
    KEY_USER_GR,        ///< UserGR-%d
    KEY_GR,             ///< GR-%d
    KEY_USER_GP,        ///< UserGP-%d
    KEY_GP,             ///< GP-%d
    KEY_GC,             ///< GC-%d
    KEY_Q_SETTING,      ///< Q_Setting_%d
    KEY_PI_SETTING,     ///< Pi_Setting_%d
    KEY_PP_SETTING,     ///< Pp_Setting_%d
    KEY_USER_TP,        ///< UserTP-%d
    KEY_TP,             ///< TP-%d
    KEY_USER_CP,        ///< UserCP-%d
    KEY_CP,             ///< CP-%d
    KEY_COOLANT,        ///< Coolant-%d
    KEY_TCP,            ///< TCP-%d
    KEY_SENSOR_NODE,    ///< SensorNode-%d
    KEY_CRITERIA_NODE,  ///< CriteriaNode-%d
    KEY_PART_INSERT,    ///< PartInsert-%d
  };

  /// An object without a path: set one before anything else.
  CPROIO_Manipulator();
  CPROIO_Manipulator(const CPROIO_Manipulator& other);
  CPROIO_Manipulator& operator=(const CPROIO_Manipulator& other);
  virtual ~CPROIO_Manipulator();

  /// Chooses the file without looking for it: it may be one that the first setter creates. The text is not copied, and
  /// must stay as it is while the object is used.
  void SetFilePath(char* path);
  /// Chooses a file that exists. False, with the old path still in force, when it cannot be opened for reading. The text is
  /// not copied either.
  bool SetFilePath(const char* path);
  /// The pointer that was given to `SetFilePath`; false before any was.
  bool GetFilePath(const char*& path);
  /// True.
  bool Test();

  /// Writes the default document: headers, counts, units and the filling stage of one inlet, with a "FileVersion" of 1008.
  /// Entries that exist are replaced, the others are added, and all else in the file stays.
  bool SetDefault();

  // [FileHeader]: what the file is, who wrote it and when.

  /// "Name": the file's name.
  bool GetFileName(char*& text);
  bool SetFileName(char* text);
  /// "Date": when the file was last changed, such as 2026/11/15 09:05:07. The setter writes the local time of this moment.
  bool GetFileDate(char*& text);
  bool SetFileDate();
  /// "Type": the file's type, such as PRO.
  bool SetType(char* text);
  /// "CreateBy": the program that wrote the file.
  bool SetCreateBy(char* text);
  /// "Remark": a remark.
  bool SetRemark(char* text);

  // [CaeHeader]: the release and project that the analysis belongs to.

  /// "Version": the suite's version.
  bool SetVersion(char* text);
  /// "Release": the suite's release.
  bool SetRelease(char* text);
  /// "Project": the project.
  bool GetProjectPath(char*& text);
  bool SetProject(char* text);
  /// "Engineer": the engineer.
  bool SetEngineer(char* text);
  /// "Parent": the file that this one was made from.
  bool SetParent(char* text);
  /// "Type": the kind of analysis, such as Injection.
  bool GetCAEType(char*& text);
  bool SetCAEType(char* text);
  /// "FileVersion": the version of the file's layout.
  bool GetFileVersion(int& value);
  bool SetFileVersion(int value);
  /// "FileType": the file's type code.
  bool GetFileType(int& value);
  bool SetFileType(int value);
  /// "SmartSetting": the code of the guided setting.
  bool GetSmartSetting(int& value);
  bool SetSmartSetting(int value);

  // [Summary]: counts of the model, by which the other sections are numbered.

  /// "TotalNdivz": the number of mesh layers.
  bool GetMeshLayer(int& value);
  bool SetMeshLayer(int value);
  /// "TotalNodeEM": the number of melt entrances.
  bool GetMeltEntranceNo(int& value);
  bool SetMeltEntranceNo(int value);
  /// "TotalNodeEC": the number of coolant entrances.
  bool GetCoolantNo(int& value);
  bool SetCoolantNo(int value);
  /// "TotalGateCTL": the number of valve gates.
  bool GetValveGateNo(int& value);
  bool SetValveGateNo(int value);
  /// "VacuumIndex": the vacuum code.
  bool GetVacuumIndex(int& value);
  bool SetVacuumIndex(int value);
  /// "SkinRatio": the skin ratio.
  bool GetSkinRatio(double& value);
  bool SetSkinRatio(double value);
  /// "NoOutput": the multi time step.
  bool GetMultiTimeStep(int& value);
  bool SetMultiTimeStep(int value);
  /// "PEOFasPPack": 1 where the pressure at the end of filling is the packing pressure.
  /// The flag getter yields the flag itself, false for a missing key too.
  bool GetPpackAsPeof(int& value);
  bool SetPpackAsPeof(int value);
  bool GetPpackAsPeof(bool& flag);
  bool SetPpackAsPeof(bool flag);
  /// "TotalNodeMB": the number of mold bases.
  bool GetMoldbaseNo(int& value);
  bool SetMoldbaseNo(int value);
  /// "TotalNodeBC": the number of boundary conditions.
  bool GetBoundaryConditionNo(int& value);
  bool SetBoundaryConditionNo(int value);
  /// "TotalNodeEG": the number of gas entrances.
  bool GetGasEntranceNo(int& value);
  bool SetGasEntranceNo(int value);
  /// "TotalNodeMMM": the number of mold metal materials.
  bool GetMoldMetalMaterialNo(int& value);
  bool SetMoldMetalMaterialNo(int value);
  /// "SymVolRatio": the symmetry volume ratio, an integer: 0.5 reads as 0.
  bool GetSymVolRatio(int& value);
  bool SetSymVolRatio(int value);
  /// "TotalNodeHR": the number of heating rods.
  bool GetHeatingRodNo(int& value);
  bool SetHeatingRodNo(int value);
  /// "IsTransientInletConv": 1 where the inlet conversion is transient. The getter needs a "FileVersion" of 1010: below it,
  /// and where the key is missing, the flag is false. Unlike the other flag getters it yields whether the key was read.
  bool GetIsTransientInletConv(bool& flag);
  bool SetIsTransientInletConv(bool flag);

  // [Unit]: the units in which the file's values are given; they are fixed, and each member writes its own text.

  /// "Time": "sec       Time".
  bool SetUnitTime();
  /// "Temp": "oC        Temperature".
  bool SetUnitTemperature();
  /// "Pres": "MPa       Pressure".
  bool SetUnitPressure();
  /// "FR": "cc/sec    FlowRate".
  bool SetUnitFlowRate();
  /// "IP": "MPa       InjectPressure".
  bool SetUnitInjectPressure();
  /// "PP": "MPa       PackPressure".
  bool SetUnitPackPressure();
  /// "Volum": "cc        Volume".
  bool SetUnitVolume();

  // [Flow-%d]: the filling stage of an inlet. The stage is the last argument.

  /// "FillTime": the filling time, in sec.
  bool GetFillTime(double& value, int stage);
  bool SetFillTime(double value, int stage);
  /// "MeltTemp": the melt temperature, in oC.
  bool GetMeltTemperature(double& value, int stage);
  bool SetMeltTemperature(double value, int stage);
  /// "MoldTemp": the mold temperature, in oC.
  bool GetMoldTemperature(double& value, int stage);
  bool SetMoldTemperature(double value, int stage);
  /// "InjectPres": the injection pressure, in MPa.
  bool GetInjectPressure(double& value, int stage);
  bool SetInjectPressure(double value, int stage);
  /// "PreFill": the pre-fill.
  bool GetPreFill(double& value, int stage);
  bool SetPreFill(double value, int stage);
  /// "InjVol": the injected volume, in cc.
  bool GetInjectVolume(double& value, int stage);
  bool SetInjectVolume(double value, int stage);
  /// "TransTime": the filling time of transfer molding, in sec.
  bool GetTransferTime(double& value, int stage);
  bool SetTransferTime(double value, int stage);
  /// "ResnTemp": the resin temperature of transfer molding, in oC.
  bool GetResinTemperature(double& value, int stage);
  bool SetResinTemperature(double value, int stage);
  /// "TransPres": the transfer pressure, in MPa.
  bool GetTransferPressure(double& value, int stage);
  bool SetTransferPressure(double value, int stage);
  /// "InitConv": the conversion at the start.
  bool GetInitialConversion(double& value, int stage);
  bool SetInitialConversion(double value, int stage);
  /// "EndConv": the conversion at the end.
  bool GetEndConversion(double& value, int stage);
  bool SetEndConversion(double value, int stage);
  /// "FRDisplayType": how the flow rate profile is shown.
  bool GetFRDisplayType(int& value, int stage);
  /// "IPDisplayType": how the injection pressure profile is shown.
  bool GetIPDisplayType(int& value, int stage);
  /// "TPDisplayType": how the transfer pressure profile is shown.
  bool GetTPDisplayType(int& value, int stage);
  /// "FRSet": the number of flow rate points.
  bool GetFRSection(int& count, int stage);
  bool SetFRSection(int count, int stage);
  /// "FR-%d": a point of the flow rate profile: x, y.
  bool GetFRProfile(int point, double& x, double& y, int stage);
  bool SetFRProfile(int point, double x, double y, int stage);
  /// "UserFRSet": the number of flow rate points as the user entered them.
  bool GetUserFRSection(int& count, int stage);
  /// "UserFR-%d": a point of the flow rate profile as the user entered it: x, y.
  bool GetUserFRProfile(int point, double& x, double& y, int stage);
  /// "IPSet": the number of injection pressure points.
  bool GetIPSection(int& count, int stage);
  bool SetIPSection(int count, int stage);
  /// "IP-%d": a point of the injection pressure profile: x, y.
  bool GetIPProfile(int point, double& x, double& y, int stage);
  bool SetIPProfile(int point, double x, double y, int stage);
  /// "UserIPSet": the number of injection pressure points as the user entered them.
  bool GetUserIPSection(int& count, int stage);
  /// "UserIP-%d": a point of the injection pressure profile as the user entered it: x, y.
  bool GetUserIPProfile(int point, double& x, double& y, int stage);
  /// "TPSet": the number of transfer pressure points.
  bool GetTPSection(int& count, int stage);
  bool SetTPSection(int count, int stage);
  /// "TP-%d": a point of the transfer pressure profile: x, y.
  bool GetTPProfile(int point, double& x, double& y, int stage);
  bool SetTPProfile(int point, double x, double y, int stage);
  /// "UserTPSet": the number of transfer pressure points as the user entered them.
  bool GetUserTPSection(int& count, int stage);
  /// "UserTP-%d": a point of the transfer pressure profile as the user entered it: x, y.
  bool GetUserTPProfile(int point, double& x, double& y, int stage);

  // [Pack-%d]: the packing stage of an inlet. The stage is the last argument.

  /// "PackTime": the packing time, in sec.
  bool GetPackTime(double& value, int stage);
  bool SetPackTime(double value, int stage);
  /// "PackPres": the packing pressure, in MPa.
  bool GetPackPressure(double& value, int stage);
  bool SetPackPressure(double value, int stage);
  /// "PackSwch": the switch value of packing.
  bool GetPackSwitch(double& value, int stage);
  bool SetPackSwitch(double value, int stage);
  /// "PPDisplayType": how the packing pressure profile is shown.
  bool GetPPDisplayType(int& value, int stage);
  /// "PPSet": the number of packing pressure points.
  bool GetPPSection(int& count, int stage);
  bool SetPPSection(int count, int stage);
  /// "PP-%d": a point of the packing pressure profile: x, y.
  bool GetPPProfile(int point, double& x, double& y, int stage);
  bool SetPPProfile(int point, double x, double y, int stage);
  /// "UserPPSet": the number of packing pressure points as the user entered them.
  bool GetUserPPSection(int& count, int stage);
  /// "UserPP-%d": a point of the packing pressure profile as the user entered it: x, y.
  bool GetUserPPProfile(int point, double& x, double& y, int stage);

  // [Cure-%d]: the curing stage of an inlet. The stage is the last argument.

  /// "CureTime": the curing time, in sec.
  bool GetCureTime(double& value, int stage);
  bool SetCureTime(double value, int stage);
  /// "CurePres": the curing pressure, in MPa.
  bool GetCurePressure(double& value, int stage);
  bool SetCurePressure(double value, int stage);
  /// "CureSwch": the switch value of curing.
  bool GetCureSwitch(double& value, int stage);
  bool SetCureSwitch(double value, int stage);
  /// "CPDisplayType": how the curing pressure profile is shown.
  bool GetCPDisplayType(int& value, int stage);
  /// "CPSet": the number of curing pressure points.
  bool GetCPSection(int& count, int stage);
  bool SetCPSection(int count, int stage);
  /// "CP-%d": a point of the curing pressure profile: x, y.
  bool GetCPProfile(int point, double& x, double& y, int stage);
  bool SetCPProfile(int point, double x, double y, int stage);
  /// "UserCPSet": the number of curing pressure points as the user entered them.
  bool GetUserCPSection(int& count, int stage);
  /// "UserCP-%d": a point of the curing pressure profile as the user entered it: x, y.
  bool GetUserCPProfile(int point, double& x, double& y, int stage);

  // [RamPosition]: profiles over the ram's stroke, and the V/P switch-over by ram position.

  /// "RamDir": the code of the ram's direction.
  bool GetScrewDirection(int& value);
  bool SetScrewDirection(int value);
  /// "IsVPswitch": 1 where the V/P switch-over is by ram position.
  /// The flag getter yields the flag itself, false for a missing key too.
  bool GetVPSwitch(int& value);
  bool SetVPSwitch(int value);
  bool GetVPSwitch(bool& flag);
  bool SetVPSwitch(bool flag);
  /// "VPswitchRam": the ram position of the V/P switch-over.
  bool GetVPSwitchPosition(double& value);
  bool SetVPSwitchPosition(double value);
  /// "RP_FRSet": the number of flow rate points.
  bool GetRamFRSection(int& count);
  bool SetRamFRSection(int count);
  /// "RP_FR-%d": a point of the flow rate profile: x, y.
  bool GetRamFRProfile(int point, double& x, double& y);
  bool SetRamFRProfile(int point, double x, double y);
  /// "RP_IPSet": the number of injection pressure points.
  bool GetRamIPSection(int& count);
  bool SetRamIPSection(int count);
  /// "RP_IP-%d": a point of the injection pressure profile: x, y.
  bool GetRamIPProfile(int point, double& x, double& y);
  bool SetRamIPProfile(int point, double x, double y);

  // [QuickSetting]: the profiles of the quick setting. Their point keys have an underscore before the number.

  /// "ScrewDirection": the code of the screw's direction.
  bool GetQSScrewDirection(int& value);
  bool SetQSScrewDirection(int value);
  /// "ProfileType": the code of the kind of profile.
  bool GetQSProfileType(int& value);
  bool SetQSProfileType(int value);
  /// "IsSameSetting": 1 where the settings are the same.
  bool GetQSIsSameSetting(int& value);
  bool SetQSIsSameSetting(int value);
  /// "Q_SettingType": the code of the flow rate setting.
  bool GetQSFRSettingType(int& value);
  bool SetQSFRSettingType(int value);
  /// "Pi_SettingType": the code of the injection pressure setting.
  bool GetQSIPSettingType(int& value);
  bool SetQSIPSettingType(int value);
  /// "Pp_SettingType": the code of the packing pressure setting.
  bool GetQSPPSettingType(int& value);
  bool SetQSPPSettingType(int value);
  /// "Q_Section": the number of flow rate points.
  bool GetQSFRSection(int& count);
  bool SetQSFRSection(int count);
  /// "Q_Setting_%d": a point of the flow rate profile: x, y.
  bool GetQSFRProfile(int point, double& x, double& y);
  bool SetQSFRProfile(int point, double x, double y);
  /// "Pi_Section": the number of injection pressure points.
  bool GetQSIPSection(int& count);
  bool SetQSIPSection(int count);
  /// "Pi_Setting_%d": a point of the injection pressure profile: x, y.
  bool GetQSIPProfile(int point, double& x, double& y);
  bool SetQSIPProfile(int point, double x, double y);
  /// "Pp_Section": the number of packing pressure points.
  bool GetQSPPSection(int& count);
  bool SetQSPPSection(int count);
  /// "Pp_Setting_%d": a point of the packing pressure profile: x, y.
  bool GetQSPPProfile(int point, double& x, double& y);
  bool SetQSPPProfile(int point, double x, double y);

  // [FlowCTL]: what controls filling, packing and the V/P switch-over.

  /// "FlowCtrl": the code of what controls filling.
  bool GetFlowCTLFlowCtrl(int& value);
  /// "VPSwitchCtrl": the code of the V/P switch-over criterion.
  bool GetFlowCTLVPSwitchCtrl(int& value);
  /// "PackingCtrl": the code of what controls packing.
  bool GetFlowCTLPackingCtrl(int& value);
  /// "MoldTemperature": the mold temperature, in oC.
  bool GetFlowCTLMoldTemperature(double& value);
  /// "MeltTemperature": the melt temperature, in oC.
  bool GetFlowCTLMeltTemperature(double& value);
  /// "InjectionTime": the injection time, in sec.
  bool GetFlowCTLInjectionTime(double& value);
  /// "VolumeFilled": the filled volume at the V/P switch-over.
  bool GetFlowCTLVolumeFilled(double& value);
  /// "RamPosition": the ram position at the V/P switch-over.
  bool GetFlowCTLRamPosition(double& value);
  /// "InjectionPressure": the injection pressure at the V/P switch-over, in MPa.
  bool GetFlowCTLInjectionPressure(double& value);

  // [Output]: when results are put out.

  /// "TimeStep": the output time step.
  bool GetOutputTimeStep(int& value);
  bool SetOutputTimeStep(int value);
  /// "TimeFill": the output time in filling, in sec.
  bool GetOutputTimeFill(double& value);
  bool SetOutputTimeFill(double value);
  /// "TimePack": the output time in packing, in sec.
  bool GetOutputTimePack(double& value);
  bool SetOutputTimePack(double value);

  // [Project]: the mesh and material files and the volumes of the project.

  /// "Mesh": the mesh file.
  bool GetProjectMesh(char*& text);
  bool SetProjectMesh(char* text);
  /// "Material": the material file.
  bool GetProjectMaterial(char*& text);
  bool SetProjectMaterial(char* text);
  /// "CavVol": the volume of the cavity, in cc.
  bool GetCavityVolume(double& value);
  bool SetCavityVolume(double value);
  /// "CushionVol": the volume of the cushion, in cc.
  bool GetCushionVolume(double& value);
  bool SetCushionVolume(double value);

  // [AdvancedSetting]: the clamp force and the opening direction of the mold. The getters need a "FileVersion" of 1010.

  /// "ClampForce": the clamp force. 0 and false for older files.
  bool GetMoldClampingForce(double& value);
  bool SetMoldClampingForce(double value);
  /// "OpenDirection": the direction in which the mold opens: x, y, z. Zeros and false for older files.
  bool GetMoldOpenDirection(double& x, double& y, double& z);
  bool SetMoldOpenDirection(double x, double y, double z);

  // [TransientInletConv]: pellet pre-heating and initial conversion where the inlet conversion is transient. The
  // getters need a "FileVersion" of 1010.

  /// "InitPelletConv": the initial conversion of the pellet. 0 and false for older files.
  bool GetInitPelletConv(double& value);
  bool SetInitPelletConv(double value);
  /// "PelletDiameter": the pellet's diameter. 0 and false for older files.
  bool GetPelletDiameter(double& value);
  bool SetPelletDiameter(double value);
  /// "PelletHeight": the pellet's height. 0 and false for older files.
  bool GetPelletHeight(double& value);
  bool SetPelletHeight(double value);
  /// "PreHeatTime": the pre-heating time, in sec. 0 and false for older files.
  bool GetPreHeatTime(double& value);
  bool SetPreHeatTime(double value);

  // [ICPackage]: pellet pre-heating and initial conversion of IC package encapsulation.

  /// "InitConversionType": the code of the initial conversion.
  bool GetICInitConversionType(int& value);
  /// "InitConversion": the initial conversion of the pellet.
  bool GetICInitConversion(double& value);
  /// "PelletDiameter": the pellet's diameter.
  bool GetICPelletDiameter(double& value);
  /// "PelletHeight": the pellet's height.
  bool GetICPelletHeight(double& value);
  /// "PreHeatingTime": the pre-heating time, in sec.
  bool GetICPreHeatingTime(double& value);

  // [MoldThermalBoundaryType]: the heat transfer between melt and mold.

  /// "Type": the code of the kind of heat transfer.
  bool GetMoldThermalBoundaryType(int& value);
  bool SetMoldThermalBoundaryType(int value);
  /// "Flow": the coefficient in filling, in W/m^2.K; the unit is written behind the number. The setter leaves the file's
  /// date alone.
  bool GetFlowHeatTransferCoefficient(double& value);
  bool SetFlowHeatTransferCoefficient(double value);
  /// "Pack": the coefficient in packing, in W/m^2.K; the unit is written behind the number. The setter leaves the file's
  /// date alone.
  bool GetPackHeatTransferCoefficient(double& value);
  bool SetPackHeatTransferCoefficient(double value);

  // [GasF-%d]: gas-assisted filling at a gas inlet. The stage is the first argument.

  /// "GasTime": the gas injection time, in sec.
  bool GetGasTime(int stage, double& value);
  bool SetGasTime(int stage, double value);
  /// "GasPres": the gas pressure, in MPa.
  bool GetGasPressure(int stage, double& value);
  bool SetGasPressure(int stage, double value);
  /// "GasSwch": the switch value of the gas.
  bool GetGasSwitch(int stage, double& value);
  bool SetGasSwitch(int stage, double value);
  /// "DelayTime": the delay time, in sec.
  bool GetGasDelayTime(int stage, double& value);
  bool SetGasDelayTime(int stage, double value);
  /// "GRDisplayType": how the gas flow rate profile is shown.
  bool GetGasGRDisplayType(int stage, int& value);
  /// "GRProfileType": how the gas flow rate profile was entered.
  bool GetGasGRProfileType(int stage, int& value);
  /// "GPDisplayType": how the gas pressure profile is shown.
  bool GetGasGPDisplayType(int stage, int& value);
  /// "GPProfileType": how the gas pressure profile was entered.
  bool GetGasGPProfileType(int stage, int& value);
  /// "GRSet": the number of gas flow rate points.
  bool GetGasFRSection(int stage, int& count);
  bool SetGasFRSection(int stage, int count);
  /// "GR-%d": a point of the gas flow rate profile: x, y. The one number selects the stage and the point: point 2 is always
  /// that of stage 2.
  bool GetGasFRProfile(int number, double& x, double& y);
  bool SetGasFRProfile(int number, double x, double y);
  /// "UserGRSet": the number of gas flow rate points as the user entered them.
  bool GetUserGasFRSection(int stage, int& count);
  /// "UserGR-%d": a point of the gas flow rate profile as the user entered it: x, y. The stage stands last here.
  bool GetUserGasFRProfile(int point, double& x, double& y, int stage);
  /// "GPSet": the number of gas pressure points.
  bool GetGasGPSection(int stage, int& count);
  bool SetGasGPSection(int stage, int count);
  /// "GP-%d": a point of the gas pressure profile: x, y. The one number selects the stage and the point: point 2 is always
  /// that of stage 2.
  bool GetGasGPProfile(int number, double& x, double& y);
  bool SetGasGPProfile(int number, double x, double y);
  /// "UserGPSet": the number of gas pressure points as the user entered them.
  bool GetUserGasGPSection(int stage, int& count);
  /// "UserGP-%d": a point of the gas pressure profile as the user entered it: x, y. The stage stands last here.
  bool GetUserGasGPProfile(int point, double& x, double& y, int stage);

  // [GateCTL]: when each valve gate is open.

  /// "ST-%d": the start time of a gate, in sec.
  bool GetValveGateStartTime(int gate, double& value);
  bool SetValveGateStartTime(int gate, double value);
  /// "ET-%d": the end time of a gate, in sec.
  bool GetValveGateEndTime(int gate, double& value);
  bool SetValveGateEndTime(int gate, double value);

  // [GateValve-%d]: a valve gate. The gate is the first argument.

  /// "GCSet": the number of control rows.
  bool GetValveGateControlNo(int gate, int& value);
  bool SetValveGateControlNo(int gate, int value);
  /// "GC-%d" with the gate's own number: the switching time, in sec, and a flag.
  bool GetValveGateTimeSwitch(int gate, double& time, int& flag);
  bool SetValveGateTimeSwitch(int gate, double time, int flag);
  /// "GC-%d": a control row: the switching value, an integer, the mode, an integer that is written for the modes 2 and 3
  /// only. Outputs that the text does not supply keep their values.
  bool GetValveGateControlData(int gate, int row, double& value, int& second, int& mode, int& fourth);
  bool SetValveGateControlData(int gate, int row, double value, int second, int mode, int fourth);

  // [OFGateValve-%d]: the valve of an overflow. The gate is the first argument.

  /// "GCSet": the number of control rows.
  bool GetOverFlowControlNo(int gate, int& value);
  /// "GC-%d" with the gate's own number: the switching time, in sec, and a flag.
  bool GetOverFlowTimeSwitch(int gate, double& time, int& flag);
  /// "GC-%d": a control row: the switching value, an integer, the mode, an integer. Outputs that the text does not supply
  /// keep their values.
  bool GetOverFlowControlData(int gate, int row, double& value, int& second, int& mode, int& fourth);

  // [Cool]: cycle times, temperatures and the kind of cooling.

  /// "CoolTime": the cooling time, in sec.
  bool GetCoolTime(double& value);
  bool SetCoolTime(double value);
  /// "OpenTime": the time the mold is open, in sec.
  bool GetOpenTime(double& value);
  bool SetOpenTime(double value);
  /// "EjectTemp": the ejection temperature, in oC.
  bool GetEjectTemperature(double& value);
  bool SetEjectTemperature(double value);
  /// "AirTemp": the air temperature, in oC.
  bool GetAirTemperature(double& value);
  bool SetAirTemperature(double value);
  /// "InitialMoldbaseTemperature": the mold base's initial temperature, in oC.
  bool GetInitMoldTemperature(double& value);
  /// "CoolingType": the code of the kind of cooling.
  bool GetCoolingType(int& value);
  /// "CoolantTemp": the coolant temperature, in oC.
  bool GetCoolantTemperature(double& value);
  bool SetCoolantTemperature(double value);
  /// "CoolantFR": the coolant flow rate, in cc/sec.
  bool GetCoolantFlowRate(double& value);
  bool SetCoolantFlowRate(double value);
  /// "AutoSetCoolTime": 1 where the cooling time is set automatically.
  /// The flag getter yields the flag itself, false for a missing key too.
  bool GetAutoSetCoolTime(int& value);
  bool SetAutoSetCoolTime(int value);
  bool GetAutoSetCoolTime(bool& flag);
  bool SetAutoSetCoolTime(bool flag);

  // [CoolCTL]: the coolant of each circuit.

  /// "T-%d": the coolant temperature of a circuit, in oC.
  bool GetCoolCTLTemperature(int circuit, double& value);
  bool SetCoolCTLTemperature(int circuit, double value);
  /// "F-%d": the coolant flow rate of a circuit, in cc/sec.
  bool GetCoolCTLFlowRate(int circuit, double& value);
  bool SetCoolCTLFlowRate(int circuit, double value);
  /// "M-%d": the coolant system of a circuit.
  bool GetCoolCTLSystem(int circuit, int& value);
  bool SetCoolCTLSystem(int circuit, int value);

  // [Coolant]: the coolants, one row each.

  /// "%d", the row's number: four reals, an integer, the name (one word), a real, an integer. What the text does not supply
  /// is 0, the name null.
  bool GetCoolant(int row, double& first, double& second, double& third, double& fourth, int& fifth, char*& name, double& seventh, int& eighth);
  bool SetCoolant(int row, double first, double second, double third, double fourth, int fifth, char* name, double seventh, int eighth);

  // [VarCoolCTL]: variable cooling.

  /// "CoolantNo": the number of rows.
  bool GetTotalCoolantNo(int& value);
  bool SetTotalCoolantNo(int value);
  /// "Coolant-%d": a row of four reals and an integer. What the text does not supply is 0.
  bool GetCoolant(int row, double& first, double& second, double& third, double& fourth, int& fifth);
  bool SetCoolant(int row, double first, double second, double third, double fourth, int fifth);

  // [CoolChannel-%d]: a cooling channel. The channel is the first argument.

  /// "Diameter": the channel's diameter.
  bool GetCoolChannelDiameter(int channel, double& value);
  bool SetCoolChannelDiameter(int channel, double value);
  /// "GroupID": the channel's group. The setter takes the value by reference and leaves it alone.
  bool GetCoolChannelGroupID(int channel, int& value);
  bool SetCoolChannelGroupID(int channel, int& value);
  /// "TimeSet": the number of control points. The setter takes the value by reference and leaves it alone.
  bool GetCoolChannelTimeSet(int channel, int& value);
  bool SetCoolChannelTimeSet(int channel, int& value);
  /// "TCP-%d": a control point: a real, an integer, three reals. What the text does not supply is 0.
  bool GetCoolChannelControlPoint(int channel, int point, double& first, int& second, double& third, double& fourth, double& fifth);
  /// Writes a control point under "TCP-%d" with the channel's number: the point is not used. The last item is the signed
  /// decimal of the low 32 bits of the fifth value's bit pattern: 0 for 1.0 and 0.5, -1717986918 for 0.1. The files that
  /// are about have this layout. The member's name is spelled so.
  bool SetcoolChannelControlPoint(int channel, int point, double first, int second, double third, double fourth, double fifth);

  // [MoldPreheat]: preheating of the mold.

  /// "ControlType": what preheat channels are controlled by: 1 pressure, otherwise flow rate.
  bool GetMoldPreHeatControlType(int& value);
  /// "MaxMoldPreHeatTime": the longest preheating time, in sec.
  bool GetMaxMoldPreHeatTime(double& value);
  bool SetMaxMoldPreHeatTime(double value);
  /// "MoldPreHeatTime": the preheating time, in sec.
  bool GetMoldPreHeatTime(double& value);
  bool SetMoldPreHeatTime(double value);
  /// "MoldPreHeatTemperature": the preheating temperature, in oC. The getter's name is spelled so.
  bool GetMoldPreHearTemperature(double& value);
  bool SetMoldPreHeatTemperature(double value);
  /// "MoldPreHeatType": the code of the kind of preheating.
  bool GetMoldPreHeatType(int& value);
  bool SetMoldPreHeatType(int value);

  // [MPreheat_CoolChannel-%d]: a channel that preheats the mold. The channel is the first argument.

  /// "Diameter": the channel's diameter.
  bool GetMPreheatCoolChannelDiameter(int channel, double& value);
  bool SetMPreheatCoolChannelDiameter(int channel, double value);
  /// "GroupID": the channel's group. The setter takes the value by reference and leaves it alone.
  bool GetMPreheatCoolChannelGroupID(int channel, int& value);
  bool SetMPreheatCoolChannelGroupID(int channel, int& value);
  /// "TimeSet": the number of control points. The setter takes the value by reference and leaves it alone.
  bool GetMPreheatCoolChannelTimeSet(int channel, int& value);
  bool SetMPreheatCoolChannelTimeSet(int channel, int& value);
  /// "TCP-%d": a control point: a real, an integer, three reals. What the text does not supply is 0.
  bool GetMPreheatCoolChannelControlPoint(int channel, int point, double& first, int& second, double& third, double& fourth, double& fifth);
  /// Writes a control point under "TCP-%d" with the channel's number: the point is not used. The last item is the signed
  /// decimal of the low 32 bits of the fifth value's bit pattern: 0 for 1.0 and 0.5, -1717986918 for 0.1. The files that
  /// are about have this layout.
  bool SetMPreheatCoolChannelControlPoint(int channel, int point, double first, int second, double third, double fourth, double fifth);

  // [Machine]: the injection molding machine.

  /// "Maker": the maker.
  bool GetMachineMaker(char*& text);
  bool SetMachineMaker(char* text);
  /// "Grade": the grade.
  bool GetMachineGrade(char*& text);
  bool SetMachineGrade(char* text);
  /// "LastModifiedDate": the date of the last change.
  bool GetMachineLastModifiedDate(char*& text);
  /// "Remark": a remark.
  bool GetMachineRemark(char*& text);
  bool SetMachineRemark(char* text);
  /// "Diameter": the screw diameter.
  bool GetMachineScrewDiameter(double& value);
  bool SetMachineScrewDiameter(double value);
  /// "MaxRamPos": the longest ram position.
  bool GetMachineMaxRamPosition(double& value);
  bool SetMachineMaxRamPosition(double value);
  /// "ShotVolume": the shot volume.
  bool GetMachineShotVolume(double& value);
  /// "Weight": the shot weight.
  bool GetMachineShotWeight(double& value);
  bool SetMachineShotWeight(double value);
  /// "MaxMachinePres": the highest injection pressure.
  bool GetMachineMaxPressure(double& value);
  bool SetMachineMaxPressure(double value);
  /// "HoldingPressure": the holding pressure.
  bool GetMachineHoldingPressure(double& value);
  /// "InjectionSpeed": the injection speed.
  bool GetMachineInjectionSpeed(double& value);
  /// "FR": the highest flow rate.
  bool GetMachineMaxFlowRate(double& value);
  bool SetMachineMaxFlowRate(double value);
  /// "PlasticationRate": the plastication rate.
  bool GetMachinePlasticationRate(double& value);
  /// "ScrewSpeed": the screw speed.
  bool GetMachineScrewSpeed(double& value);
  /// "NozzleContactForce": the contact force of the nozzle.
  bool GetMachineNozzleContactForce(double& value);
  /// "NozzleStroke": the nozzle's stroke.
  bool GetMachineNozzleStroke(double& value);
  /// "HeaterWattage": the heater's wattage.
  bool GetMachineHeaterWattage(double& value);
  /// "TemperatureControlZones": the number of temperature control zones; 4+2 reads as 4.
  bool GetMachineTemperatureControlZone(int& value);
  /// "Size": the clamp force.
  bool GetMachineClampingForce(double& value);
  bool SetMachineClampingForce(double value);
  /// "OpeningStroke": the opening stroke.
  bool GetMachineOpeningStroke(double& value);
  /// "MaxDaylight": the largest daylight.
  bool GetMachineMaxDaylight(double& value);
  /// "MoldHeight": the mold height.
  bool GetMachineMoldHeight(double& value);
  /// "DistanceBetweenTieBars(HxV)": the distance between the tie bars: horizontal, vertical.
  bool GetMachineTieBarsDistance(char*& text);
  /// "PlatenSize(HxV)": the size of the platen: horizontal, vertical.
  bool GetMachinePlatenSize(char*& text);
  /// "EjectorPoint": the number of ejector points.
  bool GetMachineEjectorPoint(int& value);
  /// "EjectorForce": the ejector's force.
  bool GetMachineEjectorForce(double& value);
  /// "EjectorStroke": the ejector's stroke.
  bool GetMachineEjectorStroke(double& value);
  /// "MachineWeight": the machine's weight.
  bool GetMachineWeight(double& value);
  /// "MachineDimension(LxWxH)": the machine's size: length, width, height.
  bool GetMachineDimension(char*& text);
  /// "BarrelCompressionCtrl": the code of the barrel compression's control.
  bool GetBarrelCompressionCtrlType(int& value);

  // [Moldbase]: the mold bases, one row each: three thermal values, the name, which may hold blanks where all six numbers are
  // there, three mechanical values.

  /// "%d", the row's number: the three thermal values and the name. What the text does not supply is 0.
  bool GetMoldbase(int row, double& first, double& second, double& third, char*& name);
  bool SetMoldbase(int row, double first, double second, double third, char* name);
  /// The whole row, for a "FileVersion" of 1010 or more; false, with the record untouched, for older files.
  bool GetMoldbase(int row, QELPRO_MMM_MECHANICAL& record);
  /// Writes thermal values 1 and 2, mechanical value 2, the name, mechanical values 1, 2 and 3: mechanical value 2 twice,
  /// thermal value 3 not at all. The files that are about have this layout.
  bool SetMoldbase(int row, const QELPRO_MMM_MECHANICAL& record);

  // [MoldMetalMaterial]: the mold metals, in rows like those of the mold bases.

  /// "%d", the row's number: the three thermal values and the name. What the text does not supply is 0.
  bool GetMoldMetalMaterial(int row, double& first, double& second, double& third, char*& name);
  bool SetMoldMetalMaterial(int row, double first, double second, double third, char* name);
  /// The whole row. Where the "FileVersion" is below 1010 the row is read all the same, the mechanical values are 2e12, 0.3
  /// and 0.00012, and the result is false.
  bool GetMoldMetalMaterial(int row, QELPRO_MMM_MECHANICAL& record);
  /// Writes thermal values 1 and 2, mechanical value 2, the name, mechanical values 1, 2 and 3: mechanical value 2 twice,
  /// thermal value 3 not at all. The files that are about have this layout.
  bool SetMoldMetalMaterial(int row, const QELPRO_MMM_MECHANICAL& record);

  // [PartingSurface]: the cavity and core sides. Outputs that the text does not supply keep their values.

  /// "CavityPart": the part on the cavity side: an integer and three reals.
  bool GetPSCavityPart(int& first, double& second, double& third, double& fourth);
  /// "CavityMoldBase": the mold base on the cavity side: an integer and three reals.
  bool GetPSCavityMoldBase(int& first, double& second, double& third, double& fourth);
  /// "CorePart": the part on the core side: an integer and three reals.
  bool GetPSCorePart(int& first, double& second, double& third, double& fourth);
  /// "CoreMoldBase": the mold base on the core side: an integer and three reals.
  bool GetPSCoreMoldBase(int& first, double& second, double& third, double& fourth);

  // [EjectCriteria]: the sensor and criteria nodes that decide ejection.

  /// "TotalSensorNode": the number of sensor nodes.
  bool GetTotalSensorNode(int& value);
  /// "TotalCriteriaNode": the number of criteria nodes.
  bool GetTotalCriteriaNode(int& value);
  /// "SensorNode-%d": the node of a sensor, and a real.
  bool GetSensorNodeSetting(int number, int& node, double& value);
  /// "CriteriaNode-%d": the node of a criterion, and the criterion's value.
  bool GetCriteriaNodeSetting(int number, int& node, double& value);

  // [PartInsertInitialTemperature]: the initial temperature of each part insert.

  /// "TotalPartInsert": the number of part inserts.
  bool GetTotalPartInsert(int& value);
  /// "PartInsert-%d": an insert: its identifier, its name (one word), its initial temperature, in oC. A name that the text
  /// does not supply is empty; the other outputs keep their values then.
  bool GetPartInsertSetting(int number, int& id, char*& name, double& temperature);

  // [SURFACE ELEMENT BOUNDARY CONDITION NAME]: lines addressed by position, from 1: first a name line for each boundary
  // condition, as many as "TotalNodeBC" of [Summary] says, then the profile lines of all of them, one condition after the
  // other. Positions end at the next header: nothing is found behind it, and a position behind the last line becomes the new
  // last line. Empty lines count. A position below 1 yields false, and nothing is written.

  /// Name line `line`: the number of profile points of the condition, and its name.
  bool GetBCCountName(int line, int& count, char*& name);
  bool SetBCCountName(int line, int count, char* name);
  /// Name line `line` with the condition's type behind the name. In a line of four words or more the name may hold blanks;
  /// in a shorter one the type may be missing, and keeps its value.
  bool GetBCSetting(int line, int& count, char*& name, int& type);
  /// Point `point` of the profile of condition `bc`: x and y; what the line does not supply is 0. False, with both untouched,
  /// where a name line before it or the line itself is missing. A missing "TotalNodeBC" counts 0, and so does, in writing, a
  /// missing name line.
  bool GetBCProfile(int bc, int point, double& x, double& y);
  bool SetBCProfile(int bc, int point, double x, double y);

 private:
  static constexpr int kByKey = -1;
  static constexpr int kGatedVersion = 1010;

  // The raw layer. An index below 0 addresses a line by its key, one of 1 or more the line at that position behind the
  // section's header. Codes are 1 for success, -1001 for a file that cannot be opened, -1002 for a line that is not there.
  static char* GetBlock(int number, BLOCK kind);
  static char* GetKey(int number, KEY kind);
  static bool IsOK(int code);
  int Read(const char* section, const char* key, char*& value, int index);
  int Write(const char* section, const char* key, const char* value, bool stampDate, int index);
  bool checkIsThisPROFileSupport(int version);

  // What the accessors are made of: an entry and its items.
  static const char* SectionOf(const qel::proio::Entry& entry);
  static const char* KeyOf(const qel::proio::Entry& entry);
  template <class... Items>
  bool Get(const qel::proio::Entry& entry, Items&&... items);
  template <class... Items>
  bool GetZeroed(const qel::proio::Entry& entry, Items&&... items);
  template <class... Items>
  bool GetGated(const qel::proio::Entry& entry, Items&... items);
  template <class... Items>
  bool Set(const qel::proio::Entry& entry, Items... items);
  bool GetFlag(const qel::proio::Entry& entry, bool& flag);

  static bool GetMoldMetal(const char* text, QELPRO_MMM_MECHANICAL& record);
  static bool GetBC(const char* text, int& count, char*& name, int& type);
  bool SetCoefficient(const qel::proio::Entry& entry, double value);
  bool GetMoldRow(const qel::proio::Entry& row, double& first, double& second, double& third, char*& name);
  bool SetMoldRow(const qel::proio::Entry& row, const QELPRO_MMM_MECHANICAL& record);
  bool ReadBC(long long line, char*& text);
  bool WriteBC(long long line, const char* text);

  const char* path_ = nullptr;
};
