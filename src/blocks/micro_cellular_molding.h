#pragma once

#include "blocks/block.h"

/// [MicrocellularMolding]
namespace qel::micro_cellular_molding {

inline constexpr char kSection[] = "[MicrocellularMolding]";

}  // namespace qel::micro_cellular_molding

class CQELPROBlockIOMicroCellularMolding : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMicroCellularMolding() : CQELPROBlockIOBase(qel::micro_cellular_molding::kSection) {}
};
