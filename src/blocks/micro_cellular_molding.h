#pragma once

#include "blocks/block.h"

/// [MicrocellularMolding]: foaming and gas dosage.
namespace qel::micro_cellular_molding {

inline constexpr char kSection[] = "[MicrocellularMolding]";

inline constexpr Key<Real> kFoamDurationTime{"FoamDurationTime",
                                             {"MicrocellularMolding_ReadFoamDurationTime"},
                                             {"MicrocellularMolding_WriteFoamDurationTime"},
                                             "how long foaming lasts, in sec"};
inline constexpr Key<Integer> kStartFoamingType{"StartFoamingType",
                                                {"MicrocellularMolding_ReadStartFoamingType"},
                                                {"MicrocellularMolding_WriteStartFoamingType"},
                                                "a code: what makes foaming begin"};
inline constexpr Key<Real> kVolumeFilled{"VolumeFilled",
                                         {"MicrocellularMolding_ReadVolumeFilled"},
                                         {"MicrocellularMolding_WriteVolumeFilled"},
                                         "the filled volume at which foaming begins"};
inline constexpr Key<Real> kPreInjectedVolume{"PreInjectedVolume",
                                              {"MicrocellularMolding_ReadPreInjectedVolume"},
                                              {"MicrocellularMolding_WritePreInjectedVolume"},
                                              "the volume that is injected before foaming begins"};
inline constexpr Key<Integer> kInitialGasConcentrationType{
    "InitialGasConcentrationType",
    {"MicrocellularMolding_ReadInitialGasConcentrationType"},
    {"MicrocellularMolding_WriteInitialGasConcentrationType"},
    "a code: how the initial gas concentration is given"};
inline constexpr Key<Real> kGasDosageAmount{"GasDosageAmount",
                                            {"MicrocellularMolding_ReadGasDosageAmount"},
                                            {"MicrocellularMolding_WriteGasDosageAmount"},
                                            "how much gas is dissolved in the melt"};
inline constexpr Key<Real> kGasSaturationPressure{
    "GasSaturationPressure",
    {"MicrocellularMolding_ReadGasSaturationPressure"},
    {"MicrocellularMolding_WriteGasSaturationPressure"},
    "the saturation pressure of the gas, in MPa"};
inline constexpr Key<Integer> kNozzleShutoff{"NozzleShutoff",
                                             {"MicrocellularMolding_ReadNozzleShutoff"},
                                             {"MicrocellularMolding_WriteNozzleShutoff"},
                                             "a code: whether the nozzle shuts off"};
inline constexpr Key<Integer> kAdvancedType{"AdvancedType",
                                            {"MicrocellularMolding_ReadAdvancedType"},
                                            {"MicrocellularMolding_WriteAdvancedType"},
                                            "a code: which of the advanced values counts"};
inline constexpr Key<Real> kRamPosition{"RamPosition",
                                        {"MicrocellularMolding_ReadRamPosition"},
                                        {"MicrocellularMolding_WriteRamPosition"},
                                        "the ram position, for an advanced type that asks for one"};
inline constexpr Key<Real> kPartWeight{
    "PartWeight",
    {"MicrocellularMolding_ReadPartWeight"},
    {"MicrocellularMolding_WritePartWeight"},
    "the weight of the part, for an advanced type that asks for one"};

inline constexpr const KeyInfo* kKeys[] = {&kFoamDurationTime,
                                           &kStartFoamingType,
                                           &kVolumeFilled,
                                           &kPreInjectedVolume,
                                           &kInitialGasConcentrationType,
                                           &kGasDosageAmount,
                                           &kGasSaturationPressure,
                                           &kNozzleShutoff,
                                           &kAdvancedType,
                                           &kRamPosition,
                                           &kPartWeight};

inline constexpr SectionInfo kInfo{kSection, "MicroCellularMolding", "foaming and gas dosage",
                                   kKeys};

}  // namespace qel::micro_cellular_molding

using CQELPROBlockIOMicroCellularMolding = qel::SectionBlock<qel::micro_cellular_molding::kInfo>;
