#include "blocks/unit.h"

void CQELPROBlockIOUnit::WriteUnits() {
  using namespace qel::unit;
  Write(kTime, {}, "sec\tTime");
  Write(kTemp, {}, "oC\tTemperature");
  Write(kPres, {}, "MPa\tPressure");
  Write(kFR, {}, "cc/sec\tFlowRate");
  Write(kIP, {}, "MPa\tInjectionPressure");
  Write(kPP, {}, "MPa\tPackPressure");
  Write(kVolume, {}, "cc\tVolume");
}
