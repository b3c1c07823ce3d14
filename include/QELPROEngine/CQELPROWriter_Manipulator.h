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

  // [Unit]: the units in which the file's values are given; they are fixed.

  /// "Time" sec, "Temp" oC, "Pres" MPa, "FR" cc/sec, "IP" MPa, "PP" MPa, "Volume" cc, in this order. Stores that fail are
  /// passed over.
  void WriteUnitBlock();

  // [Project]: the mesh and material files and the volumes of the project.

  /// "Mesh": the mesh file.
  bool Project_WriteMesh(char* text);
  /// "Material": the material file.
  bool Project_WriteMaterial(char* text);
  /// "CavVol": the volume of the cavity, in cc.
  bool Project_WriteCavityVolume(double value);
  /// "CushionVol": the volume of the cushion, in cc.
  bool Project_WriteCushionVolume(double value);

 private:
  bool OpenSession();

  CQELPROWriter* session_;
  std::string path_;
};
