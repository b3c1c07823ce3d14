#pragma once

#include "blocks/block.h"

/// [GasF-%d]
namespace qel::gas_f_x {

inline constexpr char kSection[] = "[GasF-%d]";

}  // namespace qel::gas_f_x

class CQELPROBlockIOGasFX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOGasFX() : CQELPROBlockIOBase(qel::gas_f_x::kSection) {}
};
