#include <windows.h>

#include "platform/clock.h"

namespace qel::platform {

LocalTime local_time() {
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

}  // namespace qel::platform
