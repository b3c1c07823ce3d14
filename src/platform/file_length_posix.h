#pragma once

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

namespace qel::platform {

/// Makes the call again as long as a signal interrupts it.
template <class Call>
int uninterrupted(Call call) {
  int result = 0;
  do {
    result = call();
  } while (result != 0 && errno == EINTR);
  return result;
}

/// Whether the process may write a file up to there. A write past its limit on file sizes would end
/// it with a signal.
inline bool is_within_limit(std::int64_t end) {
  rlimit limit{};
  return ::getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY ||
         static_cast<rlim_t>(end) <= limit.rlim_cur;
}

/// Sets room aside for a file to grow from a length to another, which it does not take yet. A file
/// system that cannot do that is asked for room by the write itself, which puts the old bytes back
/// when it fails.
inline bool reserve_blocks(int fd, std::int64_t from, std::int64_t to) {
  return uninterrupted([=] { return ::fallocate(fd, FALLOC_FL_KEEP_SIZE, from, to - from); }) ==
             0 ||
         errno == EOPNOTSUPP || errno == ENOSYS;
}

inline bool set_length(int fd, std::int64_t length) {
  return uninterrupted([=] { return ::ftruncate(fd, static_cast<off_t>(length)); }) == 0;
}

}  // namespace qel::platform
