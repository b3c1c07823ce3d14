#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    Cool, SectionReader,
    testing::Values(
        reads(READER(Cool_ReadCoolTime), "[Cool]", "CoolTime", "339.25", 339.25),
        reads(READER(Cool_ReadMoldOpenTime), "[Cool]", "OpenTime", "342.25", 342.25),
        reads(READER(Cool_ReadEjectTemperature), "[Cool]", "EjectTemp", "345.25", 345.25),
        reads(READER(Cool_ReadAirTemperature), "[Cool]", "AirTemp", "348.25", 348.25),
        reads(READER(Cool_ReadInitMoldTemperature), "[Cool]", "InitialMoldbaseTemperature",
              "351.25", 351.25),
        reads(READER(Cool_ReadCoolantTemperature), "[Cool]", "CoolantTemp", "354.25", 354.25),
        reads(READER(Cool_ReadCoolantFlowRate), "[Cool]", "CoolantFR", "357.25", 357.25),
        reads(READER(Cool_ReadCoolingType), "[Cool]", "CoolingType", "241", 241),
        reads(READER(Cool_ReadControlType), "[Cool]", "ControlType", "243", 243)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    Cool, SectionWriter,
    testing::Values(
        writes(WRITER(Cool_WriteCoolTime), "[Cool]", "CoolTime", "340.75", 340.75),
        writes(WRITER(Cool_WriteMoldOpenTime), "[Cool]", "OpenTime", "343.75", 343.75),
        writes(WRITER(Cool_WriteEjectTemperature), "[Cool]", "EjectTemp", "346.75", 346.75),
        writes(WRITER(Cool_WriteAirTemperature), "[Cool]", "AirTemp", "349.75", 349.75),
        writes(WRITER(Cool_WriteInitMoldTemperature), "[Cool]", "InitialMoldbaseTemperature",
               "352.75", 352.75),
        writes(WRITER(Cool_WriteCoolantTemperature), "[Cool]", "CoolantTemp", "355.75", 355.75),
        writes(WRITER(Cool_WriteCoolantFlowRate), "[Cool]", "CoolantFR", "358.75", 358.75),
        writes(WRITER(Cool_WriteCoolingType), "[Cool]", "CoolingType", "242", 242)),
    name_of_row);

TEST(Cool, RealsAreWrittenWithSixDigits) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.Cool_WriteCoolTime(3.14159265));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double time = 0;
  EXPECT_TRUE(reader.Cool_ReadCoolTime(time));
  EXPECT_EQ(time, 3.14159);
}

TEST(Cool, ControlTypeIsWrittenRaw) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.WriteString("[Cool]", "ControlType", "1"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int type = 0;
  EXPECT_TRUE(reader.Cool_ReadControlType(type));
  EXPECT_EQ(type, 1);
}

}  // namespace
}  // namespace qelpro_test
