#pragma once

#include "blocks/block.h"

/// [Flow-%ld]
namespace qel::flow_x {

inline constexpr char kSection[] = "[Flow-%ld]";

}  // namespace qel::flow_x

class CQELPROBlockIOFlowX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOFlowX() : CQELPROBlockIOBase(qel::flow_x::kSection) {}
};
