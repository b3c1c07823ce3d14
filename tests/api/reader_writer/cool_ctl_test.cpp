#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    CoolCTL, SectionReader,
    testing::Values(
        reads(READER(CoolCTL_ReadCoolantTemperature), "[CoolCTL]", "T-8", "364.75", 364.75, 8),
        reads(READER(CoolCTL_ReadCoolantFlowRate), "[CoolCTL]", "F-3", "367.75", 367.75, 3),
        reads(READER(CoolCTL_ReadCoolantPressure), "[CoolCTL]", "P-5", "370.75", 370.75, 5),
        reads(READER(CoolCTL_ReadCoolantSystem), "[CoolCTL]", "M-7", "250", 250, 7)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    CoolCTL, SectionWriter,
    testing::Values(
        writes(WRITER(CoolCTL_WriteCoolantTemperature), "[CoolCTL]", "T-9", "366.25", 366.25, 9),
        writes(WRITER(CoolCTL_WriteCoolantFlowRate), "[CoolCTL]", "F-4", "369.25", 369.25, 4),
        writes(WRITER(CoolCTL_WroteCoolantPressure), "[CoolCTL]", "P-6", "372.25", 372.25, 6),
        writes(WRITER(CoolCTL_WriteCoolantSystem), "[CoolCTL]", "M-8", "251", 251, 8)),
    name_of_row);

}  // namespace
}  // namespace qelpro_test
