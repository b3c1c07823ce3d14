#pragma once

#include "blocks/block.h"

/// [GateValve-%d]
namespace qel::gate_valve_x {

inline constexpr char kSection[] = "[GateValve-%d]";

}  // namespace qel::gate_valve_x

class CQELPROBlockIOGateValveX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOGateValveX() : CQELPROBlockIOBase(qel::gate_valve_x::kSection) {}
};
