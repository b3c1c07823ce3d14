#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [PartingSurface]: the cavity and core sides.
namespace qel::parting_surface {

inline constexpr char kSection[] = "[PartingSurface]";

inline constexpr KeyInfo kKeys[] = {
    Key<IntegerAndThreeReals>{"CavityPart",
                              {"PartingSurface_ReadCavityPart"},
                              {"PartingSurface_WriteCavityPart"},
                              "the part on the cavity side: an integer and three reals",
                              {.older = {"GetPSCavityPart"}}},
    Key<IntegerAndThreeReals>{"CavityMoldbase",
                              {"PartingSurface_ReadCavityMoldbase"},
                              {"PartingSurface_WriteCavityMoldbase"},
                              "the mold base on the cavity side: an integer and three reals"},
    Key<IntegerAndThreeReals>{"CorePart",
                              {"PartingSurface_ReadCorePart"},
                              {"PartingSurface_WriteCorePart"},
                              "the part on the core side: an integer and three reals",
                              {.older = {"GetPSCorePart"}}},
    Key<IntegerAndThreeReals>{"CoreMoldbase",
                              {"PartingSurface_ReadCoreMoldbase"},
                              {"PartingSurface_WriteCoreMoldbase"},
                              "the mold base on the core side: an integer and three reals"},
    // Only the older object serves these.
    Key<IntegerAndThreeReals>{"CavityMoldBase",
                              {},
                              {},
                              "the mold base on the cavity side under the spelling of the older "
                              "object: an integer and three "
                              "reals",
                              {.older = {"GetPSCavityMoldBase"}}},
    Key<IntegerAndThreeReals>{"CoreMoldBase",
                              {},
                              {},
                              "the mold base on the core side under the spelling of the older "
                              "object: an integer and three "
                              "reals",
                              {.older = {"GetPSCoreMoldBase"}}},
};

inline constexpr SectionInfo kInfo{kSection, "PartingSurface", "the cavity and core sides", kKeys};

}  // namespace qel::parting_surface

using CQELPROBlockIOPartingSurface = qel::SectionBlock<qel::parting_surface::kInfo>;
