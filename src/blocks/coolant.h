#pragma once

#include "blocks/block.h"
#include "blocks/name_encoding.h"

/// [Coolant]: the coolants, one line each.
namespace qel::coolant {

inline constexpr char kSection[] = "[Coolant]";

inline constexpr Key<CoolantLine> kCoolant{
    "%d",
    {"Coolant_ReadCoolant"},
    {"Coolant_WriteCoolant"},
    "a coolant: four properties, its system, its name (one word), a real, an integer; what the text does not supply is 0, the name null"};

inline constexpr const KeyInfo* kKeys[] = {&kCoolant};

inline constexpr SectionInfo kInfo{kSection, "the coolants, one line each", kKeys, std::size(kKeys)};

}  // namespace qel::coolant

class CQELPROBlockIOCoolant : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOCoolant() : CQELPROBlockIOBase(qel::coolant::kSection) {}
};
