#include <gtest/gtest.h>

#include <ctime>
#include <regex>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "support/environment.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

// Sets the local time zone for one scope.
class TimeZone {
 public:
  explicit TimeZone(const char* zone) : kept_("TZ") {
    set_environment("TZ", zone);
    tzset();
  }
  ~TimeZone() {
    kept_.restore();
    tzset();
  }
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;

 private:
  KeptEnvironment kept_;
};

std::string stamp(std::time_t moment, int hours_ahead_of_utc) {
  moment += hours_ahead_of_utc * 3600;
  std::tm parts{};
  gmtime_r(&moment, &parts);
  char text[64];
  std::strftime(text, sizeof text, "%Y/%m/%d %H:%M:%S", &parts);
  return text;
}

// The stamp that a writer leaves in the zone; empty unless it is one of the moments of the call.
void expect_stamp_in(const char* zone, int hours_ahead_of_utc) {
  const TimeZone local(zone);
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  const std::time_t before = std::time(nullptr);
  ASSERT_TRUE(writer.FileHeader_WriteDate());
  const std::time_t after = std::time(nullptr);
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* date = nullptr;
  ASSERT_TRUE(reader.FileHeader_ReadDate(date));
  EXPECT_TRUE(std::regex_match(date, std::regex(R"(\d{4}/\d\d/\d\d \d\d:\d\d:\d\d)"))) << date;
  // The format sorts as time does.
  EXPECT_GE(std::string(date), stamp(before, hours_ahead_of_utc)) << zone;
  EXPECT_LE(std::string(date), stamp(after, hours_ahead_of_utc)) << zone;
}

TEST(FileHeaderDate, IsTheLocalDateAndTime) {
  expect_stamp_in("UTC0", 0);
  expect_stamp_in("<+09>-9", 9);
  expect_stamp_in("<-11>11", -11);
}

}  // namespace
}  // namespace qelpro_test
