#include "platform/store_watch.h"

#include <ctime>

#include "platform/file_stamp_posix.h"
#include "platform/store_lock.h"

namespace qel::platform {
namespace {

bool look(std::intptr_t handle, FileStamp& stamp) {
  struct stat status {};
  if (::fstat(static_cast<int>(handle), &status) != 0) {
    return false;
  }
  stamp = stamp_of(status);
  return true;
}

// Whether whatever is written from now on gets another stamp. A file system that keeps whole
// seconds, or every second one, shows it by its stamps.
bool is_settled(const FileStamp& stamp) {
  constexpr std::int64_t kTick = kNanoseconds / 50;
  constexpr std::int64_t kCoarseTick = 2 * kNanoseconds;
  constexpr std::int64_t kMillisecond = kNanoseconds / 1000;
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
  const bool is_coarse = stamp.changed % kMillisecond == 0;
  return now.tv_sec * kNanoseconds + now.tv_nsec - stamp.changed >
         (is_coarse ? kCoarseTick : kTick);
}

}  // namespace

bool StoreWatch::begins_read(std::intptr_t handle) {
  if (state_ == State::quiet) {
    return true;
  }
  relies_on_earlier_ = false;
  if (state_ == State::unknown && !look(handle, stamp_)) {
    return false;
  }
  state_ = State::unknown;
  const bool settled = is_settled(stamp_);
  if (is_store_under_way(handle)) {
    return false;
  }
  state_ = settled ? State::quiet : State::asked;
  return true;
}

// A stamp that cannot be had proves nothing.
ReadEnd StoreWatch::ends_read(std::intptr_t handle) {
  FileStamp now;
  if (!look(handle, now)) {
    state_ = State::unknown;
    return ReadEnd::disturbed;
  }
  const bool is_same = now == stamp_;
  if (is_same && state_ == State::quiet) {
    relies_on_earlier_ = true;
    return ReadEnd::undisturbed;
  }
  const bool is_quiet = is_same && !is_store_under_way(handle);
  note(now);
  return is_quiet             ? ReadEnd::undisturbed
         : relies_on_earlier_ ? ReadEnd::outdated
                              : ReadEnd::disturbed;
}

}  // namespace qel::platform
