#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [MoldThermalBoundaryType]: the heat transfer between melt and mold.
namespace qel::mold_thermal_boundary_type {

inline constexpr char kSection[] = "[MoldThermalBoundaryType]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"Type",
                 {"MoldTemperatureBoundaryType_ReadHTCType"},
                 {"MoldTemperatureBoundaryType_WriteHTCType"},
                 "a code: how the heat transfer between melt and mold is given",
                 {.older = {"GetMoldThermalBoundaryType", "SetMoldThermalBoundaryType"},
                  .loader = ProcessItem::HTC_HeatTransferType}},
    Key<RealWithNote>{
        "Flow",
        {"MoldTemperatureBoundaryType_ReadHTCFlow"},
        {"MoldTemperatureBoundaryType_WriteHTCFlow"},
        "the heat transfer coefficient in filling, with a note such as its unit",
        {.older = {"GetFlowHeatTransferCoefficient", "SetFlowHeatTransferCoefficient"},
         .loader = ProcessItem::HTC_Flow}},
    Key<RealWithNote>{
        "Pack",
        {"MoldTemperatureBoundaryType_ReadHTCPack"},
        {"MoldTemperatureBoundaryType_WriteHTCPack"},
        "the heat transfer coefficient in packing, with a note such as its unit",
        {.older = {"GetPackHeatTransferCoefficient", "SetPackHeatTransferCoefficient"},
         .loader = ProcessItem::HTC_Pack}},
    Key<RealWithNote>{"Detached_HTC",
                      {"MoldTemperatureBoundaryType_ReadHTCDetached"},
                      {"MoldTemperatureBoundaryType_WriteHTCDetached"},
                      "the heat transfer coefficient where the part has "
                      "come off the mold, with a note such as its unit",
                      {.loader = ProcessItem::HTC_Detached}},
    Key<RealWithNote>{
        "HotRunner_HTC",
        {"MoldTemperatureBoundaryType_ReadHTCHotRunner"},
        {"MoldTemperatureBoundaryType_WriteHTCHotRunner"},
        "the heat transfer coefficient in the hot runner, with a note such as its unit",
        {.loader = ProcessItem::HTC_HotRunner}},
    // Only the loader takes these.
    Key<Integer>{
        "UserMode", {}, {}, "a code of the user's mode", {.loader = ProcessItem::HTC_UserMode}},
    Key<Real>{"NuNum", {}, {}, "the Nusselt number", {.loader = ProcessItem::HTC_NuNum}},
};

inline constexpr SectionInfo kInfo{kSection, "MoldThermalBoundaryType",
                                   "the heat transfer between melt and mold", kKeys};

}  // namespace qel::mold_thermal_boundary_type

using CQELPROBlockIOMoldThermalBoundaryType =
    qel::SectionBlock<qel::mold_thermal_boundary_type::kInfo>;
