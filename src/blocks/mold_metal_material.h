#pragma once

#include "blocks/block.h"

/// [MoldMetalMaterial]
namespace qel::mold_metal_material {

inline constexpr char kSection[] = "[MoldMetalMaterial]";

}  // namespace qel::mold_metal_material

class CQELPROBlockIOMoldMetalMaterial : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldMetalMaterial() : CQELPROBlockIOBase(qel::mold_metal_material::kSection) {}
};
