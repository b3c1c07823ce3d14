#pragma once

#include "QELPROEngine/QELPRO_MMM_MECHANICAL.h"
#include "QELPROEngine/constant_text.h"
#include "QELPROEngine/export.h"

namespace qel {
template <decltype(sizeof 0) size>
class TextBuffer;
}  // namespace qel
namespace qel::proio {
struct Row;
}  // namespace qel::proio

/// Reads and writes one process file, key by key: an older interface to the file that
/// CQELPROReader_Manipulator and CQELPROWriter_Manipulator serve, complete in itself. Files written
/// by either side are read by the other.
///
/// The object holds a path and nothing else. Each getter opens the file, scans it from the top and
/// closes it again; each setter changes the file on disk before it returns. What one object writes,
/// every other sees at its next call.
///
/// Numbers. Stage accessors take the stage last, profile points and rows come first; the gas, gate,
/// cooling and mold accessors take the number of the stage, gate, circuit, channel or row first.
/// Numbers are used as they are given.
///
/// Getters. False when the file cannot be opened, or when the section or the key is not there; the
/// outputs are untouched then. Once the key is found the result is true, even where its text does
/// not scan: what cannot be scanned keeps the caller's value, unless the member says otherwise.
/// Numbers scan as "%d" and "%lf" do, whatever the program's locale is.
///
/// - A key is searched for from its section's header to the end of the file: a key that its section
///   lacks is taken from a later section that has it.
/// - A line of more than 127 characters, its line break counted, is seen as several lines. A value
///   is cut there; replacing it replaces the line to its real end.
/// - A text result is all that stands after "=" and the blanks that follow: trailing blanks and the
///   line feed that ended the line belong to it. It points into a buffer of the thread and stays
///   valid until the thread's next read through any object of this class; names of rows have
///   buffers of their own, one for each kind. Copy it to keep it, and never free it.
///
/// Setters. An entry that exists is replaced where the search finds it, in a later section too. A
/// new one is added at the end of the file, after a new header where the section is missing. A
/// file that does not exist is created. The file never becomes shorter: blanks fill it up. Reals
/// are written as "%g" writes them, six significant digits with at least three in the exponent.
/// Texts are written as they are given; they are read during the call alone, and never changed:
/// each setter that takes one as `char*` takes a constant text as well. Every setter then writes
/// the local time to "Date" of [FileHeader], except where it says that it does not.
///
/// Setters yield true even when the file cannot be written, and the file then keeps every byte, its
/// "Date" too. False is for an object without a path, a null text, one that holds the byte 0x1A,
/// which ends a file for other programs, a position that no line can have, and for memory that is
/// missing before the entry is written; "Date" keeps its text where memory is missing after that.
/// What is replaced is a whole line, however long: the same store twice leaves what one leaves. A
/// text with a line break makes several lines.
///
/// Where the boundary conditions are the file's last section, a new key goes to the end of its own
/// section: at the end of the file it would be one of their lines.
///
/// Every member that reads or writes an entry opens the file and closes it again, which on POSIX
/// drops the record locks that the program itself holds on it (`fcntl` with `F_SETLK`).
///
/// Copies share the caller's path. One object is used by one thread at a time; different objects on
/// different files need no lock.
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
  /// A copy has the same path: the caller's text.
  CPROIO_Manipulator(const CPROIO_Manipulator& other);
  /// Takes the other's path over.
  CPROIO_Manipulator& operator=(const CPROIO_Manipulator& other);
  virtual ~CPROIO_Manipulator();

  /// Chooses the file without looking for it: it may be one that the first setter creates. A
  /// constant text chooses the other form. The text is not copied, and must stay as it is while the
  /// object is used.
  void SetFilePath(char* path);
  /// Chooses a file that exists. False, with the old path still in force, when it cannot be opened
  /// for reading. The text is not copied either.
  bool SetFilePath(const char* path);
  /// The pointer that was given to `SetFilePath`; false before any was.
  bool GetFilePath(const char*& path);
  /// Always true: that the object can be called.
  bool Test();

  /// Writes the default document: headers, counts, units and the filling stage of one inlet, with a
  /// "FileVersion" of 1008. Entries that exist are replaced, the others are added, and all else in
  /// the file stays. Where the file does not take an entry, those after it are left, which is not
  /// told. False where memory is missing alone.
  bool SetDefault();

  // [FileHeader]: what the file is, who wrote it and when.

  /// [FileHeader] "Name": the name of the file. Argument: the text. The text is valid until the
  /// thread's next read through any object of this class, its line break included. False, the text
  /// untouched: not in the file.
  bool GetFileName(char*& text);
  /// [FileHeader] "Name": the name of the file. Argument: the text. False: no path is set, or the
  /// text is null.
  bool SetFileName(char* text);
  /// [FileHeader] "Name", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetFileName(Char* text) {
    return SetFileName(const_cast<char*>(text));
  }
  /// [FileHeader] "Date": the date of the last change, as "2026/11/15 09:05:07". Argument: the
  /// text. The text is valid until the thread's next read through any object of this class, its
  /// line break included. False, the text untouched: not in the file.
  bool GetFileDate(char*& text);
  /// [FileHeader] "Date": the date of the last change, as "2026/11/15 09:05:07". Writes the local
  /// time of this moment. No arguments. False: no path is set.
  bool SetFileDate();
  /// [FileHeader] "Type": the file's type, "PRO". Argument: the text. False: no path is set, or the
  /// text is null.
  bool SetType(char* text);
  /// [FileHeader] "Type", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetType(Char* text) {
    return SetType(const_cast<char*>(text));
  }
  /// [FileHeader] "CreateBy": the program that wrote the file. Argument: the text. False: no path
  /// is set, or the text is null.
  bool SetCreateBy(char* text);
  /// [FileHeader] "CreateBy", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetCreateBy(Char* text) {
    return SetCreateBy(const_cast<char*>(text));
  }
  /// [FileHeader] "Remark": a remark about the file. Argument: the text. False: no path is set, or
  /// the text is null.
  bool SetRemark(char* text);
  /// [FileHeader] "Remark", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetRemark(Char* text) {
    return SetRemark(const_cast<char*>(text));
  }

  // [CaeHeader]: the release and project that the analysis belongs to.

  /// [CaeHeader] "Version": the version of the suite, or its name. Argument: the text. False: no
  /// path is set, or the text is null.
  bool SetVersion(char* text);
  /// [CaeHeader] "Version", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetVersion(Char* text) {
    return SetVersion(const_cast<char*>(text));
  }
  /// [CaeHeader] "Release": the release of the suite. Argument: the text. False: no path is set, or
  /// the text is null.
  bool SetRelease(char* text);
  /// [CaeHeader] "Release", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetRelease(Char* text) {
    return SetRelease(const_cast<char*>(text));
  }
  /// [CaeHeader] "Project": the project that the analysis belongs to, by name or path. Argument:
  /// the text. The text is valid until the thread's next read through any object of this class, its
  /// line break included. False, the text untouched: not in the file.
  bool GetProjectPath(char*& text);
  /// [CaeHeader] "Project": the project that the analysis belongs to, by name or path. Argument:
  /// the text. False: no path is set, or the text is null.
  bool SetProject(char* text);
  /// [CaeHeader] "Project", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetProject(Char* text) {
    return SetProject(const_cast<char*>(text));
  }
  /// [CaeHeader] "Engineer": the name of the engineer in charge. Argument: the text. False: no path
  /// is set, or the text is null.
  bool SetEngineer(char* text);
  /// [CaeHeader] "Engineer", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetEngineer(Char* text) {
    return SetEngineer(const_cast<char*>(text));
  }
  /// [CaeHeader] "Parent": the file that this one was made from. Argument: the text. False: no path
  /// is set, or the text is null.
  bool SetParent(char* text);
  /// [CaeHeader] "Parent", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetParent(Char* text) {
    return SetParent(const_cast<char*>(text));
  }
  /// [CaeHeader] "Type": the kind of analysis, such as Injection. Argument: the text. The text is
  /// valid until the thread's next read through any object of this class, its line break included.
  /// False, the text untouched: not in the file.
  bool GetCAEType(char*& text);
  /// [CaeHeader] "Type": the kind of analysis, such as Injection. Argument: the text. False: no
  /// path is set, or the text is null.
  bool SetCAEType(char* text);
  /// [CaeHeader] "Type", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetCAEType(Char* text) {
    return SetCAEType(const_cast<char*>(text));
  }
  /// [CaeHeader] "FileVersion": the version of the file's layout, as a number. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetFileVersion(int& value);
  /// [CaeHeader] "FileVersion": the version of the file's layout, as a number. Argument: the value.
  /// False: no path is set.
  bool SetFileVersion(int value);
  /// [CaeHeader] "FileType": a code of the kind of process file. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetFileType(int& value);
  /// [CaeHeader] "FileType": a code of the kind of process file. Argument: the value. False: no
  /// path is set.
  bool SetFileType(int value);
  /// [CaeHeader] "SmartSetting": a code: how far the front end set the values by itself (smart
  /// setting). Argument: the value. False, the value untouched: not in the file.
  bool GetSmartSetting(int& value);
  /// [CaeHeader] "SmartSetting": a code: how far the front end set the values by itself (smart
  /// setting). Argument: the value. False: no path is set.
  bool SetSmartSetting(int value);

  // [Summary]: counts of the model, by which the other sections are numbered.

  /// [Summary] "TotalNdivz": the number of layers into which the mesh divides the thickness.
  /// Argument: the value. False, the value untouched: not in the file.
  bool GetMeshLayer(int& value);
  /// [Summary] "TotalNdivz": the number of layers into which the mesh divides the thickness.
  /// Argument: the value. False: no path is set.
  bool SetMeshLayer(int value);
  /// [Summary] "TotalNodeEM": the number of melt entrances. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMeltEntranceNo(int& value);
  /// [Summary] "TotalNodeEM": the number of melt entrances. Argument: the value. False: no path is
  /// set.
  bool SetMeltEntranceNo(int value);
  /// [Summary] "TotalNodeEC": the number of coolant entrances. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetCoolantNo(int& value);
  /// [Summary] "TotalNodeEC": the number of coolant entrances. Argument: the value. False: no path
  /// is set.
  bool SetCoolantNo(int value);
  /// [Summary] "TotalGateCTL": the number of valve gates. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetValveGateNo(int& value);
  /// [Summary] "TotalGateCTL": the number of valve gates. Argument: the value. False: no path is
  /// set.
  bool SetValveGateNo(int value);
  /// [Summary] "VacuumIndex": a code: whether and how the cavity is evacuated. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetVacuumIndex(int& value);
  /// [Summary] "VacuumIndex": a code: whether and how the cavity is evacuated. Argument: the value.
  /// False: no path is set.
  bool SetVacuumIndex(int value);
  /// [Summary] "SkinRatio": the share of the skin material in a part of two materials. Argument:
  /// the value. False, the value untouched: not in the file.
  bool GetSkinRatio(double& value);
  /// [Summary] "SkinRatio": the share of the skin material in a part of two materials. Argument:
  /// the value. False: no path is set.
  bool SetSkinRatio(double value);
  /// [Summary] "NoOutput": how often results are put out (the multi time step). Argument: the
  /// value. False, the value untouched: not in the file.
  bool GetMultiTimeStep(int& value);
  /// [Summary] "NoOutput": how often results are put out (the multi time step). Argument: the
  /// value. False: no path is set.
  bool SetMultiTimeStep(int value);
  /// [Summary] "PEOFasPPack": 1 where the pressure at the end of filling is the packing pressure.
  /// Argument: the value. False, the value untouched: not in the file.
  bool GetPpackAsPeof(int& value);
  /// [Summary] "PEOFasPPack": 1 where the pressure at the end of filling is the packing pressure.
  /// Argument: the value. False: no path is set.
  bool SetPpackAsPeof(int value);
  /// [Summary] "PEOFasPPack": 1 where the pressure at the end of filling is the packing pressure.
  /// As a flag: whether it is 1. The result is the flag itself, so it is false for a missing key,
  /// too. Argument: the flag.
  bool GetPpackAsPeof(bool& flag);
  /// [Summary] "PEOFasPPack": 1 where the pressure at the end of filling is the packing pressure.
  /// As a flag: writes 1 or 0. Argument: the flag. False: no path is set.
  bool SetPpackAsPeof(bool flag);
  /// [Summary] "TotalNodeMB": the number of mold bases. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMoldbaseNo(int& value);
  /// [Summary] "TotalNodeMB": the number of mold bases. Argument: the value. False: no path is set.
  bool SetMoldbaseNo(int value);
  /// [Summary] "TotalNodeBC": the number of boundary conditions. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetBoundaryConditionNo(int& value);
  /// [Summary] "TotalNodeBC": the number of boundary conditions. Argument: the value. False: no
  /// path is set.
  bool SetBoundaryConditionNo(int value);
  /// [Summary] "TotalNodeEG": the number of gas entrances. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetGasEntranceNo(int& value);
  /// [Summary] "TotalNodeEG": the number of gas entrances. Argument: the value. False: no path is
  /// set.
  bool SetGasEntranceNo(int value);
  /// [Summary] "TotalNodeMMM": the number of mold metal materials. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetMoldMetalMaterialNo(int& value);
  /// [Summary] "TotalNodeMMM": the number of mold metal materials. Argument: the value. False: no
  /// path is set.
  bool SetMoldMetalMaterialNo(int value);
  /// [Summary] "SymVolRatio": how many times the part holds the modelled volume, where only a
  /// symmetric piece of it is modelled; an integer: 0.5 reads as 0. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetSymVolRatio(int& value);
  /// [Summary] "SymVolRatio": how many times the part holds the modelled volume, where only a
  /// symmetric piece of it is modelled; an integer: 0.5 reads as 0. Argument: the value. False: no
  /// path is set.
  bool SetSymVolRatio(int value);
  /// [Summary] "TotalNodeHR": the number of heating rods. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetHeatingRodNo(int& value);
  /// [Summary] "TotalNodeHR": the number of heating rods. Argument: the value. False: no path is
  /// set.
  bool SetHeatingRodNo(int value);
  /// [Summary] "IsTransientInletConv": 1 where the resin's conversion at the inlet changes with
  /// time, else 0. For a "FileVersion" below 1010, and where the key is missing, the flag is false.
  /// Unlike the other flag getters it yields whether the key was read. Argument: the flag.
  bool GetIsTransientInletConv(bool& flag);
  /// [Summary] "IsTransientInletConv": 1 where the resin's conversion at the inlet changes with
  /// time, else 0. Argument: the flag. False: no path is set.
  bool SetIsTransientInletConv(bool flag);

  // [Unit]: the units in which the file's values are given; they are fixed, and each member writes
  // its own text.

  /// [Unit] "Time": the unit of times, "sec". Writes that unit and the word Time, in columns. No
  /// arguments. False: no path is set.
  bool SetUnitTime();
  /// [Unit] "Temp": the unit of temperatures, "oC". Writes that unit and the word Temperature, in
  /// columns. No arguments. False: no path is set.
  bool SetUnitTemperature();
  /// [Unit] "Pres": the unit of pressures, "MPa". Writes that unit and the word Pressure, in
  /// columns. No arguments. False: no path is set.
  bool SetUnitPressure();
  /// [Unit] "FR": the unit of flow rates, "cc/sec". Writes that unit and the word FlowRate, in
  /// columns. No arguments. False: no path is set.
  bool SetUnitFlowRate();
  /// [Unit] "IP": the unit of injection pressures, "MPa". Writes that unit and the word
  /// InjectPressure, in columns. No arguments. False: no path is set.
  bool SetUnitInjectPressure();
  /// [Unit] "PP": the unit of packing pressures, "MPa". Writes that unit and the word PackPressure,
  /// in columns. No arguments. False: no path is set.
  bool SetUnitPackPressure();
  /// [Unit] "Volum": the unit of volumes under the spelling of the older object, "cc". Writes that
  /// unit and the word Volume, in columns. No arguments. False: no path is set.
  bool SetUnitVolume();

  // [Flow-%d]: the filling stage of an inlet. The stage is the last argument.

  /// [Flow-%d] "FillTime": the filling time, in sec. Arguments: the value, the stage. False, the
  /// value untouched: not in the file.
  bool GetFillTime(double& value, int stage);
  /// [Flow-%d] "FillTime": the filling time, in sec. Arguments: the value, the stage. False: no
  /// path is set.
  bool SetFillTime(double value, int stage);
  /// [Flow-%d] "MeltTemp": the melt temperature, in oC. Arguments: the value, the stage. False, the
  /// value untouched: not in the file.
  bool GetMeltTemperature(double& value, int stage);
  /// [Flow-%d] "MeltTemp": the melt temperature, in oC. Arguments: the value, the stage. False: no
  /// path is set.
  bool SetMeltTemperature(double value, int stage);
  /// [Flow-%d] "MoldTemp": the mold temperature, in oC. Arguments: the value, the stage. False, the
  /// value untouched: not in the file.
  bool GetMoldTemperature(double& value, int stage);
  /// [Flow-%d] "MoldTemp": the mold temperature, in oC. Arguments: the value, the stage. False: no
  /// path is set.
  bool SetMoldTemperature(double value, int stage);
  /// [Flow-%d] "InjectPres": the injection pressure, in MPa. Arguments: the value, the stage.
  /// False, the value untouched: not in the file.
  bool GetInjectPressure(double& value, int stage);
  /// [Flow-%d] "InjectPres": the injection pressure, in MPa. Arguments: the value, the stage.
  /// False: no path is set.
  bool SetInjectPressure(double value, int stage);
  /// [Flow-%d] "PreFill": the pre-fill, a target of filling: how much of the cavity is full when
  /// filling ends and packing takes over; 100 in the default document. Arguments: the value, the
  /// stage. False, the value untouched: not in the file.
  bool GetPreFill(double& value, int stage);
  /// [Flow-%d] "PreFill": the pre-fill, a target of filling: how much of the cavity is full when
  /// filling ends and packing takes over; 100 in the default document. Arguments: the value, the
  /// stage. False: no path is set.
  bool SetPreFill(double value, int stage);
  /// [Flow-%d] "InjVol": the volume that is injected, in cc. Arguments: the value, the stage.
  /// False, the value untouched: not in the file.
  bool GetInjectVolume(double& value, int stage);
  /// [Flow-%d] "InjVol": the volume that is injected, in cc. Arguments: the value, the stage.
  /// False: no path is set.
  bool SetInjectVolume(double value, int stage);
  /// [Flow-%d] "TransTime": the filling time of transfer molding, in sec. Arguments: the value, the
  /// stage. False, the value untouched: not in the file.
  bool GetTransferTime(double& value, int stage);
  /// [Flow-%d] "TransTime": the filling time of transfer molding, in sec. Arguments: the value, the
  /// stage. False: no path is set.
  bool SetTransferTime(double value, int stage);
  /// [Flow-%d] "ResnTemp": the resin temperature of transfer molding, in oC. Arguments: the value,
  /// the stage. False, the value untouched: not in the file.
  bool GetResinTemperature(double& value, int stage);
  /// [Flow-%d] "ResnTemp": the resin temperature of transfer molding, in oC. Arguments: the value,
  /// the stage. False: no path is set.
  bool SetResinTemperature(double value, int stage);
  /// [Flow-%d] "TransPres": the pressure of transfer molding, in MPa. Arguments: the value, the
  /// stage. False, the value untouched: not in the file.
  bool GetTransferPressure(double& value, int stage);
  /// [Flow-%d] "TransPres": the pressure of transfer molding, in MPa. Arguments: the value, the
  /// stage. False: no path is set.
  bool SetTransferPressure(double value, int stage);
  /// [Flow-%d] "InitConv": how far the resin's curing reaction has gone (its conversion) at the
  /// start of filling. Arguments: the value, the stage. False, the value untouched: not in the
  /// file.
  bool GetInitialConversion(double& value, int stage);
  /// [Flow-%d] "InitConv": how far the resin's curing reaction has gone (its conversion) at the
  /// start of filling. Arguments: the value, the stage. False: no path is set.
  bool SetInitialConversion(double value, int stage);
  /// [Flow-%d] "EndConv": how far the resin's curing reaction has gone (its conversion) at the end
  /// of filling. Arguments: the value, the stage. False, the value untouched: not in the file.
  bool GetEndConversion(double& value, int stage);
  /// [Flow-%d] "EndConv": how far the resin's curing reaction has gone (its conversion) at the end
  /// of filling. Arguments: the value, the stage. False: no path is set.
  bool SetEndConversion(double value, int stage);
  /// [Flow-%d] "FRDisplayType": a code: how a front end shows the flow rate profile. Arguments: the
  /// value, the stage. False, the value untouched: not in the file.
  bool GetFRDisplayType(int& value, int stage);
  /// [Flow-%d] "IPDisplayType": a code: how a front end shows the injection pressure profile.
  /// Arguments: the value, the stage. False, the value untouched: not in the file.
  bool GetIPDisplayType(int& value, int stage);
  /// [Flow-%d] "TPDisplayType": a code: how a front end shows the transfer pressure profile.
  /// Arguments: the value, the stage. False, the value untouched: not in the file.
  bool GetTPDisplayType(int& value, int stage);
  /// [Flow-%d] "FRSet": the number of points of the flow rate profile. Arguments: the count, the
  /// stage. False, the count untouched: not in the file.
  bool GetFRSection(int& count, int stage);
  /// [Flow-%d] "FRSet": the number of points of the flow rate profile. Arguments: the count, the
  /// stage. False: no path is set.
  bool SetFRSection(int count, int stage);
  /// [Flow-%d] "FR-%d": a point of the flow rate profile: how far filling has gone, and the flow
  /// rate, in cc/sec. Arguments: the point, x, y, the stage. False, outputs untouched: not in the
  /// file.
  bool GetFRProfile(int point, double& x, double& y, int stage);
  /// [Flow-%d] "FR-%d": a point of the flow rate profile: how far filling has gone, and the flow
  /// rate, in cc/sec. Arguments: the point, x, y, the stage. False: no path is set.
  bool SetFRProfile(int point, double x, double y, int stage);
  /// [Flow-%d] "UserFRSet": the number of points of the flow rate profile as the user entered it.
  /// Arguments: the count, the stage. False, the count untouched: not in the file.
  bool GetUserFRSection(int& count, int stage);
  /// [Flow-%d] "UserFR-%d": a point of the flow rate profile as the user entered it: x and y.
  /// Arguments: the point, x, y, the stage. False, outputs untouched: not in the file.
  bool GetUserFRProfile(int point, double& x, double& y, int stage);
  /// [Flow-%d] "IPSet": the number of points of the injection pressure profile. Arguments: the
  /// count, the stage. False, the count untouched: not in the file.
  bool GetIPSection(int& count, int stage);
  /// [Flow-%d] "IPSet": the number of points of the injection pressure profile. Arguments: the
  /// count, the stage. False: no path is set.
  bool SetIPSection(int count, int stage);
  /// [Flow-%d] "IP-%d": a point of the injection pressure profile: how far filling has gone, and
  /// the pressure, in MPa. Arguments: the point, x, y, the stage. False, outputs untouched: not in
  /// the file.
  bool GetIPProfile(int point, double& x, double& y, int stage);
  /// [Flow-%d] "IP-%d": a point of the injection pressure profile: how far filling has gone, and
  /// the pressure, in MPa. Arguments: the point, x, y, the stage. False: no path is set.
  bool SetIPProfile(int point, double x, double y, int stage);
  /// [Flow-%d] "UserIPSet": the number of points of the injection pressure profile as the user
  /// entered it. Arguments: the count, the stage. False, the count untouched: not in the file.
  bool GetUserIPSection(int& count, int stage);
  /// [Flow-%d] "UserIP-%d": a point of the injection pressure profile as the user entered it: x and
  /// y. Arguments: the point, x, y, the stage. False, outputs untouched: not in the file.
  bool GetUserIPProfile(int point, double& x, double& y, int stage);
  /// [Flow-%d] "TPSet": the number of points of the transfer pressure profile. Arguments: the
  /// count, the stage. False, the count untouched: not in the file.
  bool GetTPSection(int& count, int stage);
  /// [Flow-%d] "TPSet": the number of points of the transfer pressure profile. Arguments: the
  /// count, the stage. False: no path is set.
  bool SetTPSection(int count, int stage);
  /// [Flow-%d] "TP-%d": a point of the transfer pressure profile: how far filling has gone, and the
  /// pressure, in MPa. Arguments: the point, x, y, the stage. False, outputs untouched: not in the
  /// file.
  bool GetTPProfile(int point, double& x, double& y, int stage);
  /// [Flow-%d] "TP-%d": a point of the transfer pressure profile: how far filling has gone, and the
  /// pressure, in MPa. Arguments: the point, x, y, the stage. False: no path is set.
  bool SetTPProfile(int point, double x, double y, int stage);
  /// [Flow-%d] "UserTPSet": the number of points of the transfer pressure profile as the user
  /// entered it. Arguments: the count, the stage. False, the count untouched: not in the file.
  bool GetUserTPSection(int& count, int stage);
  /// [Flow-%d] "UserTP-%d": a point of the transfer pressure profile as the user entered it: x and
  /// y. Arguments: the point, x, y, the stage. False, outputs untouched: not in the file.
  bool GetUserTPProfile(int point, double& x, double& y, int stage);

  // [Pack-%d]: the packing stage of an inlet. The stage is the last argument.

  /// [Pack-%d] "PackTime": the packing time, in sec. Arguments: the value, the stage. False, the
  /// value untouched: not in the file.
  bool GetPackTime(double& value, int stage);
  /// [Pack-%d] "PackTime": the packing time, in sec. Arguments: the value, the stage. False: no
  /// path is set.
  bool SetPackTime(double value, int stage);
  /// [Pack-%d] "PackPres": the packing pressure, in MPa. Arguments: the value, the stage. False,
  /// the value untouched: not in the file.
  bool GetPackPressure(double& value, int stage);
  /// [Pack-%d] "PackPres": the packing pressure, in MPa. Arguments: the value, the stage. False: no
  /// path is set.
  bool SetPackPressure(double value, int stage);
  /// [Pack-%d] "PackSwch": the switch value at which packing takes over from filling. Arguments:
  /// the value, the stage. False, the value untouched: not in the file.
  bool GetPackSwitch(double& value, int stage);
  /// [Pack-%d] "PackSwch": the switch value at which packing takes over from filling. Arguments:
  /// the value, the stage. False: no path is set.
  bool SetPackSwitch(double value, int stage);
  /// [Pack-%d] "PPDisplayType": a code: how a front end shows the packing pressure profile.
  /// Arguments: the value, the stage. False, the value untouched: not in the file.
  bool GetPPDisplayType(int& value, int stage);
  /// [Pack-%d] "PPSet": the number of points of the packing pressure profile. Arguments: the count,
  /// the stage. False, the count untouched: not in the file.
  bool GetPPSection(int& count, int stage);
  /// [Pack-%d] "PPSet": the number of points of the packing pressure profile. Arguments: the count,
  /// the stage. False: no path is set.
  bool SetPPSection(int count, int stage);
  /// [Pack-%d] "PP-%d": a point of the packing pressure profile: the time in the stage, and the
  /// pressure, in MPa. Arguments: the point, x, y, the stage. False, outputs untouched: not in the
  /// file.
  bool GetPPProfile(int point, double& x, double& y, int stage);
  /// [Pack-%d] "PP-%d": a point of the packing pressure profile: the time in the stage, and the
  /// pressure, in MPa. Arguments: the point, x, y, the stage. False: no path is set.
  bool SetPPProfile(int point, double x, double y, int stage);
  /// [Pack-%d] "UserPPSet": the number of points of the packing pressure profile as the user
  /// entered it. Arguments: the count, the stage. False, the count untouched: not in the file.
  bool GetUserPPSection(int& count, int stage);
  /// [Pack-%d] "UserPP-%d": a point of the packing pressure profile as the user entered it: x and
  /// y. Arguments: the point, x, y, the stage. False, outputs untouched: not in the file.
  bool GetUserPPProfile(int point, double& x, double& y, int stage);

  // [Cure-%d]: the curing stage of an inlet. The stage is the last argument.

  /// [Cure-%d] "CureTime": the curing time, in sec. Arguments: the value, the stage. False, the
  /// value untouched: not in the file.
  bool GetCureTime(double& value, int stage);
  /// [Cure-%d] "CureTime": the curing time, in sec. Arguments: the value, the stage. False: no path
  /// is set.
  bool SetCureTime(double value, int stage);
  /// [Cure-%d] "CurePres": the curing pressure, in MPa. Arguments: the value, the stage. False, the
  /// value untouched: not in the file.
  bool GetCurePressure(double& value, int stage);
  /// [Cure-%d] "CurePres": the curing pressure, in MPa. Arguments: the value, the stage. False: no
  /// path is set.
  bool SetCurePressure(double value, int stage);
  /// [Cure-%d] "CureSwch": the switch value at which curing takes over from packing. Arguments: the
  /// value, the stage. False, the value untouched: not in the file.
  bool GetCureSwitch(double& value, int stage);
  /// [Cure-%d] "CureSwch": the switch value at which curing takes over from packing. Arguments: the
  /// value, the stage. False: no path is set.
  bool SetCureSwitch(double value, int stage);
  /// [Cure-%d] "CPDisplayType": a code: how a front end shows the curing pressure profile.
  /// Arguments: the value, the stage. False, the value untouched: not in the file.
  bool GetCPDisplayType(int& value, int stage);
  /// [Cure-%d] "CPSet": the number of points of the curing pressure profile. Arguments: the count,
  /// the stage. False, the count untouched: not in the file.
  bool GetCPSection(int& count, int stage);
  /// [Cure-%d] "CPSet": the number of points of the curing pressure profile. Arguments: the count,
  /// the stage. False: no path is set.
  bool SetCPSection(int count, int stage);
  /// [Cure-%d] "CP-%d": a point of the curing pressure profile: the time in the stage, and the
  /// pressure, in MPa. Arguments: the point, x, y, the stage. False, outputs untouched: not in the
  /// file.
  bool GetCPProfile(int point, double& x, double& y, int stage);
  /// [Cure-%d] "CP-%d": a point of the curing pressure profile: the time in the stage, and the
  /// pressure, in MPa. Arguments: the point, x, y, the stage. False: no path is set.
  bool SetCPProfile(int point, double x, double y, int stage);
  /// [Cure-%d] "UserCPSet": the number of points of the curing pressure profile as the user entered
  /// it. Arguments: the count, the stage. False, the count untouched: not in the file.
  bool GetUserCPSection(int& count, int stage);
  /// [Cure-%d] "UserCP-%d": a point of the curing pressure profile as the user entered it: x and y.
  /// Arguments: the point, x, y, the stage. False, outputs untouched: not in the file.
  bool GetUserCPProfile(int point, double& x, double& y, int stage);

  // [RamPosition]: profiles over the ram's stroke, and the V/P switch-over by ram position.

  /// [RamPosition] "RamDir": a code: in which direction ram positions count. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetScrewDirection(int& value);
  /// [RamPosition] "RamDir": a code: in which direction ram positions count. Argument: the value.
  /// False: no path is set.
  bool SetScrewDirection(int value);
  /// [RamPosition] "IsVPswitch": 1 where the V/P switch-over is by ram position, else 0. Argument:
  /// the value. False, the value untouched: not in the file.
  bool GetVPSwitch(int& value);
  /// [RamPosition] "IsVPswitch": 1 where the V/P switch-over is by ram position, else 0. Argument:
  /// the value. False: no path is set.
  bool SetVPSwitch(int value);
  /// [RamPosition] "IsVPswitch": 1 where the V/P switch-over is by ram position, else 0. As a flag:
  /// whether it is 1. The result is the flag itself, so it is false for a missing key, too.
  /// Argument: the flag.
  bool GetVPSwitch(bool& flag);
  /// [RamPosition] "IsVPswitch": 1 where the V/P switch-over is by ram position, else 0. As a flag:
  /// writes 1 or 0. Argument: the flag. False: no path is set.
  bool SetVPSwitch(bool flag);
  /// [RamPosition] "VPswitchRam": the ram position at which the V/P switch-over comes. Argument:
  /// the value. False, the value untouched: not in the file.
  bool GetVPSwitchPosition(double& value);
  /// [RamPosition] "VPswitchRam": the ram position at which the V/P switch-over comes. Argument:
  /// the value. False: no path is set.
  bool SetVPSwitchPosition(double value);
  /// [RamPosition] "RP_FRSet": the number of points of the flow rate profile. Argument: the count.
  /// False, the count untouched: not in the file.
  bool GetRamFRSection(int& count);
  /// [RamPosition] "RP_FRSet": the number of points of the flow rate profile. Argument: the count.
  /// False: no path is set.
  bool SetRamFRSection(int count);
  /// [RamPosition] "RP_FR-%d": a point of the flow rate profile: the ram position, and the flow
  /// rate, in cc/sec. Arguments: the point, x, y. False, outputs untouched: not in the file.
  bool GetRamFRProfile(int point, double& x, double& y);
  /// [RamPosition] "RP_FR-%d": a point of the flow rate profile: the ram position, and the flow
  /// rate, in cc/sec. Arguments: the point, x, y. False: no path is set.
  bool SetRamFRProfile(int point, double x, double y);
  /// [RamPosition] "RP_IPSet": the number of points of the injection pressure profile. Argument:
  /// the count. False, the count untouched: not in the file.
  bool GetRamIPSection(int& count);
  /// [RamPosition] "RP_IPSet": the number of points of the injection pressure profile. Argument:
  /// the count. False: no path is set.
  bool SetRamIPSection(int count);
  /// [RamPosition] "RP_IP-%d": a point of the injection pressure profile: the ram position, and the
  /// pressure, in MPa. Arguments: the point, x, y. False, outputs untouched: not in the file.
  bool GetRamIPProfile(int point, double& x, double& y);
  /// [RamPosition] "RP_IP-%d": a point of the injection pressure profile: the ram position, and the
  /// pressure, in MPa. Arguments: the point, x, y. False: no path is set.
  bool SetRamIPProfile(int point, double x, double y);

  // [QuickSetting]: the profiles of the quick setting. Their point keys have an underscore before
  // the number.

  /// [QuickSetting] "ScrewDirection": a code: in which direction screw positions count. Argument:
  /// the value. False, the value untouched: not in the file.
  bool GetQSScrewDirection(int& value);
  /// [QuickSetting] "ScrewDirection": a code: in which direction screw positions count. Argument:
  /// the value. False: no path is set.
  bool SetQSScrewDirection(int value);
  /// [QuickSetting] "ProfileType": a code: in which form the profiles were entered. Argument: the
  /// value. False, the value untouched: not in the file.
  bool GetQSProfileType(int& value);
  /// [QuickSetting] "ProfileType": a code: in which form the profiles were entered. Argument: the
  /// value. False: no path is set.
  bool SetQSProfileType(int value);
  /// [QuickSetting] "IsSameSetting": a code: whether the settings are all the same. Argument: the
  /// value. False, the value untouched: not in the file.
  bool GetQSIsSameSetting(int& value);
  /// [QuickSetting] "IsSameSetting": a code: whether the settings are all the same. Argument: the
  /// value. False: no path is set.
  bool SetQSIsSameSetting(int value);
  /// [QuickSetting] "Q_SettingType": a code: how the flow rate is set. Argument: the value. False,
  /// the value untouched: not in the file.
  bool GetQSFRSettingType(int& value);
  /// [QuickSetting] "Q_SettingType": a code: how the flow rate is set. Argument: the value. False:
  /// no path is set.
  bool SetQSFRSettingType(int value);
  /// [QuickSetting] "Pi_SettingType": a code: how the injection pressure is set. Argument: the
  /// value. False, the value untouched: not in the file.
  bool GetQSIPSettingType(int& value);
  /// [QuickSetting] "Pi_SettingType": a code: how the injection pressure is set. Argument: the
  /// value. False: no path is set.
  bool SetQSIPSettingType(int value);
  /// [QuickSetting] "Pp_SettingType": a code: how the packing pressure is set. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetQSPPSettingType(int& value);
  /// [QuickSetting] "Pp_SettingType": a code: how the packing pressure is set. Argument: the value.
  /// False: no path is set.
  bool SetQSPPSettingType(int value);
  /// [QuickSetting] "Q_Section": the number of points of the flow rate profile. Argument: the
  /// count. False, the count untouched: not in the file.
  bool GetQSFRSection(int& count);
  /// [QuickSetting] "Q_Section": the number of points of the flow rate profile. Argument: the
  /// count. False: no path is set.
  bool SetQSFRSection(int count);
  /// [QuickSetting] "Q_Setting_%d": a point of the flow rate profile: x, and the flow rate.
  /// Arguments: the point, x, y. False, outputs untouched: not in the file.
  bool GetQSFRProfile(int point, double& x, double& y);
  /// [QuickSetting] "Q_Setting_%d": a point of the flow rate profile: x, and the flow rate.
  /// Arguments: the point, x, y. False: no path is set.
  bool SetQSFRProfile(int point, double x, double y);
  /// [QuickSetting] "Pi_Section": the number of points of the injection pressure profile. Argument:
  /// the count. False, the count untouched: not in the file.
  bool GetQSIPSection(int& count);
  /// [QuickSetting] "Pi_Section": the number of points of the injection pressure profile. Argument:
  /// the count. False: no path is set.
  bool SetQSIPSection(int count);
  /// [QuickSetting] "Pi_Setting_%d": a point of the injection pressure profile: x, and the
  /// pressure. Arguments: the point, x, y. False, outputs untouched: not in the file.
  bool GetQSIPProfile(int point, double& x, double& y);
  /// [QuickSetting] "Pi_Setting_%d": a point of the injection pressure profile: x, and the
  /// pressure. Arguments: the point, x, y. False: no path is set.
  bool SetQSIPProfile(int point, double x, double y);
  /// [QuickSetting] "Pp_Section": the number of points of the packing pressure profile. Argument:
  /// the count. False, the count untouched: not in the file.
  bool GetQSPPSection(int& count);
  /// [QuickSetting] "Pp_Section": the number of points of the packing pressure profile. Argument:
  /// the count. False: no path is set.
  bool SetQSPPSection(int count);
  /// [QuickSetting] "Pp_Setting_%d": a point of the packing pressure profile: x, and the pressure.
  /// Arguments: the point, x, y. False, outputs untouched: not in the file.
  bool GetQSPPProfile(int point, double& x, double& y);
  /// [QuickSetting] "Pp_Setting_%d": a point of the packing pressure profile: x, and the pressure.
  /// Arguments: the point, x, y. False: no path is set.
  bool SetQSPPProfile(int point, double x, double y);

  // [FlowCTL]: what controls filling, packing and the V/P switch-over.

  /// [FlowCTL] "FlowCtrl": a code: which quantity controls filling. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetFlowCTLFlowCtrl(int& value);
  /// [FlowCTL] "VPSwitchCtrl": the criterion of the V/P switch-over: 0 filled volume, 1 ram
  /// position, 2 injection pressure, 3 a further one over the filled volume. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetFlowCTLVPSwitchCtrl(int& value);
  /// [FlowCTL] "PackingCtrl": a code: which quantity controls packing. Argument: the value. False,
  /// the value untouched: not in the file.
  bool GetFlowCTLPackingCtrl(int& value);
  /// [FlowCTL] "MoldTemperature": the mold temperature, in oC. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetFlowCTLMoldTemperature(double& value);
  /// [FlowCTL] "MeltTemperature": the melt temperature, in oC. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetFlowCTLMeltTemperature(double& value);
  /// [FlowCTL] "InjectionTime": the injection time, in sec. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetFlowCTLInjectionTime(double& value);
  /// [FlowCTL] "VolumeFilled": how much is filled when the V/P switch-over comes, for the criteria
  /// 0 and 3. Argument: the value. False, the value untouched: not in the file.
  bool GetFlowCTLVolumeFilled(double& value);
  /// [FlowCTL] "RamPosition": the ram position at which the V/P switch-over comes, for criterion 1.
  /// Argument: the value. False, the value untouched: not in the file.
  bool GetFlowCTLRamPosition(double& value);
  /// [FlowCTL] "InjectionPressure": the injection pressure at which the V/P switch-over comes, in
  /// MPa, for criterion 2. Argument: the value. False, the value untouched: not in the file.
  bool GetFlowCTLInjectionPressure(double& value);

  // [Output]: when results are put out.

  /// [Output] "TimeStep": how many time steps lie between two outputs. Argument: the value. False,
  /// the value untouched: not in the file.
  bool GetOutputTimeStep(int& value);
  /// [Output] "TimeStep": how many time steps lie between two outputs. Argument: the value. False:
  /// no path is set.
  bool SetOutputTimeStep(int value);
  /// [Output] "TimeFill": the time of output in filling, in sec. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetOutputTimeFill(double& value);
  /// [Output] "TimeFill": the time of output in filling, in sec. Argument: the value. False: no
  /// path is set.
  bool SetOutputTimeFill(double value);
  /// [Output] "TimePack": the time of output in packing, in sec. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetOutputTimePack(double& value);
  /// [Output] "TimePack": the time of output in packing, in sec. Argument: the value. False: no
  /// path is set.
  bool SetOutputTimePack(double value);

  // [Project]: the mesh and material files and the volumes of the project.

  /// [Project] "Mesh": the mesh file. Argument: the text. The text is valid until the thread's next
  /// read through any object of this class, its line break included. False, the text untouched: not
  /// in the file.
  bool GetProjectMesh(char*& text);
  /// [Project] "Mesh": the mesh file. Argument: the text. False: no path is set, or the text is
  /// null.
  bool SetProjectMesh(char* text);
  /// [Project] "Mesh", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetProjectMesh(Char* text) {
    return SetProjectMesh(const_cast<char*>(text));
  }
  /// [Project] "Material": the material file. Argument: the text. The text is valid until the
  /// thread's next read through any object of this class, its line break included. False, the text
  /// untouched: not in the file.
  bool GetProjectMaterial(char*& text);
  /// [Project] "Material": the material file. Argument: the text. False: no path is set, or the
  /// text is null.
  bool SetProjectMaterial(char* text);
  /// [Project] "Material", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetProjectMaterial(Char* text) {
    return SetProjectMaterial(const_cast<char*>(text));
  }
  /// [Project] "CavVol": the volume of the cavity, in cc. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetCavityVolume(double& value);
  /// [Project] "CavVol": the volume of the cavity, in cc. Argument: the value. False: no path is
  /// set.
  bool SetCavityVolume(double value);
  /// [Project] "CushionVol": the volume of the melt cushion that stays before the screw, in cc.
  /// Argument: the value. False, the value untouched: not in the file.
  bool GetCushionVolume(double& value);
  /// [Project] "CushionVol": the volume of the melt cushion that stays before the screw, in cc.
  /// Argument: the value. False: no path is set.
  bool SetCushionVolume(double value);

  // [AdvancedSetting]: the clamp force and the opening direction of the mold. The getters need a
  // "FileVersion" of 1010.

  /// [AdvancedSetting] "ClampForce": the force that holds the mold shut. For a "FileVersion" below
  /// 1010 it is 0, and the result false. Argument: the value.
  bool GetMoldClampingForce(double& value);
  /// [AdvancedSetting] "ClampForce": the force that holds the mold shut. Argument: the value.
  /// False: no path is set.
  bool SetMoldClampingForce(double value);
  /// [AdvancedSetting] "OpenDirection": the direction in which the mold opens: the x, y and z of a
  /// vector. For a "FileVersion" below 1010 all three are 0, and the result false. Arguments: x, y,
  /// z.
  bool GetMoldOpenDirection(double& x, double& y, double& z);
  /// [AdvancedSetting] "OpenDirection": the direction in which the mold opens: the x, y and z of a
  /// vector. Arguments: x, y, z. False: no path is set.
  bool SetMoldOpenDirection(double x, double y, double z);

  // [TransientInletConv]: pellet pre-heating and initial conversion where the inlet conversion is
  // transient. The getters need a "FileVersion" of 1010.

  /// [TransientInletConv] "InitPelletConv": how far the pellet's curing reaction has gone (its
  /// conversion) before pre-heating. For a "FileVersion" below 1010 it is 0, and the result false.
  /// Argument: the value.
  bool GetInitPelletConv(double& value);
  /// [TransientInletConv] "InitPelletConv": how far the pellet's curing reaction has gone (its
  /// conversion) before pre-heating. Argument: the value. False: no path is set.
  bool SetInitPelletConv(double value);
  /// [TransientInletConv] "PelletDiameter": the diameter of the pellet. For a "FileVersion" below
  /// 1010 it is 0, and the result false. Argument: the value.
  bool GetPelletDiameter(double& value);
  /// [TransientInletConv] "PelletDiameter": the diameter of the pellet. Argument: the value. False:
  /// no path is set.
  bool SetPelletDiameter(double value);
  /// [TransientInletConv] "PelletHeight": the height of the pellet. For a "FileVersion" below 1010
  /// it is 0, and the result false. Argument: the value.
  bool GetPelletHeight(double& value);
  /// [TransientInletConv] "PelletHeight": the height of the pellet. Argument: the value. False: no
  /// path is set.
  bool SetPelletHeight(double value);
  /// [TransientInletConv] "PreHeatTime": how long the pellet is pre-heated, in sec. For a
  /// "FileVersion" below 1010 it is 0, and the result false. Argument: the value.
  bool GetPreHeatTime(double& value);
  /// [TransientInletConv] "PreHeatTime": how long the pellet is pre-heated, in sec. Argument: the
  /// value. False: no path is set.
  bool SetPreHeatTime(double value);

  // [ICPackage]: pellet pre-heating and initial conversion of IC package encapsulation.

  /// [ICPackage] "InitConversionType": a code: how the initial conversion is given. Argument: the
  /// value. False, the value untouched: not in the file.
  bool GetICInitConversionType(int& value);
  /// [ICPackage] "InitConversion": how far the pellet's curing reaction has gone (its conversion)
  /// before pre-heating. Argument: the value. False, the value untouched: not in the file.
  bool GetICInitConversion(double& value);
  /// [ICPackage] "PelletDiameter": the diameter of the pellet. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetICPelletDiameter(double& value);
  /// [ICPackage] "PelletHeight": the height of the pellet. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetICPelletHeight(double& value);
  /// [ICPackage] "PreHeatingTime": how long the pellet is pre-heated, in sec. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetICPreHeatingTime(double& value);

  // [MoldThermalBoundaryType]: the heat transfer between melt and mold.

  /// [MoldThermalBoundaryType] "Type": a code: how the heat transfer between melt and mold is
  /// given. Argument: the value. False, the value untouched: not in the file.
  bool GetMoldThermalBoundaryType(int& value);
  /// [MoldThermalBoundaryType] "Type": a code: how the heat transfer between melt and mold is
  /// given. Argument: the value. False: no path is set.
  bool SetMoldThermalBoundaryType(int value);
  /// [MoldThermalBoundaryType] "Flow": the heat transfer coefficient in filling, with a note such
  /// as its unit. The note is passed over. Argument: the value. False, the value untouched: not in
  /// the file.
  bool GetFlowHeatTransferCoefficient(double& value);
  /// [MoldThermalBoundaryType] "Flow": the heat transfer coefficient in filling, with a note such
  /// as its unit. In W/m^2.K, and the unit is written after the number. Unlike the other setters
  /// it leaves "Date" alone. Argument: the value. False: no path is set.
  bool SetFlowHeatTransferCoefficient(double value);
  /// [MoldThermalBoundaryType] "Pack": the heat transfer coefficient in packing, with a note such
  /// as its unit. The note is passed over. Argument: the value. False, the value untouched: not in
  /// the file.
  bool GetPackHeatTransferCoefficient(double& value);
  /// [MoldThermalBoundaryType] "Pack": the heat transfer coefficient in packing, with a note such
  /// as its unit. In W/m^2.K, and the unit is written after the number. Unlike the other setters
  /// it leaves "Date" alone. Argument: the value. False: no path is set.
  bool SetPackHeatTransferCoefficient(double value);

  // [GasF-%d]: gas-assisted filling at a gas inlet. The stage is the first argument.

  /// [GasF-%d] "GasTime": how long gas is injected, in sec. Arguments: the stage, the value. False,
  /// the value untouched: not in the file.
  bool GetGasTime(int stage, double& value);
  /// [GasF-%d] "GasTime": how long gas is injected, in sec. Arguments: the stage, the value. False:
  /// no path is set.
  bool SetGasTime(int stage, double value);
  /// [GasF-%d] "GasPres": the pressure of the gas, in MPa. Arguments: the stage, the value. False,
  /// the value untouched: not in the file.
  bool GetGasPressure(int stage, double& value);
  /// [GasF-%d] "GasPres": the pressure of the gas, in MPa. Arguments: the stage, the value. False:
  /// no path is set.
  bool SetGasPressure(int stage, double value);
  /// [GasF-%d] "GasSwch": the switch value at which the injection of gas begins. Arguments: the
  /// stage, the value. False, the value untouched: not in the file.
  bool GetGasSwitch(int stage, double& value);
  /// [GasF-%d] "GasSwch": the switch value at which the injection of gas begins. Arguments: the
  /// stage, the value. False: no path is set.
  bool SetGasSwitch(int stage, double value);
  /// [GasF-%d] "DelayTime": how long the injection of gas waits, in sec. Arguments: the stage, the
  /// value. False, the value untouched: not in the file.
  bool GetGasDelayTime(int stage, double& value);
  /// [GasF-%d] "DelayTime": how long the injection of gas waits, in sec. Arguments: the stage, the
  /// value. False: no path is set.
  bool SetGasDelayTime(int stage, double value);
  /// [GasF-%d] "GRDisplayType": a code: how a front end shows the gas flow rate profile. Arguments:
  /// the stage, the value. False, the value untouched: not in the file.
  bool GetGasGRDisplayType(int stage, int& value);
  /// [GasF-%d] "GRProfileType": a code: in which form the gas flow rate profile was entered.
  /// Arguments: the stage, the value. False, the value untouched: not in the file.
  bool GetGasGRProfileType(int stage, int& value);
  /// [GasF-%d] "GPDisplayType": a code: how a front end shows the gas pressure profile. Arguments:
  /// the stage, the value. False, the value untouched: not in the file.
  bool GetGasGPDisplayType(int stage, int& value);
  /// [GasF-%d] "GPProfileType": a code: in which form the gas pressure profile was entered.
  /// Arguments: the stage, the value. False, the value untouched: not in the file.
  bool GetGasGPProfileType(int stage, int& value);
  /// [GasF-%d] "GRSet": the number of points of the gas flow rate profile. Arguments: the stage,
  /// the count. False, the count untouched: not in the file.
  bool GetGasFRSection(int stage, int& count);
  /// [GasF-%d] "GRSet": the number of points of the gas flow rate profile. Arguments: the stage,
  /// the count. False: no path is set.
  bool SetGasFRSection(int stage, int count);
  /// [GasF-%d] "GR-%d": a point of the gas flow rate profile: the time in the stage, and the flow
  /// rate. The one number selects the stage and the point: point 2 is always that of stage 2.
  /// Arguments: the stage and point, x, y. False, outputs untouched: not in the file.
  bool GetGasFRProfile(int number, double& x, double& y);
  /// [GasF-%d] "GR-%d": a point of the gas flow rate profile: the time in the stage, and the flow
  /// rate. The one number selects the stage and the point: point 2 is always that of stage 2.
  /// Arguments: the stage and point, x, y. False: no path is set.
  bool SetGasFRProfile(int number, double x, double y);
  /// [GasF-%d] "UserGRSet": the number of points of the gas flow rate profile as the user entered
  /// it. Arguments: the stage, the count. False, the count untouched: not in the file.
  bool GetUserGasFRSection(int stage, int& count);
  /// [GasF-%d] "UserGR-%d": a point of the gas flow rate profile as the user entered it: x and y.
  /// The stage stands last here. Arguments: the point, x, y, the stage. False, outputs untouched:
  /// not in the file.
  bool GetUserGasFRProfile(int point, double& x, double& y, int stage);
  /// [GasF-%d] "GPSet": the number of points of the gas pressure profile. Arguments: the stage, the
  /// count. False, the count untouched: not in the file.
  bool GetGasGPSection(int stage, int& count);
  /// [GasF-%d] "GPSet": the number of points of the gas pressure profile. Arguments: the stage, the
  /// count. False: no path is set.
  bool SetGasGPSection(int stage, int count);
  /// [GasF-%d] "GP-%d": a point of the gas pressure profile: the time in the stage, and the
  /// pressure, in MPa. The one number selects the stage and the point: point 2 is always that of
  /// stage 2. Arguments: the stage and point, x, y. False, outputs untouched: not in the file.
  bool GetGasGPProfile(int number, double& x, double& y);
  /// [GasF-%d] "GP-%d": a point of the gas pressure profile: the time in the stage, and the
  /// pressure, in MPa. The one number selects the stage and the point: point 2 is always that of
  /// stage 2. Arguments: the stage and point, x, y. False: no path is set.
  bool SetGasGPProfile(int number, double x, double y);
  /// [GasF-%d] "UserGPSet": the number of points of the gas pressure profile as the user entered
  /// it. Arguments: the stage, the count. False, the count untouched: not in the file.
  bool GetUserGasGPSection(int stage, int& count);
  /// [GasF-%d] "UserGP-%d": a point of the gas pressure profile as the user entered it, as the
  /// older object looks for it: x and y. The stage stands last here. Arguments: the point, x, y,
  /// the stage. False, outputs untouched: not in the file.
  bool GetUserGasGPProfile(int point, double& x, double& y, int stage);

  // [GateCTL]: when each valve gate is open.

  /// [GateCTL] "ST-%d": the start time of a gate, when it opens, in sec. Arguments: the gate, the
  /// value. False, the value untouched: not in the file.
  bool GetValveGateStartTime(int gate, double& value);
  /// [GateCTL] "ST-%d": the start time of a gate, when it opens, in sec. Arguments: the gate, the
  /// value. False: no path is set.
  bool SetValveGateStartTime(int gate, double value);
  /// [GateCTL] "ET-%d": the end time of a gate, when it closes, in sec. Arguments: the gate, the
  /// value. False, the value untouched: not in the file.
  bool GetValveGateEndTime(int gate, double& value);
  /// [GateCTL] "ET-%d": the end time of a gate, when it closes, in sec. Arguments: the gate, the
  /// value. False: no path is set.
  bool SetValveGateEndTime(int gate, double value);

  // [GateValve-%d]: a valve gate. The gate is the first argument.

  /// [GateValve-%d] "GCSet": the number of control points of the valve gate. Arguments: the gate,
  /// the value. False, the value untouched: not in the file.
  bool GetValveGateControlNo(int gate, int& value);
  /// [GateValve-%d] "GCSet": the number of control points of the valve gate. Arguments: the gate,
  /// the value. False: no path is set.
  bool SetValveGateControlNo(int gate, int value);
  /// [GateValve-%d] "GC-%d": a control point: the switching value, an integer, the mode (1 to 4),
  /// and for modes 2 and 3 an integer. Here the point has the number of the gate, and holds a time,
  /// in sec, and a flag. Arguments: the gate, the time, the flag. False, outputs untouched: not in
  /// the file.
  bool GetValveGateTimeSwitch(int gate, double& time, int& flag);
  /// [GateValve-%d] "GC-%d": a control point: the switching value, an integer, the mode (1 to 4),
  /// and for modes 2 and 3 an integer. Here the point has the number of the gate, and holds a time,
  /// in sec, and a flag. Arguments: the gate, the time, the flag. False: no path is set.
  bool SetValveGateTimeSwitch(int gate, double time, int flag);
  /// [GateValve-%d] "GC-%d": a control point: the switching value, an integer, the mode (1 to 4),
  /// and for modes 2 and 3 an integer. Outputs that the text lacks keep their values. Arguments:
  /// the gate, the point, the switching value, the integer, the mode, the last integer. False,
  /// outputs untouched: not in the file.
  bool GetValveGateControlData(int gate, int row, double& value, int& second, int& mode,
                               int& fourth);
  /// [GateValve-%d] "GC-%d": a control point: the switching value, an integer, the mode (1 to 4),
  /// and for modes 2 and 3 an integer. The last integer is written for the modes 2 and 3 alone.
  /// Arguments: the gate, the point, the switching value, the integer, the mode, the last integer.
  /// False: no path is set.
  bool SetValveGateControlData(int gate, int row, double value, int second, int mode, int fourth);

  // [OFGateValve-%d]: the valve of an overflow. The gate is the first argument.

  /// [OFGateValve-%d] "GCSet": the number of control points of the overflow valve. Arguments: the
  /// gate, the value. False, the value untouched: not in the file.
  bool GetOverFlowControlNo(int gate, int& value);
  /// [OFGateValve-%d] "GC-%d": a control point: the switching value, an integer, the mode (1 to 4),
  /// and for modes 2 and 3 an integer. Here the point has the number of the gate, and holds a time,
  /// in sec, and a flag. Arguments: the gate, the time, the flag. False, outputs untouched: not in
  /// the file.
  bool GetOverFlowTimeSwitch(int gate, double& time, int& flag);
  /// [OFGateValve-%d] "GC-%d": a control point: the switching value, an integer, the mode (1 to 4),
  /// and for modes 2 and 3 an integer. Outputs that the text lacks keep their values. Arguments:
  /// the gate, the point, the switching value, the integer, the mode, the last integer. False,
  /// outputs untouched: not in the file.
  bool GetOverFlowControlData(int gate, int row, double& value, int& second, int& mode,
                              int& fourth);

  // [Cool]: cycle times, temperatures and the kind of cooling.

  /// [Cool] "CoolTime": the cooling time, in sec. Argument: the value. False, the value untouched:
  /// not in the file.
  bool GetCoolTime(double& value);
  /// [Cool] "CoolTime": the cooling time, in sec. Argument: the value. False: no path is set.
  bool SetCoolTime(double value);
  /// [Cool] "OpenTime": how long the mold is open between two shots, in sec. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetOpenTime(double& value);
  /// [Cool] "OpenTime": how long the mold is open between two shots, in sec. Argument: the value.
  /// False: no path is set.
  bool SetOpenTime(double value);
  /// [Cool] "EjectTemp": the temperature at which the part is ejected, in oC. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetEjectTemperature(double& value);
  /// [Cool] "EjectTemp": the temperature at which the part is ejected, in oC. Argument: the value.
  /// False: no path is set.
  bool SetEjectTemperature(double value);
  /// [Cool] "AirTemp": the temperature of the air around the mold, in oC. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetAirTemperature(double& value);
  /// [Cool] "AirTemp": the temperature of the air around the mold, in oC. Argument: the value.
  /// False: no path is set.
  bool SetAirTemperature(double value);
  /// [Cool] "InitialMoldbaseTemperature": the mold base's initial temperature, in oC. Argument: the
  /// value. False, the value untouched: not in the file.
  bool GetInitMoldTemperature(double& value);
  /// [Cool] "CoolingType": a code of the kind of cooling. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetCoolingType(int& value);
  /// [Cool] "CoolantTemp": the coolant temperature, in oC. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetCoolantTemperature(double& value);
  /// [Cool] "CoolantTemp": the coolant temperature, in oC. Argument: the value. False: no path is
  /// set.
  bool SetCoolantTemperature(double value);
  /// [Cool] "CoolantFR": the coolant flow rate, in cc/sec. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetCoolantFlowRate(double& value);
  /// [Cool] "CoolantFR": the coolant flow rate, in cc/sec. Argument: the value. False: no path is
  /// set.
  bool SetCoolantFlowRate(double value);
  /// [Cool] "AutoSetCoolTime": 1 where the cooling time is set automatically, else 0. Argument: the
  /// value. False, the value untouched: not in the file.
  bool GetAutoSetCoolTime(int& value);
  /// [Cool] "AutoSetCoolTime": 1 where the cooling time is set automatically, else 0. Argument: the
  /// value. False: no path is set.
  bool SetAutoSetCoolTime(int value);
  /// [Cool] "AutoSetCoolTime": 1 where the cooling time is set automatically, else 0. As a flag:
  /// whether it is 1. The result is the flag itself, so it is false for a missing key, too.
  /// Argument: the flag.
  bool GetAutoSetCoolTime(bool& flag);
  /// [Cool] "AutoSetCoolTime": 1 where the cooling time is set automatically, else 0. As a flag:
  /// writes 1 or 0. Argument: the flag. False: no path is set.
  bool SetAutoSetCoolTime(bool flag);

  // [CoolCTL]: the coolant of each circuit.

  /// [CoolCTL] "T-%d": the coolant temperature at an entrance, in oC. Arguments: the circuit, the
  /// value. False, the value untouched: not in the file.
  bool GetCoolCTLTemperature(int circuit, double& value);
  /// [CoolCTL] "T-%d": the coolant temperature at an entrance, in oC. Arguments: the circuit, the
  /// value. False: no path is set.
  bool SetCoolCTLTemperature(int circuit, double value);
  /// [CoolCTL] "F-%d": the coolant flow rate at an entrance, in cc/sec. Arguments: the circuit, the
  /// value. False, the value untouched: not in the file.
  bool GetCoolCTLFlowRate(int circuit, double& value);
  /// [CoolCTL] "F-%d": the coolant flow rate at an entrance, in cc/sec. Arguments: the circuit, the
  /// value. False: no path is set.
  bool SetCoolCTLFlowRate(int circuit, double value);
  /// [CoolCTL] "M-%d": the coolant system of an entrance. Arguments: the circuit, the value. False,
  /// the value untouched: not in the file.
  bool GetCoolCTLSystem(int circuit, int& value);
  /// [CoolCTL] "M-%d": the coolant system of an entrance. Arguments: the circuit, the value. False:
  /// no path is set.
  bool SetCoolCTLSystem(int circuit, int value);

  // [Coolant]: the coolants, one row each.

  /// [Coolant] "%d": a coolant: density (g/cm^3), specific heat (erg/(g K)), thermal conductivity
  /// (erg/(s cm K)), viscosity (poise), coolant system, name (one word), channel diameter, channel
  /// group. What the text lacks is 0, the name null. Arguments: the row, density, specific heat,
  /// conductivity, viscosity, the coolant system, the name, the diameter, the channel group. The
  /// name is valid until the next read of its kind. False, outputs untouched: not in the file.
  bool GetCoolant(int row, double& first, double& second, double& third, double& fourth, int& fifth,
                  char*& name, double& seventh, int& eighth);
  /// [Coolant] "%d": a coolant: density (g/cm^3), specific heat (erg/(g K)), thermal conductivity
  /// (erg/(s cm K)), viscosity (poise), coolant system, name (one word), channel diameter, channel
  /// group. The name is written as it is given: one that is empty or holds a blank is not read
  /// back. Arguments: the row, density, specific heat, conductivity, viscosity, the coolant system,
  /// the name, the diameter, the channel group. False: no path is set, or the name is null.
  bool SetCoolant(int row, double first, double second, double third, double fourth, int fifth,
                  char* name, double seventh, int eighth);
  /// [Coolant] "%d", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetCoolant(int row, double first, double second, double third,
                                   double fourth, int fifth, Char* name, double seventh,
                                   int eighth) {
    return SetCoolant(row, first, second, third, fourth, fifth, const_cast<char*>(name), seventh,
                      eighth);
  }

  // [VarCoolCTL]: variable cooling.

  /// [VarCoolCTL] "CoolantNo": the number of entries of variable cooling. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetTotalCoolantNo(int& value);
  /// [VarCoolCTL] "CoolantNo": the number of entries of variable cooling. Argument: the value.
  /// False: no path is set.
  bool SetTotalCoolantNo(int value);
  /// [VarCoolCTL] "Coolant-%d": an entry of variable cooling: four reals and an integer. What the
  /// text lacks is 0. Arguments: the row, the first, second, third, fourth real, the integer.
  /// False, outputs untouched: not in the file.
  bool GetCoolant(int row, double& first, double& second, double& third, double& fourth,
                  int& fifth);
  /// [VarCoolCTL] "Coolant-%d": an entry of variable cooling: four reals and an integer. Arguments:
  /// the row, the first, second, third, fourth real, the integer. False: no path is set.
  bool SetCoolant(int row, double first, double second, double third, double fourth, int fifth);

  // [CoolChannel-%d]: a cooling channel. The channel is the first argument.

  /// [CoolChannel-%d] "Diameter": the diameter of the channel. Arguments: the channel, the value.
  /// False, the value untouched: not in the file.
  bool GetCoolChannelDiameter(int channel, double& value);
  /// [CoolChannel-%d] "Diameter": the diameter of the channel. Arguments: the channel, the value.
  /// False: no path is set.
  bool SetCoolChannelDiameter(int channel, double value);
  /// [CoolChannel-%d] "GroupID": the group that the channel belongs to. Arguments: the channel, the
  /// value. False, the value untouched: not in the file.
  bool GetCoolChannelGroupID(int channel, int& value);
  /// [CoolChannel-%d] "GroupID": the group that the channel belongs to. The value is taken by
  /// reference and left alone. Arguments: the channel, the value. False: no path is set.
  bool SetCoolChannelGroupID(int channel, int& value);
  /// [CoolChannel-%d] "TimeSet": the number of control points of the channel. Arguments: the
  /// channel, the value. False, the value untouched: not in the file.
  bool GetCoolChannelTimeSet(int channel, int& value);
  /// [CoolChannel-%d] "TimeSet": the number of control points of the channel. The value is taken by
  /// reference and left alone. Arguments: the channel, the value. False: no path is set.
  bool SetCoolChannelTimeSet(int channel, int& value);
  /// [CoolChannel-%d] "TCP-%d": a control point by flow rate: a real, the coolant system, the
  /// temperature, the flow rate, an integer. The last field is read as a real. What the text lacks
  /// is 0. Arguments: the channel, the point, the real, the coolant system, the temperature, the
  /// flow rate, the last field. False, outputs untouched: not in the file.
  bool GetCoolChannelControlPoint(int channel, int point, double& first, int& second, double& third,
                                  double& fourth, double& fifth);
  /// [CoolChannel-%d] "TCP-%d": a control point by flow rate: a real, the coolant system, the
  /// temperature, the flow rate, an integer. It is written under the number of the channel: the
  /// point is not used. The last field is the signed decimal of the low 32 bits of the fifth
  /// value's bit pattern: 0 for 1.0 and 0.5, -1717986918 for 0.1. The files that are about have
  /// this layout. The member's name is spelled so. Arguments: the channel, the point, the real, the
  /// coolant system, the temperature, the flow rate, the last field. False: no path is set.
  bool SetcoolChannelControlPoint(int channel, int point, double first, int second, double third,
                                  double fourth, double fifth);

  // [MoldPreheat]: preheating of the mold.

  /// [MoldPreheat] "ControlType": what preheat channels are controlled by: 1 pressure, otherwise
  /// flow rate. Argument: the value. False, the value untouched: not in the file.
  bool GetMoldPreHeatControlType(int& value);
  /// [MoldPreheat] "MaxMoldPreHeatTime": the limit of the preheating time, in sec. Argument: the
  /// value. False, the value untouched: not in the file.
  bool GetMaxMoldPreHeatTime(double& value);
  /// [MoldPreheat] "MaxMoldPreHeatTime": the limit of the preheating time, in sec. Argument: the
  /// value. False: no path is set.
  bool SetMaxMoldPreHeatTime(double value);
  /// [MoldPreheat] "MoldPreHeatTime": how long the mold is preheated, in sec. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetMoldPreHeatTime(double& value);
  /// [MoldPreheat] "MoldPreHeatTime": how long the mold is preheated, in sec. Argument: the value.
  /// False: no path is set.
  bool SetMoldPreHeatTime(double value);
  /// [MoldPreheat] "MoldPreHeatTemperature": the temperature to which the mold is preheated, in oC.
  /// The member's name is spelled so. Argument: the value. False, the value untouched: not in the
  /// file.
  bool GetMoldPreHearTemperature(double& value);
  /// [MoldPreheat] "MoldPreHeatTemperature": the temperature to which the mold is preheated, in oC.
  /// Argument: the value. False: no path is set.
  bool SetMoldPreHeatTemperature(double value);
  /// [MoldPreheat] "MoldPreHeatType": a code of the kind of preheating. Argument: the value. False,
  /// the value untouched: not in the file.
  bool GetMoldPreHeatType(int& value);
  /// [MoldPreheat] "MoldPreHeatType": a code of the kind of preheating. Argument: the value. False:
  /// no path is set.
  bool SetMoldPreHeatType(int value);

  // [MPreheat_CoolChannel-%d]: a channel that preheats the mold. The channel is the first argument.

  /// [MPreheat_CoolChannel-%d] "Diameter": the diameter of the channel. Arguments: the channel, the
  /// value. False, the value untouched: not in the file.
  bool GetMPreheatCoolChannelDiameter(int channel, double& value);
  /// [MPreheat_CoolChannel-%d] "Diameter": the diameter of the channel. Arguments: the channel, the
  /// value. False: no path is set.
  bool SetMPreheatCoolChannelDiameter(int channel, double value);
  /// [MPreheat_CoolChannel-%d] "GroupID": the group that the channel belongs to. Arguments: the
  /// channel, the value. False, the value untouched: not in the file.
  bool GetMPreheatCoolChannelGroupID(int channel, int& value);
  /// [MPreheat_CoolChannel-%d] "GroupID": the group that the channel belongs to. The value is taken
  /// by reference and left alone. Arguments: the channel, the value. False: no path is set.
  bool SetMPreheatCoolChannelGroupID(int channel, int& value);
  /// [MPreheat_CoolChannel-%d] "TimeSet": the number of control points of the channel. Arguments:
  /// the channel, the value. False, the value untouched: not in the file.
  bool GetMPreheatCoolChannelTimeSet(int channel, int& value);
  /// [MPreheat_CoolChannel-%d] "TimeSet": the number of control points of the channel. The value is
  /// taken by reference and left alone. Arguments: the channel, the value. False: no path is set.
  bool SetMPreheatCoolChannelTimeSet(int channel, int& value);
  /// [MPreheat_CoolChannel-%d] "TCP-%d": a control point by flow rate: a real, the coolant system,
  /// the temperature, the flow rate, an integer. The last field is read as a real. What the text
  /// lacks is 0. Arguments: the channel, the point, the real, the coolant system, the temperature,
  /// the flow rate, the last field. False, outputs untouched: not in the file.
  bool GetMPreheatCoolChannelControlPoint(int channel, int point, double& first, int& second,
                                          double& third, double& fourth, double& fifth);
  /// [MPreheat_CoolChannel-%d] "TCP-%d": a control point by flow rate: a real, the coolant system,
  /// the temperature, the flow rate, an integer. It is written under the number of the channel: the
  /// point is not used. The last field is the signed decimal of the low 32 bits of the fifth
  /// value's bit pattern: 0 for 1.0 and 0.5, -1717986918 for 0.1. The files that are about have
  /// this layout. Arguments: the channel, the point, the real, the coolant system, the temperature,
  /// the flow rate, the last field. False: no path is set.
  bool SetMPreheatCoolChannelControlPoint(int channel, int point, double first, int second,
                                          double third, double fourth, double fifth);

  // [Machine]: the injection molding machine.

  /// [Machine] "Maker": the maker of the machine. Argument: the text. The text is valid until the
  /// thread's next read through any object of this class, its line break included. False, the text
  /// untouched: not in the file.
  bool GetMachineMaker(char*& text);
  /// [Machine] "Maker": the maker of the machine. Argument: the text. False: no path is set, or the
  /// text is null.
  bool SetMachineMaker(char* text);
  /// [Machine] "Maker", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetMachineMaker(Char* text) {
    return SetMachineMaker(const_cast<char*>(text));
  }
  /// [Machine] "Grade": the grade of the machine: its model. Argument: the text. The text is valid
  /// until the thread's next read through any object of this class, its line break included. False,
  /// the text untouched: not in the file.
  bool GetMachineGrade(char*& text);
  /// [Machine] "Grade": the grade of the machine: its model. Argument: the text. False: no path is
  /// set, or the text is null.
  bool SetMachineGrade(char* text);
  /// [Machine] "Grade", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetMachineGrade(Char* text) {
    return SetMachineGrade(const_cast<char*>(text));
  }
  /// [Machine] "LastModifiedDate": when the data of the machine were last changed. Argument: the
  /// text. The text is valid until the thread's next read through any object of this class, its
  /// line break included. False, the text untouched: not in the file.
  bool GetMachineLastModifiedDate(char*& text);
  /// [Machine] "Remark": a remark about the machine. Argument: the text. The text is valid until
  /// the thread's next read through any object of this class, its line break included. False, the
  /// text untouched: not in the file.
  bool GetMachineRemark(char*& text);
  /// [Machine] "Remark": a remark about the machine. Argument: the text. False: no path is set, or
  /// the text is null.
  bool SetMachineRemark(char* text);
  /// [Machine] "Remark", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetMachineRemark(Char* text) {
    return SetMachineRemark(const_cast<char*>(text));
  }
  /// [Machine] "Diameter": the diameter of the screw. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMachineScrewDiameter(double& value);
  /// [Machine] "Diameter": the diameter of the screw. Argument: the value. False: no path is set.
  bool SetMachineScrewDiameter(double value);
  /// [Machine] "MaxRamPos": the farthest position of the ram. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMachineMaxRamPosition(double& value);
  /// [Machine] "MaxRamPos": the farthest position of the ram. Argument: the value. False: no path
  /// is set.
  bool SetMachineMaxRamPosition(double value);
  /// [Machine] "ShotVolume": the largest volume of a shot. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMachineShotVolume(double& value);
  /// [Machine] "Weight": the largest weight of a shot. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMachineShotWeight(double& value);
  /// [Machine] "Weight": the largest weight of a shot. Argument: the value. False: no path is set.
  bool SetMachineShotWeight(double value);
  /// [Machine] "MaxMachinePres": the highest injection pressure of the machine. Argument: the
  /// value. False, the value untouched: not in the file.
  bool GetMachineMaxPressure(double& value);
  /// [Machine] "MaxMachinePres": the highest injection pressure of the machine. Argument: the
  /// value. False: no path is set.
  bool SetMachineMaxPressure(double value);
  /// [Machine] "HoldingPressure": the highest holding pressure of the machine. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetMachineHoldingPressure(double& value);
  /// [Machine] "InjectionSpeed": the highest injection speed of the machine. Argument: the value.
  /// False, the value untouched: not in the file.
  bool GetMachineInjectionSpeed(double& value);
  /// [Machine] "FR": the highest flow rate of the machine. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMachineMaxFlowRate(double& value);
  /// [Machine] "FR": the highest flow rate of the machine. Argument: the value. False: no path is
  /// set.
  bool SetMachineMaxFlowRate(double value);
  /// [Machine] "PlasticationRate": how much material the screw melts in a unit of time. Argument:
  /// the value. False, the value untouched: not in the file.
  bool GetMachinePlasticationRate(double& value);
  /// [Machine] "ScrewSpeed": the highest speed of the screw's rotation. Argument: the value. False,
  /// the value untouched: not in the file.
  bool GetMachineScrewSpeed(double& value);
  /// [Machine] "NozzleContactForce": the force with which the nozzle is held against the mold.
  /// Argument: the value. False, the value untouched: not in the file.
  bool GetMachineNozzleContactForce(double& value);
  /// [Machine] "NozzleStroke": how far the nozzle can be moved. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetMachineNozzleStroke(double& value);
  /// [Machine] "HeaterWattage": the power of the barrel's heaters. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetMachineHeaterWattage(double& value);
  /// [Machine] "TemperatureControlZones": the number of temperature control zones, or a sum such as
  /// 4+2. Of a sum it reads the first number: 4+2 reads as 4. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMachineTemperatureControlZone(int& value);
  /// [Machine] "Size": the clamp force of the machine. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMachineClampingForce(double& value);
  /// [Machine] "Size": the clamp force of the machine. Argument: the value. False: no path is set.
  bool SetMachineClampingForce(double value);
  /// [Machine] "OpeningStroke": how far the clamp can open. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMachineOpeningStroke(double& value);
  /// [Machine] "MaxDaylight": the largest distance between the platens (daylight). Argument: the
  /// value. False, the value untouched: not in the file.
  bool GetMachineMaxDaylight(double& value);
  /// [Machine] "MoldHeight": the mold height that the machine takes. Argument: the value. False,
  /// the value untouched: not in the file.
  bool GetMachineMoldHeight(double& value);
  /// [Machine] "DistanceBetweenTieBars(HxV)": the distance between the tie bars, as text. Argument:
  /// the text. The text is valid until the thread's next read through any object of this class, its
  /// line break included. False, the text untouched: not in the file.
  bool GetMachineTieBarsDistance(char*& text);
  /// [Machine] "PlatenSize(HxV)": the size of the platen, as text. Argument: the text. The text is
  /// valid until the thread's next read through any object of this class, its line break included.
  /// False, the text untouched: not in the file.
  bool GetMachinePlatenSize(char*& text);
  /// [Machine] "EjectorPoint": the number of ejector points. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMachineEjectorPoint(int& value);
  /// [Machine] "EjectorForce": the force of the ejector. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMachineEjectorForce(double& value);
  /// [Machine] "EjectorStroke": how far the ejector can be moved. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetMachineEjectorStroke(double& value);
  /// [Machine] "MachineWeight": the weight of the machine. Argument: the value. False, the value
  /// untouched: not in the file.
  bool GetMachineWeight(double& value);
  /// [Machine] "MachineDimension(LxWxH)": the size of the machine, as text. Argument: the text. The
  /// text is valid until the thread's next read through any object of this class, its line break
  /// included. False, the text untouched: not in the file.
  bool GetMachineDimension(char*& text);
  /// [Machine] "BarrelCompressionCtrl": a code: whether and how the compression of the melt in the
  /// barrel counts. Argument: the value. False, the value untouched: not in the file.
  bool GetBarrelCompressionCtrlType(int& value);

  // [Moldbase]: the mold bases, one row each: three thermal values, the name, which may hold blanks
  // where all six numbers are there, three mechanical values.

  /// [Moldbase] "%d": a mold base: three thermal values, its name, which may hold blanks, three
  /// mechanical values. The three thermal values and the name alone. What the text lacks is 0.
  /// Arguments: the row, thermal value 1, thermal value 2, thermal value 3, the name. The name is
  /// valid until the next read of its kind. False, outputs untouched: not in the file.
  bool GetMoldbase(int row, double& first, double& second, double& third, char*& name);
  /// [Moldbase] "%d": a mold base: three thermal values, its name, which may hold blanks, three
  /// mechanical values. Writes the three thermal values and the name, and nothing after it. Of a
  /// name with blanks the getter gives back the first word alone, or all but the last three of five
  /// words or more. Arguments: the row, thermal value 1, thermal value 2, thermal value 3, the
  /// name. False: no path is set, or the name is null or holds a Ctrl-Z (0x1A).
  bool SetMoldbase(int row, double first, double second, double third, char* name);
  /// [Moldbase] "%d", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetMoldbase(int row, double first, double second, double third,
                                    Char* name) {
    return SetMoldbase(row, first, second, third, const_cast<char*>(name));
  }
  /// [Moldbase] "%d": a mold base: three thermal values, its name, which may hold blanks, three
  /// mechanical values. The whole row, for a "FileVersion" of 1010 or more; false, with the record
  /// untouched, for older files. Arguments: the row, the record. The name is valid until the next
  /// read of its kind.
  bool GetMoldbase(int row, QELPRO_MMM_MECHANICAL& record);
  /// [Moldbase] "%d": a mold base: three thermal values, its name, which may hold blanks, three
  /// mechanical values. Writes thermal values 1 and 2, mechanical value 2, the name, and mechanical
  /// values 1, 2 and 3: mechanical value 2 twice, thermal value 3 not at all. The files that are
  /// about have this layout. Where the name is empty, the getter takes mechanical value 1 for it;
  /// blanks around a name are lost. Arguments: the row, the record. False: no path is set, or the
  /// name is null or holds a Ctrl-Z (0x1A).
  bool SetMoldbase(int row, const QELPRO_MMM_MECHANICAL& record);

  // [MoldMetalMaterial]: the mold metals, in rows like those of the mold bases.

  /// [MoldMetalMaterial] "%d": a mold metal: three thermal values, its name, which may hold blanks,
  /// three mechanical values. The three thermal values and the name alone. What the text lacks is
  /// 0. Arguments: the row, thermal value 1, thermal value 2, thermal value 3, the name. The name
  /// is valid until the next read of its kind. False, outputs untouched: not in the file.
  bool GetMoldMetalMaterial(int row, double& first, double& second, double& third, char*& name);
  /// [MoldMetalMaterial] "%d": a mold metal: three thermal values, its name, which may hold blanks,
  /// three mechanical values. Writes the three thermal values and the name, and nothing after it.
  /// Of a name with blanks the getter gives back the first word alone, or all but the last three of
  /// five words or more. Arguments: the row, thermal value 1, thermal value 2, thermal value 3, the
  /// name. False: no path is set, or the name is null or holds a Ctrl-Z (0x1A).
  bool SetMoldMetalMaterial(int row, double first, double second, double third, char* name);
  /// [MoldMetalMaterial] "%d", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetMoldMetalMaterial(int row, double first, double second, double third,
                                             Char* name) {
    return SetMoldMetalMaterial(row, first, second, third, const_cast<char*>(name));
  }
  /// [MoldMetalMaterial] "%d": a mold metal: three thermal values, its name, which may hold blanks,
  /// three mechanical values. The whole row. Where the "FileVersion" is below 1010 the row is read
  /// all the same, the mechanical values are 2e12, 0.3 and 0.00012, and the result is false.
  /// Arguments: the row, the record. The name is valid until the next read of its kind.
  bool GetMoldMetalMaterial(int row, QELPRO_MMM_MECHANICAL& record);
  /// [MoldMetalMaterial] "%d": a mold metal: three thermal values, its name, which may hold blanks,
  /// three mechanical values. Writes thermal values 1 and 2, mechanical value 2, the name, and
  /// mechanical values 1, 2 and 3: mechanical value 2 twice, thermal value 3 not at all. The files
  /// that are about have this layout. Where the name is empty, the getter takes mechanical value 1
  /// for it; blanks around a name are lost. Arguments: the row, the record. False: no path is set,
  /// or the name is null or holds a Ctrl-Z (0x1A).
  bool SetMoldMetalMaterial(int row, const QELPRO_MMM_MECHANICAL& record);

  // [PartingSurface]: the cavity and core sides. Outputs that the text does not supply keep their
  // values.

  /// [PartingSurface] "CavityPart": the part on the cavity side: an integer and three reals.
  /// Outputs that the text lacks keep their values. Arguments: the integer, the first real, the
  /// second real, the third real. False, outputs untouched: not in the file.
  bool GetPSCavityPart(int& first, double& second, double& third, double& fourth);
  /// [PartingSurface] "CavityMoldBase": the mold base on the cavity side under the spelling of the
  /// older object: an integer and three reals. Outputs that the text lacks keep their values.
  /// Arguments: the integer, the first real, the second real, the third real. False, outputs
  /// untouched: not in the file.
  bool GetPSCavityMoldBase(int& first, double& second, double& third, double& fourth);
  /// [PartingSurface] "CorePart": the part on the core side: an integer and three reals. Outputs
  /// that the text lacks keep their values. Arguments: the integer, the first real, the second
  /// real, the third real. False, outputs untouched: not in the file.
  bool GetPSCorePart(int& first, double& second, double& third, double& fourth);
  /// [PartingSurface] "CoreMoldBase": the mold base on the core side under the spelling of the
  /// older object: an integer and three reals. Outputs that the text lacks keep their values.
  /// Arguments: the integer, the first real, the second real, the third real. False, outputs
  /// untouched: not in the file.
  bool GetPSCoreMoldBase(int& first, double& second, double& third, double& fourth);

  // [EjectCriteria]: the sensor and criteria nodes that decide ejection.

  /// [EjectCriteria] "TotalSensorNode": the number of sensor nodes. Argument: the value. False, the
  /// value untouched: not in the file.
  bool GetTotalSensorNode(int& value);
  /// [EjectCriteria] "TotalCriteriaNode": the number of criteria nodes. Argument: the value. False,
  /// the value untouched: not in the file.
  bool GetTotalCriteriaNode(int& value);
  /// [EjectCriteria] "SensorNode-%d": the mesh node of a sensor and a real that the older object
  /// alone reads. Arguments: the sensor, the node, the real. False, outputs untouched: not in the
  /// file.
  bool GetSensorNodeSetting(int number, int& node, double& value);
  /// [EjectCriteria] "CriteriaNode-%d": the mesh node of a criterion, and the criterion's value.
  /// Arguments: the criterion, the node, the value. False, outputs untouched: not in the file.
  bool GetCriteriaNodeSetting(int number, int& node, double& value);

  // [PartInsertInitialTemperature]: the initial temperature of each part insert.

  /// [PartInsertInitialTemperature] "TotalPartInsert": the number of part inserts. Argument: the
  /// value. False, the value untouched: not in the file.
  bool GetTotalPartInsert(int& value);
  /// [PartInsertInitialTemperature] "PartInsert-%d": a part insert: its identifier, its name, its
  /// initial temperature, in oC. Of a name with blanks it hands out the first word, and the
  /// temperature keeps its value. A row without a name hands out an empty one. Arguments: the
  /// insert, the identifier, the name, the temperature. The name is valid until the next read of
  /// its kind. False, outputs untouched: not in the file.
  bool GetPartInsertSetting(int number, int& id, char*& name, double& temperature);

  // [SURFACE ELEMENT BOUNDARY CONDITION NAME]: lines addressed by position, from 1: first a name
  // line for each boundary condition, as many as "TotalNodeBC" of [Summary] says, then the setting
  // lines of all of them, one condition after the other. The lines end with their section: nothing
  // after the next header is found or touched, and a position after the last line becomes the new
  // last line. Empty lines count. A position below 1 yields false, and nothing is written.

  /// [SURFACE ELEMENT BOUNDARY CONDITION NAME] header line: one for each boundary condition: the
  /// number of its setting lines, its name, and an integer. The first number and the name. In a
  /// line of four words or more the name may hold blanks. Arguments: the line, from 1, the number
  /// of setting lines, the name. The name is valid until the next read of its kind. False, outputs
  /// untouched: not in the file.
  bool GetBCCountName(int line, int& count, char*& name);
  /// [SURFACE ELEMENT BOUNDARY CONDITION NAME] header line: one for each boundary condition: the
  /// number of its setting lines, its name, and an integer. Writes the first number and the name,
  /// and no integer after it. A line after the section's last one becomes its new last line.
  /// Arguments: the line, from 1, the number of setting lines, the name. False: no path is set, or
  /// the name is null.
  bool SetBCCountName(int line, int count, char* name);
  /// [SURFACE ELEMENT BOUNDARY CONDITION NAME] header line, from a text that is constant, such as a
  /// literal: the same member.
  template <class Char>
  qel::IfConstant<Char> SetBCCountName(int line, int count, Char* name) {
    return SetBCCountName(line, count, const_cast<char*>(name));
  }
  /// [SURFACE ELEMENT BOUNDARY CONDITION NAME] header line: one for each boundary condition: the
  /// number of its setting lines, its name, and an integer. In a line of four words or more the
  /// name may hold blanks; in a shorter one the integer may be missing, and keeps its value.
  /// Arguments: the line, from 1, the number of setting lines, the name, the integer. The name is
  /// valid until the next read of its kind. False, outputs untouched: not in the file.
  bool GetBCSetting(int line, int& count, char*& name, int& type);
  /// [SURFACE ELEMENT BOUNDARY CONDITION NAME] setting line: after all header lines, one condition
  /// after the other: a number, "=", and two reals. Point `point` of condition `bc`: its line
  /// stands after as many header lines as "TotalNodeBC" of [Summary] says, and after the setting
  /// lines of the conditions before it, as many as their header lines say; a missing "TotalNodeBC"
  /// counts as 0. What the line lacks is 0. Arguments: the condition, the point, x, y. False,
  /// outputs untouched: a header line before it, or the line itself, is not there.
  bool GetBCProfile(int bc, int point, double& x, double& y);
  /// [SURFACE ELEMENT BOUNDARY CONDITION NAME] setting line: after all header lines, one condition
  /// after the other: a number, "=", and two reals. Point `point` of condition `bc`, at the line
  /// that `GetBCProfile` reads; a header line or a "TotalNodeBC" that is missing counts as 0.
  /// Written as the point, " = ", and the two reals. A line after the section's last one becomes
  /// its new last line. Arguments: the condition, the point, x, y. False: no path is set, or no
  /// line has that position.
  bool SetBCProfile(int bc, int point, double x, double y);

 private:
  static constexpr int kByKey = -1;
  static constexpr int kGatedVersion = 1010;

  // The raw layer. An index below 0 addresses a line by its key, one of 1 or more the line at that
  // position after the section's header. Codes are 1 for success, -1001 for a file that cannot be
  // opened, -1002 for a line that is not there.
  static char* GetBlock(int number, BLOCK kind);
  static char* GetKey(int number, KEY kind);
  static bool IsOK(int code);
  int Read(const char* section, const char* key, char*& value, int index);
  int Write(const char* section, const char* key, const char* value, bool stampDate, int index);
  bool checkIsThisPROFileSupport(int version);

  // What the accessors are made of: a row and its values.
  static const char* SectionOf(const qel::proio::Row& row);
  static const char* KeyOf(const qel::proio::Row& row);
  template <class... Values>
  bool Get(const qel::proio::Row& row, Values&&... values);
  template <class... Values>
  bool GetZeroed(const qel::proio::Row& row, Values&&... values);
  template <class... Values>
  bool GetGated(const qel::proio::Row& row, Values&... values);
  template <class... Values>
  bool Set(const qel::proio::Row& row, Values... values);
  bool GetFlag(const qel::proio::Row& row, bool& flag);

  static bool GetMoldMetal(const char* text, qel::TextBuffer<128>& name,
                           QELPRO_MMM_MECHANICAL& record);
  static bool GetBC(const char* text, int& count, char*& name, int& type);
  bool SetCoefficient(const qel::proio::Row& row, double value);
  bool GetMoldRow(const qel::proio::Row& row, qel::TextBuffer<128>& buffer, double& first,
                  double& second, double& third, char*& name);
  bool SetMoldRow(const qel::proio::Row& row, const QELPRO_MMM_MECHANICAL& record);
  bool ReadBC(long long line, char*& text);
  bool WriteBC(long long line, const char* text);

  const char* path_ = nullptr;
};
