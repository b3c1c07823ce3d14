#pragma once

#include "blocks/block.h"

/// [OFGateValve-%d]
namespace qel::overflow {

inline constexpr char kSection[] = "[OFGateValve-%d]";

}  // namespace qel::overflow

class CQELPROBlockIOOverflow : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOOverflow() : CQELPROBlockIOBase(qel::overflow::kSection) {}
};
