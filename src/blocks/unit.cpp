#include "blocks/unit.h"

using namespace qel::unit;

namespace {

constexpr struct {
  const qel::Key<qel::Text>& key;
  const char* text;
} kFixed[CQELPROBlockIOUnit::kUnits] = {
    {kTime, "sec\tTime"},       {kTemp, "oC\tTemperature"}, {kPres, "MPa\tPressure"}, {kFR, "cc/sec\tFlowRate"}, {kIP, "MPa\tInjectionPressure"},
    {kPP, "MPa\tPackPressure"}, {kVolume, "cc\tVolume"},
};

}  // namespace

int CQELPROBlockIOUnit::WriteUnit(std::size_t number) { return Write(kFixed[number].key, {}, kFixed[number].text); }
