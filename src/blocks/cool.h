#pragma once

#include "blocks/block.h"

/// [Cool]
namespace qel::cool {

inline constexpr char kSection[] = "[Cool]";

}  // namespace qel::cool

class CQELPROBlockIOCool : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOCool() : CQELPROBlockIOBase(qel::cool::kSection) {}
};
