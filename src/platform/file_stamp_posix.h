#pragma once

#include <sys/stat.h>

#include <cstdint>

#include "platform/store_watch.h"

namespace qel::platform {

inline constexpr std::int64_t kNanoseconds = 1'000'000'000;

inline FileStamp stamp_of(const struct stat& status) {
  return {static_cast<std::int64_t>(status.st_size),
          status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec,
          status.st_ctim.tv_sec * kNanoseconds + status.st_ctim.tv_nsec};
}

}  // namespace qel::platform
