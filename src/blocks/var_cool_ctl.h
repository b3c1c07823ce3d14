#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [VarCoolCTL]: variable cooling.
namespace qel::var_cool_ctl {

inline constexpr char kSection[] = "[VarCoolCTL]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"CoolantNo",
                 {"VarCoolCTL_ReadCoolantCount"},
                 {"VarCoolCTL_WriteCoolantCount"},
                 "the number of entries of variable cooling",
                 {.older = {"GetTotalCoolantNo", "SetTotalCoolantNo"}}},
    Key<FourRealsAndInteger>{"Coolant-%d",
                             {"VarCoolCTL_ReadCoolant"},
                             {"VarCoolCTL_WriteCoolant"},
                             "an entry of variable cooling: four reals and an integer",
                             {.number = {"entry", "the entry"},
                              .older = {"GetCoolant", "SetCoolant"},
                              .counted_by = "CoolantNo"}},
};

inline constexpr SectionInfo kInfo{kSection, "VarCoolCTL", "variable cooling", kKeys};

}  // namespace qel::var_cool_ctl

using CQELPROBlockIOVarCoolCTL = qel::SectionBlock<qel::var_cool_ctl::kInfo>;
