#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    MoldThermalBoundaryType, SectionReader,
    testing::Values(reads(READER(MoldTemperatureBoundaryType_ReadHTCType),
                          "[MoldThermalBoundaryType]", "Type", "73", 73),
                    reads(READER(MoldTemperatureBoundaryType_ReadHTCFlow),
                          "[MoldThermalBoundaryType]", "Flow", "1500.5\t(W/m^2.K)", 1500.5),
                    reads(READER(MoldTemperatureBoundaryType_ReadHTCPack),
                          "[MoldThermalBoundaryType]", "Pack", "1501.5\t(W/m^2.K)", 1501.5),
                    reads(READER(MoldTemperatureBoundaryType_ReadHTCDetached),
                          "[MoldThermalBoundaryType]", "Detached_HTC", "1502.5\t(W/m^2.K)", 1502.5),
                    reads(READER(MoldTemperatureBoundaryType_ReadHTCHotRunner),
                          "[MoldThermalBoundaryType]", "HotRunner_HTC", "1503.5\t(W/m^2.K)",
                          1503.5)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    MoldThermalBoundaryType, SectionWriter,
    testing::Values(
        writes(WRITER(MoldTemperatureBoundaryType_WriteHTCType), "[MoldThermalBoundaryType]",
               "Type", "74", 74),
        writes(WRITER(MoldTemperatureBoundaryType_WriteHTCFlow), "[MoldThermalBoundaryType]",
               "Flow", "1500.5\t(W/m^2.K)", 1500.5, "W/m^2.K"),
        writes(WRITER(MoldTemperatureBoundaryType_WriteHTCPack), "[MoldThermalBoundaryType]",
               "Pack", "1501.5\t(W/m^2.K)", 1501.5, "W/m^2.K"),
        writes(WRITER(MoldTemperatureBoundaryType_WriteHTCDetached), "[MoldThermalBoundaryType]",
               "Detached_HTC", "1502.5\t(W/m^2.K)", 1502.5, "W/m^2.K"),
        writes(WRITER(MoldTemperatureBoundaryType_WriteHTCHotRunner), "[MoldThermalBoundaryType]",
               "HotRunner_HTC", "1503.5\t(W/m^2.K)", 1503.5, "W/m^2.K")),
    name_of_row);

TEST(MoldThermalBoundaryType, NoteIsWrittenAndNotRead) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char note[] = "W/m^2.K";
  ASSERT_TRUE(writer.MoldTemperatureBoundaryType_WriteHTCFlow(1500, note));
  EXPECT_EQ(bytes_of(path),
            native("\n[MoldThermalBoundaryType]\n" + padded("Flow", "1500\t(W/m^2.K)") + "\n"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double coefficient = 0;
  EXPECT_TRUE(reader.MoldTemperatureBoundaryType_ReadHTCFlow(coefficient));
  EXPECT_EQ(coefficient, 1500);
}

}  // namespace
}  // namespace qelpro_test
