#include "QELPROEngine/CQELPROReader_Manipulator.h"
#include "QELPROEngine/CQELProcessValueReader.h"

CQELProcessValueReader::CQELProcessValueReader() = default;
CQELProcessValueReader::CQELProcessValueReader(const CQELProcessValueReader& /*other*/) = default;
CQELProcessValueReader& CQELProcessValueReader::operator=(const CQELProcessValueReader& /*other*/) =
    default;

bool CQELProcessValueReader::GetVPSwitch(CQELPROReader_Manipulator* reader, int c1, int c2, int c3,
                                         int c4, int c5, int c6, int c7, int& first, int& second,
                                         double& value) {
  int mode = 0;
  if (reader == nullptr || !reader->FlowCTL_ReadVPSwitchCtrl(mode)) {
    return false;
  }
  switch (mode) {
    case 0:
      first = c1;
      second = c5;
      reader->FlowCTL_ReadVolumeFilled(value);
      return true;
    case 1:
      first = c2;
      second = c6;
      reader->FlowCTL_ReadRamPosition(value);
      return true;
    case 2:
      first = c3;
      second = c7;
      reader->FlowCTL_ReadInjectionPressure(value);
      return true;
    case 3:
      // The second choice and the value are those of mode 0.
      first = c4;
      second = c5;
      reader->FlowCTL_ReadVolumeFilled(value);
      return true;
    default:
      return false;
  }
}
