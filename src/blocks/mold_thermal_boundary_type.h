#pragma once

#include "blocks/block.h"

/// [MoldThermalBoundaryType]
namespace qel::mold_thermal_boundary_type {

inline constexpr char kSection[] = "[MoldThermalBoundaryType]";

}  // namespace qel::mold_thermal_boundary_type

class CQELPROBlockIOMoldThermalBoundaryType : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldThermalBoundaryType() : CQELPROBlockIOBase(qel::mold_thermal_boundary_type::kSection) {}
};
