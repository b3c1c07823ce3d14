#pragma once

#include "blocks/block.h"

/// [MicrocellularMolding]: foaming and gas dosage.
namespace qel::micro_cellular_molding {

inline constexpr char kSection[] = "[MicrocellularMolding]";

inline constexpr KeyInfo kKeys[] = {
    Key<Real>{"FoamDurationTime",
              {"MicrocellularMolding_ReadFoamDurationTime"},
              {"MicrocellularMolding_WriteFoamDurationTime"},
              "how long foaming lasts, in sec"},
    Key<Integer>{"StartFoamingType",
                 {"MicrocellularMolding_ReadStartFoamingType"},
                 {"MicrocellularMolding_WriteStartFoamingType"},
                 "a code: what makes foaming begin"},
    Key<Real>{"VolumeFilled",
              {"MicrocellularMolding_ReadVolumeFilled"},
              {"MicrocellularMolding_WriteVolumeFilled"},
              "the filled volume at which foaming begins"},
    Key<Real>{"PreInjectedVolume",
              {"MicrocellularMolding_ReadPreInjectedVolume"},
              {"MicrocellularMolding_WritePreInjectedVolume"},
              "the volume that is injected before foaming begins"},
    Key<Integer>{"InitialGasConcentrationType",
                 {"MicrocellularMolding_ReadInitialGasConcentrationType"},
                 {"MicrocellularMolding_WriteInitialGasConcentrationType"},
                 "a code: how the initial gas concentration is given"},
    Key<Real>{"GasDosageAmount",
              {"MicrocellularMolding_ReadGasDosageAmount"},
              {"MicrocellularMolding_WriteGasDosageAmount"},
              "how much gas is dissolved in the melt"},
    Key<Real>{"GasSaturationPressure",
              {"MicrocellularMolding_ReadGasSaturationPressure"},
              {"MicrocellularMolding_WriteGasSaturationPressure"},
              "the saturation pressure of the gas, in MPa"},
    Key<Integer>{"NozzleShutoff",
                 {"MicrocellularMolding_ReadNozzleShutoff"},
                 {"MicrocellularMolding_WriteNozzleShutoff"},
                 "a code: whether the nozzle shuts off"},
    Key<Integer>{"AdvancedType",
                 {"MicrocellularMolding_ReadAdvancedType"},
                 {"MicrocellularMolding_WriteAdvancedType"},
                 "a code: which of the advanced values counts"},
    Key<Real>{"RamPosition",
              {"MicrocellularMolding_ReadRamPosition"},
              {"MicrocellularMolding_WriteRamPosition"},
              "the ram position, for an advanced type that asks for one"},
    Key<Real>{"PartWeight",
              {"MicrocellularMolding_ReadPartWeight"},
              {"MicrocellularMolding_WritePartWeight"},
              "the weight of the part, for an advanced type that asks for one"},
};

inline constexpr SectionInfo kInfo{kSection, "MicroCellularMolding", "foaming and gas dosage",
                                   kKeys};

}  // namespace qel::micro_cellular_molding

using CQELPROBlockIOMicroCellularMolding = qel::SectionBlock<qel::micro_cellular_molding::kInfo>;
