#pragma once

#include "blocks/block.h"

/// [MoldbaseInfo]
namespace qel::moldbase_info {

inline constexpr char kSection[] = "[MoldbaseInfo]";

}  // namespace qel::moldbase_info

class CQELPROBlockIOMoldbaseInfo : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldbaseInfo() : CQELPROBlockIOBase(qel::moldbase_info::kSection) {}
};
