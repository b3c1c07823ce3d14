#pragma once

#include <cstdio>
#include <string>

#include "QELPROEngine/constant_text.h"
#include "QELPROEngine/export.h"

class CQELPROWriter;

/// Writes a process file, key by key. The file on disk is changed before a member returns; there is
/// no save step.
///
/// Every section member writes one key: an entry that exists is replaced where it stands, a new one
/// is added at the end of its section, a missing section is added at the end of the file. Reals are
/// written as "%g" writes them, six significant digits with at least three in the exponent,
/// whatever the program's locale is. Arguments stand as for the reader: the value or values, the
/// point number, the number of the section.
///
/// A member yields false, and the file keeps every byte, when there is no file, when it cannot be
/// opened for writing or has no room, when a text is null, and when the text could not be read
/// back: a line break or a Ctrl-Z (0x1A) inside it, more than 255 characters for a value of several
/// fields, or a line of more than 4095 characters.
///
/// A text is read during the call alone, and never changed: each member that takes one as `char*`
/// takes a constant text as well. Names inside a value are written as they are given, even where
/// their own reader then yields less.
///
/// A key that its section lacks but a later section holds is replaced there; this is how the files
/// have always been written.
///
/// Copies share one session. One object is used by one thread at a time; different objects and
/// files need no lock.
class QELPROENGINE_API CQELPROWriter_Manipulator {
 public:
  /// A writer without a file: every write is false until one is set.
  CQELPROWriter_Manipulator();
  /// A copy shares the session.
  CQELPROWriter_Manipulator(const CQELPROWriter_Manipulator& other);
  /// Shares the other's session, and lets go of its own.
  CQELPROWriter_Manipulator& operator=(const CQELPROWriter_Manipulator& other);
  virtual ~CQELPROWriter_Manipulator();

  /// Chooses the file; one that does not exist is created empty. False when it cannot be opened for
  /// writing. `GetFilePath` hands the caller's own pointer back, so the text should stay valid
  /// while the file is in use.
  ///
  /// Each store opens the file and closes it again, which on POSIX drops the record locks that the
  /// program itself holds on it (`fcntl` with `F_SETLK`); those of open file descriptions and of
  /// `flock` stay.
  bool SetFilePath(const char* path);
  /// The same for a file that exists already: a wide path never creates one. New keys of existing
  /// sections, and `WriteString` and `WriteItems`, need a narrow path.
  bool SetFilePath(const wchar_t* path);
  /// Writes through a stream that the caller opened for reading and writing, and keeps open. False
  /// for null, and on Windows for a stream of another C runtime than the library's. New keys of
  /// existing sections need a narrow path. Where another file comes under the name meanwhile, the
  /// stream and its stores stay with the one that it has open.
  bool SetFilePtr(std::FILE*& stream);
  /// Closes a lent stream; nothing can be written until a file is set again. A file that was given
  /// by a path is open during a member alone: there is nothing to close, and writing to it goes on,
  /// raw access included.
  void CloseFile();
  /// The pointer that was given to `SetFilePath`; null after a wide path or a stream. False before
  /// any file was set.
  bool GetFilePath(const char*& path);

  /// Writes any key of any section, named with its brackets. False: not stored, the file unchanged.
  /// A section without brackets, a key that begins with "[", and either with a blank, a tab or a
  /// "=" in it are refused.
  bool WriteString(const char* section, const char* key, const char* value);
  /// As `WriteString`, with a value formatted as printf does, with "." as the decimal point in
  /// every locale.
  bool WriteItems(const char* section, const char* key, const char* format, ...);

  // The members of the sections, made by "./dev generate" from the rows of src/blocks.
  // clang-format off

  // [FileHeader]: what the file is, who wrote it and when.

  /// [FileHeader] "Name": the name of the file. Argument: the text. False: not stored, the file
  /// unchanged.
  bool FileHeader_WriteName(char* text);
  /// [FileHeader] "Name", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> FileHeader_WriteName(Char* text) {
    return FileHeader_WriteName(const_cast<char*>(text));
  }
  /// [FileHeader] "Type": the file's type, "PRO". Argument: the text. False: not stored, the file
  /// unchanged.
  bool FileHeader_WriteType(char* text);
  /// [FileHeader] "Type", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> FileHeader_WriteType(Char* text) {
    return FileHeader_WriteType(const_cast<char*>(text));
  }
  /// [FileHeader] "CreateBy": the program that wrote the file. Argument: the text. False: not
  /// stored, the file unchanged.
  bool FileHeader_WriteCreateBy(char* text);
  /// [FileHeader] "CreateBy", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> FileHeader_WriteCreateBy(Char* text) {
    return FileHeader_WriteCreateBy(const_cast<char*>(text));
  }
  /// [FileHeader] "Remark": a remark about the file. Argument: the text. False: not stored, the
  /// file unchanged.
  bool FileHeader_WriteRemark(char* text);
  /// [FileHeader] "Remark", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> FileHeader_WriteRemark(Char* text) {
    return FileHeader_WriteRemark(const_cast<char*>(text));
  }

  // [CaeHeader]: the release and project that the analysis belongs to.

  /// [CaeHeader] "Version": the version of the suite, or its name. Argument: the text. False: not
  /// stored, the file unchanged.
  bool CaeHeader_WriteVersion(char* text);
  /// [CaeHeader] "Version", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> CaeHeader_WriteVersion(Char* text) {
    return CaeHeader_WriteVersion(const_cast<char*>(text));
  }
  /// [CaeHeader] "Release": the release of the suite. Argument: the text. False: not stored, the
  /// file unchanged.
  bool CaeHeader_WriteRelease(char* text);
  /// [CaeHeader] "Release", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> CaeHeader_WriteRelease(Char* text) {
    return CaeHeader_WriteRelease(const_cast<char*>(text));
  }
  /// [CaeHeader] "Project": the project that the analysis belongs to, by name or path. Argument:
  /// the text. False: not stored, the file unchanged.
  bool CaeHeader_WriteProject(char* text);
  /// [CaeHeader] "Project", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> CaeHeader_WriteProject(Char* text) {
    return CaeHeader_WriteProject(const_cast<char*>(text));
  }
  /// [CaeHeader] "Engineer": the name of the engineer in charge. Argument: the text. False: not
  /// stored, the file unchanged.
  bool CaeHeader_WriteEngineer(char* text);
  /// [CaeHeader] "Engineer", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> CaeHeader_WriteEngineer(Char* text) {
    return CaeHeader_WriteEngineer(const_cast<char*>(text));
  }
  /// [CaeHeader] "Parent": the file that this one was made from. Argument: the text. False: not
  /// stored, the file unchanged.
  bool CaeHeader_WriteParent(char* text);
  /// [CaeHeader] "Parent", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> CaeHeader_WriteParent(Char* text) {
    return CaeHeader_WriteParent(const_cast<char*>(text));
  }
  /// [CaeHeader] "Type": the kind of analysis, such as Injection. Argument: the text. False: not
  /// stored, the file unchanged.
  bool CaeHeader_WriteType(char* text);
  /// [CaeHeader] "Type", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> CaeHeader_WriteType(Char* text) {
    return CaeHeader_WriteType(const_cast<char*>(text));
  }
  /// [CaeHeader] "FileVersion": the version of the file's layout, as text. Argument: the text.
  /// False: not stored, the file unchanged.
  bool CaeHeader_WriteFileVersion(char* text);
  /// [CaeHeader] "FileVersion", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> CaeHeader_WriteFileVersion(Char* text) {
    return CaeHeader_WriteFileVersion(const_cast<char*>(text));
  }
  /// [CaeHeader] "FileType": a code of the kind of process file. Argument: the value. False: not
  /// stored, the file unchanged.
  bool CaeHeader_WriteFileType(int value);
  /// [CaeHeader] "SmartSetting": a code: how far the front end set the values by itself (smart
  /// setting). Argument: the value. False: not stored, the file unchanged.
  bool CaeHeader_WriteSmartSetting(int value);

  // [Summary]: counts of the model, by which the other sections are numbered.

  /// [Summary] "TotalNdivz": the number of layers into which the mesh divides the thickness.
  /// Argument: the value. False: not stored, the file unchanged.
  bool Summary_WriteTotalLayer(int value);
  /// [Summary] "TotalNodeEM": the number of melt entrances. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Summary_WriteTotalMeltEntrance(int value);
  /// [Summary] "TotalNodeEC": the number of coolant entrances. Argument: the value. False: not
  /// stored, the file unchanged.
  bool Summary_WriteTotalCoolantEntrance(int value);
  /// [Summary] "TotalGateCTL": the number of valve gates. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Summary_WriteTotalValveGate(int value);
  /// [Summary] "VacuumIndex": a code: whether and how the cavity is evacuated. Argument: the value.
  /// False: not stored, the file unchanged.
  bool Summary_WriteVacuumIndex(int value);
  /// [Summary] "SkinRatio": the share of the skin material in a part of two materials. Argument:
  /// the value. False: not stored, the file unchanged.
  bool Summary_WriteSkinRatio(double value);
  /// [Summary] "PEOFasPPack": 1 where the pressure at the end of filling is the packing pressure.
  /// Argument: the value. False: not stored, the file unchanged.
  bool Summary_WritePEOFasPPack(int value);
  /// [Summary] "TotalNodeMB": the number of mold bases. Argument: the value. False: not stored, the
  /// file unchanged.
  bool Summary_WriteTotalMoldbase(int value);
  /// [Summary] "TotalNodeBC": the number of boundary conditions. Argument: the value. False: not
  /// stored, the file unchanged.
  bool Summary_WriteTotalBoundaryCondition(int value);
  /// [Summary] "TotalNodeEG": the number of gas entrances. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Summary_WriteTotalGasEntrance(int value);
  /// [Summary] "TotalNodeMMM": the number of mold metal materials. Argument: the value. False: not
  /// stored, the file unchanged.
  bool Summary_WriteTotalMoldMetalMaterial(int value);
  /// [Summary] "SymVolRatio": how many times the part holds the modelled volume, where only a
  /// symmetric piece of it is modelled; an integer: 0.5 reads as 0. Argument: the value. False: not
  /// stored, the file unchanged.
  bool Summary_WriteSymmetryVolumeRatio(int value);
  /// [Summary] "TotalNodeHR": the number of heating rods. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Summary_WriteTotalHeatingRod(int value);
  /// [Summary] "IsTransientInletConv": 1 where the resin's conversion at the inlet changes with
  /// time, else 0. Argument: the value. False: not stored, the file unchanged.
  bool Summary_WriteTransientInletConv(int value);

  // [FlowCTL]: what controls filling, packing, the switch-over from velocity to pressure control
  // (V/P) and the begin of curing.

  /// [FlowCTL] "FlowCtrl": a code: which quantity controls filling. Argument: the value. False: not
  /// stored, the file unchanged.
  bool FlowCTL_WriteFlowCtrl(int value);
  /// [FlowCTL] "VPSwitchCtrl": the criterion of the V/P switch-over: 0 filled volume, 1 ram
  /// position, 2 injection pressure, 3 a further one over the filled volume. Argument: the value.
  /// False: not stored, the file unchanged.
  bool FlowCTL_WriteVPSwitchCtrl(int value);
  /// [FlowCTL] "PackingCtrl": a code: which quantity controls packing. Argument: the value. False:
  /// not stored, the file unchanged.
  bool FlowCTL_WritePackingCtrl(int value);
  /// [FlowCTL] "MoldTemperature": the mold temperature, in oC. Argument: the value. False: not
  /// stored, the file unchanged.
  bool FlowCTL_WriteMoldTemperature(double value);
  /// [FlowCTL] "MeltTemperature": the melt temperature, in oC. Argument: the value. False: not
  /// stored, the file unchanged.
  bool FlowCTL_WriteMeltTemperature(double value);
  /// [FlowCTL] "InjectionTime": the injection time, in sec. Argument: the value. False: not stored,
  /// the file unchanged.
  bool FlowCTL_WriteInjectionTime(double value);
  /// [FlowCTL] "VolumeFilled": how much is filled when the V/P switch-over comes, for the criteria
  /// 0 and 3. Argument: the value. False: not stored, the file unchanged.
  bool FlowCTL_WriteVolumeFilled(double value);
  /// [FlowCTL] "RamPosition": the ram position at which the V/P switch-over comes, for criterion 1.
  /// Argument: the value. False: not stored, the file unchanged.
  bool FlowCTL_WriteRamPosition(double value);
  /// [FlowCTL] "InjectionPressure": the injection pressure at which the V/P switch-over comes, in
  /// MPa, for criterion 2. Argument: the value. False: not stored, the file unchanged.
  bool FlowCTL_WriteInjectionPressure(double value);
  /// [FlowCTL] "CureSwitch": the switch value at which curing begins, beside the three of
  /// "CureEnter". Argument: the value. False: not stored, the file unchanged.
  bool FlowCTL_WriteCureSwitch(double value);
  /// [FlowCTL] "CureEnterType": a code: what makes curing begin. Every index addresses the one
  /// entry. Arguments: the value, an index. False: not stored, the file unchanged.
  bool FlowCTL_WriteCureEnterType(int value, int index);
  /// [FlowCTL] "CureEnterSwch": the switch value at which curing begins. Every index addresses the
  /// one entry. Arguments: the value, an index. False: not stored, the file unchanged.
  bool FlowCTL_WriteCureEnterSwitch(double value, int index);
  /// [FlowCTL] "CureEnterTime": the time at which curing begins, in sec. Every index addresses the
  /// one entry. Arguments: the value, an index. False: not stored, the file unchanged.
  bool FlowCTL_WriteCureEnterTime(double value, int index);

  // [Flow-%ld]: the filling stage of an inlet.

  /// [Flow-%ld] "FillTime": the filling time, in sec. Arguments: the value, the inlet. False: not
  /// stored, the file unchanged.
  bool FlowX_WriteFillingTime(double value, int inlet);
  /// [Flow-%ld] "MaxFillingTime": the limit of the filling time, in sec. Arguments: the value, the
  /// inlet. False: not stored, the file unchanged.
  bool FlowX_WriteMaxFillingTime(double value, int inlet);
  /// [Flow-%ld] "MeltTemp": the melt temperature, in oC. Arguments: the value, the inlet. False:
  /// not stored, the file unchanged.
  bool FlowX_WriteMeltTemperature(double value, int inlet);
  /// [Flow-%ld] "MoldTemp": the mold temperature, in oC. Arguments: the value, the inlet. False:
  /// not stored, the file unchanged.
  bool FlowX_WriteMoldTemperature(double value, int inlet);
  /// [Flow-%ld] "InjectPres": the injection pressure, in MPa. Arguments: the value, the inlet.
  /// False: not stored, the file unchanged.
  bool FlowX_WriteInjectPressure(double value, int inlet);
  /// [Flow-%ld] "PreFill": the pre-fill, a target of filling: how much of the cavity is full when
  /// filling ends and packing takes over; 100 in the default document. Arguments: the value, the
  /// inlet. False: not stored, the file unchanged.
  bool FlowX_WritePreFill(double value, int inlet);
  /// [Flow-%ld] "InjVol": the volume that is injected, in cc. Arguments: the value, the inlet.
  /// False: not stored, the file unchanged.
  bool FlowX_WriteInjectVolume(double value, int inlet);
  /// [Flow-%ld] "TransTime": the filling time of transfer molding, in sec. Arguments: the value,
  /// the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteTransferTime(double value, int inlet);
  /// [Flow-%ld] "MaxTransferTime": the limit of the filling time of transfer molding, in sec.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteMaxTransferTime(double value, int inlet);
  /// [Flow-%ld] "ResnTemp": the resin temperature of transfer molding, in oC. Arguments: the value,
  /// the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteResinTemperature(double value, int inlet);
  /// [Flow-%ld] "TransPres": the pressure of transfer molding, in MPa. Arguments: the value, the
  /// inlet. False: not stored, the file unchanged.
  bool FlowX_WriteTransferPressure(double value, int inlet);
  /// [Flow-%ld] "InitConv": how far the resin's curing reaction has gone (its conversion) at the
  /// start of filling. Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteInitConversion(double value, int inlet);
  /// [Flow-%ld] "FRDisplayType": a code: how a front end shows the flow rate profile. Arguments:
  /// the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteFRDisplayType(int value, int inlet);
  /// [Flow-%ld] "IPDisplayType": a code: how a front end shows the injection pressure profile.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteIPDisplayType(int value, int inlet);
  /// [Flow-%ld] "TPDisplayType": a code: how a front end shows the transfer pressure profile.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteTPDisplayType(int value, int inlet);
  /// [Flow-%ld] "FRProfileType": a code: in which form the flow rate profile was entered.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteFRProfileType(int value, int inlet);
  /// [Flow-%ld] "IPProfileType": a code: in which form the injection pressure profile was entered.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteIPProfileType(int value, int inlet);
  /// [Flow-%ld] "TPProfileType": a code: in which form the transfer pressure profile was entered.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteTPProfileType(int value, int inlet);
  /// [Flow-%ld] "FRStrokeMode": a code: whether and how the flow rate profile runs over the ram's
  /// stroke. Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteFRStrokeMode(int value, int inlet);
  /// [Flow-%ld] "IPStrokeMode": a code: whether and how the injection pressure profile runs over
  /// the ram's stroke. Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteIPStrokeMode(int value, int inlet);
  /// [Flow-%ld] "TPStrokeMode": a code: whether and how the transfer pressure profile runs over the
  /// ram's stroke. Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteTPStrokeMode(int value, int inlet);
  /// [Flow-%ld] "FRSet": the number of points of the flow rate profile. Arguments: the value, the
  /// inlet. False: not stored, the file unchanged.
  bool FlowX_WriteFRSection(int value, int inlet);
  /// [Flow-%ld] "FR-%d": a point of the flow rate profile: how far filling has gone, and the flow
  /// rate, in cc/sec. Arguments: x, y, the point, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteFRProfile(double x, double y, int point, int inlet);
  /// [Flow-%ld] "IPSet": the number of points of the injection pressure profile. Arguments: the
  /// value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteIPSection(int value, int inlet);
  /// [Flow-%ld] "IP-%d": a point of the injection pressure profile: how far filling has gone, and
  /// the pressure, in MPa. Arguments: x, y, the point, the inlet. False: not stored, the file
  /// unchanged.
  bool FlowX_WriteIPProfile(double x, double y, int point, int inlet);
  /// [Flow-%ld] "TPSet": the number of points of the transfer pressure profile. Arguments: the
  /// value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteTPSection(int value, int inlet);
  /// [Flow-%ld] "TP-%d": a point of the transfer pressure profile: how far filling has gone, and
  /// the pressure, in MPa. Arguments: x, y, the point, the inlet. False: not stored, the file
  /// unchanged.
  bool FlowX_WriteTPProfile(double x, double y, int point, int inlet);
  /// [Flow-%ld] "UserFRSet": the number of points of the flow rate profile as the user entered it.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteUserFRSection(int value, int inlet);
  /// [Flow-%ld] "UserFR-%d": a point of the flow rate profile as the user entered it: x and y.
  /// Arguments: x, y, the point, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteUserFRProfile(double x, double y, int point, int inlet);
  /// [Flow-%ld] "UserIPSet": the number of points of the injection pressure profile as the user
  /// entered it. Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteUserIPSection(int value, int inlet);
  /// [Flow-%ld] "UserIP-%d": a point of the injection pressure profile as the user entered it: x
  /// and y. Arguments: x, y, the point, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteUserIPProfile(double x, double y, int point, int inlet);
  /// [Flow-%ld] "UserTPSet": the number of points of the transfer pressure profile as the user
  /// entered it. Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteUserTPSection(int value, int inlet);
  /// [Flow-%ld] "UserTP-%d": a point of the transfer pressure profile as the user entered it: x and
  /// y. Arguments: x, y, the point, the inlet. False: not stored, the file unchanged.
  bool FlowX_WriteUserTPProfile(double x, double y, int point, int inlet);

  // [Pack-%d]: the packing stage of an inlet.

  /// [Pack-%d] "PackTime": the packing time, in sec. Arguments: the value, the inlet. False: not
  /// stored, the file unchanged.
  bool PackX_WritePackTime(double value, int inlet);
  /// [Pack-%d] "PackPres": the packing pressure, in MPa. Arguments: the value, the inlet. False:
  /// not stored, the file unchanged.
  bool PackX_WritePackPressure(double value, int inlet);
  /// [Pack-%d] "PackSwch": the switch value at which packing takes over from filling. Arguments:
  /// the value, the inlet. False: not stored, the file unchanged.
  bool PackX_WritePackSwitch(double value, int inlet);
  /// [Pack-%d] "IgnoreLimitation": a code: whether the limits of packing are ignored. Arguments:
  /// the value, the inlet. False: not stored, the file unchanged.
  bool PackX_WriteIgnoreLimitation(int value, int inlet);
  /// [Pack-%d] "MaxEOFRatio": the limit of the packing pressure, as a ratio to the pressure at the
  /// end of filling. Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool PackX_WriteMaxEOFRatio(double value, int inlet);
  /// [Pack-%d] "PPDisplayType": a code: how a front end shows the packing pressure profile.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool PackX_WritePPDisplayType(int value, int inlet);
  /// [Pack-%d] "PPProfileType": a code: in which form the packing pressure profile was entered.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool PackX_WritePPProfileType(int value, int inlet);
  /// [Pack-%d] "PPSet": the number of points of the packing pressure profile. Arguments: the value,
  /// the inlet. False: not stored, the file unchanged.
  bool PackX_WritePPSection(int value, int inlet);
  /// [Pack-%d] "PP-%d": a point of the packing pressure profile: the time in the stage, and the
  /// pressure, in MPa. Arguments: x, y, the point, the inlet. False: not stored, the file
  /// unchanged.
  bool PackX_WritePPProfile(double x, double y, int point, int inlet);
  /// [Pack-%d] "UserPPSet": the number of points of the packing pressure profile as the user
  /// entered it. Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool PackX_WriteUserPPSection(int value, int inlet);
  /// [Pack-%d] "UserPP-%d": a point of the packing pressure profile as the user entered it: x and
  /// y. Arguments: x, y, the point, the inlet. False: not stored, the file unchanged.
  bool PackX_WriteUserPPProfile(double x, double y, int point, int inlet);

  // [Cure-%d]: the curing stage of an inlet.

  /// [Cure-%d] "CureTime": the curing time, in sec. Arguments: the value, the inlet. False: not
  /// stored, the file unchanged.
  bool CureX_WriteCureTime(double value, int inlet);
  /// [Cure-%d] "CurePres": the curing pressure, in MPa. Arguments: the value, the inlet. False: not
  /// stored, the file unchanged.
  bool CureX_WriteCurePressure(double value, int inlet);
  /// [Cure-%d] "CureSwch": the switch value at which curing takes over from packing. Arguments: the
  /// value, the inlet. False: not stored, the file unchanged.
  bool CureX_WriteCureSwitch(double value, int inlet);
  /// [Cure-%d] "CPDisplayType": a code: how a front end shows the curing pressure profile.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool CureX_WriteCPDisplayType(int value, int inlet);
  /// [Cure-%d] "PPProfileType": a code: in which form the curing pressure profile was entered; the
  /// key is the packing stage's. Arguments: the value, the inlet. False: not stored, the file
  /// unchanged.
  bool CureX_WriteCPProfileType(int value, int inlet);
  /// [Cure-%d] "CPSet": the number of points of the curing pressure profile. Arguments: the value,
  /// the inlet. False: not stored, the file unchanged.
  bool CureX_WriteCPSection(int value, int inlet);
  /// [Cure-%d] "CP-%d": a point of the curing pressure profile: the time in the stage, and the
  /// pressure, in MPa. Arguments: x, y, the point, the inlet. False: not stored, the file
  /// unchanged.
  bool CureX_WriteCPProfile(double x, double y, int point, int inlet);
  /// [Cure-%d] "UserCPSet": the number of points of the curing pressure profile as the user entered
  /// it. Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool CureX_WriteUserCPSection(int value, int inlet);
  /// [Cure-%d] "UserCP-%d": a point of the curing pressure profile as the user entered it: x and y.
  /// Arguments: x, y, the point, the inlet. False: not stored, the file unchanged.
  bool CureX_WriteUserCPProfile(double x, double y, int point, int inlet);

  // [Cool]: cycle times, temperatures and the kind of cooling.

  /// [Cool] "CoolTime": the cooling time, in sec. Argument: the value. False: not stored, the file
  /// unchanged.
  bool Cool_WriteCoolTime(double value);
  /// [Cool] "OpenTime": how long the mold is open between two shots, in sec. Argument: the value.
  /// False: not stored, the file unchanged.
  bool Cool_WriteMoldOpenTime(double value);
  /// [Cool] "EjectTemp": the temperature at which the part is ejected, in oC. Argument: the value.
  /// False: not stored, the file unchanged.
  bool Cool_WriteEjectTemperature(double value);
  /// [Cool] "AirTemp": the temperature of the air around the mold, in oC. Argument: the value.
  /// False: not stored, the file unchanged.
  bool Cool_WriteAirTemperature(double value);
  /// [Cool] "InitialMoldbaseTemperature": the mold base's initial temperature, in oC. Argument: the
  /// value. False: not stored, the file unchanged.
  bool Cool_WriteInitMoldTemperature(double value);
  /// [Cool] "CoolantTemp": the coolant temperature, in oC. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Cool_WriteCoolantTemperature(double value);
  /// [Cool] "CoolantFR": the coolant flow rate, in cc/sec. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Cool_WriteCoolantFlowRate(double value);
  /// [Cool] "CoolingType": a code of the kind of cooling. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Cool_WriteCoolingType(int value);

  // [CoolCTL]: the coolant at each entrance.

  /// [CoolCTL] "T-%d": the coolant temperature at an entrance, in oC. Arguments: the value, the
  /// entrance. False: not stored, the file unchanged.
  bool CoolCTL_WriteCoolantTemperature(double value, int entrance);
  /// [CoolCTL] "F-%d": the coolant flow rate at an entrance, in cc/sec. Arguments: the value, the
  /// entrance. False: not stored, the file unchanged.
  bool CoolCTL_WriteCoolantFlowRate(double value, int entrance);
  /// [CoolCTL] "P-%d": the coolant pressure at an entrance, in MPa. Arguments: the value, the
  /// entrance. False: not stored, the file unchanged.
  bool CoolCTL_WroteCoolantPressure(double value, int entrance);
  /// [CoolCTL] "M-%d": the coolant system of an entrance. Arguments: the value, the entrance.
  /// False: not stored, the file unchanged.
  bool CoolCTL_WriteCoolantSystem(int value, int entrance);

  // [Coolant]: the coolants, one line each.

  /// [Coolant] "%d": a coolant: density (g/cm^3), specific heat (erg/(g K)), thermal conductivity
  /// (erg/(s cm K)), viscosity (poise), coolant system, name (one word), channel diameter, channel
  /// group. The name is written as it is given. One that is empty or holds a blank is stored,
  /// though the reader then yields one word, and wrong fields after it. Arguments: the four
  /// properties, the coolant system, the name, the diameter, the channel group, the coolant. False:
  /// not stored, the file unchanged.
  bool Coolant_WriteCoolant(
      double p1, double p2, double p3, double p4, int system, char* name, double f7, int f8,
      int coolant);
  /// [Coolant] "%d", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> Coolant_WriteCoolant(
      double p1, double p2, double p3, double p4, int system, Char* name, double f7, int f8,
      int coolant) {
    return Coolant_WriteCoolant(p1, p2, p3, p4, system, const_cast<char*>(name), f7, f8, coolant);
  }

  // [CoolChannel-%d]: a cooling channel.

  /// [CoolChannel-%d] "Diameter": the diameter of the channel. Arguments: the value, the channel.
  /// False: not stored, the file unchanged.
  bool CoolChannelX_WriteDiameter(double value, int channel);
  /// [CoolChannel-%d] "GroupID": the group that the channel belongs to. Arguments: the value, the
  /// channel. False: not stored, the file unchanged.
  bool CoolChannelX_WriteGroupID(int value, int channel);
  /// [CoolChannel-%d] "TimeSet": the number of control points of the channel. Arguments: the value,
  /// the channel. False: not stored, the file unchanged.
  bool CoolChannelX_WriteTimeSection(int value, int channel);
  /// [CoolChannel-%d] "TCP-%d": a control point by flow rate: a real, the coolant system, the
  /// temperature, the flow rate, an integer. Arguments: the real, the coolant system, the
  /// temperature, the flow rate or pressure, the integer, the point, the channel. False: not
  /// stored, the file unchanged.
  bool CoolChannelX_WriteControlPointSetting(
      double f1, int system, double temperature, double flow, int f5, int point, int channel);
  /// [CoolChannel-%d] "TCPP-%d": a control point by pressure: a real, the coolant system, the
  /// temperature, the pressure, an integer. Arguments: the real, the coolant system, the
  /// temperature, the flow rate or pressure, the integer, the point, the channel. False: not
  /// stored, the file unchanged.
  bool CoolChannelX_WritePressureControlPointSetting(
      double f1, int system, double temperature, double flow, int f5, int point, int channel);

  // [VarCoolCTL]: variable cooling.

  /// [VarCoolCTL] "CoolantNo": the number of entries of variable cooling. Argument: the value.
  /// False: not stored, the file unchanged.
  bool VarCoolCTL_WriteCoolantCount(int value);
  /// [VarCoolCTL] "Coolant-%d": an entry of variable cooling: four reals and an integer. Arguments:
  /// four reals, the integer, the entry. False: not stored, the file unchanged.
  bool VarCoolCTL_WriteCoolant(double f1, double f2, double f3, double f4, int f5, int entry);

  // [GateCTL]: when each gate is open.

  /// [GateCTL] "ST-%d": the start time of a gate, when it opens, in sec. Arguments: the value, the
  /// gate. False: not stored, the file unchanged.
  bool GateCTL_WriteStartTime(double value, int gate);
  /// [GateCTL] "ET-%d": the end time of a gate, when it closes, in sec. Arguments: the value, the
  /// gate. False: not stored, the file unchanged.
  bool GateCTL_WriteEndTime(double value, int gate);

  // [GateValve-%d]: a valve gate.

  /// [GateValve-%d] "GCId": the identifier of the valve gate. Arguments: the value, the valve.
  /// False: not stored, the file unchanged.
  bool GateValveX_WriteGateValveID(int value, int valve);
  /// [GateValve-%d] "GCSet": the number of control points of the valve gate. Arguments: the value,
  /// the valve. False: not stored, the file unchanged.
  bool GateValveX_WriteControlPoint(int value, int valve);

  // [Machine]: the injection molding machine.

  /// [Machine] "Maker": the maker of the machine. Argument: the text. False: not stored, the file
  /// unchanged.
  bool Machine_WriteMaker(char* text);
  /// [Machine] "Maker", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> Machine_WriteMaker(Char* text) {
    return Machine_WriteMaker(const_cast<char*>(text));
  }
  /// [Machine] "Grade": the grade of the machine: its model. Argument: the text. False: not stored,
  /// the file unchanged.
  bool Machine_WriteGrade(char* text);
  /// [Machine] "Grade", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> Machine_WriteGrade(Char* text) {
    return Machine_WriteGrade(const_cast<char*>(text));
  }
  /// [Machine] "LastModifiedDate": when the data of the machine were last changed. Argument: the
  /// text. False: not stored, the file unchanged.
  bool Machine_WriteLastModifiedDate(char* text);
  /// [Machine] "LastModifiedDate", from a text that is constant, such as a literal: the same
  /// member.
  template <class Char>
  qel::IfConstant<Char> Machine_WriteLastModifiedDate(Char* text) {
    return Machine_WriteLastModifiedDate(const_cast<char*>(text));
  }
  /// [Machine] "Remark": a remark about the machine. Argument: the text. False: not stored, the
  /// file unchanged.
  bool Machine_WriteRemark(char* text);
  /// [Machine] "Remark", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> Machine_WriteRemark(Char* text) {
    return Machine_WriteRemark(const_cast<char*>(text));
  }
  /// [Machine] "Diameter": the diameter of the screw. Argument: the value. False: not stored, the
  /// file unchanged.
  bool Machine_WriteDiameter(double value);
  /// [Machine] "MaxRamPos": the farthest position of the ram. Argument: the value. False: not
  /// stored, the file unchanged.
  bool Machine_WriteMaxRamPos(double value);
  /// [Machine] "ShotVolume": the largest volume of a shot. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Machine_WriteShotVolume(double value);
  /// [Machine] "Weight": the largest weight of a shot. Argument: the value. False: not stored, the
  /// file unchanged.
  bool Machine_WriteShotWeight(double value);
  /// [Machine] "MaxMachinePres": the highest injection pressure of the machine. Argument: the
  /// value. False: not stored, the file unchanged.
  bool Machine_WriteInjectionPressure(double value);
  /// [Machine] "HoldingPressure": the highest holding pressure of the machine. Argument: the value.
  /// False: not stored, the file unchanged.
  bool Machine_WriteHoldingPressure(double value);
  /// [Machine] "InjectionSpeed": the highest injection speed of the machine. Argument: the value.
  /// False: not stored, the file unchanged.
  bool Machine_WriteInjectionSpeed(double value);
  /// [Machine] "FR": the highest flow rate of the machine. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Machine_WriteFlowRate(double value);
  /// [Machine] "PlasticationRate": how much material the screw melts in a unit of time. Argument:
  /// the value. False: not stored, the file unchanged.
  bool Machine_WritePlasticationRate(double value);
  /// [Machine] "ScrewSpeed": the highest speed of the screw's rotation. Argument: the value. False:
  /// not stored, the file unchanged.
  bool Machine_WriteScrewSpeed(double value);
  /// [Machine] "NozzleContactForce": the force with which the nozzle is held against the mold.
  /// Argument: the value. False: not stored, the file unchanged.
  bool Machine_WriteNozzleContactForce(double value);
  /// [Machine] "NozzleStroke": how far the nozzle can be moved. Argument: the value. False: not
  /// stored, the file unchanged.
  bool Machine_WriteNozzleStroke(double value);
  /// [Machine] "HeaterWattage": the power of the barrel's heaters. Argument: the value. False: not
  /// stored, the file unchanged.
  bool Machine_WriteHeaterWattage(double value);
  /// [Machine] "TemperatureControlZones": the number of temperature control zones, or a sum such as
  /// 4+2. Argument: the value. False: not stored, the file unchanged.
  bool Machine_WriteTemperatureControlZones(int value);
  /// [Machine] "Size": the clamp force of the machine. Argument: the value. False: not stored, the
  /// file unchanged.
  bool Machine_WriteClampForce(double value);
  /// [Machine] "OpeningStroke": how far the clamp can open. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Machine_WriteOpeningStroke(double value);
  /// [Machine] "MaxDaylight": the largest distance between the platens (daylight). Argument: the
  /// value. False: not stored, the file unchanged.
  bool Machine_WriteMaxDaylight(double value);
  /// [Machine] "MoldHeight": the mold height that the machine takes. Argument: the value. False:
  /// not stored, the file unchanged.
  bool Machine_WriteMoldHeight(double value);
  /// [Machine] "DistanceBetweenTieBars(HxV)": the distance between the tie bars, as text. Argument:
  /// the text. False: not stored, the file unchanged.
  bool Machine_WriteDistanceBetweenTieBars(char* text);
  /// [Machine] "DistanceBetweenTieBars(HxV)", from a text that is constant, such as a literal: the
  /// same member.
  template <class Char>
  qel::IfConstant<Char> Machine_WriteDistanceBetweenTieBars(Char* text) {
    return Machine_WriteDistanceBetweenTieBars(const_cast<char*>(text));
  }
  /// [Machine] "DistanceBetweenTieBars(HxV)": the distance between the tie bars: horizontal,
  /// vertical. Arguments: the horizontal size, the vertical size. False: not stored, the file
  /// unchanged.
  bool Machine_WriteDistanceBetweenTieBars(double first, double second);
  /// [Machine] "PlatenSize(HxV)": the size of the platen, as text. Argument: the text. False: not
  /// stored, the file unchanged.
  bool Machine_WritePlatenSize(char* text);
  /// [Machine] "PlatenSize(HxV)", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> Machine_WritePlatenSize(Char* text) {
    return Machine_WritePlatenSize(const_cast<char*>(text));
  }
  /// [Machine] "PlatenSize(HxV)": the size of the platen: horizontal, vertical. Arguments: the
  /// horizontal size, the vertical size. False: not stored, the file unchanged.
  bool Machine_WritePlatenSize(double first, double second);
  /// [Machine] "EjectorPoint": the number of ejector points. Argument: the value. False: not
  /// stored, the file unchanged.
  bool Machine_WriteEjectorPoint(int value);
  /// [Machine] "EjectorForce": the force of the ejector. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Machine_WriteEjectorForce(double value);
  /// [Machine] "EjectorStroke": how far the ejector can be moved. Argument: the value. False: not
  /// stored, the file unchanged.
  bool Machine_WriteEjectorStroke(double value);
  /// [Machine] "MachineWeight": the weight of the machine. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Machine_WriteMachineWeight(double value);
  /// [Machine] "MachineDimension(LxWxH)": the size of the machine, as text. Argument: the text.
  /// False: not stored, the file unchanged.
  bool Machine_WriteMachineDimension(char* text);
  /// [Machine] "MachineDimension(LxWxH)", from a text that is constant, such as a literal: the same
  /// member.
  template <class Char>
  qel::IfConstant<Char> Machine_WriteMachineDimension(Char* text) {
    return Machine_WriteMachineDimension(const_cast<char*>(text));
  }
  /// [Machine] "MachineDimension(LxWxH)": the size of the machine: length, width, height.
  /// Arguments: the length, the width, the height. False: not stored, the file unchanged.
  bool Machine_WriteMachineDimension(double length, double width, double height);

  // [Project]: the mesh and material files and the volumes of the project.

  /// [Project] "Mesh": the mesh file. Argument: the text. False: not stored, the file unchanged.
  bool Project_WriteMesh(char* text);
  /// [Project] "Mesh", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> Project_WriteMesh(Char* text) {
    return Project_WriteMesh(const_cast<char*>(text));
  }
  /// [Project] "Material": the material file. Argument: the text. False: not stored, the file
  /// unchanged.
  bool Project_WriteMaterial(char* text);
  /// [Project] "Material", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> Project_WriteMaterial(Char* text) {
    return Project_WriteMaterial(const_cast<char*>(text));
  }
  /// [Project] "CavVol": the volume of the cavity, in cc. Argument: the value. False: not stored,
  /// the file unchanged.
  bool Project_WriteCavityVolume(double value);
  /// [Project] "CushionVol": the volume of the melt cushion that stays before the screw, in cc.
  /// Argument: the value. False: not stored, the file unchanged.
  bool Project_WriteCushionVolume(double value);

  // [RamPosition]: profiles over the stroke of the ram, and the switch-over from velocity to
  // pressure control (V/P) by ram position.

  /// [RamPosition] "RamDir": a code: in which direction ram positions count. Argument: the value.
  /// False: not stored, the file unchanged.
  bool RamPosition_WriteRamDirection(int value);
  /// [RamPosition] "IsVPswitch": 1 where the V/P switch-over is by ram position, else 0. Argument:
  /// the value. False: not stored, the file unchanged.
  bool RamPosition_WriteIsVPSwitch(int value);
  /// [RamPosition] "VPswitchRam": the ram position at which the V/P switch-over comes. Argument:
  /// the value. False: not stored, the file unchanged.
  bool RamPosition_WriteVPSwitchRamPosition(double value);
  /// [RamPosition] "SuckBack": how far the screw is pulled back after plastication, to relieve the
  /// melt (suck-back). Argument: the value. False: not stored, the file unchanged.
  bool RamPosition_WriteSuckBack(double value);
  /// [RamPosition] "RP_FRSet": the number of points of the flow rate profile. Argument: the value.
  /// False: not stored, the file unchanged.
  bool RamPosition_WriteRamFRSection(int value);
  /// [RamPosition] "RP_FR-%d": a point of the flow rate profile: the ram position, and the flow
  /// rate, in cc/sec. Arguments: x, y, the point. False: not stored, the file unchanged.
  bool RamPosition_WriteRamFRProfile(double x, double y, int point);
  /// [RamPosition] "RP_FR-%d": the ram position of a flow rate point alone. It becomes the whole
  /// value of the point. Arguments: the value, the point. False: not stored, the file unchanged.
  bool RamPosition_WriteRamFRProfile(double value, int point);
  /// [RamPosition] "RP_IPSet": the number of points of the injection pressure profile. Argument:
  /// the value. False: not stored, the file unchanged.
  bool RamPosition_WriteRamIPSection(int value);
  /// [RamPosition] "RP_IP-%d": a point of the injection pressure profile: the ram position, and the
  /// pressure, in MPa. Arguments: x, y, the point. False: not stored, the file unchanged.
  bool RamPosition_WriteRamIPProfile(double x, double y, int point);
  /// [RamPosition] "RP_IP-%d": the ram position of an injection pressure point alone. It becomes
  /// the whole value of the point. Arguments: the value, the point. False: not stored, the file
  /// unchanged.
  bool RamPosition_WriteRamIPProfile(double value, int point);

  // [Moldbase]: the mold bases, one material line each.

  /// [Moldbase] "%d": a mold base: three thermal values, its name, which may hold blanks, three
  /// mechanical values. The name is written as it is given. An empty one is stored, though the
  /// reader then takes a number for it. Arguments: three reals, the name, three reals, the row.
  /// False: not stored, the file unchanged.
  bool Moldbase_WriteMoldbase(
      double f1, double f2, double f3, char* name, double f5, double f6, double f7, int row);
  /// [Moldbase] "%d", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> Moldbase_WriteMoldbase(
      double f1, double f2, double f3, Char* name, double f5, double f6, double f7, int row) {
    return Moldbase_WriteMoldbase(f1, f2, f3, const_cast<char*>(name), f5, f6, f7, row);
  }

  // [MoldMetalMaterial]: the mold metals, one material line each.

  /// [MoldMetalMaterial] "%d": a mold metal: three thermal values, its name, which may hold blanks,
  /// three mechanical values. The name is written as it is given. An empty one is stored, though
  /// the reader then takes a number for it. Arguments: three reals, the name, three reals, the row.
  /// False: not stored, the file unchanged.
  bool MoldMetalMaterial_WriteMaterial(
      double f1, double f2, double f3, char* name, double f5, double f6, double f7, int row);
  /// [MoldMetalMaterial] "%d", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> MoldMetalMaterial_WriteMaterial(
      double f1, double f2, double f3, Char* name, double f5, double f6, double f7, int row) {
    return MoldMetalMaterial_WriteMaterial(f1, f2, f3, const_cast<char*>(name), f5, f6, f7, row);
  }

  // [MoldTemperatureBC-%d]: a mold temperature boundary condition.

  /// [MoldTemperatureBC-%d] "BCName": the name of the boundary condition. From now on this writer
  /// begins a new section for positional lines (`MoldTemperatureBCX_WriteBC`,
  /// `MoldTemperatureBCX_WriteBCSetting`): write those first, or through a writer of their own.
  /// Arguments: the text, the condition. False: not stored, the file unchanged.
  bool MoldTemperatureBCX_WriteName(char* text, int bc);
  /// [MoldTemperatureBC-%d] "BCName", from a text that is constant, such as a literal: the same
  /// member.
  template <class Char>
  qel::IfConstant<Char> MoldTemperatureBCX_WriteName(Char* text, int bc) {
    return MoldTemperatureBCX_WriteName(const_cast<char*>(text), bc);
  }
  /// [MoldTemperatureBC-%d] "BCDisplayType": a code: how a front end shows the boundary condition.
  /// From now on this writer begins a new section for positional lines
  /// (`MoldTemperatureBCX_WriteBC`, `MoldTemperatureBCX_WriteBCSetting`): write those first, or
  /// through a writer of their own. Arguments: the value, the condition. False: not stored, the
  /// file unchanged.
  bool MoldTemperatureBCX_WriteDisplayType(int value, int bc);
  /// [MoldTemperatureBC-%d] "BCNodeCount": the number of mesh nodes of the boundary condition. From
  /// now on this writer begins a new section for positional lines (`MoldTemperatureBCX_WriteBC`,
  /// `MoldTemperatureBCX_WriteBCSetting`): write those first, or through a writer of their own.
  /// Arguments: the value, the condition. False: not stored, the file unchanged.
  bool MoldTemperatureBCX_WriteNodeCount(int value, int bc);
  /// [MoldTemperatureBC-%d] "BC-%d": a point of the boundary condition's profile: the time, and the
  /// temperature, in oC. From now on this writer begins a new section for positional lines
  /// (`MoldTemperatureBCX_WriteBC`, `MoldTemperatureBCX_WriteBCSetting`): write those first, or
  /// through a writer of their own. Arguments: x, y, the point, the condition. False: not stored,
  /// the file unchanged.
  bool MoldTemperatureBCX_WriteBCProfile(double x, double y, int point, int bc);

  // [GasF-%d]: gas-assisted filling at a gas inlet.

  /// [GasF-%d] "GasTime": how long gas is injected, in sec. Arguments: the value, the inlet. False:
  /// not stored, the file unchanged.
  bool GasFX_WriteGasTime(double value, int inlet);
  /// [GasF-%d] "GasPres": the pressure of the gas, in MPa. Arguments: the value, the inlet. False:
  /// not stored, the file unchanged.
  bool GasFX_WriteGasPressure(double value, int inlet);
  /// [GasF-%d] "GasSwch": the switch value at which the injection of gas begins. Arguments: the
  /// value, the inlet. False: not stored, the file unchanged.
  bool GasFX_WriteGasSwitch(double value, int inlet);
  /// [GasF-%d] "DelayTime": how long the injection of gas waits, in sec. Arguments: the value, the
  /// inlet. False: not stored, the file unchanged.
  bool GasFX_WriteDelayTime(double value, int inlet);
  /// [GasF-%d] "GRDisplayType": a code: how a front end shows the gas flow rate profile. Arguments:
  /// the value, the inlet. False: not stored, the file unchanged.
  bool GasFX_WriteGRDisplayType(int value, int inlet);
  /// [GasF-%d] "GRProfileType": a code: in which form the gas flow rate profile was entered.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool GasFX_WriteGRProfileType(int value, int inlet);
  /// [GasF-%d] "GPDisplayType": a code: how a front end shows the gas pressure profile. Arguments:
  /// the value, the inlet. False: not stored, the file unchanged.
  bool GasFX_WriteGPDisplayType(int value, int inlet);
  /// [GasF-%d] "GPProfileType": a code: in which form the gas pressure profile was entered.
  /// Arguments: the value, the inlet. False: not stored, the file unchanged.
  bool GasFX_WriteGPProfileType(int value, int inlet);
  /// [GasF-%d] "GRSet": the number of points of the gas flow rate profile. Arguments: the value,
  /// the inlet. False: not stored, the file unchanged.
  bool GasFX_WriteGRSection(int value, int inlet);
  /// [GasF-%d] "GR-%d": a point of the gas flow rate profile: the time in the stage, and the flow
  /// rate. Arguments: x, y, the point, the inlet. False: not stored, the file unchanged.
  bool GasFX_WriteGRProfile(double x, double y, int point, int inlet);
  /// [GasF-%d] "GPSet": the number of points of the gas pressure profile. Arguments: the value, the
  /// inlet. False: not stored, the file unchanged.
  bool GasFX_WriteGPSection(int value, int inlet);
  /// [GasF-%d] "GP-%d": a point of the gas pressure profile: the time in the stage, and the
  /// pressure, in MPa. Arguments: x, y, the point, the inlet. False: not stored, the file
  /// unchanged.
  bool GasFX_WriteGPProfile(double x, double y, int point, int inlet);
  /// [GasF-%d] "UserGRSet": the number of points of the gas flow rate profile as the user entered
  /// it. No member of the reader reads it. Arguments: the value, the inlet. False: not stored, the
  /// file unchanged.
  bool GasFX_WriteUserGRSection(int value, int inlet);
  /// [GasF-%d] "UserGR-%d": a point of the gas flow rate profile as the user entered it: x and y.
  /// No member of the reader reads it. Arguments: x, y, the point, the inlet. False: not stored,
  /// the file unchanged.
  bool GasFX_WriteUserGRProfile(double x, double y, int point, int inlet);
  /// [GasF-%d] "UserGPSet": the number of points of the gas pressure profile as the user entered
  /// it. No member of the reader reads it. Arguments: the value, the inlet. False: not stored, the
  /// file unchanged.
  bool GasFX_WriteUserGPSection(int value, int inlet);
  /// [GasF-%d] "USerGP-%d": a point of the gas pressure profile as the user entered it, under a key
  /// with a capital S: x and y. No member of the reader reads it. Arguments: x, y, the point, the
  /// inlet. False: not stored, the file unchanged.
  bool GasFX_WriteUserGPProfile(double x, double y, int point, int inlet);

  // [AdvancedSetting]: the mold's opening direction, the clamp force and the cycle time.

  /// [AdvancedSetting] "OpenDirection": the direction in which the mold opens: the x, y and z of a
  /// vector. Arguments: x, y, z. False: not stored, the file unchanged.
  bool AdvancedSetting_WriteOpenDirection(double x, double y, double z);
  /// [AdvancedSetting] "ClampForce": the force that holds the mold shut. Argument: the value.
  /// False: not stored, the file unchanged.
  bool AdvancedSetting_WriteClampForce(double value);

  // [TransientInletConv]: pellet pre-heating and initial conversion, where the conversion at the
  // inlet changes with time.

  /// [TransientInletConv] "InitConversionType": a code: how the initial conversion is given.
  /// Argument: the value. False: not stored, the file unchanged.
  bool TransientInletConv_WriteInitConversionType(int value);
  /// [TransientInletConv] "InitPelletConv": how far the pellet's curing reaction has gone (its
  /// conversion) before pre-heating. Argument: the value. False: not stored, the file unchanged.
  bool TransientInletConv_WriteInitPelletConversion(double value);
  /// [TransientInletConv] "PelletDiameter": the diameter of the pellet. Argument: the value. False:
  /// not stored, the file unchanged.
  bool TransientInletConv_WritePelletDiameter(double value);
  /// [TransientInletConv] "PelletHeight": the height of the pellet. Argument: the value. False: not
  /// stored, the file unchanged.
  bool TransientInletConv_WritePelletHeight(double value);
  /// [TransientInletConv] "PreHeatTime": how long the pellet is pre-heated, in sec. Argument: the
  /// value. False: not stored, the file unchanged.
  bool TransientInletConv_WritePreHeatTime(double value);

  // [MoldThermalBoundaryType]: the heat transfer between melt and mold.

  /// [MoldThermalBoundaryType] "Type": a code: how the heat transfer between melt and mold is
  /// given. Argument: the value. False: not stored, the file unchanged.
  bool MoldTemperatureBoundaryType_WriteHTCType(int value);
  /// [MoldThermalBoundaryType] "Flow": the heat transfer coefficient in filling, with a note such
  /// as its unit. The note, such as W/m^2.K, is put in parentheses. Arguments: the coefficient, the
  /// note. False: not stored, the file unchanged.
  bool MoldTemperatureBoundaryType_WriteHTCFlow(double value, char* note);
  /// [MoldThermalBoundaryType] "Flow", from a text that is constant, such as a literal: the same
  /// member.
  template <class Char>
  qel::IfConstant<Char> MoldTemperatureBoundaryType_WriteHTCFlow(double value, Char* note) {
    return MoldTemperatureBoundaryType_WriteHTCFlow(value, const_cast<char*>(note));
  }
  /// [MoldThermalBoundaryType] "Pack": the heat transfer coefficient in packing, with a note such
  /// as its unit. The note, such as W/m^2.K, is put in parentheses. Arguments: the coefficient, the
  /// note. False: not stored, the file unchanged.
  bool MoldTemperatureBoundaryType_WriteHTCPack(double value, char* note);
  /// [MoldThermalBoundaryType] "Pack", from a text that is constant, such as a literal: the same
  /// member.
  template <class Char>
  qel::IfConstant<Char> MoldTemperatureBoundaryType_WriteHTCPack(double value, Char* note) {
    return MoldTemperatureBoundaryType_WriteHTCPack(value, const_cast<char*>(note));
  }
  /// [MoldThermalBoundaryType] "Detached_HTC": the heat transfer coefficient where the part has
  /// come off the mold, with a note such as its unit. The note, such as W/m^2.K, is put in
  /// parentheses. Arguments: the coefficient, the note. False: not stored, the file unchanged.
  bool MoldTemperatureBoundaryType_WriteHTCDetached(double value, char* note);
  /// [MoldThermalBoundaryType] "Detached_HTC", from a text that is constant, such as a literal: the
  /// same member.
  template <class Char>
  qel::IfConstant<Char> MoldTemperatureBoundaryType_WriteHTCDetached(double value, Char* note) {
    return MoldTemperatureBoundaryType_WriteHTCDetached(value, const_cast<char*>(note));
  }
  /// [MoldThermalBoundaryType] "HotRunner_HTC": the heat transfer coefficient in the hot runner,
  /// with a note such as its unit. The note, such as W/m^2.K, is put in parentheses. Arguments: the
  /// coefficient, the note. False: not stored, the file unchanged.
  bool MoldTemperatureBoundaryType_WriteHTCHotRunner(double value, char* note);
  /// [MoldThermalBoundaryType] "HotRunner_HTC", from a text that is constant, such as a literal:
  /// the same member.
  template <class Char>
  qel::IfConstant<Char> MoldTemperatureBoundaryType_WriteHTCHotRunner(double value, Char* note) {
    return MoldTemperatureBoundaryType_WriteHTCHotRunner(value, const_cast<char*>(note));
  }

  // [ICPackage]: pellet pre-heating and initial conversion of IC package encapsulation.

  /// [ICPackage] "InitConversionType": a code: how the initial conversion is given. Argument: the
  /// value. False: not stored, the file unchanged.
  bool ICPackage_WriteInitConversionType(int value);
  /// [ICPackage] "InitConversion": how far the pellet's curing reaction has gone (its conversion)
  /// before pre-heating. Argument: the value. False: not stored, the file unchanged.
  bool ICPackage_WriteInitPelletConversion(double value);
  /// [ICPackage] "PelletDiameter": the diameter of the pellet. Argument: the value. False: not
  /// stored, the file unchanged.
  bool ICPackage_WritePelletDiameter(double value);
  /// [ICPackage] "PelletHeight": the height of the pellet. Argument: the value. False: not stored,
  /// the file unchanged.
  bool ICPackage_WritePelletHeight(double value);
  /// [ICPackage] "PreHeatingTime": how long the pellet is pre-heated, in sec. Argument: the value.
  /// False: not stored, the file unchanged.
  bool ICPackage_WritePreHeatTime(double value);

  // [PartingSurface]: the cavity and core sides.

  /// [PartingSurface] "CavityPart": the part on the cavity side: an integer and three reals.
  /// Arguments: the integer, three reals. False: not stored, the file unchanged.
  bool PartingSurface_WriteCavityPart(int number, double f2, double f3, double f4);
  /// [PartingSurface] "CavityMoldbase": the mold base on the cavity side: an integer and three
  /// reals. Arguments: the integer, three reals. False: not stored, the file unchanged.
  bool PartingSurface_WriteCavityMoldbase(int number, double f2, double f3, double f4);
  /// [PartingSurface] "CorePart": the part on the core side: an integer and three reals. Arguments:
  /// the integer, three reals. False: not stored, the file unchanged.
  bool PartingSurface_WriteCorePart(int number, double f2, double f3, double f4);
  /// [PartingSurface] "CoreMoldbase": the mold base on the core side: an integer and three reals.
  /// Arguments: the integer, three reals. False: not stored, the file unchanged.
  bool PartingSurface_WriteCoreMoldbase(int number, double f2, double f3, double f4);

  // [EjectCriteria]: the sensor and criteria nodes that decide ejection.

  /// [EjectCriteria] "TotalSensorNode": the number of sensor nodes. Argument: the value. False: not
  /// stored, the file unchanged.
  bool EjectCriteria_WriteTotalSensorNode(int value);
  /// [EjectCriteria] "SensorNode-%d": the mesh node of a sensor. Arguments: the value, the sensor.
  /// False: not stored, the file unchanged.
  bool EjectCriteria_WriteSensorNode(int value, int sensor);
  /// [EjectCriteria] "TotalCriteriaNode": the number of criteria nodes. Argument: the value. False:
  /// not stored, the file unchanged.
  bool EjectCriteria_WriteTotalCriteriaNode(int value);
  /// [EjectCriteria] "CriteriaNode-%d": the mesh node of a criterion, and the criterion's value.
  /// Arguments: the node, the value, the criterion. False: not stored, the file unchanged.
  bool EjectCriteria_WriteCriteriaNode(int node, double value, int criterion);

  // [PartInsertInitialTemperature]: the initial temperature of each part insert.

  /// [PartInsertInitialTemperature] "TotalPartInsert": the number of part inserts. Argument: the
  /// value. False: not stored, the file unchanged.
  bool PartInsertInitialTemperature_WriteTotalPartInsert(int value);
  /// [PartInsertInitialTemperature] "PartInsert-%d": a part insert: its identifier, its name, its
  /// initial temperature, in oC. The name is written whole, blanks and all, and may be empty. The
  /// reader's form of four outputs gives its words back, one blank between them, where the
  /// temperature without its fraction is above `insert`; otherwise it takes the temperature for the
  /// fourth field, and the name's last word for the temperature. The other form gives the first
  /// word back, and of a name with blanks no temperature. An empty name reads back empty.
  /// Arguments: the identifier, the name, the temperature, the insert. False: not stored, the file
  /// unchanged.
  bool PartInsertInitialTemperature_WritePartInsert(
      int id, char* name, double temperature, int insert);
  /// [PartInsertInitialTemperature] "PartInsert-%d", from a text that is constant, such as a
  /// literal: the same member.
  template <class Char>
  qel::IfConstant<Char> PartInsertInitialTemperature_WritePartInsert(
      int id, Char* name, double temperature, int insert) {
    return PartInsertInitialTemperature_WritePartInsert(
        id, const_cast<char*>(name), temperature, insert);
  }

  // [MoldInsertInitialTemperature]: the initial temperature of each mold insert.

  /// [MoldInsertInitialTemperature] "TotalMoldInsert": the number of mold inserts. Argument: the
  /// value. False: not stored, the file unchanged.
  bool MoldInsertInitialTemperature_WriteTotalMoldInsert(int value);
  /// [MoldInsertInitialTemperature] "MoldInsert-%d": a mold insert: its identifier, its name, its
  /// initial temperature, in oC. The name is written whole, blanks and all, and may be empty. The
  /// reader's form of four outputs gives its words back, one blank between them, where the
  /// temperature without its fraction is above `insert`; otherwise it takes the temperature for the
  /// fourth field, and the name's last word for the temperature. The other form gives the first
  /// word back, and of a name with blanks no temperature. An empty name reads back empty.
  /// Arguments: the identifier, the name, the temperature, the insert. False: not stored, the file
  /// unchanged.
  bool MoldInsertInitialTemperature_WriteMoldInsert(
      int id, char* name, double temperature, int insert);
  /// [MoldInsertInitialTemperature] "MoldInsert-%d", from a text that is constant, such as a
  /// literal: the same member.
  template <class Char>
  qel::IfConstant<Char> MoldInsertInitialTemperature_WriteMoldInsert(
      int id, Char* name, double temperature, int insert) {
    return MoldInsertInitialTemperature_WriteMoldInsert(
        id, const_cast<char*>(name), temperature, insert);
  }

  // [MoldbaseInfo]: numbered mold bases with their names.

  /// [MoldbaseInfo] "MB-%d": a mold base: an integer and its name, which stands in double quotes.
  /// The name is put in double quotes. Arguments: the integer, the name, the mold base. False: not
  /// stored, the file unchanged.
  bool MoldbaseInfo_WriteMoldbaseInfo(int number, char* name, int moldbase);
  /// [MoldbaseInfo] "MB-%d", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> MoldbaseInfo_WriteMoldbaseInfo(int number, Char* name, int moldbase) {
    return MoldbaseInfo_WriteMoldbaseInfo(number, const_cast<char*>(name), moldbase);
  }

  // [MicrocellularMolding]: foaming and gas dosage.

  /// [MicrocellularMolding] "FoamDurationTime": how long foaming lasts, in sec. Argument: the
  /// value. False: not stored, the file unchanged.
  bool MicrocellularMolding_WriteFoamDurationTime(double value);
  /// [MicrocellularMolding] "StartFoamingType": a code: what makes foaming begin. Argument: the
  /// value. False: not stored, the file unchanged.
  bool MicrocellularMolding_WriteStartFoamingType(int value);
  /// [MicrocellularMolding] "VolumeFilled": the filled volume at which foaming begins. Argument:
  /// the value. False: not stored, the file unchanged.
  bool MicrocellularMolding_WriteVolumeFilled(double value);
  /// [MicrocellularMolding] "PreInjectedVolume": the volume that is injected before foaming begins.
  /// Argument: the value. False: not stored, the file unchanged.
  bool MicrocellularMolding_WritePreInjectedVolume(double value);
  /// [MicrocellularMolding] "InitialGasConcentrationType": a code: how the initial gas
  /// concentration is given. Argument: the value. False: not stored, the file unchanged.
  bool MicrocellularMolding_WriteInitialGasConcentrationType(int value);
  /// [MicrocellularMolding] "GasDosageAmount": how much gas is dissolved in the melt. Argument: the
  /// value. False: not stored, the file unchanged.
  bool MicrocellularMolding_WriteGasDosageAmount(double value);
  /// [MicrocellularMolding] "GasSaturationPressure": the saturation pressure of the gas, in MPa.
  /// Argument: the value. False: not stored, the file unchanged.
  bool MicrocellularMolding_WriteGasSaturationPressure(double value);
  /// [MicrocellularMolding] "NozzleShutoff": a code: whether the nozzle shuts off. Argument: the
  /// value. False: not stored, the file unchanged.
  bool MicrocellularMolding_WriteNozzleShutoff(int value);
  /// [MicrocellularMolding] "AdvancedType": a code: which of the advanced values counts. Argument:
  /// the value. False: not stored, the file unchanged.
  bool MicrocellularMolding_WriteAdvancedType(int value);
  /// [MicrocellularMolding] "RamPosition": the ram position, for an advanced type that asks for
  /// one. Argument: the value. False: not stored, the file unchanged.
  bool MicrocellularMolding_WriteRamPosition(double value);
  /// [MicrocellularMolding] "PartWeight": the weight of the part, for an advanced type that asks
  /// for one. Argument: the value. False: not stored, the file unchanged.
  bool MicrocellularMolding_WritePartWeight(double value);

  // [PartInsertContactAngle]: the contact angle of each part insert group.

  /// [PartInsertContactAngle] "GroupCount": the number of groups of part inserts. Argument: the
  /// value. False: not stored, the file unchanged.
  bool PartInsertContactAngle_WriteGroupCount(int value);

  // clang-format on
  // The members above are made; what follows is written by hand.

  // [FileHeader]: what the file is, who wrote it and when.

  /// [FileHeader] "Date": the date of the last change, as "2026/11/15 09:05:07". Argument: the
  /// text. False: not stored, the file unchanged.
  bool FileHeader_WriteDate(char* text);
  /// [FileHeader] "Date", from a text that is constant, such as a literal: the same member.
  template <class Char>
  qel::IfConstant<Char> FileHeader_WriteDate(Char* text) {
    return FileHeader_WriteDate(const_cast<char*>(text));
  }
  /// [FileHeader] "Date": the date of the last change, as "2026/11/15 09:05:07". Writes the local
  /// date and time of this moment. No arguments. False: not stored, the file unchanged.
  bool FileHeader_WriteDate();

  // [Unit]: the units in which the file's values are given; they are fixed.

  /// [Unit], whole: "Time" sec, "Temp" oC, "Pres" MPa, "FR" cc/sec, "IP" MPa, "PP" MPa, "Volume"
  /// cc, in this order. The units are fixed. A store that fails is passed over, and nothing tells
  /// of it.
  void WriteUnitBlock();

  // [GateValve-%d]: a valve gate.

  /// [GateValve-%d] "GC-%d": a control point without its last integer. Writes three fields,
  /// whatever the mode. "GCSet" is raised to `point` where it is lower; a valve without "GCSet" has
  /// one point. Arguments: the value, the integer, the mode, the point, the valve. False: not
  /// stored whole.
  bool GateValveX_WriteGateSetting(double value, int number, int mode, int point, int valve);
  /// [GateValve-%d] "GC-%d": a control point: the switching value, an integer, the mode (1 to 4),
  /// and for modes 2 and 3 an integer. Modes 1 and 4 write the first three fields, 2 and 3 all
  /// four, any other an empty value. "GCSet" is raised to `point` where it is lower; a valve
  /// without "GCSet" has one point. Arguments: the value, the integer, the mode, the last integer,
  /// the point, the valve. False: not stored whole.
  bool GateValveX_WriteGateSetting(double value, int number, int mode, int last, int point,
                                   int valve);
  /// [GateValve-%d] "GC-%d": a control point without its last integer. As
  /// `GateValveX_WriteGateSetting` with as many values. It goes to the first valve whose "GCId" is
  /// `id`, among as many as "TotalGateCTL" of [Summary] says; a valve without "GCId" has 0. Where
  /// there is none, nothing is written. Arguments: the value, the integer, the mode, the point, the
  /// identifier. False: not stored whole.
  bool GateValveX_WriteGateSettingByValveGateID(double value, int number, int mode, int point,
                                                int id);
  /// [GateValve-%d] "GC-%d": a control point: the switching value, an integer, the mode (1 to 4),
  /// and for modes 2 and 3 an integer. As `GateValveX_WriteGateSetting` with as many values. It
  /// goes to the first valve whose "GCId" is `id`, among as many as "TotalGateCTL" of [Summary]
  /// says; a valve without "GCId" has 0. Where there is none, nothing is written. Arguments: the
  /// value, the integer, the mode, the last integer, the point, the identifier. False: not stored
  /// whole.
  bool GateValveX_WriteGateSettingByValveGateID(double value, int number, int mode, int last,
                                                int point, int id);

  // [PartInsertContactAngle]: the contact angle of each part insert group.

  /// [PartInsertContactAngle] "%d": a group of part inserts: its name in double quotes, and its
  /// contact angle. The key is the number of the group. The name is put in double quotes; one that
  /// holds a double quote cannot be read back. Arguments: the group, the name, the angle. False:
  /// not stored, the file unchanged.
  bool PartInsertContactAngle_WriteGroup(int group, const char* name, double angle);

  // [SURFACE ELEMENT BOUNDARY CONDITION NAME]: lines addressed by position, from 1; see the reader.

  /// [SURFACE ELEMENT BOUNDARY CONDITION NAME] header line: one for each boundary condition: the
  /// number of its setting lines, its name, and an integer. A line after the section's last one
  /// becomes its new last line; no line of a later section is touched. Call it before any member of
  /// [MoldTemperatureBC-%d], or on a writer of its own. Arguments: the number of setting lines, the
  /// name, the integer, the line, from 1. False: not stored, the file unchanged.
  bool MoldTemperatureBCX_WriteBC(int first, char* name, int second, int line);
  /// [SURFACE ELEMENT BOUNDARY CONDITION NAME] header line, from a text that is constant, such as a
  /// literal: the same member.
  template <class Char>
  qel::IfConstant<Char> MoldTemperatureBCX_WriteBC(int first, Char* name, int second, int line) {
    return MoldTemperatureBCX_WriteBC(first, const_cast<char*>(name), second, line);
  }
  /// [SURFACE ELEMENT BOUNDARY CONDITION NAME] setting line: after all header lines, one condition
  /// after the other: a number, "=", and two reals. Written as the number of the condition, " = ",
  /// and the two reals, at line `offset` + `setting` + the sum of the first integers of header
  /// lines 1 to `bc` - 1. A line after the section's last one becomes its new last line. Where one
  /// of those header lines is not in the section, nothing is written. Arguments: the first real,
  /// the second real, the setting line, the condition, the number of header lines. False: not
  /// stored, the file unchanged.
  bool MoldTemperatureBCX_WriteBCSetting(double a, double b, int setting, int bc, int offset);

 private:
  bool OpenSession();

  CQELPROWriter* session_ = nullptr;
  std::string path_;
};
