#pragma once

#include "blocks/block.h"

/// [PartInsertInitialTemperature]
namespace qel::part_insert_initial_temperature {

inline constexpr char kSection[] = "[PartInsertInitialTemperature]";

}  // namespace qel::part_insert_initial_temperature

class CQELPROBlockIOPartInsertInitialTemperature : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOPartInsertInitialTemperature() : CQELPROBlockIOBase(qel::part_insert_initial_temperature::kSection) {}
};
