#pragma once

#include "blocks/block.h"

/// [MoldPreheat]
namespace qel::mold_preheat {

inline constexpr char kSection[] = "[MoldPreheat]";

}  // namespace qel::mold_preheat

class CQELPROBlockIOMoldPreHeat : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldPreHeat() : CQELPROBlockIOBase(qel::mold_preheat::kSection) {}
};
