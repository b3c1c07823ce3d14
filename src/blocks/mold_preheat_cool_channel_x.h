#pragma once

#include "blocks/block.h"

/// [MPreheat_CoolChannel-%d]
namespace qel::mold_preheat_cool_channel_x {

inline constexpr char kSection[] = "[MPreheat_CoolChannel-%d]";

}  // namespace qel::mold_preheat_cool_channel_x

class CQELPROBlockIOMoldPreHeatCoolChannelX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldPreHeatCoolChannelX() : CQELPROBlockIOBase(qel::mold_preheat_cool_channel_x::kSection) {}
};
