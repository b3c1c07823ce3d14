#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [VarCoolCTL]: variable cooling.
namespace qel::var_cool_ctl {

inline constexpr char kSection[] = "[VarCoolCTL]";

inline constexpr Key<Integer> kCoolantNo{"CoolantNo",
                                         {"VarCoolCTL_ReadCoolantCount"},
                                         {"VarCoolCTL_WriteCoolantCount"},
                                         "the number of entries of variable cooling",
                                         {.older = {"GetTotalCoolantNo", "SetTotalCoolantNo"}}};
inline constexpr Key<FourRealsAndInteger> kCoolant{
    "Coolant-%d",
    {"VarCoolCTL_ReadCoolant"},
    {"VarCoolCTL_WriteCoolant"},
    "an entry of variable cooling: four reals and an integer",
    {.number = {"entry", "the entry"}, .older = {"GetCoolant", "SetCoolant"}}};

inline constexpr const KeyInfo* kKeys[] = {&kCoolantNo, &kCoolant};

inline constexpr SectionInfo kInfo{kSection, "VarCoolCTL", "variable cooling", kKeys};

}  // namespace qel::var_cool_ctl

using CQELPROBlockIOVarCoolCTL = qel::SectionBlock<qel::var_cool_ctl::kInfo>;
