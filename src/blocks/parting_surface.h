#pragma once

#include "blocks/block.h"

/// [PartingSurface]
namespace qel::parting_surface {

inline constexpr char kSection[] = "[PartingSurface]";

}  // namespace qel::parting_surface

class CQELPROBlockIOPartingSurface : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOPartingSurface() : CQELPROBlockIOBase(qel::parting_surface::kSection) {}
};
