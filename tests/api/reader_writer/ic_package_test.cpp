#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(ICPackage, SectionReader,
                         testing::Values(reads(READER(ICPackage_ReadInitConversionType),
                                               "[ICPackage]", "InitConversionType", "191", 191),
                                         reads(READER(ICPackage_ReadInitPelletConversion),
                                               "[ICPackage]", "InitConversion", "288.25", 288.25),
                                         reads(READER(ICPackage_ReadPelletDiameter), "[ICPackage]",
                                               "PelletDiameter", "291.25", 291.25),
                                         reads(READER(ICPackage_ReadPelletHeight), "[ICPackage]",
                                               "PelletHeight", "294.25", 294.25),
                                         reads(READER(ICPackage_ReadPreHeatTime), "[ICPackage]",
                                               "PreHeatingTime", "297.25", 297.25)),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(ICPackage, SectionWriter,
                         testing::Values(writes(WRITER(ICPackage_WriteInitConversionType),
                                                "[ICPackage]", "InitConversionType", "192", 192),
                                         writes(WRITER(ICPackage_WriteInitPelletConversion),
                                                "[ICPackage]", "InitConversion", "289.75", 289.75),
                                         writes(WRITER(ICPackage_WritePelletDiameter),
                                                "[ICPackage]", "PelletDiameter", "292.75", 292.75),
                                         writes(WRITER(ICPackage_WritePelletHeight), "[ICPackage]",
                                                "PelletHeight", "295.75", 295.75),
                                         writes(WRITER(ICPackage_WritePreHeatTime), "[ICPackage]",
                                                "PreHeatingTime", "298.75", 298.75)),
                         name_of_row);

TEST(ICPackage, OneKeyStandsInTwoSections) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.TransientInletConv_WritePelletDiameter(2.5) &&
              writer.ICPackage_WritePelletDiameter(2.5));
  const std::string entry = padded("PelletDiameter", "2.5") + "\n";
  EXPECT_EQ(bytes_of(path), native("\n[TransientInletConv]\n" + entry + "\n[ICPackage]\n" + entry));
}

}  // namespace
}  // namespace qelpro_test
