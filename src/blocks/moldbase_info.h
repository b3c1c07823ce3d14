#pragma once

#include "blocks/block.h"
#include "blocks/name_encoding.h"

/// [MoldbaseInfo]: numbered mold bases with their names.
namespace qel::moldbase_info {

inline constexpr char kSection[] = "[MoldbaseInfo]";

inline constexpr KeyInfo kKeys[] = {
    Key<IntegerAndQuotedName>{"MB-%d",
                              {"MoldbaseInfo_ReadMoldbaseInfo"},
                              {"MoldbaseInfo_WriteMoldbaseInfo"},
                              "a mold base: an integer and its name, which stands in double quotes",
                              {.number = {"moldbase", "the mold base"}}},
};

inline constexpr SectionInfo kInfo{kSection, "MoldbaseInfo", "numbered mold bases with their names",
                                   kKeys};

}  // namespace qel::moldbase_info

using CQELPROBlockIOMoldbaseInfo = qel::SectionBlock<qel::moldbase_info::kInfo>;
