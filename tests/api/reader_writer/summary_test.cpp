#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    Summary, SectionReader,
    testing::Values(
        reads(READER(Summary_ReadTotalLayer), "[Summary]", "TotalNdivz", "11", 11),
        reads(READER(Summary_ReadTotalMeltEntrance), "[Summary]", "TotalNodeEM", "12", 12),
        reads(READER(Summary_ReadTotalCoolantEntrance), "[Summary]", "TotalNodeEC", "13", 13),
        reads(READER(Summary_ReadTotalValveGate), "[Summary]", "TotalGateCTL", "14", 14),
        reads(READER(Summary_ReadVacuumIndex), "[Summary]", "VacuumIndex", "15", 15),
        reads(READER(Summary_ReadPEOFasPPack), "[Summary]", "PEOFasPPack", "16", 16),
        reads(READER(Summary_ReadTotalMoldbase), "[Summary]", "TotalNodeMB", "17", 17),
        reads(READER(Summary_ReadTotalBoundaryCondition), "[Summary]", "TotalNodeBC", "18", 18),
        reads(READER(Summary_ReadTotalGasEntrance), "[Summary]", "TotalNodeEG", "19", 19),
        reads(READER(Summary_ReadTotalMoldMetalMaterial), "[Summary]", "TotalNodeMMM", "20", 20),
        reads(READER(Summary_ReadSymmetryVolumeRatio), "[Summary]", "SymVolRatio", "21", 21),
        reads(READER(Summary_ReadTotalHeatingRod), "[Summary]", "TotalNodeHR", "22", 22),
        reads(READER(Summary_ReadTransientInletConv), "[Summary]", "IsTransientInletConv", "23",
              23),
        reads(READER(Summary_ReadSkinRatio), "[Summary]", "SkinRatio", "0.35", 0.35),
        reads(READER(Summary_ReadTotalOverFlowCTL), "[Summary]", "TotalOverFlowCTL", "4", 4),
        reads(READER(Summary_ReadSymmetryVolumeRatio), "[Summary]", "SymVolRatio", "0.5", 0)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    Summary, SectionWriter,
    testing::Values(
        writes(WRITER(Summary_WriteTotalLayer), "[Summary]", "TotalNdivz", "11", 11),
        writes(WRITER(Summary_WriteTotalMeltEntrance), "[Summary]", "TotalNodeEM", "12", 12),
        writes(WRITER(Summary_WriteTotalCoolantEntrance), "[Summary]", "TotalNodeEC", "13", 13),
        writes(WRITER(Summary_WriteTotalValveGate), "[Summary]", "TotalGateCTL", "14", 14),
        writes(WRITER(Summary_WriteVacuumIndex), "[Summary]", "VacuumIndex", "15", 15),
        writes(WRITER(Summary_WritePEOFasPPack), "[Summary]", "PEOFasPPack", "16", 16),
        writes(WRITER(Summary_WriteTotalMoldbase), "[Summary]", "TotalNodeMB", "17", 17),
        writes(WRITER(Summary_WriteTotalBoundaryCondition), "[Summary]", "TotalNodeBC", "18", 18),
        writes(WRITER(Summary_WriteTotalGasEntrance), "[Summary]", "TotalNodeEG", "19", 19),
        writes(WRITER(Summary_WriteTotalMoldMetalMaterial), "[Summary]", "TotalNodeMMM", "20", 20),
        writes(WRITER(Summary_WriteSymmetryVolumeRatio), "[Summary]", "SymVolRatio", "21", 21),
        writes(WRITER(Summary_WriteTotalHeatingRod), "[Summary]", "TotalNodeHR", "22", 22),
        writes(WRITER(Summary_WriteTransientInletConv), "[Summary]", "IsTransientInletConv", "23",
               23),
        writes(WRITER(Summary_WriteSkinRatio), "[Summary]", "SkinRatio", "0.35", 0.35),
        writes(WRITER(Summary_WriteVacuumIndex), "[Summary]", "VacuumIndex", "-5", -5),
        writes(WRITER(Summary_WriteTotalLayer), "[Summary]", "TotalNdivz", "-2147483648",
               std::numeric_limits<int>::min())),
    name_of_row);

TEST(Summary, OverflowCountIsWrittenRaw) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.WriteString("[Summary]", "TotalOverFlowCTL", "3"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int count = 0;
  EXPECT_TRUE(reader.Summary_ReadTotalOverFlowCTL(count));
  EXPECT_EQ(count, 3);
}

}  // namespace
}  // namespace qelpro_test
