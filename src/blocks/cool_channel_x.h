#pragma once

#include "blocks/block.h"

/// [CoolChannel-%d]
namespace qel::cool_channel_x {

inline constexpr char kSection[] = "[CoolChannel-%d]";

}  // namespace qel::cool_channel_x

class CQELPROBlockIOCoolChannelX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOCoolChannelX() : CQELPROBlockIOBase(qel::cool_channel_x::kSection) {}
};
