#pragma once

#include "blocks/block.h"

/// [Summary]: counts of the model, by which the other sections are numbered.
namespace qel::summary {

inline constexpr char kSection[] = "[Summary]";

inline constexpr Key<Integer> kTotalNdivz{"TotalNdivz", {"Summary_ReadTotalLayer"}, {"Summary_WriteTotalLayer"}, "the number of mesh layers"};
inline constexpr Key<Integer> kTotalNodeEM{
    "TotalNodeEM", {"Summary_ReadTotalMeltEntrance"}, {"Summary_WriteTotalMeltEntrance"}, "the number of melt entrances"};
inline constexpr Key<Integer> kTotalNodeEC{
    "TotalNodeEC", {"Summary_ReadTotalCoolantEntrance"}, {"Summary_WriteTotalCoolantEntrance"}, "the number of coolant entrances"};
inline constexpr Key<Integer> kTotalGateCTL{
    "TotalGateCTL", {"Summary_ReadTotalValveGate"}, {"Summary_WriteTotalValveGate"}, "the number of valve gates"};
inline constexpr Key<Integer> kVacuumIndex{"VacuumIndex", {"Summary_ReadVacuumIndex"}, {"Summary_WriteVacuumIndex"}, "the vacuum code"};
inline constexpr Key<Real> kSkinRatio{"SkinRatio", {"Summary_ReadSkinRatio"}, {"Summary_WriteSkinRatio"}, "the skin ratio"};
inline constexpr Key<Integer> kPEOFasPPack{
    "PEOFasPPack", {"Summary_ReadPEOFasPPack"}, {"Summary_WritePEOFasPPack"}, "1 where the pressure at the end of filling is the packing pressure"};
inline constexpr Key<Integer> kTotalNodeMB{"TotalNodeMB", {"Summary_ReadTotalMoldbase"}, {"Summary_WriteTotalMoldbase"}, "the number of mold bases"};
inline constexpr Key<Integer> kTotalNodeBC{
    "TotalNodeBC", {"Summary_ReadTotalBoundaryCondition"}, {"Summary_WriteTotalBoundaryCondition"}, "the number of boundary conditions"};
inline constexpr Key<Integer> kTotalNodeEG{
    "TotalNodeEG", {"Summary_ReadTotalGasEntrance"}, {"Summary_WriteTotalGasEntrance"}, "the number of gas entrances"};
inline constexpr Key<Integer> kTotalNodeMMM{
    "TotalNodeMMM", {"Summary_ReadTotalMoldMetalMaterial"}, {"Summary_WriteTotalMoldMetalMaterial"}, "the number of mold metal materials"};
inline constexpr Key<Integer> kSymVolRatio{"SymVolRatio",
                                           {"Summary_ReadSymmetryVolumeRatio"},
                                           {"Summary_WriteSymmetryVolumeRatio"},
                                           "the symmetry volume ratio, an integer: 0.5 reads as 0"};
inline constexpr Key<Integer> kTotalNodeHR{
    "TotalNodeHR", {"Summary_ReadTotalHeatingRod"}, {"Summary_WriteTotalHeatingRod"}, "the number of heating rods"};
inline constexpr Key<Integer> kIsTransientInletConv{"IsTransientInletConv",
                                                    {"Summary_ReadTransientInletConv"},
                                                    {"Summary_WriteTransientInletConv"},
                                                    "1 where the inlet conversion is transient, else 0"};
inline constexpr Key<Integer> kTotalOverFlowCTL{"TotalOverFlowCTL", {"Summary_ReadTotalOverFlowCTL"}, {}, "the number of overflows"};

// Only the simulator process takes these; no member reads or writes them.
inline constexpr Key<Integer> kTotalSTLNodeEC{"TotalSTLNodeEC", {}, {}, "the number of coolant entrances of surface meshes"};
inline constexpr Key<Integer> kTotalSTLNodeHR{"TotalSTLNodeHR", {}, {}, "the number of heating rods of surface meshes"};
inline constexpr Key<Integer> kTotalGrpCCL{"TotalGrpCCL", {}, {}, "the number of cooling channel line groups"};
inline constexpr Key<Integer> kTotalGrpCCS{"TotalGrpCCS", {}, {}, "the number of cooling channel surface groups"};

inline constexpr const KeyInfo* kKeys[] = {&kTotalNdivz,     &kTotalNodeEM,    &kTotalNodeEC, &kTotalGateCTL,         &kVacuumIndex,
                                           &kSkinRatio,      &kPEOFasPPack,    &kTotalNodeMB, &kTotalNodeBC,          &kTotalNodeEG,
                                           &kTotalNodeMMM,   &kSymVolRatio,    &kTotalNodeHR, &kIsTransientInletConv, &kTotalOverFlowCTL,
                                           &kTotalSTLNodeEC, &kTotalSTLNodeHR, &kTotalGrpCCL, &kTotalGrpCCS};

inline constexpr SectionInfo kInfo{kSection, "counts of the model, by which the other sections are numbered", kKeys, std::size(kKeys)};

}  // namespace qel::summary

class CQELPROBlockIOSummary : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOSummary() : CQELPROBlockIOBase(qel::summary::kSection) {}
};
