#pragma once

#include "blocks/block.h"
#include "blocks/name_encoding.h"

/// [Moldbase]: the mold bases, one material line each.
namespace qel::moldbase {

inline constexpr char kSection[] = "[Moldbase]";

inline constexpr Key<MoldbaseLine> kMoldbase{
    "%d",
    {"Moldbase_ReadMoldbase"},
    {"Moldbase_WriteMoldbase"},
    "a mold base: three thermal values, its name, which may hold blanks, three mechanical values",
    {.older = {"GetMoldbase", "SetMoldbase"}}};

inline constexpr const KeyInfo* kKeys[] = {&kMoldbase};

inline constexpr SectionInfo kInfo{kSection, "the mold bases, one material line each", kKeys,
                                   std::size(kKeys)};

}  // namespace qel::moldbase

class CQELPROBlockIOMoldbase : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldbase() : CQELPROBlockIOBase(qel::moldbase::kSection) {}
};
