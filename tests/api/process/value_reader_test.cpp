#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <type_traits>

#include "QELPROEngine/QELPROEngine.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

struct Switch {
  bool done = false;
  int first = -1;
  int second = -2;
  double value = -3.5;
};

Switch switch_of(CQELPROReader_Manipulator* reader) {
  Switch result;
  result.done = CQELProcessValueReader::GetVPSwitch(reader, 1, 2, 3, 4, 5, 6, 7, result.first,
                                                    result.second, result.value);
  return result;
}

Switch switch_in(const std::string& contents) {
  const Scratch scratch;
  CQELPROReader_Manipulator reader;
  EXPECT_TRUE(reader.SetFilePath(scratch.file(contents).c_str()));
  return switch_of(&reader);
}

void expect(const Switch& actual, int first, int second, double value) {
  EXPECT_TRUE(actual.done);
  EXPECT_EQ(actual.first, first);
  EXPECT_EQ(actual.second, second);
  EXPECT_EQ(actual.value, value);
}

void expect_untouched(const Switch& actual) {
  EXPECT_FALSE(actual.done);
  EXPECT_EQ(actual.first, -1);
  EXPECT_EQ(actual.second, -2);
  EXPECT_EQ(actual.value, -3.5);
}

std::string with_mode(const std::string& mode) {
  return "[FlowCTL]\nVPSwitchCtrl = " + mode +
         "\nVolumeFilled = 98.5\nRamPosition = 12.25\nInjectionPressure = 118\n";
}

TEST(VPSwitch, FilledVolume) { expect(switch_in(with_mode("0")), 1, 5, 98.5); }

TEST(VPSwitch, RamPosition) { expect(switch_in(with_mode("1")), 2, 6, 12.25); }

TEST(VPSwitch, InjectionPressure) { expect(switch_in(with_mode("2")), 3, 7, 118); }

TEST(VPSwitch, FurtherCriterionSharesSecondChoiceAndValueWithFilledVolume) {
  expect(switch_in(with_mode("3")), 4, 5, 98.5);
}

TEST(VPSwitch, OtherModesChooseNothing) {
  for (const char* mode : {"4", "-1", "2147483647"}) {
    SCOPED_TRACE(mode);
    expect_untouched(switch_in(with_mode(mode)));
  }
}

TEST(VPSwitch, ModeThatDoesNotScanIsFilledVolume) {
  expect(switch_in(with_mode("volume")), 1, 5, 98.5);
}

TEST(VPSwitch, MissingModeChoosesNothing) {
  expect_untouched(switch_in("[FlowCTL]\nVolumeFilled = 98.5\n"));
  expect_untouched(switch_in("[Other]\nVPSwitchCtrl = 0\n"));
}

TEST(VPSwitch, MissingValueIsLeftAsItWas) {
  expect(switch_in("[FlowCTL]\nVPSwitchCtrl = 0\nRamPosition = 1\n"), 1, 5, -3.5);
  expect(switch_in("[FlowCTL]\nVPSwitchCtrl = 1\nVolumeFilled = 1\n"), 2, 6, -3.5);
  expect(switch_in("[FlowCTL]\nVPSwitchCtrl = 2\nVolumeFilled = 1\n"), 3, 7, -3.5);
  expect(switch_in("[FlowCTL]\nVPSwitchCtrl = 3\nRamPosition = 1\n"), 4, 5, -3.5);
}

TEST(VPSwitch, ValueThatDoesNotScanIsLeftAsItWas) {
  expect(switch_in("[FlowCTL]\nVPSwitchCtrl = 0\nVolumeFilled = full\n"), 1, 5, -3.5);
}

TEST(VPSwitch, NullReaderChoosesNothing) { expect_untouched(switch_of(nullptr)); }

TEST(VPSwitch, ReaderWithoutAFileChoosesNothing) {
  CQELPROReader_Manipulator reader;
  expect_untouched(switch_of(&reader));
  const Scratch scratch;
  EXPECT_FALSE(reader.SetFilePath(scratch.path("missing.pro").c_str()));
  expect_untouched(switch_of(&reader));
}

TEST(VPSwitch, ClosedReaderChoosesNothing) {
  const Scratch scratch;
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(scratch.file(with_mode("0")).c_str()));
  reader.CloseFile();
  expect_untouched(switch_of(&reader));
}

TEST(VPSwitch, ReadsThroughALentStream) {
  const Scratch scratch;
  std::FILE* stream = std::fopen(scratch.file(with_mode("2")).c_str(), "r");
  ASSERT_NE(stream, nullptr);
  {
    CQELPROReader_Manipulator reader;
    ASSERT_TRUE(reader.SetFilePtr(stream));
    expect(switch_of(&reader), 3, 7, 118);
  }
  std::fclose(stream);
}

TEST(VPSwitch, OfTheProcessFiles) {
  const auto of_file = [](const char* name) {
    const std::string path = data_path(name);
    CQELPROReader_Manipulator reader;
    EXPECT_TRUE(reader.SetFilePath(path.c_str()));
    return switch_of(&reader);
  };
  expect(of_file("injection_two_inlets.pro"), 1, 5, 98.5);
  expect(of_file("co_injection_type_8.pro"), 2, 6, 15.75);
  expect(of_file("transfer_molding_curing.pro"), 3, 7, 7.5);
}

TEST(ValueReader, CopiesLikeAnyObject) {
  CQELProcessValueReader first;
  CQELProcessValueReader second(first);
  EXPECT_EQ(&(second = first), &second);
  static_assert(std::is_empty_v<CQELProcessValueReader>);
}

}  // namespace
}  // namespace qelpro_test
