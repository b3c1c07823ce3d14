#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    TransientInletConv, SectionReader,
    testing::Values(reads(READER(TransientInletConv_ReadInitConversionType), "[TransientInletConv]",
                          "InitConversionType", "181", 181),
                    reads(READER(TransientInletConv_ReadInitPelletConversion),
                          "[TransientInletConv]", "InitPelletConv", "273.25", 273.25),
                    reads(READER(TransientInletConv_ReadPelletDiameter), "[TransientInletConv]",
                          "PelletDiameter", "276.25", 276.25),
                    reads(READER(TransientInletConv_ReadPelletHeight), "[TransientInletConv]",
                          "PelletHeight", "279.25", 279.25),
                    reads(READER(TransientInletConv_ReadPreHeatTime), "[TransientInletConv]",
                          "PreHeatTime", "282.25", 282.25)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    TransientInletConv, SectionWriter,
    testing::Values(writes(WRITER(TransientInletConv_WriteInitConversionType),
                           "[TransientInletConv]", "InitConversionType", "182", 182),
                    writes(WRITER(TransientInletConv_WriteInitPelletConversion),
                           "[TransientInletConv]", "InitPelletConv", "274.75", 274.75),
                    writes(WRITER(TransientInletConv_WritePelletDiameter), "[TransientInletConv]",
                           "PelletDiameter", "277.75", 277.75),
                    writes(WRITER(TransientInletConv_WritePelletHeight), "[TransientInletConv]",
                           "PelletHeight", "280.75", 280.75),
                    writes(WRITER(TransientInletConv_WritePreHeatTime), "[TransientInletConv]",
                           "PreHeatTime", "283.75", 283.75)),
    name_of_row);

}  // namespace
}  // namespace qelpro_test
