#include "platform/clock.h"

#include <gtest/gtest.h>

#include <ctime>

namespace {

using qel::platform::local_time;
using qel::platform::LocalTime;

std::time_t seconds(const LocalTime& time) {
  std::tm parts{};
  parts.tm_year = time.year - 1900;
  parts.tm_mon = time.month - 1;
  parts.tm_mday = time.day;
  parts.tm_hour = time.hour;
  parts.tm_min = time.minute;
  parts.tm_sec = time.second;
  parts.tm_isdst = -1;
  return std::mktime(&parts);
}

TEST(LocalTime, LiesBetweenTheMomentsBeforeAndAfter) {
  const std::time_t before = std::time(nullptr);
  const std::time_t now = seconds(local_time());
  EXPECT_LE(before, now);
  EXPECT_LE(now, std::time(nullptr));
}

TEST(LocalTime, CountsMonthsAndDaysFromOne) {
  const LocalTime time = local_time();
  EXPECT_TRUE(time.month >= 1 && time.month <= 12);
  EXPECT_TRUE(time.day >= 1 && time.day <= 31);
  EXPECT_GT(time.year, 2000);
}

}  // namespace
