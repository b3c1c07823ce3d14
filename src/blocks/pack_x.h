#pragma once

#include "blocks/block.h"

/// [Pack-%d]
namespace qel::pack_x {

inline constexpr char kSection[] = "[Pack-%d]";

}  // namespace qel::pack_x

class CQELPROBlockIOPackX : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOPackX() : CQELPROBlockIOBase(qel::pack_x::kSection) {}
};
