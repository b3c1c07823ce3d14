#pragma once

#include "blocks/block.h"

/// [ICPackage]: pellet pre-heating and initial conversion of IC package encapsulation.
namespace qel::ic_package {

inline constexpr char kSection[] = "[ICPackage]";

inline constexpr Key<Integer> kInitConversionType{
    "InitConversionType", {"ICPackage_ReadInitConversionType"}, {"ICPackage_WriteInitConversionType"}, "the code of the initial conversion"};
inline constexpr Key<Real> kInitConversion{
    "InitConversion", {"ICPackage_ReadInitPelletConversion"}, {"ICPackage_WriteInitPelletConversion"}, "the initial conversion of the pellet"};
inline constexpr Key<Real> kPelletDiameter{
    "PelletDiameter", {"ICPackage_ReadPelletDiameter"}, {"ICPackage_WritePelletDiameter"}, "the pellet's diameter"};
inline constexpr Key<Real> kPelletHeight{"PelletHeight", {"ICPackage_ReadPelletHeight"}, {"ICPackage_WritePelletHeight"}, "the pellet's height"};
inline constexpr Key<Real> kPreHeatingTime{
    "PreHeatingTime", {"ICPackage_ReadPreHeatTime"}, {"ICPackage_WritePreHeatTime"}, "the pre-heating time, in sec"};

inline constexpr const KeyInfo* kKeys[] = {&kInitConversionType, &kInitConversion, &kPelletDiameter, &kPelletHeight, &kPreHeatingTime};

inline constexpr SectionInfo kInfo{kSection, "pellet pre-heating and initial conversion of IC package encapsulation", kKeys, std::size(kKeys)};

}  // namespace qel::ic_package

class CQELPROBlockIOICPackage : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOICPackage() : CQELPROBlockIOBase(qel::ic_package::kSection) {}
};
