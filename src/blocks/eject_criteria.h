#pragma once

#include "blocks/block.h"

/// [EjectCriteria]
namespace qel::eject_criteria {

inline constexpr char kSection[] = "[EjectCriteria]";

}  // namespace qel::eject_criteria

class CQELPROBlockIOEjectCriteria : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOEjectCriteria() : CQELPROBlockIOBase(qel::eject_criteria::kSection) {}
};
