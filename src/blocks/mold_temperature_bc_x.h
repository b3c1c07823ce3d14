#pragma once

#include "blocks/block.h"

/// [SURFACE
namespace qel::mold_temperature_bc_x {

inline constexpr char kSection[] = "[SURFACE";

}  // namespace qel::mold_temperature_bc_x

class CQELPROBlockIOMoldTemperatureBCX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldTemperatureBCX() : CQELPROBlockIOBase(qel::mold_temperature_bc_x::kSection) {}
};
