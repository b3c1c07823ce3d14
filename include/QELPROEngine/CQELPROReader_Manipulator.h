#pragma once

#include <cstdio>

#include "QELPROEngine/export.h"

class CQELPROReader;

/// Reads a process file, key by key.
///
/// A process file is plain text: section headers such as "[Unit]" and entries such as "FillTime =
/// 1.5". Numbered sections ("[Flow-1]" is the first inlet's filling stage) take their number as a
/// member's last argument; points of a profile ("FR-1" is the first flow rate point) take theirs
/// before it. Numbers count from 1 and are used as they are given.
///
/// Every section member reads one key, and yields false when there is no file, or when the section
/// or the key is not there: its outputs are untouched then. It yields true once the key is found,
/// even where its text does not scan: what cannot be scanned keeps the caller's value, unless the
/// member says otherwise. Reals and integers scan as "%lf" and "%d" do, whatever the program's
/// locale is.
///
/// A text result points into a buffer of the thread. It stays valid until the thread's next read
/// through any reader or writer; a name among the fields of a line has a buffer of its own, and
/// stays valid until the next read of that kind. Copy it to keep it, and never free it. Texts that
/// are given (sections, keys, names) are read during the call alone.
///
/// A reader remembers where the lines that it has passed begin. A line that has changed since is
/// looked for anew, so that a read yields what the file holds now. What it remembers is kept when
/// it is pointed at another file: use a new reader for each file. Copies share one open file; the
/// last of them closes it. One object is used by one thread at a time; different objects need no
/// lock.
class QELPROENGINE_API CQELPROReader_Manipulator {
 public:
  /// A reader without a file: every read is false until one is set.
  CQELPROReader_Manipulator();
  /// A copy shares the open file.
  CQELPROReader_Manipulator(const CQELPROReader_Manipulator& other);
  /// Shares the other's file, and lets go of its own.
  CQELPROReader_Manipulator& operator=(const CQELPROReader_Manipulator& other);
  virtual ~CQELPROReader_Manipulator();

  /// Opens a file for reading. False when it cannot be opened; a file that was open before is
  /// closed all the same. `GetFilePath` hands the caller's own pointer back, so the text should
  /// stay valid while the file is in use. Section members go on reading the file that was opened,
  /// even where a program puts another one in its place, as editors and `qelpro set` do: a new
  /// reader sees that one, and this one after the next `SetFilePath`, as far as what it remembers
  /// fits. `ReadString` and `ReadValue` open the path for each call.
  ///
  /// Where closing a file drops the record locks that the program itself holds on it (POSIX: those
  /// of `fcntl` with `F_SETLK`), it does so here: whenever this reader closes the file, and after
  /// each `ReadString` and `ReadValue`.
  bool SetFilePath(const char* path);
  /// The same by a wide path. `GetFilePath` hands out null then, and `ReadValue` finds nothing.
  bool SetFilePath(const wchar_t* path);
  /// Reads through a stream that the caller opened and keeps open. False for null, and on Windows
  /// for a stream of another C runtime than the library's. Lookups through a lent stream scan it
  /// from the top, and search for a key beyond the end of its section.
  bool SetFilePtr(std::FILE*& stream);
  /// Closes the file, or the lent stream. The section members are false from then on, until a file
  /// is set again. Raw access goes on: `ReadString` and `ReadValue` open a file that was given by a
  /// narrow path anew for each call.
  void CloseFile();
  /// The pointer that was given to `SetFilePath`; null after a wide path or a stream. False before
  /// any file was set.
  bool GetFilePath(const char*& path);

  /// The value of any key of any section, named with its brackets. With a buffer the value is
  /// copied there, and `value` points to it; a value that does not fit `size`, its terminator
  /// included, yields false. Without one (null) it stands in the thread's own buffer until the
  /// thread's next read, and `size` is not looked at. False, `value` untouched: not in the file.
  bool ReadString(const char* section, const char* key, char*& value, char* buffer,
                  unsigned int size);
  /// As `ReadString`, by another search: the section begins after the first line that mentions its
  /// name, the key may stand in a later section, and its line needs a "=": one without is not
  /// found, while `ReadString` gives its empty value. A `size` of 0 says nothing of the buffer,
  /// which must be large enough then; with any other a value that does not fit yields false.
  /// Without a buffer (null) the value stands in another one of the thread's own. Only for a file
  /// given by a narrow path: otherwise false.
  bool ReadValue(const char* section, const char* key, char*& value, char* buffer,
                 unsigned int size);

  // The members of the sections, made by "./dev generate" from the rows of src/blocks.
  // clang-format off

  // [FileHeader]: what the file is, who wrote it and when.

  /// [FileHeader] "Name": the name of the file. Argument: the text. The text is valid until the
  /// thread's next read. False, the text untouched: not in the file.
  bool FileHeader_ReadName(char*& text);
  /// [FileHeader] "Type": the file's type, "PRO". Argument: the text. The text is valid until the
  /// thread's next read. False, the text untouched: not in the file.
  bool FileHeader_ReadType(char*& text);
  /// [FileHeader] "Date": the date of the last change, as "2026/11/15 09:05:07". Argument: the
  /// text. The text is valid until the thread's next read. False, the text untouched: not in the
  /// file.
  bool FileHeader_ReadDate(char*& text);
  /// [FileHeader] "CreateBy": the program that wrote the file. Argument: the text. The text is
  /// valid until the thread's next read. False, the text untouched: not in the file.
  bool FileHeader_ReadCreateBy(char*& text);
  /// [FileHeader] "Remark": a remark about the file. Argument: the text. The text is valid until
  /// the thread's next read. False, the text untouched: not in the file.
  bool FileHeader_ReadRemark(char*& text);

  // [CaeHeader]: the release and project that the analysis belongs to.

  /// [CaeHeader] "Version": the version of the suite, or its name. Argument: the text. The text is
  /// valid until the thread's next read. False, the text untouched: not in the file.
  bool CaeHeader_ReadVersion(char*& text);
  /// [CaeHeader] "Release": the release of the suite. Argument: the text. The text is valid until
  /// the thread's next read. False, the text untouched: not in the file.
  bool CaeHeader_ReadRelease(char*& text);
  /// [CaeHeader] "Project": the project that the analysis belongs to, by name or path. Argument:
  /// the text. The text is valid until the thread's next read. False, the text untouched: not in
  /// the file.
  bool CaeHeader_ReadProject(char*& text);
  /// [CaeHeader] "Engineer": the name of the engineer in charge. Argument: the text. The text is
  /// valid until the thread's next read. False, the text untouched: not in the file.
  bool CaeHeader_ReadEngineer(char*& text);
  /// [CaeHeader] "Parent": the file that this one was made from. Argument: the text. The text is
  /// valid until the thread's next read. False, the text untouched: not in the file.
  bool CaeHeader_ReadParent(char*& text);
  /// [CaeHeader] "Type": the kind of analysis, such as Injection. Argument: the text. The text is
  /// valid until the thread's next read. False, the text untouched: not in the file.
  bool CaeHeader_ReadType(char*& text);
  /// [CaeHeader] "FileVersion": the version of the file's layout, as text. Argument: the text. The
  /// text is valid until the thread's next read. False, the text untouched: not in the file.
  bool CaeHeader_ReadFileVersion(char*& text);
  /// [CaeHeader] "FileVersion": the version of the file's layout, as a number. Argument: the value.
  /// False, the value untouched: not in the file.
  bool CaeHeader_ReadFileVersion(int& value);
  /// [CaeHeader] "FileType": a code of the kind of process file. Argument: the value. False, the
  /// value untouched: not in the file.
  bool CaeHeader_ReadFileType(int& value);
  /// [CaeHeader] "SmartSetting": a code: how far the front end set the values by itself (smart
  /// setting). Argument: the value. False, the value untouched: not in the file.
  bool CaeHeader_ReadSmartSetting(int& value);
  /// [CaeHeader] "SettingMode": a code: in which mode of the front end the values were set.
  /// Argument: the value. False, the value untouched: not in the file.
  bool CaeHeader_ReadSettingMode(int& value);
  /// [CaeHeader] "ProjectType": the project type: 8 co-injection, 11 two melt entrances; a second
  /// number is dropped. Argument: the value. False, the value untouched: not in the file.
  bool CaeHeader_ReadProjectType(int& value);

  // [Summary]: counts of the model, by which the other sections are numbered.

  /// [Summary] "TotalNdivz": the number of layers into which the mesh divides the thickness.
  /// Argument: the value. False, the value untouched: not in the file.
  bool Summary_ReadTotalLayer(int& value);
  /// [Summary] "TotalNodeEM": the number of melt entrances. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Summary_ReadTotalMeltEntrance(int& value);
  /// [Summary] "TotalNodeEC": the number of coolant entrances. Argument: the value. False, the
  /// value untouched: not in the file.
  bool Summary_ReadTotalCoolantEntrance(int& value);
  /// [Summary] "TotalGateCTL": the number of valve gates. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Summary_ReadTotalValveGate(int& value);
  /// [Summary] "VacuumIndex": a code: whether and how the cavity is evacuated. Argument: the value.
  /// False, the value untouched: not in the file.
  bool Summary_ReadVacuumIndex(int& value);
  /// [Summary] "SkinRatio": the share of the skin material in a part of two materials. Argument:
  /// the value. False, the value untouched: not in the file.
  bool Summary_ReadSkinRatio(double& value);
  /// [Summary] "PEOFasPPack": 1 where the pressure at the end of filling is the packing pressure.
  /// Argument: the value. False, the value untouched: not in the file.
  bool Summary_ReadPEOFasPPack(int& value);
  /// [Summary] "TotalNodeMB": the number of mold bases. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Summary_ReadTotalMoldbase(int& value);
  /// [Summary] "TotalNodeBC": the number of boundary conditions. Argument: the value. False, the
  /// value untouched: not in the file.
  bool Summary_ReadTotalBoundaryCondition(int& value);
  /// [Summary] "TotalNodeEG": the number of gas entrances. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Summary_ReadTotalGasEntrance(int& value);
  /// [Summary] "TotalNodeMMM": the number of mold metal materials. Argument: the value. False, the
  /// value untouched: not in the file.
  bool Summary_ReadTotalMoldMetalMaterial(int& value);
  /// [Summary] "SymVolRatio": how many times the part holds the modelled volume, where only a
  /// symmetric piece of it is modelled; an integer: 0.5 reads as 0. Argument: the value. False, the
  /// value untouched: not in the file.
  bool Summary_ReadSymmetryVolumeRatio(int& value);
  /// [Summary] "TotalNodeHR": the number of heating rods. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Summary_ReadTotalHeatingRod(int& value);
  /// [Summary] "IsTransientInletConv": 1 where the resin's conversion at the inlet changes with
  /// time, else 0. Argument: the value. False, the value untouched: not in the file.
  bool Summary_ReadTransientInletConv(int& value);
  /// [Summary] "TotalOverFlowCTL": the number of overflow valves. Argument: the value. False, the
  /// value untouched: not in the file.
  bool Summary_ReadTotalOverFlowCTL(int& value);

  // [FlowCTL]: what controls filling, packing, the switch-over from velocity to pressure control
  // (V/P) and the begin of curing.

  /// [FlowCTL] "FlowCtrl": a code: which quantity controls filling. Argument: the value. False, the
  /// value untouched: not in the file.
  bool FlowCTL_ReadFlowCtrl(int& value);
  /// [FlowCTL] "VPSwitchCtrl": the criterion of the V/P switch-over: 0 filled volume, 1 ram
  /// position, 2 injection pressure, 3 a further one over the filled volume. Argument: the value.
  /// False, the value untouched: not in the file.
  bool FlowCTL_ReadVPSwitchCtrl(int& value);
  /// [FlowCTL] "PackingCtrl": a code: which quantity controls packing. Argument: the value. False,
  /// the value untouched: not in the file.
  bool FlowCTL_ReadPackingCtrl(int& value);
  /// [FlowCTL] "MoldTemperature": the mold temperature, in oC. Argument: the value. False, the
  /// value untouched: not in the file.
  bool FlowCTL_ReadMoldTemperature(double& value);
  /// [FlowCTL] "MeltTemperature": the melt temperature, in oC. Argument: the value. False, the
  /// value untouched: not in the file.
  bool FlowCTL_ReadMeltTemperature(double& value);
  /// [FlowCTL] "InjectionTime": the injection time, in sec. Argument: the value. False, the value
  /// untouched: not in the file.
  bool FlowCTL_ReadInjectionTime(double& value);
  /// [FlowCTL] "VolumeFilled": how much is filled when the V/P switch-over comes, for the criteria
  /// 0 and 3. Argument: the value. False, the value untouched: not in the file.
  bool FlowCTL_ReadVolumeFilled(double& value);
  /// [FlowCTL] "RamPosition": the ram position at which the V/P switch-over comes, for criterion 1.
  /// Argument: the value. False, the value untouched: not in the file.
  bool FlowCTL_ReadRamPosition(double& value);
  /// [FlowCTL] "InjectionPressure": the injection pressure at which the V/P switch-over comes, in
  /// MPa, for criterion 2. Argument: the value. False, the value untouched: not in the file.
  bool FlowCTL_ReadInjectionPressure(double& value);
  /// [FlowCTL] "CureSwitch": the switch value at which curing begins, beside the three of
  /// "CureEnter". Argument: the value. False, the value untouched: not in the file.
  bool FlowCTL_ReadCureSwitch(double& value);
  /// [FlowCTL] "CureTempCtrl": a code: what controls the temperature of curing. Argument: the
  /// value. False, the value untouched: not in the file.
  bool FlowCTL_ReadCureTempCtrl(int& value);
  /// [FlowCTL] "CureEnterType": a code: what makes curing begin. Every index addresses the one
  /// entry. Arguments: the value, an index. False, the value untouched: not in the file.
  bool FlowCTL_ReadCureEnterType(int& value, int index);
  /// [FlowCTL] "CureEnterSwch": the switch value at which curing begins. Every index addresses the
  /// one entry. Arguments: the value, an index. False, the value untouched: not in the file.
  bool FlowCTL_ReadCureEnterSwitch(double& value, int index);
  /// [FlowCTL] "CureEnterTime": the time at which curing begins, in sec. Every index addresses the
  /// one entry. Arguments: the value, an index. False, the value untouched: not in the file.
  bool FlowCTL_ReadCureEnterTime(double& value, int index);

  // [Flow-%ld]: the filling stage of an inlet.

  /// [Flow-%ld] "FillTime": the filling time, in sec. Arguments: the value, the inlet. False, the
  /// value untouched: not in the file.
  bool FlowX_ReadFillingTime(double& value, int inlet);
  /// [Flow-%ld] "MaxFillingTime": the limit of the filling time, in sec. Arguments: the value, the
  /// inlet. False, the value untouched: not in the file.
  bool FlowX_ReadMaxFillingTime(double& value, int inlet);
  /// [Flow-%ld] "MeltTemp": the melt temperature, in oC. Arguments: the value, the inlet. False,
  /// the value untouched: not in the file.
  bool FlowX_ReadMeltTemperature(double& value, int inlet);
  /// [Flow-%ld] "MoldTemp": the mold temperature, in oC. Arguments: the value, the inlet. False,
  /// the value untouched: not in the file.
  bool FlowX_ReadMoldTemperature(double& value, int inlet);
  /// [Flow-%ld] "InjectPres": the injection pressure, in MPa. Arguments: the value, the inlet.
  /// False, the value untouched: not in the file.
  bool FlowX_ReadInjectPressure(double& value, int inlet);
  /// [Flow-%ld] "PreFill": the pre-fill, a target of filling: how much of the cavity is full when
  /// filling ends and packing takes over; 100 in the default document. Arguments: the value, the
  /// inlet. False, the value untouched: not in the file.
  bool FlowX_ReadPreFill(double& value, int inlet);
  /// [Flow-%ld] "InjVol": the volume that is injected, in cc. Arguments: the value, the inlet.
  /// False, the value untouched: not in the file.
  bool FlowX_ReadInjectVolume(double& value, int inlet);
  /// [Flow-%ld] "TransTime": the filling time of transfer molding, in sec. Arguments: the value,
  /// the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadTransferTime(double& value, int inlet);
  /// [Flow-%ld] "MaxTransferTime": the limit of the filling time of transfer molding, in sec.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadMaxTransferTime(double& value, int inlet);
  /// [Flow-%ld] "ResnTemp": the resin temperature of transfer molding, in oC. Arguments: the value,
  /// the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadResinTemperature(double& value, int inlet);
  /// [Flow-%ld] "TransPres": the pressure of transfer molding, in MPa. Arguments: the value, the
  /// inlet. False, the value untouched: not in the file.
  bool FlowX_ReadTransferPressure(double& value, int inlet);
  /// [Flow-%ld] "InitConv": how far the resin's curing reaction has gone (its conversion) at the
  /// start of filling. `FlowX_ReadInitConv` and `FlowX_ReadInitConversion` are the same. Arguments:
  /// the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadInitConv(double& value, int inlet);
  /// [Flow-%ld] "InitConv": how far the resin's curing reaction has gone (its conversion) at the
  /// start of filling. `FlowX_ReadInitConv` and `FlowX_ReadInitConversion` are the same. Arguments:
  /// the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadInitConversion(double& value, int inlet);
  /// [Flow-%ld] "MaxFR": the limit of the flow rate, in cc/sec. Arguments: the value, the inlet.
  /// False, the value untouched: not in the file.
  bool FlowX_ReadMaxFR(double& value, int inlet);
  /// [Flow-%ld] "MaxPress": the limit of the pressure, in MPa. Arguments: the value, the inlet.
  /// False, the value untouched: not in the file.
  bool FlowX_ReadMaxPress(double& value, int inlet);
  /// [Flow-%ld] "IsPushBack": 1 where melt is pushed back out of the cavity, else 0. Arguments: the
  /// value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadIsPushBack(int& value, int inlet);
  /// [Flow-%ld] "PushBackEnterTime": the time at which push-back begins, in sec. Arguments: the
  /// value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadPushBackEnterTime(double& value, int inlet);
  /// [Flow-%ld] "PushBackTime": how long push-back lasts, in sec. Arguments: the value, the inlet.
  /// False, the value untouched: not in the file.
  bool FlowX_ReadPushBackTime(double& value, int inlet);
  /// [Flow-%ld] "FRDisplayType": a code: how a front end shows the flow rate profile. Arguments:
  /// the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadFRDisplayType(int& value, int inlet);
  /// [Flow-%ld] "IPDisplayType": a code: how a front end shows the injection pressure profile.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadIPDisplayType(int& value, int inlet);
  /// [Flow-%ld] "TPDisplayType": a code: how a front end shows the transfer pressure profile.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadTPDisplayType(int& value, int inlet);
  /// [Flow-%ld] "FRProfileType": a code: in which form the flow rate profile was entered.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadFRProfileType(int& value, int inlet);
  /// [Flow-%ld] "IPProfileType": a code: in which form the injection pressure profile was entered.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadIPProfileType(int& value, int inlet);
  /// [Flow-%ld] "TPProfileType": a code: in which form the transfer pressure profile was entered.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadTPProfileType(int& value, int inlet);
  /// [Flow-%ld] "FRStrokeMode": a code: whether and how the flow rate profile runs over the ram's
  /// stroke. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadFRStrokeMode(int& value, int inlet);
  /// [Flow-%ld] "IPStrokeMode": a code: whether and how the injection pressure profile runs over
  /// the ram's stroke. Arguments: the value, the inlet. False, the value untouched: not in the
  /// file.
  bool FlowX_ReadIPStrokeMode(int& value, int inlet);
  /// [Flow-%ld] "TPStrokeMode": a code: whether and how the transfer pressure profile runs over the
  /// ram's stroke. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadTPStrokeMode(int& value, int inlet);
  /// [Flow-%ld] "FRSet": the number of points of the flow rate profile. Arguments: the value, the
  /// inlet. False, the value untouched: not in the file.
  bool FlowX_ReadFRSection(int& value, int inlet);
  /// [Flow-%ld] "FR-%d": a point of the flow rate profile: how far filling has gone, and the flow
  /// rate, in cc/sec. Arguments: x, y, the point, the inlet. False, outputs untouched: not in the
  /// file.
  bool FlowX_ReadFRProfile(double& x, double& y, int point, int inlet);
  /// [Flow-%ld] "IPSet": the number of points of the injection pressure profile. Arguments: the
  /// value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadIPSection(int& value, int inlet);
  /// [Flow-%ld] "IP-%d": a point of the injection pressure profile: how far filling has gone, and
  /// the pressure, in MPa. Arguments: x, y, the point, the inlet. False, outputs untouched: not in
  /// the file.
  bool FlowX_ReadIPProfile(double& x, double& y, int point, int inlet);
  /// [Flow-%ld] "TPSet": the number of points of the transfer pressure profile. Arguments: the
  /// value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadTPSection(int& value, int inlet);
  /// [Flow-%ld] "TP-%d": a point of the transfer pressure profile: how far filling has gone, and
  /// the pressure, in MPa. Arguments: x, y, the point, the inlet. False, outputs untouched: not in
  /// the file.
  bool FlowX_ReadTPProfile(double& x, double& y, int point, int inlet);
  /// [Flow-%ld] "UserFRSet": the number of points of the flow rate profile as the user entered it.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadUserFRSection(int& value, int inlet);
  /// [Flow-%ld] "UserFR-%d": a point of the flow rate profile as the user entered it: x and y.
  /// Arguments: x, y, the point, the inlet. False, outputs untouched: not in the file.
  bool FlowX_ReadUserFRProfile(double& x, double& y, int point, int inlet);
  /// [Flow-%ld] "UserIPSet": the number of points of the injection pressure profile as the user
  /// entered it. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadUserIPSection(int& value, int inlet);
  /// [Flow-%ld] "UserIP-%d": a point of the injection pressure profile as the user entered it: x
  /// and y. Arguments: x, y, the point, the inlet. False, outputs untouched: not in the file.
  bool FlowX_ReadUserIPProfile(double& x, double& y, int point, int inlet);
  /// [Flow-%ld] "UserTPSet": the number of points of the transfer pressure profile as the user
  /// entered it. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowX_ReadUserTPSection(int& value, int inlet);
  /// [Flow-%ld] "UserTP-%d": a point of the transfer pressure profile as the user entered it: x and
  /// y. Arguments: x, y, the point, the inlet. False, outputs untouched: not in the file.
  bool FlowX_ReadUserTPProfile(double& x, double& y, int point, int inlet);

  // [Pack-%d]: the packing stage of an inlet.

  /// [Pack-%d] "PackTime": the packing time, in sec. Arguments: the value, the inlet. False, the
  /// value untouched: not in the file.
  bool PackX_ReadPackTime(double& value, int inlet);
  /// [Pack-%d] "PackPres": the packing pressure, in MPa. Arguments: the value, the inlet. False,
  /// the value untouched: not in the file.
  bool PackX_ReadPackPressure(double& value, int inlet);
  /// [Pack-%d] "PackSwch": the switch value at which packing takes over from filling. Arguments:
  /// the value, the inlet. False, the value untouched: not in the file.
  bool PackX_ReadPackSwitch(double& value, int inlet);
  /// [Pack-%d] "IgnoreLimitation": a code: whether the limits of packing are ignored. Arguments:
  /// the value, the inlet. False, the value untouched: not in the file.
  bool PackX_ReadIgnoreLimitation(int& value, int inlet);
  /// [Pack-%d] "MaxEOFRatio": the limit of the packing pressure, as a ratio to the pressure at the
  /// end of filling. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool PackX_ReadMaxEOFRatio(double& value, int inlet);
  /// [Pack-%d] "PPDisplayType": a code: how a front end shows the packing pressure profile.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool PackX_ReadPPDisplayType(int& value, int inlet);
  /// [Pack-%d] "PPProfileType": a code: in which form the packing pressure profile was entered.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool PackX_ReadPPProfileType(int& value, int inlet);
  /// [Pack-%d] "PPSet": the number of points of the packing pressure profile. Arguments: the value,
  /// the inlet. False, the value untouched: not in the file.
  bool PackX_ReadPPSection(int& value, int inlet);
  /// [Pack-%d] "PP-%d": a point of the packing pressure profile: the time in the stage, and the
  /// pressure, in MPa. Arguments: x, y, the point, the inlet. False, outputs untouched: not in the
  /// file.
  bool PackX_ReadPPProfile(double& x, double& y, int point, int inlet);
  /// [Pack-%d] "UserPPSet": the number of points of the packing pressure profile as the user
  /// entered it. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool PackX_ReadUserPPSection(int& value, int inlet);
  /// [Pack-%d] "UserPP-%d": a point of the packing pressure profile as the user entered it: x and
  /// y. Arguments: x, y, the point, the inlet. False, outputs untouched: not in the file.
  bool PackX_ReadUserPPProfile(double& x, double& y, int point, int inlet);

  // [Cure-%d]: the curing stage of an inlet.

  /// [Cure-%d] "CureTime": the curing time, in sec. Arguments: the value, the inlet. False, the
  /// value untouched: not in the file.
  bool CureX_ReadCureTime(double& value, int inlet);
  /// [Cure-%d] "CurePres": the curing pressure, in MPa. Arguments: the value, the inlet. False, the
  /// value untouched: not in the file.
  bool CureX_ReadCurePressure(double& value, int inlet);
  /// [Cure-%d] "CureTemp": the curing temperature, in oC. Arguments: the value, the inlet. False,
  /// the value untouched: not in the file.
  bool CureX_ReadCureTemperature(double& value, int inlet);
  /// [Cure-%d] "CureSwch": the switch value at which curing takes over from packing. Arguments: the
  /// value, the inlet. False, the value untouched: not in the file.
  bool CureX_ReadCureSwitch(double& value, int inlet);
  /// [Cure-%d] "CPDisplayType": a code: how a front end shows the curing pressure profile.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool CureX_ReadCPDisplayType(int& value, int inlet);
  /// [Cure-%d] "PPProfileType": a code: in which form the curing pressure profile was entered; the
  /// key is the packing stage's. Arguments: the value, the inlet. False, the value untouched: not
  /// in the file.
  bool CureX_ReadCPProfileType(int& value, int inlet);
  /// [Cure-%d] "CPSet": the number of points of the curing pressure profile. Arguments: the value,
  /// the inlet. False, the value untouched: not in the file.
  bool CureX_ReadCPSection(int& value, int inlet);
  /// [Cure-%d] "CP-%d": a point of the curing pressure profile: the time in the stage, and the
  /// pressure, in MPa. Arguments: x, y, the point, the inlet. False, outputs untouched: not in the
  /// file.
  bool CureX_ReadCPProfile(double& x, double& y, int point, int inlet);
  /// [Cure-%d] "UserCPSet": the number of points of the curing pressure profile as the user entered
  /// it. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool CureX_ReadUserCPSection(int& value, int inlet);
  /// [Cure-%d] "UserCP-%d": a point of the curing pressure profile as the user entered it: x and y.
  /// Arguments: x, y, the point, the inlet. False, outputs untouched: not in the file.
  bool CureX_ReadUserCPProfile(double& x, double& y, int point, int inlet);
  /// [Cure-%d] "CTDisplayType": a code: how a front end shows the curing temperature profile.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool CureX_ReadCTDisplayType(int& value, int inlet);
  /// [Cure-%d] "CTProfileType": a code: in which form the curing temperature profile was entered.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool CureX_ReadCTProfileType(int& value, int inlet);
  /// [Cure-%d] "CTSet": the number of points of the curing temperature profile. Arguments: the
  /// value, the inlet. False, the value untouched: not in the file.
  bool CureX_ReadCTSection(int& value, int inlet);
  /// [Cure-%d] "CT-%d": a point of the curing temperature profile: the time in the stage, and the
  /// temperature, in oC. Arguments: x, y, the point, the inlet. False, outputs untouched: not in
  /// the file.
  bool CureX_ReadCTProfile(double& x, double& y, int point, int inlet);
  /// [Cure-%d] "UserCTSet": the number of points of the curing temperature profile as the user
  /// entered it. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool CureX_ReadUserCTSection(int& value, int inlet);
  /// [Cure-%d] "UserCT-%d": a point of the curing temperature profile as the user entered it: x and
  /// y. Arguments: x, y, the point, the inlet. False, outputs untouched: not in the file.
  bool CureX_ReadUserCTProfile(double& x, double& y, int point, int inlet);

  // [Cool]: cycle times, temperatures and the kind of cooling.

  /// [Cool] "CoolTime": the cooling time, in sec. Argument: the value. False, the value untouched:
  /// not in the file.
  bool Cool_ReadCoolTime(double& value);
  /// [Cool] "OpenTime": how long the mold is open between two shots, in sec. Argument: the value.
  /// False, the value untouched: not in the file.
  bool Cool_ReadMoldOpenTime(double& value);
  /// [Cool] "EjectTemp": the temperature at which the part is ejected, in oC. Argument: the value.
  /// False, the value untouched: not in the file.
  bool Cool_ReadEjectTemperature(double& value);
  /// [Cool] "AirTemp": the temperature of the air around the mold, in oC. Argument: the value.
  /// False, the value untouched: not in the file.
  bool Cool_ReadAirTemperature(double& value);
  /// [Cool] "InitialMoldbaseTemperature": the mold base's initial temperature, in oC. Argument: the
  /// value. False, the value untouched: not in the file.
  bool Cool_ReadInitMoldTemperature(double& value);
  /// [Cool] "CoolantTemp": the coolant temperature, in oC. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Cool_ReadCoolantTemperature(double& value);
  /// [Cool] "CoolantFR": the coolant flow rate, in cc/sec. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Cool_ReadCoolantFlowRate(double& value);
  /// [Cool] "CoolingType": a code of the kind of cooling. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Cool_ReadCoolingType(int& value);
  /// [Cool] "ControlType": what cooling channels are controlled by: 1 pressure, otherwise flow
  /// rate. Argument: the value. False, the value untouched: not in the file.
  bool Cool_ReadControlType(int& value);

  // [CoolCTL]: the coolant at each entrance.

  /// [CoolCTL] "T-%d": the coolant temperature at an entrance, in oC. Arguments: the value, the
  /// entrance. False, the value untouched: not in the file.
  bool CoolCTL_ReadCoolantTemperature(double& value, int entrance);
  /// [CoolCTL] "F-%d": the coolant flow rate at an entrance, in cc/sec. Arguments: the value, the
  /// entrance. False, the value untouched: not in the file.
  bool CoolCTL_ReadCoolantFlowRate(double& value, int entrance);
  /// [CoolCTL] "P-%d": the coolant pressure at an entrance, in MPa. Arguments: the value, the
  /// entrance. False, the value untouched: not in the file.
  bool CoolCTL_ReadCoolantPressure(double& value, int entrance);
  /// [CoolCTL] "M-%d": the coolant system of an entrance. Arguments: the value, the entrance.
  /// False, the value untouched: not in the file.
  bool CoolCTL_ReadCoolantSystem(int& value, int entrance);

  // [Coolant]: the coolants, one line each.

  /// [Coolant] "%d": a coolant: density (g/cm^3), specific heat (erg/(g K)), thermal conductivity
  /// (erg/(s cm K)), viscosity (poise), coolant system, name (one word), channel diameter, channel
  /// group. What the text lacks is 0, the name null. Arguments: the four properties, the coolant
  /// system, the name, the diameter, the channel group, the coolant. The name is valid until the
  /// next read of its kind. False, outputs untouched: not in the file.
  bool Coolant_ReadCoolant(
      double& p1, double& p2, double& p3, double& p4, int& system, char*& name, double& f7, int& f8,
      int coolant);

  // [CoolChannel-%d]: a cooling channel.

  /// [CoolChannel-%d] "Diameter": the diameter of the channel. Arguments: the value, the channel.
  /// False, the value untouched: not in the file.
  bool CoolChannelX_ReadDiameter(double& value, int channel);
  /// [CoolChannel-%d] "GroupID": the group that the channel belongs to. Arguments: the value, the
  /// channel. False, the value untouched: not in the file.
  bool CoolChannelX_ReadGroupID(int& value, int channel);
  /// [CoolChannel-%d] "TimeSet": the number of control points of the channel. Arguments: the value,
  /// the channel. False, the value untouched: not in the file.
  bool CoolChannelX_ReadTimeSection(int& value, int channel);
  /// [CoolChannel-%d] "TCPP-%d": a control point by pressure: a real, the coolant system, the
  /// temperature, the pressure, an integer. What the text lacks is 0. Arguments: the real, the
  /// coolant system, the temperature, the flow rate or pressure, the integer, the point, the
  /// channel. False, outputs untouched: not in the file.
  bool CoolChannelX_ReadPressureControlPointSetting(
      double& f1, int& system, double& temperature, double& flow, int& f5, int point, int channel);

  // [VarCoolCTL]: variable cooling.

  /// [VarCoolCTL] "CoolantNo": the number of entries of variable cooling. Argument: the value.
  /// False, the value untouched: not in the file.
  bool VarCoolCTL_ReadCoolantCount(int& value);
  /// [VarCoolCTL] "Coolant-%d": an entry of variable cooling: four reals and an integer. What the
  /// text lacks is 0. Arguments: four reals, the integer, the entry. False, outputs untouched: not
  /// in the file.
  bool VarCoolCTL_ReadCoolant(double& f1, double& f2, double& f3, double& f4, int& f5, int entry);

  // [GateCTL]: when each gate is open.

  /// [GateCTL] "AutoShutOffValveGateEOP": 1 where valve gates shut at the end of packing. Argument:
  /// the value. False, the value untouched: not in the file.
  bool GateCTL_ReadAutoShutOffValveGateEOP(int& value);
  /// [GateCTL] "ST-%d": the start time of a gate, when it opens, in sec. Arguments: the value, the
  /// gate. False, the value untouched: not in the file.
  bool GateCTL_ReadStartTime(double& value, int gate);
  /// [GateCTL] "ET-%d": the end time of a gate, when it closes, in sec. Arguments: the value, the
  /// gate. False, the value untouched: not in the file.
  bool GateCTL_ReadEndTime(double& value, int gate);

  // [GateValve-%d]: a valve gate.

  /// [GateValve-%d] "GCId": the identifier of the valve gate. Arguments: the value, the valve.
  /// False, the value untouched: not in the file.
  bool GeteValveX_ReadValveGateID(int& value, int valve);
  /// [GateValve-%d] "GCSet": the number of control points of the valve gate. Arguments: the value,
  /// the valve. False, the value untouched: not in the file.
  bool GateValveX_ReadControlPoint(int& value, int valve);
  /// [GateValve-%d] "GC-%d": a control point: the switching value, an integer, the mode (1 to 4),
  /// and for modes 2 and 3 an integer. For modes 1 and 4 the last integer is -1. What the text
  /// lacks is 0. Arguments: the value, the integer, the mode, the last integer, the point, the
  /// valve. False, outputs untouched: not in the file.
  bool GateValveX_ReadGateSetting(
      double& value, int& number, int& mode, int& last, int point, int valve);
  /// [GateValve-%d] "GC-%d": a control point without its last integer. What the text lacks is 0.
  /// Arguments: the value, the integer, the mode, the point, the valve. False, outputs untouched:
  /// not in the file.
  bool GateValveX_ReadGateSetting(double& value, int& number, int& mode, int point, int valve);

  // [Machine]: the injection molding machine.

  /// [Machine] "Maker": the maker of the machine. Argument: the text. The text is valid until the
  /// thread's next read. False, the text untouched: not in the file.
  bool Machine_ReadMaker(char*& text);
  /// [Machine] "Grade": the grade of the machine: its model. Argument: the text. The text is valid
  /// until the thread's next read. False, the text untouched: not in the file.
  bool Machine_ReadGrade(char*& text);
  /// [Machine] "LastModifiedDate": when the data of the machine were last changed. Argument: the
  /// text. The text is valid until the thread's next read. False, the text untouched: not in the
  /// file.
  bool Machine_ReadLastModifiedDate(char*& text);
  /// [Machine] "Remark": a remark about the machine. Argument: the text. The text is valid until
  /// the thread's next read. False, the text untouched: not in the file.
  bool Machine_ReadRemark(char*& text);
  /// [Machine] "Diameter": the diameter of the screw. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Machine_ReadDiameter(double& value);
  /// [Machine] "MaxRamPos": the farthest position of the ram. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Machine_ReadMaxRamPos(double& value);
  /// [Machine] "ShotVolume": the largest volume of a shot. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Machine_ReadShotVolume(double& value);
  /// [Machine] "Weight": the largest weight of a shot. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Machine_ReadShotWeight(double& value);
  /// [Machine] "MaxMachinePres": the highest injection pressure of the machine. Argument: the
  /// value. False, the value untouched: not in the file.
  bool Machine_ReadInjectionPressure(double& value);
  /// [Machine] "HoldingPressure": the highest holding pressure of the machine. Argument: the value.
  /// False, the value untouched: not in the file.
  bool Machine_ReadHoldingPressure(double& value);
  /// [Machine] "InjectionSpeed": the highest injection speed of the machine. Argument: the value.
  /// False, the value untouched: not in the file.
  bool Machine_ReadInjectionSpeed(double& value);
  /// [Machine] "FR": the highest flow rate of the machine. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Machine_ReadFlowRate(double& value);
  /// [Machine] "PlasticationRate": how much material the screw melts in a unit of time. Argument:
  /// the value. False, the value untouched: not in the file.
  bool Machine_ReadPlasticationRate(double& value);
  /// [Machine] "ScrewSpeed": the highest speed of the screw's rotation. Argument: the value. False,
  /// the value untouched: not in the file.
  bool Machine_ReadScrewSpeed(double& value);
  /// [Machine] "NozzleContactForce": the force with which the nozzle is held against the mold.
  /// Argument: the value. False, the value untouched: not in the file.
  bool Machine_ReadNozzleContactForce(double& value);
  /// [Machine] "NozzleStroke": how far the nozzle can be moved. Argument: the value. False, the
  /// value untouched: not in the file.
  bool Machine_ReadNozzleStroke(double& value);
  /// [Machine] "HeaterWattage": the power of the barrel's heaters. Argument: the value. False, the
  /// value untouched: not in the file.
  bool Machine_ReadHeaterWattage(double& value);
  /// [Machine] "TemperatureControlZones": the number of temperature control zones, or a sum such as
  /// 4+2. A sum is added up: 4+2 reads as 6. Argument: the value. False, the value untouched: not
  /// in the file.
  bool Machine_ReadTemperatureControlZones(int& value);
  /// [Machine] "Size": the clamp force of the machine. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Machine_ReadClampForce(double& value);
  /// [Machine] "OpeningStroke": how far the clamp can open. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Machine_ReadOpeningStroke(double& value);
  /// [Machine] "MaxDaylight": the largest distance between the platens (daylight). Argument: the
  /// value. False, the value untouched: not in the file.
  bool Machine_ReadMaxDaylight(double& value);
  /// [Machine] "MoldHeight": the mold height that the machine takes. Argument: the value. False,
  /// the value untouched: not in the file.
  bool Machine_ReadMoldHeight(double& value);
  /// [Machine] "DistanceBetweenTieBars(HxV)": the distance between the tie bars, as text. Argument:
  /// the text. The text is valid until the thread's next read. False, the text untouched: not in
  /// the file.
  bool Machine_ReadDistanceBetweenTieBars(char*& text);
  /// [Machine] "DistanceBetweenTieBars(HxV)": the distance between the tie bars: horizontal,
  /// vertical. What the text lacks is 0. Any one character may stand between the sizes. Arguments:
  /// the horizontal size, the vertical size. False, outputs untouched: not in the file.
  bool Machine_ReadDistanceBetweenTieBars(double& first, double& second);
  /// [Machine] "PlatenSize(HxV)": the size of the platen, as text. Argument: the text. The text is
  /// valid until the thread's next read. False, the text untouched: not in the file.
  bool Machine_ReadPlatenSize(char*& text);
  /// [Machine] "PlatenSize(HxV)": the size of the platen: horizontal, vertical. What the text lacks
  /// is 0. Any one character may stand between the sizes. Arguments: the horizontal size, the
  /// vertical size. False, outputs untouched: not in the file.
  bool Machine_ReadPlatenSize(double& first, double& second);
  /// [Machine] "EjectorPoint": the number of ejector points. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Machine_ReadEjectorPoint(int& value);
  /// [Machine] "EjectorForce": the force of the ejector. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Machine_ReadEjectorForce(double& value);
  /// [Machine] "EjectorStroke": how far the ejector can be moved. Argument: the value. False, the
  /// value untouched: not in the file.
  bool Machine_ReadEjectorStroke(double& value);
  /// [Machine] "MachineWeight": the weight of the machine. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Machine_ReadMachineWeight(double& value);
  /// [Machine] "MachineDimension(LxWxH)": the size of the machine, as text. Argument: the text. The
  /// text is valid until the thread's next read. False, the text untouched: not in the file.
  bool Machine_ReadMachineDimension(char*& text);
  /// [Machine] "MachineDimension(LxWxH)": the size of the machine: length, width, height. What the
  /// text lacks is 0. Any one character may stand between the sizes. Arguments: the length, the
  /// width, the height. False, outputs untouched: not in the file.
  bool Machine_ReadMachineDimension(double& length, double& width, double& height);
  /// [Machine] "BarrelCompressionCtrl": a code: whether and how the compression of the melt in the
  /// barrel counts. Argument: the value. False, the value untouched: not in the file.
  bool Machine_ReadBarrelCompressionCtrl(int& value);

  // [Project]: the mesh and material files and the volumes of the project.

  /// [Project] "Mesh": the mesh file. Argument: the text. The text is valid until the thread's next
  /// read. False, the text untouched: not in the file.
  bool Project_ReadMesh(char*& text);
  /// [Project] "Material": the material file. Argument: the text. The text is valid until the
  /// thread's next read. False, the text untouched: not in the file.
  bool Project_ReadMaterial(char*& text);
  /// [Project] "MeshID": the identifier of the mesh. Argument: the text. The text is valid until
  /// the thread's next read. False, the text untouched: not in the file.
  bool Project_ReadMeshID(char*& text);
  /// [Project] "CavVol": the volume of the cavity, in cc. Argument: the value. False, the value
  /// untouched: not in the file.
  bool Project_ReadCavityVolume(double& value);
  /// [Project] "CushionVol": the volume of the melt cushion that stays before the screw, in cc.
  /// Argument: the value. False, the value untouched: not in the file.
  bool Project_ReadCushionVolume(double& value);
  /// [Project] "ClampFaceArea": the projected area that the clamp holds shut. Argument: the value.
  /// False, the value untouched: not in the file.
  bool Project_ReadClampFaceArea(double& value);

  // [RamPosition]: profiles over the stroke of the ram, and the switch-over from velocity to
  // pressure control (V/P) by ram position.

  /// [RamPosition] "RamDir": a code: in which direction ram positions count. Argument: the value.
  /// False, the value untouched: not in the file.
  bool RamPosition_ReadRamDirection(int& value);
  /// [RamPosition] "IsVPswitch": 1 where the V/P switch-over is by ram position, else 0. Argument:
  /// the value. False, the value untouched: not in the file.
  bool RamPosition_ReadIsVPSwitch(int& value);
  /// [RamPosition] "VPswitchRam": the ram position at which the V/P switch-over comes. Argument:
  /// the value. False, the value untouched: not in the file.
  bool RamPosition_ReadVPSwitchRamPosition(double& value);
  /// [RamPosition] "SuckBack": how far the screw is pulled back after plastication, to relieve the
  /// melt (suck-back). Argument: the value. False, the value untouched: not in the file.
  bool RamPosition_ReadSuckBack(double& value);
  /// [RamPosition] "RP_FRSet": the number of points of the flow rate profile. Argument: the value.
  /// False, the value untouched: not in the file.
  bool RamPosition_ReadRamFRSection(int& value);
  /// [RamPosition] "RP_FR-%d": a point of the flow rate profile: the ram position, and the flow
  /// rate, in cc/sec. Arguments: x, y, the point. False, outputs untouched: not in the file.
  bool RamPosition_ReadRamFRProfile(double& x, double& y, int point);
  /// [RamPosition] "RP_FR-%d": the ram position of a flow rate point alone. Arguments: the value,
  /// the point. False, the value untouched: not in the file.
  bool RamPosition_ReadRamFRProfile(double& value, int point);
  /// [RamPosition] "RP_IPSet": the number of points of the injection pressure profile. Argument:
  /// the value. False, the value untouched: not in the file.
  bool RamPosition_ReadRamIPSection(int& value);
  /// [RamPosition] "RP_IP-%d": a point of the injection pressure profile: the ram position, and the
  /// pressure, in MPa. Arguments: x, y, the point. False, outputs untouched: not in the file.
  bool RamPosition_ReadRamIPProfile(double& x, double& y, int point);
  /// [RamPosition] "RP_IP-%d": the ram position of an injection pressure point alone. Arguments:
  /// the value, the point. False, the value untouched: not in the file.
  bool RamPosition_ReadRamIPProfile(double& value, int point);

  // [Moldbase]: the mold bases, one material line each.

  /// [Moldbase] "%d": a mold base: three thermal values, its name, which may hold blanks, three
  /// mechanical values. A line of fewer than eight words has a name of one word. What the text
  /// lacks is 0. Arguments: three reals, the name, three reals, the row. The name is valid until
  /// the next read of its kind. False, outputs untouched: not in the file.
  bool Moldbase_ReadMoldbase(
      double& f1, double& f2, double& f3, char*& name, double& f5, double& f6, double& f7, int row);

  // [MoldMetalMaterial]: the mold metals, one material line each.

  /// [MoldMetalMaterial] "%d": a mold metal: three thermal values, its name, which may hold blanks,
  /// three mechanical values. A line of fewer than eight words has a name of one word. What the
  /// text lacks is 0. Arguments: three reals, the name, three reals, the row. The name is valid
  /// until the next read of its kind. False, outputs untouched: not in the file.
  bool MoldMetalMaterial_ReadMaterial(
      double& f1, double& f2, double& f3, char*& name, double& f5, double& f6, double& f7, int row);

  // [MoldTemperatureBC-%d]: a mold temperature boundary condition.

  /// [MoldTemperatureBC-%d] "BCName": the name of the boundary condition. From now on this reader
  /// finds no positional line (`MoldTemperatureBCX_ReadBC`, `MoldTemperatureBCX_ReadBCSetting`):
  /// read those first, or through a reader of their own. Arguments: the text, the condition. The
  /// text is valid until the thread's next read. False, the text untouched: not in the file.
  bool MoldTemperatureBCX_ReadName(char*& text, int bc);
  /// [MoldTemperatureBC-%d] "BCDisplayType": a code: how a front end shows the boundary condition.
  /// From now on this reader finds no positional line (`MoldTemperatureBCX_ReadBC`,
  /// `MoldTemperatureBCX_ReadBCSetting`): read those first, or through a reader of their own.
  /// Arguments: the value, the condition. False, the value untouched: not in the file.
  bool MoldTemperatureBCX_ReadDisplayType(int& value, int bc);
  /// [MoldTemperatureBC-%d] "BCNodeCount": the number of mesh nodes of the boundary condition. From
  /// now on this reader finds no positional line (`MoldTemperatureBCX_ReadBC`,
  /// `MoldTemperatureBCX_ReadBCSetting`): read those first, or through a reader of their own.
  /// Arguments: the value, the condition. False, the value untouched: not in the file.
  bool MoldTemperatureBCX_ReadNodeCount(int& value, int bc);
  /// [MoldTemperatureBC-%d] "BC-%d": a point of the boundary condition's profile: the time, and the
  /// temperature, in oC. From now on this reader finds no positional line
  /// (`MoldTemperatureBCX_ReadBC`, `MoldTemperatureBCX_ReadBCSetting`): read those first, or
  /// through a reader of their own. Arguments: x, y, the point, the condition. False, outputs
  /// untouched: not in the file.
  bool MoldTemperatureBCX_ReadBCProfile(double& x, double& y, int point, int bc);

  // [GasF-%d]: gas-assisted filling at a gas inlet.

  /// [GasF-%d] "GasTime": how long gas is injected, in sec. Arguments: the value, the inlet. False,
  /// the value untouched: not in the file.
  bool GasFX_ReadGasTime(double& value, int inlet);
  /// [GasF-%d] "GasPres": the pressure of the gas, in MPa. Arguments: the value, the inlet. False,
  /// the value untouched: not in the file.
  bool GasFX_ReadGasPressure(double& value, int inlet);
  /// [GasF-%d] "GasSwch": the switch value at which the injection of gas begins. Arguments: the
  /// value, the inlet. False, the value untouched: not in the file.
  bool GasFX_ReadGasSwitch(double& value, int inlet);
  /// [GasF-%d] "DelayTime": how long the injection of gas waits, in sec. Arguments: the value, the
  /// inlet. False, the value untouched: not in the file.
  bool GasFX_ReadDelayTime(double& value, int inlet);
  /// [GasF-%d] "GRDisplayType": a code: how a front end shows the gas flow rate profile. Arguments:
  /// the value, the inlet. False, the value untouched: not in the file.
  bool GasFX_ReadGRDisplayType(int& value, int inlet);
  /// [GasF-%d] "GRProfileType": a code: in which form the gas flow rate profile was entered.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool GasFX_ReadGRProfileType(int& value, int inlet);
  /// [GasF-%d] "GPDisplayType": a code: how a front end shows the gas pressure profile. Arguments:
  /// the value, the inlet. False, the value untouched: not in the file.
  bool GasFX_ReadGPDisplayType(int& value, int inlet);
  /// [GasF-%d] "GPProfileType": a code: in which form the gas pressure profile was entered.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool GasFX_ReadGPProfileType(int& value, int inlet);
  /// [GasF-%d] "GRSet": the number of points of the gas flow rate profile. In spite of its name
  /// `GasFX_ReadUserGRSection` reads this key, too: what the user entered is read with
  /// `ReadString`. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool GasFX_ReadGRSection(int& value, int inlet);
  /// [GasF-%d] "GRSet": the number of points of the gas flow rate profile. In spite of its name
  /// `GasFX_ReadUserGRSection` reads this key, too: what the user entered is read with
  /// `ReadString`. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool GasFX_ReadUserGRSection(int& value, int inlet);
  /// [GasF-%d] "GR-%d": a point of the gas flow rate profile: the time in the stage, and the flow
  /// rate. In spite of its name `GasFX_ReadUserGRProfile` reads this key, too: what the user
  /// entered is read with `ReadString`. Arguments: x, y, the point, the inlet. False, outputs
  /// untouched: not in the file.
  bool GasFX_ReadGRProfile(double& x, double& y, int point, int inlet);
  /// [GasF-%d] "GR-%d": a point of the gas flow rate profile: the time in the stage, and the flow
  /// rate. In spite of its name `GasFX_ReadUserGRProfile` reads this key, too: what the user
  /// entered is read with `ReadString`. Arguments: x, y, the point, the inlet. False, outputs
  /// untouched: not in the file.
  bool GasFX_ReadUserGRProfile(double& x, double& y, int point, int inlet);
  /// [GasF-%d] "GPSet": the number of points of the gas pressure profile. In spite of its name
  /// `GasFX_ReadUserGPSection` reads this key, too: what the user entered is read with
  /// `ReadString`. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool GasFX_ReadGPSection(int& value, int inlet);
  /// [GasF-%d] "GPSet": the number of points of the gas pressure profile. In spite of its name
  /// `GasFX_ReadUserGPSection` reads this key, too: what the user entered is read with
  /// `ReadString`. Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool GasFX_ReadUserGPSection(int& value, int inlet);
  /// [GasF-%d] "GP-%d": a point of the gas pressure profile: the time in the stage, and the
  /// pressure, in MPa. In spite of its name `GasFX_ReadUserGPProfile` reads this key, too: what the
  /// user entered is read with `ReadString`. Arguments: x, y, the point, the inlet. False, outputs
  /// untouched: not in the file.
  bool GasFX_ReadGPProfile(double& x, double& y, int point, int inlet);
  /// [GasF-%d] "GP-%d": a point of the gas pressure profile: the time in the stage, and the
  /// pressure, in MPa. In spite of its name `GasFX_ReadUserGPProfile` reads this key, too: what the
  /// user entered is read with `ReadString`. Arguments: x, y, the point, the inlet. False, outputs
  /// untouched: not in the file.
  bool GasFX_ReadUserGPProfile(double& x, double& y, int point, int inlet);

  // [AdvancedSetting]: the mold's opening direction, the clamp force and the cycle time.

  /// [AdvancedSetting] "OpenDirection": the direction in which the mold opens: the x, y and z of a
  /// vector. Arguments: x, y, z. False, outputs untouched: not in the file.
  bool AdvancedSetting_ReadOpenDirection(double& x, double& y, double& z);
  /// [AdvancedSetting] "ClampForce": the force that holds the mold shut. Argument: the value.
  /// False, the value untouched: not in the file.
  bool AdvancedSetting_ReadClampForce(double& value);

  // [TransientInletConv]: pellet pre-heating and initial conversion, where the conversion at the
  // inlet changes with time.

  /// [TransientInletConv] "InitConversionType": a code: how the initial conversion is given.
  /// Argument: the value. False, the value untouched: not in the file.
  bool TransientInletConv_ReadInitConversionType(int& value);
  /// [TransientInletConv] "InitPelletConv": how far the pellet's curing reaction has gone (its
  /// conversion) before pre-heating. Argument: the value. False, the value untouched: not in the
  /// file.
  bool TransientInletConv_ReadInitPelletConversion(double& value);
  /// [TransientInletConv] "PelletDiameter": the diameter of the pellet. Argument: the value. False,
  /// the value untouched: not in the file.
  bool TransientInletConv_ReadPelletDiameter(double& value);
  /// [TransientInletConv] "PelletHeight": the height of the pellet. Argument: the value. False, the
  /// value untouched: not in the file.
  bool TransientInletConv_ReadPelletHeight(double& value);
  /// [TransientInletConv] "PreHeatTime": how long the pellet is pre-heated, in sec. Argument: the
  /// value. False, the value untouched: not in the file.
  bool TransientInletConv_ReadPreHeatTime(double& value);

  // [MoldThermalBoundaryType]: the heat transfer between melt and mold.

  /// [MoldThermalBoundaryType] "Type": a code: how the heat transfer between melt and mold is
  /// given. Argument: the value. False, the value untouched: not in the file.
  bool MoldTemperatureBoundaryType_ReadHTCType(int& value);
  /// [MoldThermalBoundaryType] "Flow": the heat transfer coefficient in filling, with a note such
  /// as its unit. The note is passed over. Argument: the value. False, the value untouched: not in
  /// the file.
  bool MoldTemperatureBoundaryType_ReadHTCFlow(double& value);
  /// [MoldThermalBoundaryType] "Pack": the heat transfer coefficient in packing, with a note such
  /// as its unit. The note is passed over. Argument: the value. False, the value untouched: not in
  /// the file.
  bool MoldTemperatureBoundaryType_ReadHTCPack(double& value);
  /// [MoldThermalBoundaryType] "Detached_HTC": the heat transfer coefficient where the part has
  /// come off the mold, with a note such as its unit. The note is passed over. Argument: the value.
  /// False, the value untouched: not in the file.
  bool MoldTemperatureBoundaryType_ReadHTCDetached(double& value);
  /// [MoldThermalBoundaryType] "HotRunner_HTC": the heat transfer coefficient in the hot runner,
  /// with a note such as its unit. The note is passed over. Argument: the value. False, the value
  /// untouched: not in the file.
  bool MoldTemperatureBoundaryType_ReadHTCHotRunner(double& value);

  // [ICPackage]: pellet pre-heating and initial conversion of IC package encapsulation.

  /// [ICPackage] "InitConversionType": a code: how the initial conversion is given. Argument: the
  /// value. False, the value untouched: not in the file.
  bool ICPackage_ReadInitConversionType(int& value);
  /// [ICPackage] "InitConversion": how far the pellet's curing reaction has gone (its conversion)
  /// before pre-heating. Argument: the value. False, the value untouched: not in the file.
  bool ICPackage_ReadInitPelletConversion(double& value);
  /// [ICPackage] "PelletDiameter": the diameter of the pellet. Argument: the value. False, the
  /// value untouched: not in the file.
  bool ICPackage_ReadPelletDiameter(double& value);
  /// [ICPackage] "PelletHeight": the height of the pellet. Argument: the value. False, the value
  /// untouched: not in the file.
  bool ICPackage_ReadPelletHeight(double& value);
  /// [ICPackage] "PreHeatingTime": how long the pellet is pre-heated, in sec. Argument: the value.
  /// False, the value untouched: not in the file.
  bool ICPackage_ReadPreHeatTime(double& value);

  // [PartingSurface]: the cavity and core sides.

  /// [PartingSurface] "CavityPart": the part on the cavity side: an integer and three reals. What
  /// the text lacks is 0. Arguments: the integer, three reals. False, outputs untouched: not in the
  /// file.
  bool PartingSurface_ReadCavityPart(int& number, double& f2, double& f3, double& f4);
  /// [PartingSurface] "CavityMoldbase": the mold base on the cavity side: an integer and three
  /// reals. What the text lacks is 0. Arguments: the integer, three reals. False, outputs
  /// untouched: not in the file.
  bool PartingSurface_ReadCavityMoldbase(int& number, double& f2, double& f3, double& f4);
  /// [PartingSurface] "CorePart": the part on the core side: an integer and three reals. What the
  /// text lacks is 0. Arguments: the integer, three reals. False, outputs untouched: not in the
  /// file.
  bool PartingSurface_ReadCorePart(int& number, double& f2, double& f3, double& f4);
  /// [PartingSurface] "CoreMoldbase": the mold base on the core side: an integer and three reals.
  /// What the text lacks is 0. Arguments: the integer, three reals. False, outputs untouched: not
  /// in the file.
  bool PartingSurface_ReadCoreMoldbase(int& number, double& f2, double& f3, double& f4);

  // [EjectCriteria]: the sensor and criteria nodes that decide ejection.

  /// [EjectCriteria] "TotalSensorNode": the number of sensor nodes. Argument: the value. False, the
  /// value untouched: not in the file.
  bool EjectCriteria_ReadTotalSensorNode(int& value);
  /// [EjectCriteria] "SensorNode-%d": the mesh node of a sensor. Arguments: the value, the sensor.
  /// False, the value untouched: not in the file.
  bool EjectCriteria_ReadSensorNode(int& value, int sensor);
  /// [EjectCriteria] "TotalCriteriaNode": the number of criteria nodes. Argument: the value. False,
  /// the value untouched: not in the file.
  bool EjectCriteria_ReadTotalCriteriaNode(int& value);
  /// [EjectCriteria] "CriteriaNode-%d": the mesh node of a criterion, and the criterion's value.
  /// Arguments: the node, the value, the criterion. False, outputs untouched: not in the file.
  bool EjectCriteria_ReadCriteriaNode(int& node, double& value, int criterion);

  // [PartInsertInitialTemperature]: the initial temperature of each part insert.

  /// [PartInsertInitialTemperature] "TotalPartInsert": the number of part inserts. Argument: the
  /// value. False, the value untouched: not in the file.
  bool PartInsertInitialTemperature_ReadTotalPartInsert(int& value);
  /// [PartInsertInitialTemperature] "PartInsert-%d": a part insert: its identifier, its name, its
  /// initial temperature, in oC. Of a name with blanks it hands out the first word, and the
  /// temperature is 0. A name that is empty between two tabs is an empty text. What the text lacks
  /// is 0. Arguments: the identifier, the name, the temperature, the insert. The name is valid
  /// until the next read of its kind. False, outputs untouched: not in the file.
  bool PartInsertInitialTemperature_ReadPartInsert(
      int& id, char*& name, double& temperature, int insert);
  /// [PartInsertInitialTemperature] "PartInsert-%d": a part insert: its identifier, its name, which
  /// may hold blanks, its initial temperature, in oC, and an integer. Four pieces between tabs are
  /// the four fields, whatever is empty; three of which the second is empty and the third a number
  /// leave out the fourth, which is `insert` then. Otherwise a last word that is an integer not
  /// above `insert` is the fourth field, and one above it the temperature; the fourth is `insert`
  /// then. What the text lacks is 0. Arguments: the identifier, the name, the temperature, the
  /// fourth field, the insert. The name is valid until the next read of its kind. False, outputs
  /// untouched: not in the file.
  bool PartInsertInitialTemperature_ReadPartInsert(
      int& id, char*& name, double& temperature, int& fourth, int insert);

  // [MoldInsertInitialTemperature]: the initial temperature of each mold insert.

  /// [MoldInsertInitialTemperature] "TotalMoldInsert": the number of mold inserts. Argument: the
  /// value. False, the value untouched: not in the file.
  bool MoldInsertInitialTemperature_ReadTotalMoldInsert(int& value);
  /// [MoldInsertInitialTemperature] "MoldInsert-%d": a mold insert: its identifier, its name, its
  /// initial temperature, in oC. Of a name with blanks it hands out the first word, and the
  /// temperature is 0. A name that is empty between two tabs is an empty text. What the text lacks
  /// is 0. Arguments: the identifier, the name, the temperature, the insert. The name is valid
  /// until the next read of its kind. False, outputs untouched: not in the file.
  bool MoldInsertInitialTemperature_ReadMoldInsert(
      int& id, char*& name, double& temperature, int insert);
  /// [MoldInsertInitialTemperature] "MoldInsert-%d": a mold insert: its identifier, its name, which
  /// may hold blanks, its initial temperature, in oC, and an integer. Four pieces between tabs are
  /// the four fields, whatever is empty; three of which the second is empty and the third a number
  /// leave out the fourth, which is `insert` then. Otherwise a last word that is an integer not
  /// above `insert` is the fourth field, and one above it the temperature; the fourth is `insert`
  /// then. What the text lacks is 0. Arguments: the identifier, the name, the temperature, the
  /// fourth field, the insert. The name is valid until the next read of its kind. False, outputs
  /// untouched: not in the file.
  bool MoldInsertInitialTemperature_ReadMoldInsert(
      int& id, char*& name, double& temperature, int& fourth, int insert);

  // [MoldbaseInfo]: numbered mold bases with their names.

  /// [MoldbaseInfo] "MB-%d": a mold base: an integer and its name, which stands in double quotes.
  /// The name is all between the first and the last double quote. What the text lacks is 0.
  /// Arguments: the integer, the name, the mold base. The name is valid until the next read of its
  /// kind. False, outputs untouched: not in the file.
  bool MoldbaseInfo_ReadMoldbaseInfo(int& number, char*& name, int moldbase);

  // [MoldPreheat]: preheating of the mold.

  /// [MoldPreheat] "MoldPreHeatType": a code of the kind of preheating. Argument: the value. False,
  /// the value untouched: not in the file.
  bool Cool_ReadMoldPreheatType(int& value);
  /// [MoldPreheat] "MoldPreHeatTime": how long the mold is preheated, in sec. Argument: the value.
  /// False, the value untouched: not in the file.
  bool Cool_ReadMoldPreheatTime(double& value);
  /// [MoldPreheat] "MoldPreHeatTemperature": the temperature to which the mold is preheated, in oC.
  /// Argument: the value. False, the value untouched: not in the file.
  bool Cool_ReadMoldPreheatTemperature(double& value);
  /// [MoldPreheat] "MaxMoldPreHeatTime": the limit of the preheating time, in sec. Argument: the
  /// value. False, the value untouched: not in the file.
  bool Cool_ReadMaxMoldPreHeatTime(double& value);
  /// [MoldPreheat] "ControlType": what preheat channels are controlled by: 1 pressure, otherwise
  /// flow rate. Argument: the value. False, the value untouched: not in the file.
  bool Cool_ReadMoldPreheat_ControlType(int& value);

  // [MPreheat_CoolChannel-%d]: a channel that preheats the mold.

  /// [MPreheat_CoolChannel-%d] "Diameter": the diameter of the channel. Arguments: the value, the
  /// channel. False, the value untouched: not in the file.
  bool MoldPreheat_CoolChannelX_ReadDiameter(double& value, int channel);
  /// [MPreheat_CoolChannel-%d] "GroupID": the group that the channel belongs to. Arguments: the
  /// value, the channel. False, the value untouched: not in the file.
  bool MoldPreheat_CoolChannelX_ReadGroupID(int& value, int channel);
  /// [MPreheat_CoolChannel-%d] "TimeSet": the number of control points of the channel. Arguments:
  /// the value, the channel. False, the value untouched: not in the file.
  bool MoldPreheat_CoolChannelX_ReadTimeSection(int& value, int channel);
  /// [MPreheat_CoolChannel-%d] "TCPP-%d": a control point by pressure: a real, the coolant system,
  /// the temperature, the pressure, an integer. What the text lacks is 0. Arguments: the real, the
  /// coolant system, the temperature, the flow rate or pressure, the integer, the point, the
  /// channel. False, outputs untouched: not in the file.
  bool MoldPreheat_CoolChannelX_ReadPressureControlPointSetting(
      double& f1, int& system, double& temperature, double& flow, int& f5, int point, int channel);

  // [MicrocellularMolding]: foaming and gas dosage.

  /// [MicrocellularMolding] "FoamDurationTime": how long foaming lasts, in sec. Argument: the
  /// value. False, the value untouched: not in the file.
  bool MicrocellularMolding_ReadFoamDurationTime(double& value);
  /// [MicrocellularMolding] "StartFoamingType": a code: what makes foaming begin. Argument: the
  /// value. False, the value untouched: not in the file.
  bool MicrocellularMolding_ReadStartFoamingType(int& value);
  /// [MicrocellularMolding] "VolumeFilled": the filled volume at which foaming begins. Argument:
  /// the value. False, the value untouched: not in the file.
  bool MicrocellularMolding_ReadVolumeFilled(double& value);
  /// [MicrocellularMolding] "PreInjectedVolume": the volume that is injected before foaming begins.
  /// Argument: the value. False, the value untouched: not in the file.
  bool MicrocellularMolding_ReadPreInjectedVolume(double& value);
  /// [MicrocellularMolding] "InitialGasConcentrationType": a code: how the initial gas
  /// concentration is given. Argument: the value. False, the value untouched: not in the file.
  bool MicrocellularMolding_ReadInitialGasConcentrationType(int& value);
  /// [MicrocellularMolding] "GasDosageAmount": how much gas is dissolved in the melt. Argument: the
  /// value. False, the value untouched: not in the file.
  bool MicrocellularMolding_ReadGasDosageAmount(double& value);
  /// [MicrocellularMolding] "GasSaturationPressure": the saturation pressure of the gas, in MPa.
  /// Argument: the value. False, the value untouched: not in the file.
  bool MicrocellularMolding_ReadGasSaturationPressure(double& value);
  /// [MicrocellularMolding] "NozzleShutoff": a code: whether the nozzle shuts off. Argument: the
  /// value. False, the value untouched: not in the file.
  bool MicrocellularMolding_ReadNozzleShutoff(int& value);
  /// [MicrocellularMolding] "AdvancedType": a code: which of the advanced values counts. Argument:
  /// the value. False, the value untouched: not in the file.
  bool MicrocellularMolding_ReadAdvancedType(int& value);
  /// [MicrocellularMolding] "RamPosition": the ram position, for an advanced type that asks for
  /// one. Argument: the value. False, the value untouched: not in the file.
  bool MicrocellularMolding_ReadRamPosition(double& value);
  /// [MicrocellularMolding] "PartWeight": the weight of the part, for an advanced type that asks
  /// for one. Argument: the value. False, the value untouched: not in the file.
  bool MicrocellularMolding_ReadPartWeight(double& value);

  // [FlowCTLInfo]: how many melt inlets the run has, and what controls each.

  /// [FlowCTLInfo] "TotalInlet": the number of melt inlets. Argument: the value. False, the value
  /// untouched: not in the file.
  bool FlowCTLInfo_ReadTotalInlet(int& value);
  /// [FlowCTLInfo] "FlowCTL-%d": two control codes of an inlet, the second its control type. What
  /// the text lacks is 0. Arguments: the first code, the second code, the inlet. False, outputs
  /// untouched: not in the file.
  bool FlowCTLInfo_ReadFlowCTL(int& first, int& second, int inlet);

  // [OFGateValve-%d]: the valve of an overflow.

  /// [OFGateValve-%d] "GCId": the identifier of the overflow. Arguments: the value, the overflow.
  /// False, the value untouched: not in the file.
  bool OverflowX_ReadOverflowID(int& value, int overflow);
  /// [OFGateValve-%d] "GCSet": the number of control points of the overflow valve. Arguments: the
  /// value, the overflow. False, the value untouched: not in the file.
  bool OverflowX_ReadControlPoint(int& value, int overflow);
  /// [OFGateValve-%d] "GC-%d": a control point: the switching value, an integer, the mode (1 to 4),
  /// and for modes 2 and 3 an integer. For modes 1 and 4 the last integer is -1. What the text
  /// lacks is 0. Arguments: the value, the integer, the mode, the last integer, the point, the
  /// overflow. False, outputs untouched: not in the file.
  bool OverflowX_ReadGateSetting(
      double& value, int& number, int& mode, int& last, int point, int overflow);
  /// [OFGateValve-%d] "GC-%d": a control point without its last integer. What the text lacks is 0.
  /// Arguments: the value, the integer, the mode, the point, the overflow. False, outputs
  /// untouched: not in the file.
  bool OverflowX_ReadGateSetting(double& value, int& number, int& mode, int point, int overflow);

  // [PartInsertContactAngle]: the contact angle of each part insert group.

  /// [PartInsertContactAngle] "GroupCount": the number of groups of part inserts. Argument: the
  /// value. False, the value untouched: not in the file.
  bool PartInsertContactAngle_ReadGroupCount(int& value);

  // [Flow-%ld-Skin2nd]: the filling stage of a co-injection run's second skin.

  /// [Flow-%ld-Skin2nd] "FillTime": the filling time, in sec. Arguments: the value, the inlet.
  /// False, the value untouched: not in the file.
  bool FlowXSkin2nd_ReadFillingTime(double& value, int inlet);
  /// [Flow-%ld-Skin2nd] "FRSet": the number of points of the flow rate profile. Arguments: the
  /// value, the inlet. False, the value untouched: not in the file.
  bool FlowXSkin2nd_ReadFRSection(int& value, int inlet);
  /// [Flow-%ld-Skin2nd] "FR-%d": a point of the flow rate profile: how far filling has gone, and
  /// the flow rate, in cc/sec. Arguments: x, y, the point, the inlet. False, outputs untouched: not
  /// in the file.
  bool FlowXSkin2nd_ReadFRProfile(double& x, double& y, int point, int inlet);
  /// [Flow-%ld-Skin2nd] "IPSet": the number of points of the injection pressure profile. Arguments:
  /// the value, the inlet. False, the value untouched: not in the file.
  bool FlowXSkin2nd_ReadIPSection(int& value, int inlet);
  /// [Flow-%ld-Skin2nd] "IP-%d": a point of the injection pressure profile: how far filling has
  /// gone, and the pressure, in MPa. Arguments: x, y, the point, the inlet. False, outputs
  /// untouched: not in the file.
  bool FlowXSkin2nd_ReadIPProfile(double& x, double& y, int point, int inlet);
  /// [Flow-%ld-Skin2nd] "Skin2ndEnterType": a code: what makes the second skin enter. Arguments:
  /// the value, the inlet. False, the value untouched: not in the file.
  bool FlowXSkin2nd_ReadSkin2ndEnterType(int& value, int inlet);
  /// [Flow-%ld-Skin2nd] "Skin2ndEnterSwch": the switch value at which the second skin enters.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowXSkin2nd_ReadSkin2ndEnterSwch(double& value, int inlet);
  /// [Flow-%ld-Skin2nd] "Skin2ndEnterTime": the time at which the second skin enters, in sec.
  /// Arguments: the value, the inlet. False, the value untouched: not in the file.
  bool FlowXSkin2nd_ReadSkin2ndEnterTime(double& value, int inlet);

  // clang-format on
  // The members above are made; what follows is written by hand.

  // [AdvancedSetting]: the mold's opening direction, the clamp force and the cycle time.

  /// [AdvancedSetting] "CycleTime": the time from one shot to the next, in sec. A text that holds
  /// no number is 0. Argument: the value. False, the value untouched: not in the file.
  bool AdvancedSetting_ReadCycleTime(double& value);

  // [CoolChannel-%d]: a cooling channel.

  /// [CoolChannel-%d] "TCP-%d": a control point by flow rate: a real, the coolant system, the
  /// temperature, the flow rate, an integer. Where "ControlType" of [Cool] is 1 it reads "TCPP-%d",
  /// with the pressure in the place of the flow rate. What the text lacks is 0. Arguments: the
  /// real, the coolant system, the temperature, the flow rate or pressure, the integer, the point,
  /// the channel. False, outputs untouched: not in the file.
  bool CoolChannelX_ReadControlPointSetting(double& f1, int& system, double& temperature,
                                            double& flow, int& f5, int point, int channel);

  // [MPreheat_CoolChannel-%d]: a channel that preheats the mold.

  /// [MPreheat_CoolChannel-%d] "TCP-%d": a control point by flow rate: a real, the coolant system,
  /// the temperature, the flow rate, an integer. Where "ControlType" of [MoldPreheat] is 1 it reads
  /// "TCPP-%d", with the pressure in the place of the flow rate. What the text lacks is 0.
  /// Arguments: the real, the coolant system, the temperature, the flow rate or pressure, the
  /// integer, the point, the channel. False, outputs untouched: not in the file.
  bool MoldPreheat_CoolChannelX_ReadControlPointSetting(double& f1, int& system,
                                                        double& temperature, double& flow, int& f5,
                                                        int point, int channel);

  // [PartInsertContactAngle]: the contact angle of each part insert group.

  /// [PartInsertContactAngle] "%d": a group of part inserts: its name in double quotes, and its
  /// contact angle. The key is the number of the group. A line without two double quotes is as good
  /// as none; an angle that is missing is 0. Arguments: the group, the angle. False, the angle
  /// untouched: not in the file.
  bool PartInsertContactAngle_ReadAngle(int group, double& angle);
  /// [PartInsertContactAngle] "%d": a group of part inserts: its name in double quotes, and its
  /// contact angle. The first group of exactly this name counts, among as many as "GroupCount"
  /// says; a group that is missing, or has no quoted name, ends the search. Arguments: the name,
  /// the angle. False, the angle untouched: not in the file.
  bool PartInsertContactAngle_ReadAngle(const char* name, double& angle);

  // [SURFACE ELEMENT BOUNDARY CONDITION NAME]: lines addressed by position, from 1: first one
  // header line for each boundary condition, then the setting lines of all of them, one condition
  // after the other.

  /// [SURFACE ELEMENT BOUNDARY CONDITION NAME] header line: one for each boundary condition: the
  /// number of its setting lines, its name, and an integer. What this reader read before counts.
  /// Once a member of [MoldTemperatureBC-%d] was called, no line is found. On a reader that was
  /// given a path the line that the first successful call found comes again from every later one,
  /// whatever `line` says, and after a call that found nothing the header itself is line 1. Over a
  /// lent stream each call finds its own line, and a `line` after the section's last one is a line
  /// of a later section. What the text lacks is 0. Arguments: the number of setting lines, the
  /// name, the integer, the line, from 1. The name is valid until the next read of its kind. False,
  /// outputs untouched: not in the file.
  bool MoldTemperatureBCX_ReadBC(int& first, char*& name, int& second, int line);
  /// [SURFACE ELEMENT BOUNDARY CONDITION NAME] setting line: after all header lines, one condition
  /// after the other: a number, "=", and two reals. Line `offset` + `setting` + the sum of the
  /// first integers of header lines 1 to `bc` - 1. Nothing is there after the next header: where
  /// the header lines or the line itself stand after it or nowhere, the result is false and the
  /// outputs are untouched. A member of [MoldTemperatureBC-%d] that was called before hides the
  /// section. Arguments: the first real, the second real, the setting line, the condition, the
  /// number of header lines.
  bool MoldTemperatureBCX_ReadBCSetting(double& a, double& b, int setting, int bc, int offset);

 private:
  bool OpenSession();

  CQELPROReader* session_ = nullptr;
  unsigned int raw_reads_disabled_ = 0;
};
