#pragma once

#include "blocks/block.h"

/// [TransientInletConv]: pellet pre-heating and initial conversion where the inlet conversion is transient.
namespace qel::transient_inlet_conv {

inline constexpr char kSection[] = "[TransientInletConv]";

inline constexpr Key<Integer> kInitConversionType{"InitConversionType",
                                                  {"TransientInletConv_ReadInitConversionType"},
                                                  {"TransientInletConv_WriteInitConversionType"},
                                                  "the code of the initial conversion"};
inline constexpr Key<Real> kInitPelletConv{"InitPelletConv",
                                           {"TransientInletConv_ReadInitPelletConversion"},
                                           {"TransientInletConv_WriteInitPelletConversion"},
                                           "the initial conversion of the pellet"};
inline constexpr Key<Real> kPelletDiameter{
    "PelletDiameter", {"TransientInletConv_ReadPelletDiameter"}, {"TransientInletConv_WritePelletDiameter"}, "the pellet's diameter"};
inline constexpr Key<Real> kPelletHeight{
    "PelletHeight", {"TransientInletConv_ReadPelletHeight"}, {"TransientInletConv_WritePelletHeight"}, "the pellet's height"};
inline constexpr Key<Real> kPreHeatTime{
    "PreHeatTime", {"TransientInletConv_ReadPreHeatTime"}, {"TransientInletConv_WritePreHeatTime"}, "the pre-heating time, in sec"};

inline constexpr const KeyInfo* kKeys[] = {&kInitConversionType, &kInitPelletConv, &kPelletDiameter, &kPelletHeight, &kPreHeatTime};

inline constexpr SectionInfo kInfo{kSection, "pellet pre-heating and initial conversion where the inlet conversion is transient", kKeys,
                                   std::size(kKeys)};

}  // namespace qel::transient_inlet_conv

class CQELPROBlockIOTransientInletConv : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOTransientInletConv() : CQELPROBlockIOBase(qel::transient_inlet_conv::kSection) {}
};
