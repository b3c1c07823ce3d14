#include "file/point_table.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "file/edit.h"
#include "system/failure.h"

// Tables of points as numbers, and back.

namespace {

using namespace qelpro;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::NanSensitiveDoubleEq;

PointTable table_of(std::string contents, const std::string& section, const std::string& name) {
  const SectionedText document(std::move(contents));
  return point_table("a.pro", Entries(document), section, name);
}

std::pair<Status, std::string> refusal_of(const std::string& contents, const std::string& section,
                                          const std::string& name) {
  try {
    table_of(contents, section, name);
  } catch (const Failure& failure) {
    return {failure.status(), failure.what()};
  }
  return {kDone, ""};
}

std::string after(std::string contents, const Edit& edit) {
  const SectionedText document(std::move(contents));
  return with_changes(document, changes_of("a.pro", document, {edit}));
}

const double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(PointTable, HasARowForEachPointThatTheCountPromises) {
  const PointTable table =
      table_of("[Flow-1]\nFR-3 = 7 8\nFRSet = 3\nFR-1 = 0 50\nFR-4 = x\n", "Flow-1", "FR");
  EXPECT_EQ(table.count, 3U);
  EXPECT_EQ(table.width, 2U);
  EXPECT_THAT(table.numbers,
              ElementsAre(0, 50, NanSensitiveDoubleEq(kNan), NanSensitiveDoubleEq(kNan), 7, 8));
}

TEST(PointTable, IsOneNumberWideForListsOfSingleNumbers) {
  const PointTable table =
      table_of("[EjectCriteria]\nTotalSensorNode = 2\nSensorNode-1 = 25\nSensorNode-2 = 30\n",
               "EjectCriteria", "SensorNode");
  EXPECT_EQ(table.width, 1U);
  EXPECT_THAT(table.numbers, ElementsAre(25, 30));
}

TEST(PointTable, WithoutPointsIsAsWideAsItsEncoding) {
  for (const char* count : {"0", "-1"}) {
    const PointTable table =
        table_of("[Flow-1]\nFRSet = " + std::string(count) + "\n", "Flow-1", "FR");
    EXPECT_EQ(table.count, 0U);
    EXPECT_EQ(table.width, 2U);
    EXPECT_THAT(table.numbers, IsEmpty());
  }
}

TEST(PointTable, TakesThePointsByTheirOwnName) {
  EXPECT_THAT(
      table_of("[RamPosition]\nRP_IPSet = 1\nRP_IP-1 = 1 2\n", "RamPosition", "RP_IP").numbers,
      ElementsAre(1, 2));
}

TEST(PointTable, RefusesACountThatCannotBe) {
  for (const std::string count : {"x", "1.5", "99999999999", "2147483647"}) {
    const auto [status, message] =
        refusal_of("[Flow-1]\nFRSet = " + count + "\nFR-1 = 0 1\n", "Flow-1", "FR");
    EXPECT_EQ(status, kUsage) << count;
    EXPECT_THAT(message, HasSubstr("a.pro: [Flow-1] FRSet: ")) << count;
  }
}

TEST(PointTable, RefusesAPointThatIsNotRead) {
  const auto [status, message] = refusal_of("[Flow-1]\nFRSet = 1\nFR-1 = 0 x\n", "Flow-1", "FR");
  EXPECT_EQ(status, kUsage);
  EXPECT_THAT(message, HasSubstr("a.pro: [Flow-1] FR-1: \"0 x\""));
}

TEST(PointTable, RefusesPointsOfOtherWidths) {
  const auto [status, message] =
      refusal_of("[EjectCriteria]\nTotalSensorNode = 2\nSensorNode-1 = 3\nSensorNode-2 = 4 1.5\n",
                 "EjectCriteria", "SensorNode");
  EXPECT_EQ(status, kUsage);
  EXPECT_THAT(message, HasSubstr("[EjectCriteria] SensorNode-2: has 2 numbers"));
}

TEST(PointTable, TellsWhatIsNotThere) {
  EXPECT_EQ(refusal_of("[Flow-1]\n", "Flow-2", "FR").first, kNotFound);
  EXPECT_EQ(refusal_of("[Flow-1]\n", "Flow-1", "FR").first, kNotFound);
  EXPECT_EQ(refusal_of("[Flow-1]\nFR-1 = 0 1\n", "Flow-1", "FR").first, kNotFound);
  EXPECT_EQ(refusal_of("[Flow-1]\n", "Flow-1", "Nothing").first, kNotFound);
  EXPECT_EQ(refusal_of("[Mine]\nFRSet = 1\n", "Mine", "FR").first, kNotFound);
}

TEST(SetProfile, WritesCountAndPointsAndNoneBehindThem) {
  EXPECT_EQ(after("[Flow-1]\nFRSet = 3\nFR-1 = 0 1\nFR-2 = 1 1\nFR-3 = 2 2\nFR-9 = 3 3\nx = 1\n",
                  set_profile("Flow-1", "FR", {{5, 6.5}, {7, 1e-7}})),
            "[Flow-1]\nFRSet = 2\nFR-1 = 5\t6.5\nFR-2 = 7\t1e-007\nx = 1\n");
  EXPECT_EQ(after("[Flow-1]\nFRSet = 1\nFR-1 = 0 1\n", set_profile("Flow-1", "FR", {})),
            "[Flow-1]\nFRSet = 0\n");
}

TEST(SetProfile, MakesASectionThatIsNotThere) {
  EXPECT_EQ(after("", set_profile("Flow-2", "FR", {{0, 1}})),
            "[Flow-2]\nFRSet                = 1\nFR-1                 = 0\t1\n");
}

TEST(SetProfile, RefusesOtherWidthsAndWhatIsNotFinite) {
  for (const std::vector<double>& point :
       {std::vector<double>{}, {1}, {1, 2, 3}, {1, kNan}, {HUGE_VAL, 1}}) {
    try {
      after("[Flow-1]\nFRSet = 0\n", set_profile("Flow-1", "FR", {{0, 1}, point}));
      FAIL() << point.size();
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.status(), kUsage);
      EXPECT_THAT(failure.what(), HasSubstr("a.pro: [Flow-1] FR-2: "));
    }
  }
}

TEST(SetProfile, TellsATableThatTheCatalogueHasNot) {
  for (const char* section : {"Flow-1", "Mine"}) {
    try {
      after("", set_profile(section, "Nothing", {{0, 1}}));
      FAIL() << section;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.status(), kNotFound);
    }
  }
}

}  // namespace
