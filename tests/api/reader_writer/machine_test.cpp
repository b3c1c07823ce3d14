#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    Machine, SectionReader,
    testing::Values(
        reads(READER(Machine_ReadMaker), "[Machine]", "Maker", "any text 1", "any text 1"),
        reads(READER(Machine_ReadGrade), "[Machine]", "Grade", "any text 3", "any text 3"),
        reads(READER(Machine_ReadLastModifiedDate), "[Machine]", "LastModifiedDate", "any text 5",
              "any text 5"),
        reads(READER(Machine_ReadRemark), "[Machine]", "Remark", "any text 7", "any text 7"),
        reads(READER(Machine_ReadDiameter), "[Machine]", "Diameter", "13.75", 13.75),
        reads(READER(Machine_ReadMaxRamPos), "[Machine]", "MaxRamPos", "16.75", 16.75),
        reads(READER(Machine_ReadShotVolume), "[Machine]", "ShotVolume", "19.75", 19.75),
        reads(READER(Machine_ReadShotWeight), "[Machine]", "Weight", "22.75", 22.75),
        reads(READER(Machine_ReadInjectionPressure), "[Machine]", "MaxMachinePres", "25.75", 25.75),
        reads(READER(Machine_ReadHoldingPressure), "[Machine]", "HoldingPressure", "28.75", 28.75),
        reads(READER(Machine_ReadInjectionSpeed), "[Machine]", "InjectionSpeed", "31.75", 31.75),
        reads(READER(Machine_ReadFlowRate), "[Machine]", "FR", "34.75", 34.75),
        reads(READER(Machine_ReadPlasticationRate), "[Machine]", "PlasticationRate", "37.75",
              37.75),
        reads(READER(Machine_ReadScrewSpeed), "[Machine]", "ScrewSpeed", "40.75", 40.75),
        reads(READER(Machine_ReadNozzleContactForce), "[Machine]", "NozzleContactForce", "43.75",
              43.75),
        reads(READER(Machine_ReadNozzleStroke), "[Machine]", "NozzleStroke", "46.75", 46.75),
        reads(READER(Machine_ReadHeaterWattage), "[Machine]", "HeaterWattage", "49.75", 49.75),
        reads(READER(Machine_ReadTemperatureControlZones), "[Machine]", "TemperatureControlZones",
              "36", 36),
        reads(READER(Machine_ReadClampForce), "[Machine]", "Size", "55.75", 55.75),
        reads(READER(Machine_ReadOpeningStroke), "[Machine]", "OpeningStroke", "58.75", 58.75),
        reads(READER(Machine_ReadMaxDaylight), "[Machine]", "MaxDaylight", "61.75", 61.75),
        reads(READER(Machine_ReadMoldHeight), "[Machine]", "MoldHeight", "64.75", 64.75),
        reads("Machine_ReadDistanceBetweenTieBars",
              Taking<char*&>::of(&CQELPROReader_Manipulator::Machine_ReadDistanceBetweenTieBars),
              "[Machine]", "DistanceBetweenTieBars(HxV)", "any text 45", "any text 45"),
        zeroing(reads("Machine_ReadDistanceBetweenTieBars",
                      Taking<double&, double&>::of(
                          &CQELPROReader_Manipulator::Machine_ReadDistanceBetweenTieBars),
                      "[Machine]", "DistanceBetweenTieBars(HxV)", "4700.5x470", 4700.5, 470.0)),
        reads("Machine_ReadPlatenSize",
              Taking<char*&>::of(&CQELPROReader_Manipulator::Machine_ReadPlatenSize), "[Machine]",
              "PlatenSize(HxV)", "any text 49", "any text 49"),
        zeroing(
            reads("Machine_ReadPlatenSize",
                  Taking<double&, double&>::of(&CQELPROReader_Manipulator::Machine_ReadPlatenSize),
                  "[Machine]", "PlatenSize(HxV)", "5100.5x510", 5100.5, 510.0)),
        reads(READER(Machine_ReadEjectorPoint), "[Machine]", "EjectorPoint", "54", 54),
        reads(READER(Machine_ReadEjectorForce), "[Machine]", "EjectorForce", "82.75", 82.75),
        reads(READER(Machine_ReadEjectorStroke), "[Machine]", "EjectorStroke", "85.75", 85.75),
        reads(READER(Machine_ReadMachineWeight), "[Machine]", "MachineWeight", "88.75", 88.75),
        reads("Machine_ReadMachineDimension",
              Taking<char*&>::of(&CQELPROReader_Manipulator::Machine_ReadMachineDimension),
              "[Machine]", "MachineDimension(LxWxH)", "any text 61", "any text 61"),
        zeroing(reads("Machine_ReadMachineDimension",
                      Taking<double&, double&, double&>::of(
                          &CQELPROReader_Manipulator::Machine_ReadMachineDimension),
                      "[Machine]", "MachineDimension(LxWxH)", "63.5x630x7.25", 63.5, 630.0, 7.25)),
        reads(READER(Machine_ReadBarrelCompressionCtrl), "[Machine]", "BarrelCompressionCtrl", "66",
              66)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    Machine, SectionWriter,
    testing::Values(
        writes(WRITER(Machine_WriteMaker), "[Machine]", "Maker", "any text 2", "any text 2"),
        writes(WRITER(Machine_WriteGrade), "[Machine]", "Grade", "any text 4", "any text 4"),
        writes(WRITER(Machine_WriteLastModifiedDate), "[Machine]", "LastModifiedDate", "any text 6",
               "any text 6"),
        writes(WRITER(Machine_WriteRemark), "[Machine]", "Remark", "any text 8", "any text 8"),
        writes(WRITER(Machine_WriteDiameter), "[Machine]", "Diameter", "15.25", 15.25),
        writes(WRITER(Machine_WriteMaxRamPos), "[Machine]", "MaxRamPos", "18.25", 18.25),
        writes(WRITER(Machine_WriteShotVolume), "[Machine]", "ShotVolume", "21.25", 21.25),
        writes(WRITER(Machine_WriteShotWeight), "[Machine]", "Weight", "24.25", 24.25),
        writes(WRITER(Machine_WriteInjectionPressure), "[Machine]", "MaxMachinePres", "27.25",
               27.25),
        writes(WRITER(Machine_WriteHoldingPressure), "[Machine]", "HoldingPressure", "30.25",
               30.25),
        writes(WRITER(Machine_WriteInjectionSpeed), "[Machine]", "InjectionSpeed", "33.25", 33.25),
        writes(WRITER(Machine_WriteFlowRate), "[Machine]", "FR", "36.25", 36.25),
        writes(WRITER(Machine_WritePlasticationRate), "[Machine]", "PlasticationRate", "39.25",
               39.25),
        writes(WRITER(Machine_WriteScrewSpeed), "[Machine]", "ScrewSpeed", "42.25", 42.25),
        writes(WRITER(Machine_WriteNozzleContactForce), "[Machine]", "NozzleContactForce", "45.25",
               45.25),
        writes(WRITER(Machine_WriteNozzleStroke), "[Machine]", "NozzleStroke", "48.25", 48.25),
        writes(WRITER(Machine_WriteHeaterWattage), "[Machine]", "HeaterWattage", "51.25", 51.25),
        writes(WRITER(Machine_WriteTemperatureControlZones), "[Machine]", "TemperatureControlZones",
               "37", 37),
        writes(WRITER(Machine_WriteClampForce), "[Machine]", "Size", "57.25", 57.25),
        writes(WRITER(Machine_WriteOpeningStroke), "[Machine]", "OpeningStroke", "60.25", 60.25),
        writes(WRITER(Machine_WriteMaxDaylight), "[Machine]", "MaxDaylight", "63.25", 63.25),
        writes(WRITER(Machine_WriteMoldHeight), "[Machine]", "MoldHeight", "66.25", 66.25),
        writes("Machine_WriteDistanceBetweenTieBars",
               Taking<char*>::of(&CQELPROWriter_Manipulator::Machine_WriteDistanceBetweenTieBars),
               "[Machine]", "DistanceBetweenTieBars(HxV)", "any text 46", "any text 46"),
        writes("Machine_WriteDistanceBetweenTieBars",
               Taking<double, double>::of(
                   &CQELPROWriter_Manipulator::Machine_WriteDistanceBetweenTieBars),
               "[Machine]", "DistanceBetweenTieBars(HxV)", "4800.5x480", 4800.5, 480.0),
        writes("Machine_WritePlatenSize",
               Taking<char*>::of(&CQELPROWriter_Manipulator::Machine_WritePlatenSize), "[Machine]",
               "PlatenSize(HxV)", "any text 50", "any text 50"),
        writes("Machine_WritePlatenSize",
               Taking<double, double>::of(&CQELPROWriter_Manipulator::Machine_WritePlatenSize),
               "[Machine]", "PlatenSize(HxV)", "5200.5x520", 5200.5, 520.0),
        writes(WRITER(Machine_WriteEjectorPoint), "[Machine]", "EjectorPoint", "55", 55),
        writes(WRITER(Machine_WriteEjectorForce), "[Machine]", "EjectorForce", "84.25", 84.25),
        writes(WRITER(Machine_WriteEjectorStroke), "[Machine]", "EjectorStroke", "87.25", 87.25),
        writes(WRITER(Machine_WriteMachineWeight), "[Machine]", "MachineWeight", "90.25", 90.25),
        writes("Machine_WriteMachineDimension",
               Taking<char*>::of(&CQELPROWriter_Manipulator::Machine_WriteMachineDimension),
               "[Machine]", "MachineDimension(LxWxH)", "any text 62", "any text 62"),
        writes("Machine_WriteMachineDimension",
               Taking<double, double, double>::of(
                   &CQELPROWriter_Manipulator::Machine_WriteMachineDimension),
               "[Machine]", "MachineDimension(LxWxH)", "64.5x640x7.25", 64.5, 640.0, 7.25)),
    name_of_row);

TEST(Machine, TemperatureControlZonesMayBeASum) {
  const Scratch scratch;
  const struct {
    const char* text;
    int zones;
  } rows[] = {{"4+2", 6}, {"5", 5}, {"4 + 2", 4}, {"4+", 4}, {"-1+3", 2}, {"+7", 7}, {"4x2", 4}};
  for (const auto& row : rows) {
    const std::string path =
        scratch.file("[Machine]\nTemperatureControlZones = " + std::string(row.text) + "\n");
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    int zones = -1;
    EXPECT_TRUE(reader.Machine_ReadTemperatureControlZones(zones));
    EXPECT_EQ(zones, row.zones) << row.text;
  }
}

TEST(Machine, PairsTakeAnySeparatorOfOneCharacter) {
  const Scratch scratch;
  for (const char* text :
       {"1200x900", "1200*900", "1200 900", "1200X 900", "1200,900mm", "1.2e3x9e2"}) {
    const std::string path = scratch.file("[Machine]\nPlatenSize(HxV) = " + std::string(text) +
                                          "\nDistanceBetweenTieBars(HxV) = " + text + "\n");
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    double h = -1;
    double v = -1;
    EXPECT_TRUE(reader.Machine_ReadPlatenSize(h, v));
    EXPECT_EQ(h, 1200) << text;
    EXPECT_EQ(v, 900) << text;
    EXPECT_TRUE(reader.Machine_ReadDistanceBetweenTieBars(h, v));
    EXPECT_EQ(h, 1200) << text;
    EXPECT_EQ(v, 900) << text;
  }
}

TEST(Machine, NumbersThatAPairOrTripleLacksAreZero) {
  const Scratch scratch;
  const std::string path =
      scratch.file("[Machine]\nPlatenSize(HxV) = 1200\nMachineDimension(LxWxH) = 5x1.5\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double a = -1;
  double b = -1;
  double c = -1;
  EXPECT_TRUE(reader.Machine_ReadPlatenSize(a, b));
  EXPECT_EQ(a, 1200);
  EXPECT_EQ(b, 0);
  EXPECT_TRUE(reader.Machine_ReadMachineDimension(a, b, c));
  EXPECT_EQ(a, 5);
  EXPECT_EQ(b, 1.5);
  EXPECT_EQ(c, 0);
}

TEST(Machine, SizesReadBackAsTheyAreWrittenAZeroIncluded) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  for (const double first : {0.0, -0.0, 10.0, 1.5e10, 1e-7}) {
    ASSERT_TRUE(writer.Machine_WritePlatenSize(first, 900) &&
                writer.Machine_WriteDistanceBetweenTieBars(first, 0) &&
                writer.Machine_WriteMachineDimension(first, 0, 32));
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    double a = -1;
    double b = -1;
    double c = -1;
    EXPECT_TRUE(reader.Machine_ReadPlatenSize(a, b));
    EXPECT_EQ(a, first);
    EXPECT_EQ(b, 900);
    EXPECT_TRUE(reader.Machine_ReadDistanceBetweenTieBars(a, b));
    EXPECT_EQ(a, first);
    EXPECT_EQ(b, 0);
    EXPECT_TRUE(reader.Machine_ReadMachineDimension(a, b, c));
    EXPECT_EQ(a, first);
    EXPECT_EQ(b, 0);
    EXPECT_EQ(c, 32);
  }
}

TEST(Machine, SizesAreDecimalWhateverFollowsAZero) {
  const Scratch scratch;
  const struct {
    const char* text;
    double first;
    double second;
  } rows[] = {{"0x900", 0, 900}, {"-0x5", 0, 5},          {"0X5", 0, 5},
              {"0x1p3", 0, 1},   {"0x0x5", 0, 0},         {"1200x0x10", 1200, 0},
              {"00x7", 0, 7},    {"0x 900", 0, 900},      {"0xff", 0, 0},
              {"0 x 900", 0, 0}, {"1200 x 900", 1200, 0}, {"0x.5", 0, 0.5}};
  for (const auto& row : rows) {
    const std::string path =
        scratch.file("[Machine]\nPlatenSize(HxV) = " + std::string(row.text) + "\n");
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    double first = -1;
    double second = -1;
    EXPECT_TRUE(reader.Machine_ReadPlatenSize(first, second));
    EXPECT_EQ(first, row.first) << row.text;
    EXPECT_EQ(second, row.second) << row.text;
  }
}

TEST(Machine, DimensionsAreWrittenWithAnX) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.Machine_WritePlatenSize(1200.5, 900) &&
              writer.Machine_WriteMachineDimension(5.2, 1.4, 2.1));
  EXPECT_EQ(bytes_of(path), native("\n[Machine]\n" + padded("PlatenSize(HxV)", "1200.5x900") +
                                   "\nMachineDimension(LxWxH) = 5.2x1.4x2.1\n"));
}

TEST(Machine, TextAndNumbersAreOneEntry) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char text[] = "1200x900";
  ASSERT_TRUE(writer.Machine_WritePlatenSize(1, 2) && writer.Machine_WritePlatenSize(text));
  EXPECT_EQ(bytes_of(path), native("\n[Machine]\n" + padded("PlatenSize(HxV)", "1200x900") + "\n"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double h = 0;
  double v = 0;
  EXPECT_TRUE(reader.Machine_ReadPlatenSize(h, v));
  EXPECT_EQ(h, 1200);
  EXPECT_EQ(v, 900);
}

TEST(Machine, ClampForceStandsUnderSize) {
  const Scratch scratch;
  const std::string path = scratch.file("[Machine]\nClampForce = 1\nSize = 1500\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double force = 0;
  EXPECT_TRUE(reader.Machine_ReadClampForce(force));
  EXPECT_EQ(force, 1500);
}

TEST(Machine, BarrelCompressionIsWrittenRaw) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.WriteString("[Machine]", "BarrelCompressionCtrl", "1"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int control = 0;
  EXPECT_TRUE(reader.Machine_ReadBarrelCompressionCtrl(control));
  EXPECT_EQ(control, 1);
}

TEST(Machine, ScrewSpeedInCapitalsIsAnotherKey) {
  const Scratch scratch;
  const std::string path = scratch.file("[Machine]\nSCREWSPEED = 1\nScrewSpeed = 2\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double speed = 0;
  EXPECT_TRUE(reader.Machine_ReadScrewSpeed(speed));
  EXPECT_EQ(speed, 2);
}

TEST(Machine, TextsComeAndGoUnchanged) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char text[] = "Any \"Works\" = [1] % x";
  ASSERT_TRUE(writer.Machine_WriteRemark(text));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* remark = nullptr;
  EXPECT_TRUE(reader.Machine_ReadRemark(remark));
  EXPECT_STREQ(remark, text);
}

}  // namespace
}  // namespace qelpro_test
