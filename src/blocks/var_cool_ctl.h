#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [VarCoolCTL]: variable cooling.
namespace qel::var_cool_ctl {

inline constexpr char kSection[] = "[VarCoolCTL]";

inline constexpr Key<Integer> kCoolantNo{"CoolantNo", {"VarCoolCTL_ReadCoolantCount"}, {"VarCoolCTL_WriteCoolantCount"}, "the number of entries"};
inline constexpr Key<FourRealsAndInteger> kCoolant{"Coolant-%d",
                                                   {"VarCoolCTL_ReadCoolant"},
                                                   {"VarCoolCTL_WriteCoolant"},
                                                   "an entry of four reals and an integer; what the text does not supply is 0"};

inline constexpr const KeyInfo* kKeys[] = {&kCoolantNo, &kCoolant};

inline constexpr SectionInfo kInfo{kSection, "variable cooling", kKeys, std::size(kKeys)};

}  // namespace qel::var_cool_ctl

class CQELPROBlockIOVarCoolCTL : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOVarCoolCTL() : CQELPROBlockIOBase(qel::var_cool_ctl::kSection) {}
};
