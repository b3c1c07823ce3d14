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

 private:
  bool OpenSession();

  CQELPROReader* session_;
  unsigned int raw_reads_disabled_;
};
