#pragma once

#include "blocks/block.h"

/// [AdvancedSetting]
namespace qel::advanced_setting {

inline constexpr char kSection[] = "[AdvancedSetting]";

}  // namespace qel::advanced_setting

class CQELPROBlockIOAdvancedSetting : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOAdvancedSetting() : CQELPROBlockIOBase(qel::advanced_setting::kSection) {}
};
