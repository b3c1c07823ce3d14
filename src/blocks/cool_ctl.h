#pragma once

#include "blocks/block.h"

/// [CoolCTL]
namespace qel::cool_ctl {

inline constexpr char kSection[] = "[CoolCTL]";

}  // namespace qel::cool_ctl

class CQELPROBlockIOCoolCTL : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOCoolCTL() : CQELPROBlockIOBase(qel::cool_ctl::kSection) {}
};
