#pragma once

#include "blocks/block.h"

/// [Summary]: counts of the model, by which the other sections are numbered.
namespace qel::summary {

inline constexpr char kSection[] = "[Summary]";

inline constexpr Key<Integer> kTotalNdivz{
    "TotalNdivz",
    {"Summary_ReadTotalLayer"},
    {"Summary_WriteTotalLayer"},
    "the number of layers into which the mesh divides the thickness",
    {.older = {"GetMeshLayer", "SetMeshLayer"}}};
inline constexpr Key<Integer> kTotalNodeEM{
    "TotalNodeEM",
    {"Summary_ReadTotalMeltEntrance"},
    {"Summary_WriteTotalMeltEntrance"},
    "the number of melt entrances",
    {.older = {"GetMeltEntranceNo", "SetMeltEntranceNo"}, .loader = "set_process_TotalNodeEM"}};
inline constexpr Key<Integer> kTotalNodeEC{
    "TotalNodeEC",
    {"Summary_ReadTotalCoolantEntrance"},
    {"Summary_WriteTotalCoolantEntrance"},
    "the number of coolant entrances",
    {.older = {"GetCoolantNo", "SetCoolantNo"}, .loader = "set_process_TotalNodeEC"}};
inline constexpr Key<Integer> kTotalGateCTL{"TotalGateCTL",
                                            {"Summary_ReadTotalValveGate"},
                                            {"Summary_WriteTotalValveGate"},
                                            "the number of valve gates",
                                            {.older = {"GetValveGateNo", "SetValveGateNo"},
                                             .adapter = {"SetGateCount"},
                                             .loader = "set_process_TotalGateCTL"}};
inline constexpr Key<Integer> kVacuumIndex{"VacuumIndex",
                                           {"Summary_ReadVacuumIndex"},
                                           {"Summary_WriteVacuumIndex"},
                                           "a code: whether and how the cavity is evacuated",
                                           {.older = {"GetVacuumIndex", "SetVacuumIndex"}}};
inline constexpr Key<Real> kSkinRatio{"SkinRatio",
                                      {"Summary_ReadSkinRatio"},
                                      {"Summary_WriteSkinRatio"},
                                      "the share of the skin material in a part of two materials",
                                      {.older = {"GetSkinRatio", "SetSkinRatio"}}};
inline constexpr Key<Integer> kPEOFasPPack{
    "PEOFasPPack",
    {"Summary_ReadPEOFasPPack"},
    {"Summary_WritePEOFasPPack"},
    "1 where the pressure at the end of filling is the packing pressure",
    {.older = {"GetPpackAsPeof", "SetPpackAsPeof"}}};
inline constexpr Key<Integer> kTotalNodeMB{
    "TotalNodeMB",
    {"Summary_ReadTotalMoldbase"},
    {"Summary_WriteTotalMoldbase"},
    "the number of mold bases",
    {.older = {"GetMoldbaseNo", "SetMoldbaseNo"}, .loader = "set_process_TotalNodeMB"}};
inline constexpr Key<Integer> kTotalNodeBC{
    "TotalNodeBC",
    {"Summary_ReadTotalBoundaryCondition"},
    {"Summary_WriteTotalBoundaryCondition"},
    "the number of boundary conditions",
    {.older = {"GetBoundaryConditionNo", "SetBoundaryConditionNo"},
     .loader = "set_process_TotalNodeBC"}};
inline constexpr Key<Integer> kTotalNodeEG{"TotalNodeEG",
                                           {"Summary_ReadTotalGasEntrance"},
                                           {"Summary_WriteTotalGasEntrance"},
                                           "the number of gas entrances",
                                           {.older = {"GetGasEntranceNo", "SetGasEntranceNo"}}};
inline constexpr Key<Integer> kTotalNodeMMM{
    "TotalNodeMMM",
    {"Summary_ReadTotalMoldMetalMaterial"},
    {"Summary_WriteTotalMoldMetalMaterial"},
    "the number of mold metal materials",
    {.older = {"GetMoldMetalMaterialNo", "SetMoldMetalMaterialNo"},
     .loader = "set_process_TotalNodeMMM"}};
inline constexpr Key<Integer> kSymVolRatio{
    "SymVolRatio",
    {"Summary_ReadSymmetryVolumeRatio"},
    {"Summary_WriteSymmetryVolumeRatio"},
    "how many times the part holds the modelled volume, where only a symmetric piece of it is "
    "modelled; an integer: 0.5 reads as 0",
    {.older = {"GetSymVolRatio", "SetSymVolRatio"}, .loader = "set_process_SymVolRatio"}};
inline constexpr Key<Integer> kTotalNodeHR{
    "TotalNodeHR",
    {"Summary_ReadTotalHeatingRod"},
    {"Summary_WriteTotalHeatingRod"},
    "the number of heating rods",
    {.older = {"GetHeatingRodNo", "SetHeatingRodNo"}, .loader = "set_process_TotalNodeHR"}};
inline constexpr Key<Integer> kIsTransientInletConv{
    "IsTransientInletConv",
    {"Summary_ReadTransientInletConv"},
    {"Summary_WriteTransientInletConv"},
    "1 where the resin's conversion at the inlet changes with time, else 0",
    {.older = {"GetIsTransientInletConv", "SetIsTransientInletConv"},
     .loader = "set_process_IsTransientInletConv"}};
inline constexpr Key<Integer> kTotalOverFlowCTL{"TotalOverFlowCTL",
                                                {"Summary_ReadTotalOverFlowCTL"},
                                                {},
                                                "the number of overflow valves",
                                                {.loader = "set_process_TotalOverFlowCTL"}};

// Only the loader takes these.
inline constexpr Key<Integer> kTotalSTLNodeEC{"TotalSTLNodeEC",
                                              {},
                                              {},
                                              "the number of coolant entrances of surface meshes",
                                              {.loader = "set_process_TotalSTLNodeEC"}};
inline constexpr Key<Integer> kTotalSTLNodeHR{"TotalSTLNodeHR",
                                              {},
                                              {},
                                              "the number of heating rods of surface meshes",
                                              {.loader = "set_process_TotalSTLNodeHR"}};
inline constexpr Key<Integer> kTotalGrpCCL{"TotalGrpCCL",
                                           {},
                                           {},
                                           "the number of cooling channel line groups",
                                           {.loader = "set_process_TotalGrpCCL"}};
inline constexpr Key<Integer> kTotalGrpCCS{"TotalGrpCCS",
                                           {},
                                           {},
                                           "the number of cooling channel surface groups",
                                           {.loader = "set_process_TotalGrpCCS"}};

// Only the older object serves this one.
inline constexpr Key<Integer> kNoOutput{"NoOutput",
                                        {},
                                        {},
                                        "how often results are put out (the multi time step)",
                                        {.older = {"GetMultiTimeStep", "SetMultiTimeStep"}}};

inline constexpr const KeyInfo* kKeys[] = {
    &kTotalNdivz,     &kTotalNodeEM,    &kTotalNodeEC, &kTotalGateCTL,         &kVacuumIndex,
    &kSkinRatio,      &kPEOFasPPack,    &kTotalNodeMB, &kTotalNodeBC,          &kTotalNodeEG,
    &kTotalNodeMMM,   &kSymVolRatio,    &kTotalNodeHR, &kIsTransientInletConv, &kTotalOverFlowCTL,
    &kTotalSTLNodeEC, &kTotalSTLNodeHR, &kTotalGrpCCL, &kTotalGrpCCS,          &kNoOutput};

inline constexpr SectionInfo kInfo{
    kSection, "Summary", "counts of the model, by which the other sections are numbered", kKeys};

}  // namespace qel::summary

using CQELPROBlockIOSummary = qel::SectionBlock<qel::summary::kInfo>;
