#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    OverflowX, SectionReader,
    testing::Values(
        reads(READER(OverflowX_ReadOverflowID), "[OFGateValve-6]", "GCId", "105", 105, 6),
        reads(READER(OverflowX_ReadControlPoint), "[OFGateValve-2]", "GCSet", "106", 106, 2),
        zeroing(reads("OverflowX_ReadGateSetting",
                      Taking<double&, int&, int&, int, int>::of(
                          &CQELPROReader_Manipulator::OverflowX_ReadGateSetting),
                      "[OFGateValve-3]", "GC-4", "5.5\t1\t2\t7", 5.5, 1, 2, 4, 3)),
        zeroing(reads("OverflowX_ReadGateSetting",
                      Taking<double&, int&, int&, int&, int, int>::of(
                          &CQELPROReader_Manipulator::OverflowX_ReadGateSetting),
                      "[OFGateValve-4]", "GC-5", "5.5\t1\t3\t118", 5.5, 1, 3, 118, 5, 4)),
        zeroing(reads("OverflowX_ReadGateSetting",
                      Taking<double&, int&, int&, int&, int, int>::of(
                          &CQELPROReader_Manipulator::OverflowX_ReadGateSetting),
                      "[OFGateValve-5]", "GC-6", "5.5\t1\t4\t7", 5.5, 1, 4, -1, 6, 5)),
        zeroing(reads("OverflowX_ReadGateSetting",
                      Taking<double&, int&, int&, int&, int, int>::of(
                          &CQELPROReader_Manipulator::OverflowX_ReadGateSetting),
                      "[OFGateValve-6]", "GC-7", "5.5 1 1", 5.5, 1, 1, -1, 7, 6)),
        zeroing(reads("OverflowX_ReadGateSetting",
                      Taking<double&, int&, int&, int&, int, int>::of(
                          &CQELPROReader_Manipulator::OverflowX_ReadGateSetting),
                      "[OFGateValve-2]", "GC-8", "5.5 1 2", 5.5, 1, 2, 0, 8, 2))),
    name_of_row);

TEST(OverflowX, IsApartFromTheValveGates) {
  const Scratch scratch;
  const std::string path = scratch.file("[GateValve-1]\nGCId = 1\n[OFGateValve-1]\nGCId = 7\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int id = 0;
  EXPECT_TRUE(reader.OverflowX_ReadOverflowID(id, 1));
  EXPECT_EQ(id, 7);
  EXPECT_TRUE(reader.GeteValveX_ReadValveGateID(id, 1));
  EXPECT_EQ(id, 1);
}

}  // namespace
}  // namespace qelpro_test
