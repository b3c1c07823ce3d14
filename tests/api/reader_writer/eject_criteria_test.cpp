#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(EjectCriteria, SectionReader,
                         testing::Values(reads(READER(EjectCriteria_ReadTotalSensorNode),
                                               "[EjectCriteria]", "TotalSensorNode", "112", 112),
                                         reads(READER(EjectCriteria_ReadSensorNode),
                                               "[EjectCriteria]", "SensorNode-3", "113", 113, 3),
                                         reads(READER(EjectCriteria_ReadTotalCriteriaNode),
                                               "[EjectCriteria]", "TotalCriteriaNode", "114", 114),
                                         reads(READER(EjectCriteria_ReadCriteriaNode),
                                               "[EjectCriteria]", "CriteriaNode-5", "120\t85.5",
                                               120, 85.5, 5)),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(EjectCriteria, SectionWriter,
                         testing::Values(writes(WRITER(EjectCriteria_WriteTotalSensorNode),
                                                "[EjectCriteria]", "TotalSensorNode", "116", 116),
                                         writes(WRITER(EjectCriteria_WriteSensorNode),
                                                "[EjectCriteria]", "SensorNode-7", "117", 117, 7),
                                         writes(WRITER(EjectCriteria_WriteTotalCriteriaNode),
                                                "[EjectCriteria]", "TotalCriteriaNode", "118", 118),
                                         writes(WRITER(EjectCriteria_WriteCriteriaNode),
                                                "[EjectCriteria]", "CriteriaNode-9", "120\t85.5",
                                                120, 85.5, 9)),
                         name_of_row);

TEST(EjectCriteria, ValueThatTheEntryLacksKeepsTheCallers) {
  const Scratch scratch;
  const std::string path = scratch.file("[EjectCriteria]\nCriteriaNode-1 = 120\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int node = -1;
  double value = -1;
  EXPECT_TRUE(reader.EjectCriteria_ReadCriteriaNode(node, value, 1));
  EXPECT_EQ(node, 120);
  EXPECT_EQ(value, -1);
}

}  // namespace
}  // namespace qelpro_test
