#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(MoldPreheat, SectionReader,
                         testing::Values(reads(READER(Cool_ReadMoldPreheatType), "[MoldPreheat]",
                                               "MoldPreHeatType", "268", 268),
                                         reads(READER(Cool_ReadMoldPreheatTime), "[MoldPreheat]",
                                               "MoldPreHeatTime", "402.25", 402.25),
                                         reads(READER(Cool_ReadMoldPreheatTemperature),
                                               "[MoldPreheat]", "MoldPreHeatTemperature", "403.75",
                                               403.75),
                                         reads(READER(Cool_ReadMaxMoldPreHeatTime), "[MoldPreheat]",
                                               "MaxMoldPreHeatTime", "405.25", 405.25),
                                         reads(READER(Cool_ReadMoldPreheat_ControlType),
                                               "[MoldPreheat]", "ControlType", "272", 272)),
                         name_of_row);

}  // namespace
}  // namespace qelpro_test
