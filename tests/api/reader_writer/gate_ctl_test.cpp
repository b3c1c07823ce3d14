#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    GateCTL, SectionReader,
    testing::Values(reads(READER(GateCTL_ReadAutoShutOffValveGateEOP), "[GateCTL]",
                          "AutoShutOffValveGateEOP", "91", 91),
                    reads(READER(GateCTL_ReadStartTime), "[GateCTL]", "ST-3", "136.75", 136.75, 3),
                    reads(READER(GateCTL_ReadEndTime), "[GateCTL]", "ET-5", "139.75", 139.75, 5)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(GateCTL, SectionWriter,
                         testing::Values(writes(WRITER(GateCTL_WriteStartTime), "[GateCTL]", "ST-4",
                                                "138.25", 138.25, 4),
                                         writes(WRITER(GateCTL_WriteEndTime), "[GateCTL]", "ET-6",
                                                "141.25", 141.25, 6)),
                         name_of_row);

}  // namespace
}  // namespace qelpro_test
