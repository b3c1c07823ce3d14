#include "blocks/unit.h"

namespace {

struct FixedUnit {
  const char* key;
  const char* text;
};

constexpr FixedUnit kFixed[] = {
    {qel::key_of(qel::unit::kKeys, "Time"), "sec\tTime"},
    {qel::key_of(qel::unit::kKeys, "Temp"), "oC\tTemperature"},
    {qel::key_of(qel::unit::kKeys, "Pres"), "MPa\tPressure"},
    {qel::key_of(qel::unit::kKeys, "FR"), "cc/sec\tFlowRate"},
    {qel::key_of(qel::unit::kKeys, "IP"), "MPa\tInjectionPressure"},
    {qel::key_of(qel::unit::kKeys, "PP"), "MPa\tPackPressure"},
    {qel::key_of(qel::unit::kKeys, "Volume"), "cc\tVolume"},
};
static_assert(std::size(kFixed) == CQELPROBlockIOUnit::kUnits);

}  // namespace

qel::Result CQELPROBlockIOUnit::WriteUnit(std::size_t number) {
  return Write<qel::Text>(kFixed[number].key, {}, kFixed[number].text);
}
