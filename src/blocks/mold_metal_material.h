#pragma once

#include "blocks/block.h"
#include "blocks/name_encoding.h"

/// [MoldMetalMaterial]: the mold metals, one material line each.
namespace qel::mold_metal_material {

inline constexpr char kSection[] = "[MoldMetalMaterial]";

inline constexpr KeyInfo kKeys[] = {
    Key<MoldMetalLine>{
        "%d",
        {"MoldMetalMaterial_ReadMaterial"},
        {"MoldMetalMaterial_WriteMaterial"},
        "a mold metal: three thermal values, its name, which may hold blanks, three mechanical "
        "values",
        {.number = {"row", "the row"}, .older = {"GetMoldMetalMaterial", "SetMoldMetalMaterial"}}},
};

inline constexpr SectionInfo kInfo{kSection, "MoldMetalMaterial",
                                   "the mold metals, one material line each", kKeys};

}  // namespace qel::mold_metal_material

using CQELPROBlockIOMoldMetalMaterial = qel::SectionBlock<qel::mold_metal_material::kInfo>;
