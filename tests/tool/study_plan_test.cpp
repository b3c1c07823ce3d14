#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "study/plan.h"
#include "support/in_c_locale.h"
#include "system/failure.h"
#include "work/workers.h"

// The values of a study, and how they are put together.

namespace {

using namespace qelpro;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> values_of(const std::string& text) {
  const Range range(text);
  std::vector<std::string> values;
  for (std::uint64_t index = 0; index < range.count(); ++index) {
    values.push_back(range.value(index));
  }
  return values;
}

std::string refusal_of(const std::string& text) {
  try {
    const Range range(text);
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.status(), kUsage);
    return failure.what();
  }
  return "";
}

TEST(Range, HasItsLastValue) {
  EXPECT_THAT(values_of("220:260:10"), ElementsAre("220", "230", "240", "250", "260"));
  EXPECT_THAT(values_of("220:265:10"), ElementsAre("220", "230", "240", "250", "260"));
  EXPECT_THAT(values_of("5:5:1"), ElementsAre("5"));
}

TEST(Range, CalculatesWithTheTextsAndDoesNotDrift) {
  EXPECT_THAT(values_of("0.1:0.3:0.1"), ElementsAre("0.1", "0.2", "0.3"));
  EXPECT_THAT(values_of("-0.10:0.1:.1"), ElementsAre("-0.1", "0", "0.1"));
  EXPECT_THAT(values_of("1e-3:3e-3:1e-3"), ElementsAre("0.001", "0.002", "0.003"));
  EXPECT_THAT(values_of("260:240:-10"), ElementsAre("260", "250", "240"));
  EXPECT_THAT(values_of("1e3:3E+3:1000"), ElementsAre("1000", "2000", "3000"));
  const std::vector<std::string> many = values_of("0:1000:0.1");
  ASSERT_EQ(many.size(), 10'001U);
  EXPECT_EQ(many[9'999], "999.9");
  EXPECT_EQ(many.back(), "1000");
}

TEST(Range, EndsAtItsLastValueWhereTheStepWasRounded) {
  EXPECT_THAT(values_of("0:1:0.33333333333333"),
              ElementsAre("0", "0.33333333333333", "0.66666666666666", "1"));
  EXPECT_THAT(values_of("0:1:0.33333333333334"),
              ElementsAre("0", "0.33333333333334", "0.66666666666668", "1"));
  EXPECT_THAT(values_of("0:1:0.34"), ElementsAre("0", "0.34", "0.68"));
}

TEST(Range, TakesValuesAsTheyStand) {
  EXPECT_THAT(values_of("1.50, 2,3e0"), ElementsAre("1.50", "2", "3e0"));
  EXPECT_THAT(values_of("0 50,0 60"), ElementsAre("0 50", "0 60"));
  EXPECT_THAT(values_of("one:two"), ElementsAre("one:two"));
  EXPECT_THAT(values_of("7"), ElementsAre("7"));
}

TEST(Range, SaysWhatIsWrong) {
  EXPECT_THAT(refusal_of(""), HasSubstr("missing"));
  EXPECT_THAT(refusal_of("1,,2"), HasSubstr("missing"));
  EXPECT_THAT(refusal_of("1,"), HasSubstr("missing"));
  EXPECT_THAT(refusal_of("1:2:0"), HasSubstr("step"));
  EXPECT_THAT(refusal_of("1:2:-1"), HasSubstr("step"));
  EXPECT_THAT(refusal_of("2:1:1"), HasSubstr("step"));
  EXPECT_THAT(refusal_of("1:1"), HasSubstr("begins where it ends"));
  EXPECT_THAT(refusal_of("1:2.5.1:1"), HasSubstr("no number"));
  EXPECT_THAT(refusal_of("1e-200:1e200:1"), HasSubstr("digits"));
}

TEST(Plan, TurnsTheLastRangeFastest) {
  const Plan plan({Range("1,2"), Range("10:30:10")});
  std::vector<std::string> points;
  for (std::uint64_t file = 0; file < plan.size(); ++file) {
    points.push_back(plan.value(file, 0) + " " + plan.value(file, 1));
  }
  EXPECT_THAT(points, ElementsAre("1 10", "1 20", "1 30", "2 10", "2 20", "2 30"));
}

std::string refusal_of_plan(const std::vector<Range>& ranges, std::uint64_t samples = 0) {
  try {
    samples == 0 ? Plan(ranges) : Plan(ranges, samples, 1);
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.status(), kUsage);
    return failure.what();
  }
  return "";
}

TEST(Plan, IsRefusedWithItsNumberWhereItIsTooLarge) {
  EXPECT_THAT(refusal_of_plan({Range("1:10000:1"), Range("1:1001:1")}),
              HasSubstr("the plan has 10010000 files"));
  const Range large("1:1000000000000000:1");
  EXPECT_THAT(refusal_of_plan({large, large}), HasSubstr("more than 18446744073709551615 files"));
  EXPECT_THAT(refusal_of_plan({large}, 10'000'001), HasSubstr("10000001 files"));
  EXPECT_THAT(refusal_of_plan({Range("1:2")}), HasSubstr("FROM:TO:STEP"));
}

TEST(Plan, DrawsOneSampleInEachPartOfEachRange) {
  constexpr std::uint64_t kSamples = 37;
  const Plan plan({Range("220:260"), Range("1:0.5"), Range("a,b,c,d"), Range("1:5:1")}, kSamples,
                  42);
  ASSERT_EQ(plan.size(), kSamples);
  std::vector<std::uint64_t> parts;
  std::vector<std::uint64_t> falling;
  std::vector<std::uint64_t> counts(4);
  for (std::uint64_t file = 0; file < kSamples; ++file) {
    parts.push_back(static_cast<std::uint64_t>((qelpro_test::to_double(plan.value(file, 0)) - 220) /
                                               40 * kSamples));
    falling.push_back(static_cast<std::uint64_t>((1 - qelpro_test::to_double(plan.value(file, 1))) /
                                                 0.5 * kSamples));
    ++counts.at(static_cast<std::size_t>(plan.value(file, 2).front() - 'a'));
  }
  EXPECT_FALSE(std::ranges::is_sorted(parts));
  for (std::vector<std::uint64_t>* of_range : {&parts, &falling}) {
    std::ranges::sort(*of_range);
    for (std::uint64_t part = 0; part < kSamples; ++part) {
      EXPECT_EQ((*of_range)[part], part);
    }
  }
  for (const std::uint64_t count : counts) {
    EXPECT_TRUE(count == 9 || count == 10) << count;
  }
}

// The generator's own first numbers for the seed 0 are published with it.
TEST(Plan, DrawsTheSameForASeedEverywhere) {
  Generator generator(0);
  EXPECT_EQ(generator.next(), 0xE220A8397B1DCDAFU);
  EXPECT_EQ(generator.next(), 0x6E789E6AA1B965F4U);
  const auto drawn = [](std::uint64_t seed) {
    const Plan plan({Range("0.5:1.5"), Range("-10:10")}, 4, seed);
    std::string values;
    for (std::uint64_t file = 0; file < 4; ++file) {
      values += plan.value(file, 0) + " " + plan.value(file, 1) + "; ";
    }
    return values;
  };
  EXPECT_EQ(drawn(7), drawn(7));
  EXPECT_NE(drawn(7), drawn(8));
  EXPECT_EQ(drawn(7), "0.97203 -7.8917; 1.23674 -4.4484; 0.73305 6.899; 1.46798 3.9344; ");
}

TEST(Plan, TellsWhereARangeIsTooNarrow) {
  EXPECT_THAT(refusal_of_plan({Range("1000000000000000000:1000000000000000001")}, 100),
              HasSubstr("too narrow"));
}

TEST(WorkOnAllCores, DoesEachPartOnceAndThrowsWhatOneThrows) {
  std::vector<int> done(1000);
  const auto mark = [&](const Block& block) {
    for (std::uint64_t at = block.first; at < block.last; ++at) {
      ++done[at];
    }
  };
  const auto go_on = [](std::uint64_t) { return true; };
  EXPECT_EQ(work_on_all_cores(done.size(), 7, mark, go_on), done.size());
  EXPECT_EQ(std::ranges::count(done, 1), 1000);
  EXPECT_EQ(work_on_all_cores(0, 7, mark, go_on), 0U);
  EXPECT_THROW(work_on_all_cores(
                   100, 1, [](const Block&) { throw Failure(kFileError, "no"); }, go_on),
               Failure);
}

}  // namespace
