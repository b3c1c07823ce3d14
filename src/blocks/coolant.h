#pragma once

#include "blocks/block.h"

/// [Coolant]
namespace qel::coolant {

inline constexpr char kSection[] = "[Coolant]";

}  // namespace qel::coolant

class CQELPROBlockIOCoolant : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOCoolant() : CQELPROBlockIOBase(qel::coolant::kSection) {}
};
