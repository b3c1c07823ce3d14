#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    MicrocellularMolding, SectionReader,
    testing::Values(reads(READER(MicrocellularMolding_ReadFoamDurationTime),
                          "[MicrocellularMolding]", "FoamDurationTime", "300.25", 300.25),
                    reads(READER(MicrocellularMolding_ReadStartFoamingType),
                          "[MicrocellularMolding]", "StartFoamingType", "203", 203),
                    reads(READER(MicrocellularMolding_ReadVolumeFilled), "[MicrocellularMolding]",
                          "VolumeFilled", "306.25", 306.25),
                    reads(READER(MicrocellularMolding_ReadPreInjectedVolume),
                          "[MicrocellularMolding]", "PreInjectedVolume", "309.25", 309.25),
                    reads(READER(MicrocellularMolding_ReadInitialGasConcentrationType),
                          "[MicrocellularMolding]", "InitialGasConcentrationType", "209", 209),
                    reads(READER(MicrocellularMolding_ReadGasDosageAmount),
                          "[MicrocellularMolding]", "GasDosageAmount", "315.25", 315.25),
                    reads(READER(MicrocellularMolding_ReadGasSaturationPressure),
                          "[MicrocellularMolding]", "GasSaturationPressure", "318.25", 318.25),
                    reads(READER(MicrocellularMolding_ReadNozzleShutoff), "[MicrocellularMolding]",
                          "NozzleShutoff", "215", 215),
                    reads(READER(MicrocellularMolding_ReadAdvancedType), "[MicrocellularMolding]",
                          "AdvancedType", "217", 217),
                    reads(READER(MicrocellularMolding_ReadRamPosition), "[MicrocellularMolding]",
                          "RamPosition", "327.25", 327.25),
                    reads(READER(MicrocellularMolding_ReadPartWeight), "[MicrocellularMolding]",
                          "PartWeight", "330.25", 330.25)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    MicrocellularMolding, SectionWriter,
    testing::Values(writes(WRITER(MicrocellularMolding_WriteFoamDurationTime),
                           "[MicrocellularMolding]", "FoamDurationTime", "301.75", 301.75),
                    writes(WRITER(MicrocellularMolding_WriteStartFoamingType),
                           "[MicrocellularMolding]", "StartFoamingType", "204", 204),
                    writes(WRITER(MicrocellularMolding_WriteVolumeFilled), "[MicrocellularMolding]",
                           "VolumeFilled", "307.75", 307.75),
                    writes(WRITER(MicrocellularMolding_WritePreInjectedVolume),
                           "[MicrocellularMolding]", "PreInjectedVolume", "310.75", 310.75),
                    writes(WRITER(MicrocellularMolding_WriteInitialGasConcentrationType),
                           "[MicrocellularMolding]", "InitialGasConcentrationType", "210", 210),
                    writes(WRITER(MicrocellularMolding_WriteGasDosageAmount),
                           "[MicrocellularMolding]", "GasDosageAmount", "316.75", 316.75),
                    writes(WRITER(MicrocellularMolding_WriteGasSaturationPressure),
                           "[MicrocellularMolding]", "GasSaturationPressure", "319.75", 319.75),
                    writes(WRITER(MicrocellularMolding_WriteNozzleShutoff),
                           "[MicrocellularMolding]", "NozzleShutoff", "216", 216),
                    writes(WRITER(MicrocellularMolding_WriteAdvancedType), "[MicrocellularMolding]",
                           "AdvancedType", "218", 218),
                    writes(WRITER(MicrocellularMolding_WriteRamPosition), "[MicrocellularMolding]",
                           "RamPosition", "328.75", 328.75),
                    writes(WRITER(MicrocellularMolding_WritePartWeight), "[MicrocellularMolding]",
                           "PartWeight", "331.75", 331.75)),
    name_of_row);

}  // namespace
}  // namespace qelpro_test
