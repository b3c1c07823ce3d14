#pragma once

#include "blocks/block.h"
#include "blocks/name_encoding.h"

/// [Moldbase]: the mold bases, one material line each.
namespace qel::moldbase {

inline constexpr char kSection[] = "[Moldbase]";

inline constexpr KeyInfo kKeys[] = {
    Key<MoldbaseLine>{"%d",
                      {"Moldbase_ReadMoldbase"},
                      {"Moldbase_WriteMoldbase"},
                      "a mold base: three thermal values, its name, which may hold blanks, three "
                      "mechanical values",
                      {.number = {"row", "the row"}, .older = {"GetMoldbase", "SetMoldbase"}}},
};

inline constexpr SectionInfo kInfo{kSection, "Moldbase", "the mold bases, one material line each",
                                   kKeys};

}  // namespace qel::moldbase

using CQELPROBlockIOMoldbase = qel::SectionBlock<qel::moldbase::kInfo>;
