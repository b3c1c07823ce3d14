#pragma once

#include "blocks/block.h"

/// [Machine]
namespace qel::machine {

inline constexpr char kSection[] = "[Machine]";

}  // namespace qel::machine

class CQELPROBlockIOMachine : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMachine() : CQELPROBlockIOBase(qel::machine::kSection) {}
};
