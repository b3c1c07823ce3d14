#pragma once

#include "blocks/block.h"

/// [PartInsertContactAngle]
namespace qel::part_insert_contact_angle {

inline constexpr char kSection[] = "[PartInsertContactAngle]";

}  // namespace qel::part_insert_contact_angle

class CQELPROBlockIOPartInsertContactAngle : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOPartInsertContactAngle() : CQELPROBlockIOBase(qel::part_insert_contact_angle::kSection) {}
};
