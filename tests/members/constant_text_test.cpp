#include <gtest/gtest.h>

#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "support/line_break.h"
#include "support/scratch.h"

// The forms of the members for constant texts do what the members do.

namespace qelpro_test {
namespace {

TEST(ConstantText, IsWrittenByTheWriter) {
  const Scratch scratch;
  const std::string path = scratch.path();
  const std::string unit = "W/m^2.K";
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.Project_WriteMesh("lid.msh"));
  EXPECT_TRUE(writer.MoldTemperatureBoundaryType_WriteHTCFlow(1500, unit.c_str()));
  EXPECT_TRUE(writer.Coolant_WriteCoolant(1, 2, 3, 4, 5, "Water", 7, 8, 1));
  EXPECT_EQ(without_returns(bytes_of(path)),
            "\n[Project]\nMesh                 = lid.msh\n"
            "\n[MoldThermalBoundaryType]\nFlow                 = 1500\t(W/m^2.K)\n"
            "\n[Coolant]\n1                    = 1\t2\t3\t4\t5\tWater\t7\t8\n");
}

TEST(ConstantText, IsWrittenByTheOlderObject) {
  const Scratch scratch;
  const std::string path = scratch.path();
  CPROIO_Manipulator object;
  object.SetFilePath(const_cast<char*>(path.c_str()));
  EXPECT_TRUE(object.SetEngineer("M. Okafor"));
  EXPECT_TRUE(object.SetMoldbase(1, 1, 2, 3, std::string("P20").c_str()));
  const std::string bytes = without_returns(bytes_of(path));
  EXPECT_NE(bytes.find("\nEngineer       = M. Okafor\n"), std::string::npos) << bytes;
  EXPECT_NE(bytes.find("\n1              = 1\t2\t3\tP20\n"), std::string::npos) << bytes;
}

TEST(ConstantText, IsWrittenByTheAdapter) {
  const Scratch scratch;
  const std::string path = scratch.path();
  CQEL_ProcessAdapter adapter;
  ASSERT_TRUE(adapter.SetProcessPath(path.c_str()));
  EXPECT_TRUE(adapter.SetCoolant_WriteCoolant(1, 2, 3, 4, 5, "Oil", 7, 8, 2));
  EXPECT_EQ(without_returns(bytes_of(path)),
            "\n[Coolant]\n2                    = 1\t2\t3\t4\t5\tOil\t7\t8\n");
}

TEST(ConstantText, ANullPointerStillMeansTheMember) {
  const Scratch scratch;
  const std::string path = scratch.path();
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_FALSE(writer.Project_WriteMesh(nullptr));
  EXPECT_EQ(without_returns(bytes_of(path)), "");
}

}  // namespace
}  // namespace qelpro_test
