#include "picture/axis.h"
#include "support/in_c_locale.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace qelpro;
using testing::ElementsAre;

std::vector<std::string> labels(std::initializer_list<double> values, int steps = 5) {
  Range range;
  for (const double value : values) {
    range.add(value);
  }
  std::vector<std::string> texts;
  for (const Tick& tick : axis_over(range, steps).ticks) {
    texts.push_back(tick.label);
  }
  return texts;
}

TEST(Axis, StepsAreOneTwoOrFiveTimesAPowerOfTen) {
  EXPECT_THAT(labels({0, 100}), ElementsAre("0", "20", "40", "60", "80", "100"));
  EXPECT_THAT(labels({0, 50}), ElementsAre("0", "10", "20", "30", "40", "50"));
  EXPECT_THAT(labels({0, 6.5}), ElementsAre("0", "2", "4", "6", "8"));
  EXPECT_THAT(labels({0, 0.3}), ElementsAre("0", "0.1", "0.2", "0.3"));
  EXPECT_THAT(labels({0, 21}), ElementsAre("0", "5", "10", "15", "20", "25"));
}

TEST(Axis, ReachesFromTheLeastToTheGreatest) {
  EXPECT_THAT(labels({235, 240}), ElementsAre("235", "236", "237", "238", "239", "240"));
  EXPECT_THAT(labels({-40, 60}), ElementsAre("-40", "-20", "0", "20", "40", "60"));
  EXPECT_THAT(labels({-30, -10}), ElementsAre("-30", "-20", "-10", "0"));
  EXPECT_THAT(labels({30, 60}), ElementsAre("0", "20", "40", "60"));
}

TEST(Axis, OfOneNumberOrNoneHasRoom) {
  EXPECT_THAT(labels({}), ElementsAre("0", "0.2", "0.4", "0.6", "0.8", "1"));
  EXPECT_THAT(labels({0}), ElementsAre("0", "0.2", "0.4", "0.6", "0.8", "1"));
  EXPECT_THAT(labels({90}), ElementsAre("0", "20", "40", "60", "80", "100"));
  EXPECT_THAT(labels({-90, -90}), ElementsAre("-100", "-80", "-60", "-40", "-20", "0"));
}

TEST(Axis, TellsHugeAndSmallNumbersWithAnExponent) {
  EXPECT_THAT(labels({0, 5e9}), ElementsAre("0", "1e9", "2e9", "3e9", "4e9", "5e9"));
  EXPECT_THAT(labels({0, 1e-7}), ElementsAre("0", "2e-8", "4e-8", "6e-8", "8e-8", "1e-7"));
  EXPECT_THAT(labels({0, 0.005}), ElementsAre("0", "0.001", "0.002", "0.003", "0.004", "0.005"));
  EXPECT_THAT(labels({0, 500000}),
              ElementsAre("0", "100000", "200000", "300000", "400000", "500000"));
}

TEST(Axis, LeavesOutWhatIsNotFinite) {
  const double infinite = std::numeric_limits<double>::infinity();
  EXPECT_EQ(labels({0, std::nan(""), infinite, -infinite, 50}), labels({0, 50}));
}

// Whatever the range: few ticks that ascend, texts that are their numbers, and the range within.
void check(double a, double b, int steps) {
  Range range;
  range.add(a);
  range.add(b);
  const Axis axis = axis_over(range, steps);
  ASSERT_GE(axis.ticks.size(), 2U) << a << ' ' << b;
  ASSERT_LE(axis.ticks.size(), static_cast<std::size_t>(steps) + 1) << a << ' ' << b;
  for (std::size_t at = 1; at < axis.ticks.size(); ++at) {
    ASSERT_LT(axis.ticks[at - 1].value, axis.ticks[at].value) << a << ' ' << b;
    ASSERT_NE(axis.ticks[at - 1].label, axis.ticks[at].label) << a << ' ' << b;
  }
  for (const Tick& tick : axis.ticks) {
    ASSERT_TRUE(std::isfinite(tick.value));
    ASSERT_NEAR(qelpro_test::to_double(tick.label) / std::max(1e-300, std::abs(tick.value)),
                tick.value / std::max(1e-300, std::abs(tick.value)), 1e-9)
        << tick.label;
  }
  for (const double value : {a, b}) {
    ASSERT_GE(axis.part(value), 0) << a << ' ' << b;
    ASSERT_LE(axis.part(value), 1) << a << ' ' << b;
  }
  const double slack = (axis.high / 2 - axis.low / 2) * 1e-6;
  if (std::abs(a) <= 1e308 && std::abs(b) <= 1e308) {
    ASSERT_LE(axis.low, std::min(a, b) + slack) << a << ' ' << b;
    ASSERT_GE(axis.high, std::max(a, b) - slack) << a << ' ' << b;
  }
}

TEST(Axis, HoldsAnyRange) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> exponent(-280, 300);
  std::uniform_real_distribution<double> number(-10, 10);
  for (int round = 0; round < 20000; ++round) {
    const double size = std::pow(10, exponent(random));
    check(number(random) * size, number(random) * size, 2 + round % 9);
  }
  const double greatest = std::numeric_limits<double>::max();
  const double least = std::numeric_limits<double>::denorm_min();
  for (const double a : {-greatest, -1.0, -least, 0.0, least, 1.0, 1 + 1e-15, 1e300, greatest}) {
    for (const double b : {-greatest, -1e300, 0.0, least, 1.0, greatest}) {
      check(a, b, 5);
    }
  }
}

}  // namespace
