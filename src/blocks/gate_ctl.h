#pragma once

#include "blocks/block.h"

/// [GateCTL]
namespace qel::gate_ctl {

inline constexpr char kSection[] = "[GateCTL]";

}  // namespace qel::gate_ctl

class CQELPROBlockIOGateCTL : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOGateCTL() : CQELPROBlockIOBase(qel::gate_ctl::kSection) {}
};
