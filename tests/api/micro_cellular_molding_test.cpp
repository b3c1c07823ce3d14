#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    MicrocellularMolding, SectionReader,
    testing::Values(
        reads(READER(MicrocellularMolding_ReadFoamDurationTime), "[MicrocellularMolding]", "FoamDurationTime", "295.75", 295.75),
        reads(READER(MicrocellularMolding_ReadStartFoamingType), "[MicrocellularMolding]", "StartFoamingType", "200", 200),
        reads(READER(MicrocellularMolding_ReadVolumeFilled), "[MicrocellularMolding]", "VolumeFilled", "301.75", 301.75),
        reads(READER(MicrocellularMolding_ReadPreInjectedVolume), "[MicrocellularMolding]", "PreInjectedVolume", "304.75", 304.75),
        reads(READER(MicrocellularMolding_ReadInitialGasConcentrationType), "[MicrocellularMolding]", "InitialGasConcentrationType", "206", 206),
        reads(READER(MicrocellularMolding_ReadGasDosageAmount), "[MicrocellularMolding]", "GasDosageAmount", "310.75", 310.75),
        reads(READER(MicrocellularMolding_ReadGasSaturationPressure), "[MicrocellularMolding]", "GasSaturationPressure", "313.75", 313.75),
        reads(READER(MicrocellularMolding_ReadNozzleShutoff), "[MicrocellularMolding]", "NozzleShutoff", "212", 212),
        reads(READER(MicrocellularMolding_ReadAdvancedType), "[MicrocellularMolding]", "AdvancedType", "214", 214),
        reads(READER(MicrocellularMolding_ReadRamPosition), "[MicrocellularMolding]", "RamPosition", "322.75", 322.75),
        reads(READER(MicrocellularMolding_ReadPartWeight), "[MicrocellularMolding]", "PartWeight", "325.75", 325.75)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    MicrocellularMolding, SectionWriter,
    testing::Values(
        writes(WRITER(MicrocellularMolding_WriteFoamDurationTime), "[MicrocellularMolding]", "FoamDurationTime", "297.25", 297.25),
        writes(WRITER(MicrocellularMolding_WriteStartFoamingType), "[MicrocellularMolding]", "StartFoamingType", "201", 201),
        writes(WRITER(MicrocellularMolding_WriteVolumeFilled), "[MicrocellularMolding]", "VolumeFilled", "303.25", 303.25),
        writes(WRITER(MicrocellularMolding_WritePreInjectedVolume), "[MicrocellularMolding]", "PreInjectedVolume", "306.25", 306.25),
        writes(WRITER(MicrocellularMolding_WriteInitialGasConcentrationType), "[MicrocellularMolding]", "InitialGasConcentrationType", "207", 207),
        writes(WRITER(MicrocellularMolding_WriteGasDosageAmount), "[MicrocellularMolding]", "GasDosageAmount", "312.25", 312.25),
        writes(WRITER(MicrocellularMolding_WriteGasSaturationPressure), "[MicrocellularMolding]", "GasSaturationPressure", "315.25", 315.25),
        writes(WRITER(MicrocellularMolding_WriteNozzleShutoff), "[MicrocellularMolding]", "NozzleShutoff", "213", 213),
        writes(WRITER(MicrocellularMolding_WriteAdvancedType), "[MicrocellularMolding]", "AdvancedType", "215", 215),
        writes(WRITER(MicrocellularMolding_WriteRamPosition), "[MicrocellularMolding]", "RamPosition", "324.25", 324.25),
        writes(WRITER(MicrocellularMolding_WritePartWeight), "[MicrocellularMolding]", "PartWeight", "327.25", 327.25)),
    name_of_row);

}  // namespace
}  // namespace qelpro_test
