#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/caller_stream.h"
#include "platform/file_length_posix.h"
#include "platform/file_stamp_posix.h"
#include "platform/store_lock.h"

namespace qel::platform {
namespace {

// What the stream read ahead may be older than what is asked now; from its beginning, it forgets
// all.
bool forget_read_ahead(std::FILE* stream) {
  return ::fseeko(stream, 0, SEEK_SET) == 0 && std::fflush(stream) == 0;
}

}  // namespace

// A program has one C library here.
bool CallerStream::is_of_this_runtime(std::FILE* /*stream*/) { return true; }

// A device may go on without end, and a pipe has no offsets. A stream over memory has no
// descriptor.
CallerStream::CallerStream(std::FILE* stream) : stream_(stream) {
  const int fd = ::fileno(stream);
  struct stat status {};
  if (fd < 0) {
    has_contents_ = true;
  } else if (::fstat(fd, &status) == 0 && S_ISREG(status.st_mode)) {
    has_contents_ = true;
    changes_ = ChangeCount(status.st_dev, status.st_ino);
    watch_.note(stamp_of(status));
  }
}

std::int64_t CallerStream::size() {
  if (!has_contents_) {
    return -1;
  }
  std::clearerr(stream_);
  if (::fseeko(stream_, 0, SEEK_END) != 0) {
    return -1;
  }
  return static_cast<std::int64_t>(::ftello(stream_));
}

std::int64_t CallerStream::read_at(std::int64_t offset, char* to, std::size_t count) {
  std::clearerr(stream_);
  if (!has_contents_ || ::fseeko(stream_, static_cast<off_t>(offset), SEEK_SET) != 0) {
    return -1;
  }
  const std::size_t got = std::fread(to, 1, count, stream_);
  return std::ferror(stream_) != 0 ? -1 : static_cast<std::int64_t>(got);
}

bool CallerStream::write_at(std::int64_t offset, const char* from, std::size_t count) {
  const CountedChange change(changes_);
  std::clearerr(stream_);
  return ::fseeko(stream_, static_cast<off_t>(offset), SEEK_SET) == 0 &&
         std::fwrite(from, 1, count, stream_) == count && flush();
}

bool CallerStream::reserve(std::int64_t old_size, std::int64_t end) {
  const int fd = ::fileno(stream_);
  if (fd < 0) {
    return true;  // a stream over memory: its own write tells
  }
  const int flags = ::fcntl(fd, F_GETFL);
  if (flags < 0 || (flags & O_APPEND) != 0 || (flags & O_ACCMODE) == O_RDONLY) {
    return false;  // bytes would land elsewhere than asked, or nowhere
  }
  if (!is_within_limit(end)) {
    return false;
  }
  return end <= old_size || reserve_blocks(fd, old_size, end);
}

bool CallerStream::truncate(std::int64_t size) {
  const CountedChange change(changes_);
  const int fd = ::fileno(stream_);
  return fd >= 0 && flush() && set_length(fd, size);
}

// The caller's own lock of the same open file stays: the byte in question is nobody else's.
bool CallerStream::lock() {
  const int fd = ::fileno(stream_);
  const LockAnswer answer = fd >= 0 && has_contents_ ? lock_for_store(fd) : LockAnswer::none;
  is_locked_ = answer == LockAnswer::held;
  if (is_locked_ && !forget_read_ahead(stream_)) {
    unlock();
    return false;
  }
  return answer != LockAnswer::busy;
}

void CallerStream::unlock() {
  if (is_locked_) {
    unlock_after_store(::fileno(stream_));
    is_locked_ = false;
  }
}

bool CallerStream::begins_read() {
  const int fd = ::fileno(stream_);
  if (fd < 0 || !has_contents_) {
    return true;
  }
  return (watch_.lasts() || forget_read_ahead(stream_)) && watch_.begins_read(fd);
}

ReadEnd CallerStream::ends_read() {
  const int fd = ::fileno(stream_);
  return fd < 0 || !has_contents_ ? ReadEnd::undisturbed : watch_.ends_read(fd);
}

void CallerStream::lock_for_read() {
  watch_.lock(::fileno(stream_));
  forget_read_ahead(stream_);
}

void CallerStream::unlock_after_read() { watch_.unlock(::fileno(stream_)); }

bool CallerStream::flush() { return std::fflush(stream_) == 0; }

}  // namespace qel::platform
