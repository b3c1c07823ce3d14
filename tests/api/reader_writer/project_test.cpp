#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    Project, SectionReader,
    testing::Values(
        reads(READER(Project_ReadMesh), "[Project]", "Mesh", "lid run05.msh", "lid run05.msh"),
        reads(READER(Project_ReadMaterial), "[Project]", "Material", "RESIN_A_30.mtr",
              "RESIN_A_30.mtr"),
        reads(READER(Project_ReadMeshID), "[Project]", "MeshID", "5b", "5b"),
        reads(READER(Project_ReadCavityVolume), "[Project]", "CavVol", "48.1266", 48.1266),
        reads(READER(Project_ReadCushionVolume), "[Project]", "CushionVol", "2", 2.0),
        reads(READER(Project_ReadClampFaceArea), "[Project]", "ClampFaceArea", "112.75", 112.75),
        reads(READER(Project_ReadCavityVolume), "[Project]", "CavVol", "1.2e-007", 1.2e-7),
        reads(READER(Project_ReadCavityVolume), "[Project]", "CavVol", "1.2E-7 cc", 1.2e-7)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    Project, SectionWriter,
    testing::Values(
        writes(WRITER(Project_WriteMesh), "[Project]", "Mesh", "lid run05.msh", "lid run05.msh"),
        writes(WRITER(Project_WriteMaterial), "[Project]", "Material", "RESIN_A_30.mtr",
               "RESIN_A_30.mtr"),
        writes(WRITER(Project_WriteCavityVolume), "[Project]", "CavVol", "48.1266", 48.1266),
        writes(WRITER(Project_WriteCushionVolume), "[Project]", "CushionVol", "2", 2.0),
        writes(WRITER(Project_WriteCavityVolume), "[Project]", "CavVol", "0.1", 0.1),
        writes(WRITER(Project_WriteCavityVolume), "[Project]", "CavVol", "0.000123457",
               0.0001234567),
        writes(WRITER(Project_WriteCavityVolume), "[Project]", "CavVol", "1.2e-007", 0.00000012),
        writes(WRITER(Project_WriteCushionVolume), "[Project]", "CushionVol", "1.5e+010", 1.5e10)),
    name_of_row);

TEST(Project, KeysWithoutAWriterMemberAreWrittenRaw) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.WriteString("[Project]", "MeshID", "7"));
  ASSERT_TRUE(writer.WriteItems("[Project]", "ClampFaceArea", "%g", 24.5));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* id = nullptr;
  double area = 0;
  ASSERT_TRUE(reader.Project_ReadMeshID(id));
  EXPECT_STREQ(id, "7");
  EXPECT_TRUE(reader.Project_ReadClampFaceArea(area));
  EXPECT_EQ(area, 24.5);
}

}  // namespace
}  // namespace qelpro_test
