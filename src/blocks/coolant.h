#pragma once

#include "blocks/block.h"
#include "blocks/name_encoding.h"

/// [Coolant]: the coolants, one line each.
namespace qel::coolant {

inline constexpr char kSection[] = "[Coolant]";

inline constexpr KeyInfo kKeys[] = {
    Key<CoolantLine>{"%d",
                     {"Coolant_ReadCoolant"},
                     {"Coolant_WriteCoolant"},
                     "a coolant: density (g/cm^3), specific heat (erg/(g K)), thermal conductivity "
                     "(erg/(s cm K)), "
                     "viscosity "
                     "(poise), coolant system, name (one word), channel diameter, channel group",
                     {.number = {"coolant", "the coolant"},
                      .older = {"GetCoolant", "SetCoolant"},
                      .adapter = {"SetCoolant_WriteCoolant", "SetCoolingChannelData"}}},
};

inline constexpr SectionInfo kInfo{kSection, "Coolant", "the coolants, one line each", kKeys};

}  // namespace qel::coolant

using CQELPROBlockIOCoolant = qel::SectionBlock<qel::coolant::kInfo>;
