#pragma once

#include "blocks/block.h"

/// [RamPosition]
namespace qel::ram_position {

inline constexpr char kSection[] = "[RamPosition]";

}  // namespace qel::ram_position

class CQELPROBlockIORamPosition : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIORamPosition() : CQELPROBlockIOBase(qel::ram_position::kSection) {}
};
