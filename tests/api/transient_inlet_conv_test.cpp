#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    TransientInletConv, SectionReader,
    testing::Values(reads(READER(TransientInletConv_ReadInitConversionType), "[TransientInletConv]", "InitConversionType", "178", 178),
                    reads(READER(TransientInletConv_ReadInitPelletConversion), "[TransientInletConv]", "InitPelletConv", "268.75", 268.75),
                    reads(READER(TransientInletConv_ReadPelletDiameter), "[TransientInletConv]", "PelletDiameter", "271.75", 271.75),
                    reads(READER(TransientInletConv_ReadPelletHeight), "[TransientInletConv]", "PelletHeight", "274.75", 274.75),
                    reads(READER(TransientInletConv_ReadPreHeatTime), "[TransientInletConv]", "PreHeatTime", "277.75", 277.75)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    TransientInletConv, SectionWriter,
    testing::Values(writes(WRITER(TransientInletConv_WriteInitConversionType), "[TransientInletConv]", "InitConversionType", "179", 179),
                    writes(WRITER(TransientInletConv_WriteInitPelletConversion), "[TransientInletConv]", "InitPelletConv", "270.25", 270.25),
                    writes(WRITER(TransientInletConv_WritePelletDiameter), "[TransientInletConv]", "PelletDiameter", "273.25", 273.25),
                    writes(WRITER(TransientInletConv_WritePelletHeight), "[TransientInletConv]", "PelletHeight", "276.25", 276.25),
                    writes(WRITER(TransientInletConv_WritePreHeatTime), "[TransientInletConv]", "PreHeatTime", "279.25", 279.25)),
    name_of_row);

}  // namespace
}  // namespace qelpro_test
