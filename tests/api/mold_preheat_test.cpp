#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(MoldPreheat, SectionReader,
                         testing::Values(reads(READER(Cool_ReadMoldPreheatType), "[MoldPreheat]", "MoldPreHeatType", "265", 265),
                                         reads(READER(Cool_ReadMoldPreheatTime), "[MoldPreheat]", "MoldPreHeatTime", "397.75", 397.75),
                                         reads(READER(Cool_ReadMoldPreheatTemperature), "[MoldPreheat]", "MoldPreHeatTemperature", "399.25", 399.25),
                                         reads(READER(Cool_ReadMaxMoldPreHeatTime), "[MoldPreheat]", "MaxMoldPreHeatTime", "400.75", 400.75),
                                         reads(READER(Cool_ReadMoldPreheat_ControlType), "[MoldPreheat]", "ControlType", "269", 269)),
                         name_of_row);

}  // namespace
}  // namespace qelpro_test
