#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    PartingSurface, SectionReader,
    testing::Values(zeroing(reads(READER(PartingSurface_ReadCavityPart), "[PartingSurface]",
                                  "CavityPart", "2\t0.5\t1\t1.5", 2, 0.5, 1.0, 1.5)),
                    zeroing(reads(READER(PartingSurface_ReadCavityMoldbase), "[PartingSurface]",
                                  "CavityMoldbase", "3\t0.5\t2\t1.5", 3, 0.5, 2.0, 1.5)),
                    zeroing(reads(READER(PartingSurface_ReadCorePart), "[PartingSurface]",
                                  "CorePart", "4\t0.5\t3\t1.5", 4, 0.5, 3.0, 1.5)),
                    zeroing(reads(READER(PartingSurface_ReadCoreMoldbase), "[PartingSurface]",
                                  "CoreMoldbase", "5\t0.5\t4\t1.5", 5, 0.5, 4.0, 1.5))),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    PartingSurface, SectionWriter,
    testing::Values(writes(WRITER(PartingSurface_WriteCavityPart), "[PartingSurface]", "CavityPart",
                           "2\t0.5\t1\t1.5", 2, 0.5, 1.0, 1.5),
                    writes(WRITER(PartingSurface_WriteCavityMoldbase), "[PartingSurface]",
                           "CavityMoldbase", "3\t0.5\t2\t1.5", 3, 0.5, 2.0, 1.5),
                    writes(WRITER(PartingSurface_WriteCorePart), "[PartingSurface]", "CorePart",
                           "4\t0.5\t3\t1.5", 4, 0.5, 3.0, 1.5),
                    writes(WRITER(PartingSurface_WriteCoreMoldbase), "[PartingSurface]",
                           "CoreMoldbase", "5\t0.5\t4\t1.5", 5, 0.5, 4.0, 1.5)),
    name_of_row);

TEST(PartingSurface, KeysSpellMoldbaseWithASmallB) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.PartingSurface_WriteCavityMoldbase(2, 0.5, 1, 1.5));
  EXPECT_EQ(bytes_of(path),
            native("\n[PartingSurface]\n" + padded("CavityMoldbase", "2\t0.5\t1\t1.5") + "\n"));
}

TEST(PartingSurface, FieldsThatTheEntryLacksAreZero) {
  const Scratch scratch;
  const std::string path = scratch.file("[PartingSurface]\nCorePart = 4 0.5\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int side = -1;
  double x = -1;
  double y = -1;
  double z = -1;
  EXPECT_TRUE(reader.PartingSurface_ReadCorePart(side, x, y, z));
  EXPECT_EQ(side, 4);
  EXPECT_EQ(x, 0.5);
  EXPECT_EQ(y, 0);
  EXPECT_EQ(z, 0);
}

}  // namespace
}  // namespace qelpro_test
