#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "support/scratch.h"

// The annotated example of docs/format.md is read as its comments say.

namespace qelpro_test {
namespace {

std::string example() { return data_path("../../docs/example.pro"); }

TEST(Example, IsReadByTheReader) {
  const std::string path = example();
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int number = 0;
  int second = 0;
  double x = 0;
  double y = 0;
  char* text = nullptr;
  EXPECT_TRUE(reader.FlowX_ReadFRSection(number, 1));
  EXPECT_EQ(number, 3);
  EXPECT_TRUE(reader.FlowX_ReadFRProfile(x, y, 3, 1));
  EXPECT_EQ(x, 100);
  EXPECT_EQ(y, 42.5);
  EXPECT_TRUE(reader.FlowCTLInfo_ReadFlowCTL(number, second, 1));
  EXPECT_EQ(second, 2);
  EXPECT_TRUE(reader.MoldbaseInfo_ReadMoldbaseInfo(number, text, 1));
  EXPECT_STREQ(text, "Base A");
  EXPECT_TRUE(reader.PartInsertInitialTemperature_ReadPartInsert(number, text, x, second, 1));
  EXPECT_STREQ(text, "Core Pin A");
  EXPECT_EQ(x, 80);
  EXPECT_TRUE(reader.MoldTemperatureBCX_ReadBCSetting(x, y, 1, 2, 2));
  EXPECT_EQ(x, 50);
  EXPECT_EQ(y, 55);
}

TEST(Example, MakesOneInletOfTheLoader) {
  CQELProcessData_Manipulator data;
  const std::unique_ptr<const QELG_SimulatorProcess> process(
      data.GetProcessDataStructure(example().c_str()));
  ASSERT_NE(process, nullptr);
  ASSERT_EQ(process->GetNumOfInlets(), 1U);
  const QELG_SimulatorFlowPackProcess& inlet = *process->GetFlowPackOfInlet(0);
  unsigned int control_type = 0;
  EXPECT_TRUE(get_process_InletControlType(inlet, control_type));
  EXPECT_EQ(control_type, 2U);
  EXPECT_EQ(inlet.GetFlowRateProfile()->GetNumOfDataPoints(), 3U);
  EXPECT_EQ(inlet.GetPackingPressureProfile()->GetNumOfDataPoints(), 2U);
}

}  // namespace
}  // namespace qelpro_test
