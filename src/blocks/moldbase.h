#pragma once

#include "blocks/block.h"

/// [Moldbase]
namespace qel::moldbase {

inline constexpr char kSection[] = "[Moldbase]";

}  // namespace qel::moldbase

class CQELPROBlockIOMoldbase : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldbase() : CQELPROBlockIOBase(qel::moldbase::kSection) {}
};
