#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [PartingSurface]: the cavity and core sides.
namespace qel::parting_surface {

inline constexpr char kSection[] = "[PartingSurface]";

inline constexpr Key<IntegerAndThreeReals> kCavityPart{
    "CavityPart",
    {"PartingSurface_ReadCavityPart"},
    {"PartingSurface_WriteCavityPart"},
    "the part on the cavity side: an integer and three reals",
    {.older = {"GetPSCavityPart"}}};
inline constexpr Key<IntegerAndThreeReals> kCavityMoldbase{
    "CavityMoldbase",
    {"PartingSurface_ReadCavityMoldbase"},
    {"PartingSurface_WriteCavityMoldbase"},
    "the mold base on the cavity side: an integer and three reals"};
inline constexpr Key<IntegerAndThreeReals> kCorePart{
    "CorePart",
    {"PartingSurface_ReadCorePart"},
    {"PartingSurface_WriteCorePart"},
    "the part on the core side: an integer and three reals",
    {.older = {"GetPSCorePart"}}};
inline constexpr Key<IntegerAndThreeReals> kCoreMoldbase{
    "CoreMoldbase",
    {"PartingSurface_ReadCoreMoldbase"},
    {"PartingSurface_WriteCoreMoldbase"},
    "the mold base on the core side: an integer and three reals"};

// Only the older object serves these.
inline constexpr Key<IntegerAndThreeReals> kCavityMoldBase{
    "CavityMoldBase",
    {},
    {},
    "the mold base on the cavity side under the spelling of the older object: an integer and three "
    "reals",
    {.older = {"GetPSCavityMoldBase"}}};
inline constexpr Key<IntegerAndThreeReals> kCoreMoldBase{
    "CoreMoldBase",
    {},
    {},
    "the mold base on the core side under the spelling of the older object: an integer and three "
    "reals",
    {.older = {"GetPSCoreMoldBase"}}};

inline constexpr const KeyInfo* kKeys[] = {&kCavityPart,   &kCavityMoldbase, &kCorePart,
                                           &kCoreMoldbase, &kCavityMoldBase, &kCoreMoldBase};

inline constexpr SectionInfo kInfo{kSection, "PartingSurface", "the cavity and core sides", kKeys};

}  // namespace qel::parting_surface

using CQELPROBlockIOPartingSurface = qel::SectionBlock<qel::parting_surface::kInfo>;
