#pragma once

#include "blocks/block.h"

/// [TransientInletConv]: pellet pre-heating and initial conversion, where the conversion at the
/// inlet changes with time.
namespace qel::transient_inlet_conv {

inline constexpr char kSection[] = "[TransientInletConv]";

inline constexpr Key<Integer> kInitConversionType{"InitConversionType",
                                                  {"TransientInletConv_ReadInitConversionType"},
                                                  {"TransientInletConv_WriteInitConversionType"},
                                                  "a code: how the initial conversion is given"};
inline constexpr Key<Real> kInitPelletConv{
    "InitPelletConv",
    {"TransientInletConv_ReadInitPelletConversion"},
    {"TransientInletConv_WriteInitPelletConversion"},
    "how far the pellet's curing reaction has gone (its conversion) before pre-heating",
    {.older = {"GetInitPelletConv", "SetInitPelletConv"}}};
inline constexpr Key<Real> kPelletDiameter{"PelletDiameter",
                                           {"TransientInletConv_ReadPelletDiameter"},
                                           {"TransientInletConv_WritePelletDiameter"},
                                           "the diameter of the pellet",
                                           {.older = {"GetPelletDiameter", "SetPelletDiameter"}}};
inline constexpr Key<Real> kPelletHeight{"PelletHeight",
                                         {"TransientInletConv_ReadPelletHeight"},
                                         {"TransientInletConv_WritePelletHeight"},
                                         "the height of the pellet",
                                         {.older = {"GetPelletHeight", "SetPelletHeight"}}};
inline constexpr Key<Real> kPreHeatTime{"PreHeatTime",
                                        {"TransientInletConv_ReadPreHeatTime"},
                                        {"TransientInletConv_WritePreHeatTime"},
                                        "how long the pellet is pre-heated, in sec",
                                        {.older = {"GetPreHeatTime", "SetPreHeatTime"}}};

inline constexpr const KeyInfo* kKeys[] = {&kInitConversionType, &kInitPelletConv, &kPelletDiameter,
                                           &kPelletHeight, &kPreHeatTime};

inline constexpr SectionInfo kInfo{kSection, "TransientInletConv",
                                   "pellet pre-heating and initial conversion, where the "
                                   "conversion at the inlet changes with time",
                                   kKeys};

}  // namespace qel::transient_inlet_conv

using CQELPROBlockIOTransientInletConv = qel::SectionBlock<qel::transient_inlet_conv::kInfo>;
