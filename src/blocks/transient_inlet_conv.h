#pragma once

#include "blocks/block.h"

/// [TransientInletConv]
namespace qel::transient_inlet_conv {

inline constexpr char kSection[] = "[TransientInletConv]";

}  // namespace qel::transient_inlet_conv

class CQELPROBlockIOTransientInletConv : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOTransientInletConv() : CQELPROBlockIOBase(qel::transient_inlet_conv::kSection) {}
};
