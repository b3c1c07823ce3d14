#pragma once

#include "blocks/block.h"

/// [MoldInsertInitialTemperature]
namespace qel::mold_insert_initial_temperature {

inline constexpr char kSection[] = "[MoldInsertInitialTemperature]";

}  // namespace qel::mold_insert_initial_temperature

class CQELPROBlockIOMoldInsertInitialTemperature : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldInsertInitialTemperature() : CQELPROBlockIOBase(qel::mold_insert_initial_temperature::kSection) {}
};
