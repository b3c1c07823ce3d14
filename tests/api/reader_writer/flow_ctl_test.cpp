#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    FlowCTL, SectionReader,
    testing::Values(
        reads(READER(FlowCTL_ReadFlowCtrl), "[FlowCTL]", "FlowCtrl", "1", 1),
        reads(READER(FlowCTL_ReadVPSwitchCtrl), "[FlowCTL]", "VPSwitchCtrl", "3", 3),
        reads(READER(FlowCTL_ReadPackingCtrl), "[FlowCTL]", "PackingCtrl", "2", 2),
        reads(READER(FlowCTL_ReadMoldTemperature), "[FlowCTL]", "MoldTemperature", "60.5", 60.5),
        reads(READER(FlowCTL_ReadMeltTemperature), "[FlowCTL]", "MeltTemperature", "235", 235.0),
        reads(READER(FlowCTL_ReadInjectionTime), "[FlowCTL]", "InjectionTime", "1.25", 1.25),
        reads(READER(FlowCTL_ReadVolumeFilled), "[FlowCTL]", "VolumeFilled", "98.5", 98.5),
        reads(READER(FlowCTL_ReadRamPosition), "[FlowCTL]", "RamPosition", "12.25", 12.25),
        reads(READER(FlowCTL_ReadInjectionPressure), "[FlowCTL]", "InjectionPressure", "118",
              118.0),
        reads(READER(FlowCTL_ReadCureSwitch), "[FlowCTL]", "CureSwitch", "99.5", 99.5),
        reads(READER(FlowCTL_ReadCureTempCtrl), "[FlowCTL]", "CureTempCtrl", "1", 1),
        reads(READER(FlowCTL_ReadCureEnterType), "[FlowCTL]", "CureEnterType", "2", 2, 1),
        reads(READER(FlowCTL_ReadCureEnterType), "[FlowCTL]", "CureEnterType", "2", 2, -3),
        reads(READER(FlowCTL_ReadCureEnterSwitch), "[FlowCTL]", "CureEnterSwch", "95.5", 95.5, 1),
        reads(READER(FlowCTL_ReadCureEnterSwitch), "[FlowCTL]", "CureEnterSwch", "95.5", 95.5, -3),
        reads(READER(FlowCTL_ReadCureEnterTime), "[FlowCTL]", "CureEnterTime", "10.25", 10.25, 1),
        reads(READER(FlowCTL_ReadCureEnterTime), "[FlowCTL]", "CureEnterTime", "10.25", 10.25, -3),
        reads(READER(FlowCTL_ReadFlowCtrl), "[FlowCTL]", "FlowCtrl", "2.9", 2)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    FlowCTL, SectionWriter,
    testing::Values(
        writes(WRITER(FlowCTL_WriteFlowCtrl), "[FlowCTL]", "FlowCtrl", "1", 1),
        writes(WRITER(FlowCTL_WriteVPSwitchCtrl), "[FlowCTL]", "VPSwitchCtrl", "3", 3),
        writes(WRITER(FlowCTL_WritePackingCtrl), "[FlowCTL]", "PackingCtrl", "2", 2),
        writes(WRITER(FlowCTL_WriteMoldTemperature), "[FlowCTL]", "MoldTemperature", "60.5", 60.5),
        writes(WRITER(FlowCTL_WriteMeltTemperature), "[FlowCTL]", "MeltTemperature", "235", 235.0),
        writes(WRITER(FlowCTL_WriteInjectionTime), "[FlowCTL]", "InjectionTime", "1.25", 1.25),
        writes(WRITER(FlowCTL_WriteVolumeFilled), "[FlowCTL]", "VolumeFilled", "98.5", 98.5),
        writes(WRITER(FlowCTL_WriteRamPosition), "[FlowCTL]", "RamPosition", "12.25", 12.25),
        writes(WRITER(FlowCTL_WriteInjectionPressure), "[FlowCTL]", "InjectionPressure", "118",
               118.0),
        writes(WRITER(FlowCTL_WriteCureSwitch), "[FlowCTL]", "CureSwitch", "99.5", 99.5),
        writes(WRITER(FlowCTL_WriteCureEnterType), "[FlowCTL]", "CureEnterType", "2", 2, 1),
        writes(WRITER(FlowCTL_WriteCureEnterType), "[FlowCTL]", "CureEnterType", "2", 2, 5),
        writes(WRITER(FlowCTL_WriteCureEnterSwitch), "[FlowCTL]", "CureEnterSwch", "95.5", 95.5, 1),
        writes(WRITER(FlowCTL_WriteCureEnterSwitch), "[FlowCTL]", "CureEnterSwch", "95.5", 95.5, 5),
        writes(WRITER(FlowCTL_WriteCureEnterTime), "[FlowCTL]", "CureEnterTime", "10.25", 10.25, 1),
        writes(WRITER(FlowCTL_WriteCureEnterTime), "[FlowCTL]", "CureEnterTime", "10.25", 10.25,
               5)),
    name_of_row);

TEST(FlowCTL, EveryIndexAddressesTheOneEntryOfCuring) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.FlowCTL_WriteCureEnterType(1, 1));
  ASSERT_TRUE(writer.FlowCTL_WriteCureEnterType(2, 5));
  ASSERT_TRUE(writer.FlowCTL_WriteCureEnterSwitch(80, 1));
  ASSERT_TRUE(writer.FlowCTL_WriteCureEnterSwitch(95.5, 5));
  ASSERT_TRUE(writer.FlowCTL_WriteCureEnterTime(10, 1));
  ASSERT_TRUE(writer.FlowCTL_WriteCureEnterTime(12, 5));
  EXPECT_EQ(bytes_of(path), native("\n[FlowCTL]\nCureEnterType        = 2\nCureEnterSwch        = "
                                   "95.5\nCureEnterTime        = 12\n"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  for (const int index : {1, 5, 0, -1}) {
    int type = 0;
    double value = 0;
    EXPECT_TRUE(reader.FlowCTL_ReadCureEnterType(type, index));
    EXPECT_EQ(type, 2);
    EXPECT_TRUE(reader.FlowCTL_ReadCureEnterSwitch(value, index));
    EXPECT_EQ(value, 95.5);
    EXPECT_TRUE(reader.FlowCTL_ReadCureEnterTime(value, index));
    EXPECT_EQ(value, 12);
  }
}

TEST(FlowCTL, CuringControlIsWrittenRaw) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.WriteString("[FlowCTL]", "CureTempCtrl", "1"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int control = 0;
  EXPECT_TRUE(reader.FlowCTL_ReadCureTempCtrl(control));
  EXPECT_EQ(control, 1);
}

}  // namespace
}  // namespace qelpro_test
