#pragma once

namespace qel::platform {

struct LocalTime {
  int year;
  int month;
  int day;
  int hour;
  int minute;
  int second;
};

/// The local calendar date and time of day, to the second.
LocalTime local_time();

}  // namespace qel::platform
