#include "blocks/unit.h"

using namespace qel::unit;

namespace {

struct FixedUnit {
  const qel::Key<qel::Text>& key;
  const char* text;
};

constexpr FixedUnit kFixed[] = {
    {kTime, "sec\tTime"},      {kTemp, "oC\tTemperature"},      {kPres, "MPa\tPressure"},
    {kFR, "cc/sec\tFlowRate"}, {kIP, "MPa\tInjectionPressure"}, {kPP, "MPa\tPackPressure"},
    {kVolume, "cc\tVolume"},
};
static_assert(std::size(kFixed) == CQELPROBlockIOUnit::kUnits);

}  // namespace

int CQELPROBlockIOUnit::WriteUnit(std::size_t number) {
  return Write(kFixed[number].key, {}, kFixed[number].text);
}
