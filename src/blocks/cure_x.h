#pragma once

#include "blocks/block.h"

/// [Cure-%d]
namespace qel::cure_x {

inline constexpr char kSection[] = "[Cure-%d]";

}  // namespace qel::cure_x

class CQELPROBlockIOCureX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOCureX() : CQELPROBlockIOBase(qel::cure_x::kSection) {}
};
