#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    CaeHeader, SectionReader,
    testing::Values(
        reads(READER(CaeHeader_ReadVersion), "[CaeHeader]", "Version", "9.1", "9.1"),
        reads(READER(CaeHeader_ReadRelease), "[CaeHeader]", "Release", "R3", "R3"),
        reads(READER(CaeHeader_ReadProject), "[CaeHeader]", "Project", "Housing Lid",
              "Housing Lid"),
        reads(READER(CaeHeader_ReadEngineer), "[CaeHeader]", "Engineer", "M. Okafor", "M. Okafor"),
        reads(READER(CaeHeader_ReadParent), "[CaeHeader]", "Parent", "housing_lid_run04.pro",
              "housing_lid_run04.pro"),
        reads(READER(CaeHeader_ReadType), "[CaeHeader]", "Type", "Injection", "Injection"),
        reads(READER(CaeHeader_ReadFileType), "[CaeHeader]", "FileType", "2", 2),
        reads(READER(CaeHeader_ReadSmartSetting), "[CaeHeader]", "SmartSetting", "-1", -1),
        reads(READER(CaeHeader_ReadSettingMode), "[CaeHeader]", "SettingMode", "3", 3),
        reads("CaeHeader_ReadFileVersion", Taking<char*&>::of(&Reader::CaeHeader_ReadFileVersion),
              "[CaeHeader]", "FileVersion", "2.5", "2.5"),
        reads("CaeHeader_ReadFileVersion", Taking<int&>::of(&Reader::CaeHeader_ReadFileVersion),
              "[CaeHeader]", "FileVersion", "2.5", 2),
        zeroing(reads(READER(CaeHeader_ReadProjectType), "[CaeHeader]", "ProjectType", "3 1", 3)),
        zeroing(reads(READER(CaeHeader_ReadProjectType), "[CaeHeader]", "ProjectType", "11\t0",
                      11)),
        zeroing(reads(READER(CaeHeader_ReadProjectType), "[CaeHeader]", "ProjectType", "8", 8)),
        zeroing(reads(READER(CaeHeader_ReadProjectType), "[CaeHeader]", "ProjectType", "x", 0))),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    CaeHeader, SectionWriter,
    testing::Values(
        writes(WRITER(CaeHeader_WriteVersion), "[CaeHeader]", "Version", "9.1", "9.1"),
        writes(WRITER(CaeHeader_WriteRelease), "[CaeHeader]", "Release", "R3", "R3"),
        writes(WRITER(CaeHeader_WriteProject), "[CaeHeader]", "Project", "Housing Lid",
               "Housing Lid"),
        writes(WRITER(CaeHeader_WriteEngineer), "[CaeHeader]", "Engineer", "M. Okafor",
               "M. Okafor"),
        writes(WRITER(CaeHeader_WriteParent), "[CaeHeader]", "Parent", "housing_lid_run04.pro",
               "housing_lid_run04.pro"),
        writes(WRITER(CaeHeader_WriteType), "[CaeHeader]", "Type", "Injection", "Injection"),
        writes(WRITER(CaeHeader_WriteFileType), "[CaeHeader]", "FileType", "2", 2),
        writes(WRITER(CaeHeader_WriteSmartSetting), "[CaeHeader]", "SmartSetting", "-1", -1),
        writes(WRITER(CaeHeader_WriteFileVersion), "[CaeHeader]", "FileVersion", "910 b", "910 b")),
    name_of_row);

TEST(CaeHeader, KeysWithoutAWriterMemberAreWrittenRaw) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.WriteString("[CaeHeader]", "SettingMode", "4"));
  ASSERT_TRUE(writer.WriteItems("[CaeHeader]", "ProjectType", "%d %d", 8, 1));
  EXPECT_EQ(bytes_of(path), native("\n[CaeHeader]\nSettingMode          = 4\nProjectType = 8 1\n"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int mode = 0;
  int type = 0;
  EXPECT_TRUE(reader.CaeHeader_ReadSettingMode(mode));
  EXPECT_TRUE(reader.CaeHeader_ReadProjectType(type));
  EXPECT_EQ(mode, 4);
  EXPECT_EQ(type, 8);
}

}  // namespace
}  // namespace qelpro_test
