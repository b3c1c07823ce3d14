#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(CoolCTL, SectionReader,
                         testing::Values(reads(READER(CoolCTL_ReadCoolantTemperature), "[CoolCTL]", "T-5", "360.25", 360.25, 5),
                                         reads(READER(CoolCTL_ReadCoolantFlowRate), "[CoolCTL]", "F-7", "363.25", 363.25, 7),
                                         reads(READER(CoolCTL_ReadCoolantPressure), "[CoolCTL]", "P-9", "366.25", 366.25, 9),
                                         reads(READER(CoolCTL_ReadCoolantSystem), "[CoolCTL]", "M-4", "247", 247, 4)),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(CoolCTL, SectionWriter,
                         testing::Values(writes(WRITER(CoolCTL_WriteCoolantTemperature), "[CoolCTL]", "T-6", "361.75", 361.75, 6),
                                         writes(WRITER(CoolCTL_WriteCoolantFlowRate), "[CoolCTL]", "F-8", "364.75", 364.75, 8),
                                         writes(WRITER(CoolCTL_WroteCoolantPressure), "[CoolCTL]", "P-3", "367.75", 367.75, 3),
                                         writes(WRITER(CoolCTL_WriteCoolantSystem), "[CoolCTL]", "M-5", "248", 248, 5)),
                         name_of_row);

}  // namespace
}  // namespace qelpro_test
