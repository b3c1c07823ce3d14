#include <ctime>

#include "platform/clock.h"

namespace qel::platform {

LocalTime local_time() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  ::localtime_r(&now, &parts);
  return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
          parts.tm_hour,        parts.tm_min,     parts.tm_sec};
}

}  // namespace qel::platform
