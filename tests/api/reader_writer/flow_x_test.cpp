#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    FlowX, SectionReader,
    testing::Values(
        reads(READER(FlowX_ReadFillingTime), "[Flow-3]", "FillTime", "1.75", 1.75, 3),
        reads(READER(FlowX_ReadMaxFillingTime), "[Flow-5]", "MaxFillingTime", "4.75", 4.75, 5),
        reads(READER(FlowX_ReadMeltTemperature), "[Flow-2]", "MeltTemp", "7.75", 7.75, 2),
        reads(READER(FlowX_ReadMoldTemperature), "[Flow-4]", "MoldTemp", "10.75", 10.75, 4),
        reads(READER(FlowX_ReadInjectPressure), "[Flow-6]", "InjectPres", "13.75", 13.75, 6),
        reads(READER(FlowX_ReadPreFill), "[Flow-3]", "PreFill", "16.75", 16.75, 3),
        reads(READER(FlowX_ReadInjectVolume), "[Flow-5]", "InjVol", "19.75", 19.75, 5),
        reads(READER(FlowX_ReadTransferTime), "[Flow-2]", "TransTime", "22.75", 22.75, 2),
        reads(READER(FlowX_ReadMaxTransferTime), "[Flow-4]", "MaxTransferTime", "25.75", 25.75, 4),
        reads(READER(FlowX_ReadResinTemperature), "[Flow-6]", "ResnTemp", "28.75", 28.75, 6),
        reads(READER(FlowX_ReadTransferPressure), "[Flow-3]", "TransPres", "31.75", 31.75, 3),
        reads(READER(FlowX_ReadInitConv), "[Flow-5]", "InitConv", "34.75", 34.75, 5),
        reads(READER(FlowX_ReadInitConversion), "[Flow-6]", "InitConv", "36.25", 36.25, 6),
        reads(READER(FlowX_ReadMaxFR), "[Flow-3]", "MaxFR", "39.25", 39.25, 3),
        reads(READER(FlowX_ReadMaxPress), "[Flow-4]", "MaxPress", "40.75", 40.75, 4),
        reads(READER(FlowX_ReadIsPushBack), "[Flow-5]", "IsPushBack", "29", 29, 5),
        reads(READER(FlowX_ReadPushBackEnterTime), "[Flow-6]", "PushBackEnterTime", "43.75", 43.75,
              6),
        reads(READER(FlowX_ReadPushBackTime), "[Flow-2]", "PushBackTime", "45.25", 45.25, 2),
        reads(READER(FlowX_ReadFRDisplayType), "[Flow-3]", "FRDisplayType", "32", 32, 3),
        reads(READER(FlowX_ReadIPDisplayType), "[Flow-5]", "IPDisplayType", "34", 34, 5),
        reads(READER(FlowX_ReadTPDisplayType), "[Flow-2]", "TPDisplayType", "36", 36, 2),
        reads(READER(FlowX_ReadFRProfileType), "[Flow-4]", "FRProfileType", "38", 38, 4),
        reads(READER(FlowX_ReadIPProfileType), "[Flow-6]", "IPProfileType", "40", 40, 6),
        reads(READER(FlowX_ReadTPProfileType), "[Flow-3]", "TPProfileType", "42", 42, 3),
        reads(READER(FlowX_ReadFRStrokeMode), "[Flow-5]", "FRStrokeMode", "44", 44, 5),
        reads(READER(FlowX_ReadIPStrokeMode), "[Flow-2]", "IPStrokeMode", "46", 46, 2),
        reads(READER(FlowX_ReadTPStrokeMode), "[Flow-4]", "TPStrokeMode", "48", 48, 4),
        reads(READER(FlowX_ReadFRSection), "[Flow-6]", "FRSet", "50", 50, 6),
        reads(READER(FlowX_ReadFRProfile), "[Flow-2]", "FR-4", "50.5\t500", 50.5, 500.0, 4, 2),
        reads(READER(FlowX_ReadIPSection), "[Flow-5]", "IPSet", "54", 54, 5),
        reads(READER(FlowX_ReadIPProfile), "[Flow-6]", "IP-8", "54.5\t540", 54.5, 540.0, 8, 6),
        reads(READER(FlowX_ReadTPSection), "[Flow-4]", "TPSet", "58", 58, 4),
        reads(READER(FlowX_ReadTPProfile), "[Flow-5]", "TP-5", "58.5\t580", 58.5, 580.0, 5, 5),
        reads(READER(FlowX_ReadUserFRSection), "[Flow-3]", "UserFRSet", "62", 62, 3),
        reads(READER(FlowX_ReadUserFRProfile), "[Flow-4]", "UserFR-9", "62.5\t620", 62.5, 620.0, 9,
              4),
        reads(READER(FlowX_ReadUserIPSection), "[Flow-2]", "UserIPSet", "66", 66, 2),
        reads(READER(FlowX_ReadUserIPProfile), "[Flow-3]", "UserIP-6", "66.5\t660", 66.5, 660.0, 6,
              3),
        reads(READER(FlowX_ReadUserTPSection), "[Flow-6]", "UserTPSet", "70", 70, 6),
        reads(READER(FlowX_ReadUserTPProfile), "[Flow-2]", "UserTP-3", "70.5\t700", 70.5, 700.0, 3,
              2)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    FlowX, SectionWriter,
    testing::Values(
        writes(WRITER(FlowX_WriteFillingTime), "[Flow-4]", "FillTime", "3.25", 3.25, 4),
        writes(WRITER(FlowX_WriteMaxFillingTime), "[Flow-6]", "MaxFillingTime", "6.25", 6.25, 6),
        writes(WRITER(FlowX_WriteMeltTemperature), "[Flow-3]", "MeltTemp", "9.25", 9.25, 3),
        writes(WRITER(FlowX_WriteMoldTemperature), "[Flow-5]", "MoldTemp", "12.25", 12.25, 5),
        writes(WRITER(FlowX_WriteInjectPressure), "[Flow-2]", "InjectPres", "15.25", 15.25, 2),
        writes(WRITER(FlowX_WritePreFill), "[Flow-4]", "PreFill", "18.25", 18.25, 4),
        writes(WRITER(FlowX_WriteInjectVolume), "[Flow-6]", "InjVol", "21.25", 21.25, 6),
        writes(WRITER(FlowX_WriteTransferTime), "[Flow-3]", "TransTime", "24.25", 24.25, 3),
        writes(WRITER(FlowX_WriteMaxTransferTime), "[Flow-5]", "MaxTransferTime", "27.25", 27.25,
               5),
        writes(WRITER(FlowX_WriteResinTemperature), "[Flow-2]", "ResnTemp", "30.25", 30.25, 2),
        writes(WRITER(FlowX_WriteTransferPressure), "[Flow-4]", "TransPres", "33.25", 33.25, 4),
        writes(WRITER(FlowX_WriteInitConversion), "[Flow-2]", "InitConv", "37.75", 37.75, 2),
        writes(WRITER(FlowX_WriteFRDisplayType), "[Flow-4]", "FRDisplayType", "33", 33, 4),
        writes(WRITER(FlowX_WriteIPDisplayType), "[Flow-6]", "IPDisplayType", "35", 35, 6),
        writes(WRITER(FlowX_WriteTPDisplayType), "[Flow-3]", "TPDisplayType", "37", 37, 3),
        writes(WRITER(FlowX_WriteFRProfileType), "[Flow-5]", "FRProfileType", "39", 39, 5),
        writes(WRITER(FlowX_WriteIPProfileType), "[Flow-2]", "IPProfileType", "41", 41, 2),
        writes(WRITER(FlowX_WriteTPProfileType), "[Flow-4]", "TPProfileType", "43", 43, 4),
        writes(WRITER(FlowX_WriteFRStrokeMode), "[Flow-6]", "FRStrokeMode", "45", 45, 6),
        writes(WRITER(FlowX_WriteIPStrokeMode), "[Flow-3]", "IPStrokeMode", "47", 47, 3),
        writes(WRITER(FlowX_WriteTPStrokeMode), "[Flow-5]", "TPStrokeMode", "49", 49, 5),
        writes(WRITER(FlowX_WriteFRSection), "[Flow-3]", "FRSet", "52", 52, 3),
        writes(WRITER(FlowX_WriteFRProfile), "[Flow-4]", "FR-6", "52.5\t520", 52.5, 520.0, 6, 4),
        writes(WRITER(FlowX_WriteIPSection), "[Flow-2]", "IPSet", "56", 56, 2),
        writes(WRITER(FlowX_WriteIPProfile), "[Flow-3]", "IP-3", "56.5\t560", 56.5, 560.0, 3, 3),
        writes(WRITER(FlowX_WriteTPSection), "[Flow-6]", "TPSet", "60", 60, 6),
        writes(WRITER(FlowX_WriteTPProfile), "[Flow-2]", "TP-7", "60.5\t600", 60.5, 600.0, 7, 2),
        writes(WRITER(FlowX_WriteUserFRSection), "[Flow-5]", "UserFRSet", "64", 64, 5),
        writes(WRITER(FlowX_WriteUserFRProfile), "[Flow-6]", "UserFR-4", "64.5\t640", 64.5, 640.0,
               4, 6),
        writes(WRITER(FlowX_WriteUserIPSection), "[Flow-4]", "UserIPSet", "68", 68, 4),
        writes(WRITER(FlowX_WriteUserIPProfile), "[Flow-5]", "UserIP-8", "68.5\t680", 68.5, 680.0,
               8, 5),
        writes(WRITER(FlowX_WriteUserTPSection), "[Flow-3]", "UserTPSet", "72", 72, 3),
        writes(WRITER(FlowX_WriteUserTPProfile), "[Flow-4]", "UserTP-5", "72.5\t720", 72.5, 720.0,
               5, 4)),
    name_of_row);

TEST(FlowX, ProfilePointIsTwoNumbersWithATabBetween) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.FlowX_WriteFRProfile(0.5, 30, 2, 1));
  EXPECT_EQ(bytes_of(path), native("\n[Flow-1]\n" + padded("FR-2", "0.5\t30") + "\n"));
}

TEST(FlowX, CountIsNotCheckedAgainstThePoints) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nFRSet = 3\nFR-1 = 0 10\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int count = 0;
  double x = -1;
  double y = -1;
  EXPECT_TRUE(reader.FlowX_ReadFRSection(count, 1));
  EXPECT_EQ(count, 3);
  EXPECT_TRUE(reader.FlowX_ReadFRProfile(x, y, 1, 1));
  EXPECT_FALSE(reader.FlowX_ReadFRProfile(x, y, 2, 1));
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 10);
}

TEST(FlowX, WritingAPointLeavesTheCountAlone) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nFRSet = 3\n");
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.FlowX_WriteFRProfile(1, 2, 9, 1));
  EXPECT_EQ(bytes_of(path), "[Flow-1]\nFRSet = 3\nFR-9 = 1\t2\n");
}

TEST(FlowX, InitialConversionHasTwoReaders) {
  const Scratch scratch;
  for (const char* contents : {"[Flow-1]\nInitConv = 0.25\n", "[Flow-1]\nInitConv = x\n",
                               "[Flow-1]\nInitConversion = 0.25\n", ""}) {
    const std::string path = scratch.file(contents);
    Reader first;
    Reader second;
    ASSERT_TRUE(first.SetFilePath(path.c_str()) && second.SetFilePath(path.c_str()));
    double a = -7;
    double b = -7;
    EXPECT_EQ(first.FlowX_ReadInitConv(a, 1), second.FlowX_ReadInitConversion(b, 1)) << contents;
    EXPECT_EQ(a, b) << contents;
  }
}

TEST(FlowX, InletZeroIsASectionLikeAnyOther) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.FlowX_WriteFillingTime(1.5, 0));
  EXPECT_EQ(bytes_of(path), native("\n[Flow-0]\n" + padded("FillTime", "1.5") + "\n"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double time = 0;
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(time, 0));
  EXPECT_EQ(time, 1.5);
  EXPECT_FALSE(reader.FlowX_ReadFillingTime(time, 1));
}

TEST(FlowX, HalfAPointKeepsTheCallersOtherNumber) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nFR-1 = 5\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double x = -1;
  double y = -1;
  EXPECT_TRUE(reader.FlowX_ReadFRProfile(x, y, 1, 1));
  EXPECT_EQ(x, 5);
  EXPECT_EQ(y, -1);
}

}  // namespace
}  // namespace qelpro_test
