#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    VarCoolCTL, SectionReader,
    testing::Values(reads(READER(VarCoolCTL_ReadCoolantCount), "[VarCoolCTL]", "CoolantNo", "254",
                          254),
                    zeroing(reads(READER(VarCoolCTL_ReadCoolant), "[VarCoolCTL]", "Coolant-5",
                                  "1.5\t2\t0.25\t4\t5", 1.5, 2.0, 0.25, 4.0, 5, 5))),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(VarCoolCTL, SectionWriter,
                         testing::Values(writes(WRITER(VarCoolCTL_WriteCoolantCount),
                                                "[VarCoolCTL]", "CoolantNo", "256", 256),
                                         writes(WRITER(VarCoolCTL_WriteCoolant), "[VarCoolCTL]",
                                                "Coolant-7", "1.5\t2\t0.25\t4\t5", 1.5, 2.0, 0.25,
                                                4.0, 5, 7)),
                         name_of_row);

TEST(VarCoolCTL, CountAndEntriesAreIndependent) {
  const Scratch scratch;
  const std::string path = scratch.file("[VarCoolCTL]\nCoolantNo = 1\n");
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.VarCoolCTL_WriteCoolant(1, 2, 3, 4, 5, 7));
  EXPECT_EQ(bytes_of(path), "[VarCoolCTL]\nCoolantNo = 1\nCoolant-7 = 1\t2\t3\t4\t5\n");
}

}  // namespace
}  // namespace qelpro_test
