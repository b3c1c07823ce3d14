#pragma once

#include "blocks/block.h"

/// [VarCoolCTL]
namespace qel::var_cool_ctl {

inline constexpr char kSection[] = "[VarCoolCTL]";

}  // namespace qel::var_cool_ctl

class CQELPROBlockIOVarCoolCTL : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOVarCoolCTL() : CQELPROBlockIOBase(qel::var_cool_ctl::kSection) {}
};
