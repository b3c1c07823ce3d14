#pragma once

#include "blocks/block.h"
#include "blocks/name_encoding.h"

/// [MoldbaseInfo]: numbered mold bases with their names.
namespace qel::moldbase_info {

inline constexpr char kSection[] = "[MoldbaseInfo]";

inline constexpr Key<IntegerAndQuotedName> kMoldbase{
    "MB-%d",
    {"MoldbaseInfo_ReadMoldbaseInfo"},
    {"MoldbaseInfo_WriteMoldbaseInfo"},
    "a mold base: an integer and its name, which stands in double quotes"};

inline constexpr const KeyInfo* kKeys[] = {&kMoldbase};

inline constexpr SectionInfo kInfo{kSection, "numbered mold bases with their names", kKeys,
                                   std::size(kKeys)};

}  // namespace qel::moldbase_info

class CQELPROBlockIOMoldbaseInfo : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldbaseInfo() : CQELPROBlockIOBase(qel::moldbase_info::kSection) {}
};
