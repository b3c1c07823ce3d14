#pragma once

#include "blocks/block.h"

/// [TransientInletConv]: pellet pre-heating and initial conversion, where the conversion at the
/// inlet changes with time.
namespace qel::transient_inlet_conv {

inline constexpr char kSection[] = "[TransientInletConv]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"InitConversionType",
                 {"TransientInletConv_ReadInitConversionType"},
                 {"TransientInletConv_WriteInitConversionType"},
                 "a code: how the initial conversion is given"},
    Key<Real>{"InitPelletConv",
              {"TransientInletConv_ReadInitPelletConversion"},
              {"TransientInletConv_WriteInitPelletConversion"},
              "how far the pellet's curing reaction has gone (its conversion) before pre-heating",
              {.older = {"GetInitPelletConv", "SetInitPelletConv"}}},
    Key<Real>{"PelletDiameter",
              {"TransientInletConv_ReadPelletDiameter"},
              {"TransientInletConv_WritePelletDiameter"},
              "the diameter of the pellet",
              {.older = {"GetPelletDiameter", "SetPelletDiameter"}}},
    Key<Real>{"PelletHeight",
              {"TransientInletConv_ReadPelletHeight"},
              {"TransientInletConv_WritePelletHeight"},
              "the height of the pellet",
              {.older = {"GetPelletHeight", "SetPelletHeight"}}},
    Key<Real>{"PreHeatTime",
              {"TransientInletConv_ReadPreHeatTime"},
              {"TransientInletConv_WritePreHeatTime"},
              "how long the pellet is pre-heated, in sec",
              {.older = {"GetPreHeatTime", "SetPreHeatTime"}}},
};

inline constexpr SectionInfo kInfo{kSection, "TransientInletConv",
                                   "pellet pre-heating and initial conversion, where the "
                                   "conversion at the inlet changes with time",
                                   kKeys};

}  // namespace qel::transient_inlet_conv

using CQELPROBlockIOTransientInletConv = qel::SectionBlock<qel::transient_inlet_conv::kInfo>;
