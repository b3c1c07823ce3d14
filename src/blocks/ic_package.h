#pragma once

#include "blocks/block.h"

/// [ICPackage]: pellet pre-heating and initial conversion of IC package encapsulation.
namespace qel::ic_package {

inline constexpr char kSection[] = "[ICPackage]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"InitConversionType",
                 {"ICPackage_ReadInitConversionType"},
                 {"ICPackage_WriteInitConversionType"},
                 "a code: how the initial conversion is given",
                 {.older = {"GetICInitConversionType"}}},
    Key<Real>{"InitConversion",
              {"ICPackage_ReadInitPelletConversion"},
              {"ICPackage_WriteInitPelletConversion"},
              "how far the pellet's curing reaction has gone (its conversion) before pre-heating",
              {.older = {"GetICInitConversion"}}},
    Key<Real>{"PelletDiameter",
              {"ICPackage_ReadPelletDiameter"},
              {"ICPackage_WritePelletDiameter"},
              "the diameter of the pellet",
              {.older = {"GetICPelletDiameter"}}},
    Key<Real>{"PelletHeight",
              {"ICPackage_ReadPelletHeight"},
              {"ICPackage_WritePelletHeight"},
              "the height of the pellet",
              {.older = {"GetICPelletHeight"}}},
    Key<Real>{"PreHeatingTime",
              {"ICPackage_ReadPreHeatTime"},
              {"ICPackage_WritePreHeatTime"},
              "how long the pellet is pre-heated, in sec",
              {.older = {"GetICPreHeatingTime"}}},
};

inline constexpr SectionInfo kInfo{
    kSection, "ICPackage", "pellet pre-heating and initial conversion of IC package encapsulation",
    kKeys};

}  // namespace qel::ic_package

using CQELPROBlockIOICPackage = qel::SectionBlock<qel::ic_package::kInfo>;
