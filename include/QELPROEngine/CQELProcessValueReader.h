#pragma once

#include "QELPROEngine/export.h"

class CQELPROReader_Manipulator;

/// Reads the velocity/pressure switch-over of a process file.
class QELPROENGINE_API CQELProcessValueReader {
 public:
  CQELProcessValueReader();
  /// An object holds nothing.
  CQELProcessValueReader(const CQELProcessValueReader& other);
  /// An object holds nothing.
  CQELProcessValueReader& operator=(const CQELProcessValueReader& other);

  /// Chooses by "VPSwitchCtrl" of [FlowCTL]:
  ///
  /// | mode | first | second | value                |
  /// |------|-------|--------|----------------------|
  /// | 0    | c1    | c5     | "VolumeFilled"       |
  /// | 1    | c2    | c6     | "RamPosition"        |
  /// | 2    | c3    | c7     | "InjectionPressure"  |
  /// | 3    | c4    | c5     | "VolumeFilled"       |
  ///
  /// False, with every output untouched, without a reader, without the key and for any other mode.
  /// A value that is missing in the file leaves `value` as it was, and the result is true all the
  /// same.
  static bool GetVPSwitch(CQELPROReader_Manipulator* reader, int c1, int c2, int c3, int c4, int c5,
                          int c6, int c7, int& first, int& second, double& value);
};
