#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_length_posix.h"
#include "platform/lent_stream.h"

namespace qel::platform {

namespace {

// A device may go on without end, and a pipe has no offsets. A stream over memory has no descriptor.
bool has_contents(std::FILE* stream) {
  const int fd = ::fileno(stream);
  struct stat status {};
  return fd < 0 || (::fstat(fd, &status) == 0 && S_ISREG(status.st_mode));
}

}  // namespace

LentStream::LentStream(std::FILE* stream) : stream_(stream), has_contents_(has_contents(stream)) {}

std::int64_t LentStream::size() {
  if (!has_contents_) {
    return -1;
  }
  std::clearerr(stream_);
  if (::fseeko(stream_, 0, SEEK_END) != 0) {
    return -1;
  }
  return static_cast<std::int64_t>(::ftello(stream_));
}

std::int64_t LentStream::read_at(std::int64_t offset, char* to, std::size_t count) {
  std::clearerr(stream_);
  if (!has_contents_ || ::fseeko(stream_, static_cast<off_t>(offset), SEEK_SET) != 0) {
    return -1;
  }
  const std::size_t got = std::fread(to, 1, count, stream_);
  return std::ferror(stream_) != 0 ? -1 : static_cast<std::int64_t>(got);
}

bool LentStream::write_at(std::int64_t offset, const char* from, std::size_t count) {
  std::clearerr(stream_);
  return ::fseeko(stream_, static_cast<off_t>(offset), SEEK_SET) == 0 && std::fwrite(from, 1, count, stream_) == count && flush();
}

bool LentStream::secure_growth(std::int64_t old_size, std::int64_t new_size) {
  const int fd = ::fileno(stream_);
  if (fd < 0) {
    return true;  // a stream over memory: its own write tells
  }
  const int flags = ::fcntl(fd, F_GETFL);
  if (flags < 0 || (flags & O_APPEND) != 0 || (flags & O_ACCMODE) == O_RDONLY) {
    return false;  // bytes would land elsewhere than asked, or nowhere
  }
  if (new_size <= old_size) {
    return true;
  }
  return set_room_aside(fd, old_size, new_size);
}

bool LentStream::truncate(std::int64_t size) {
  const int fd = ::fileno(stream_);
  return fd >= 0 && flush() && set_length(fd, size);
}

bool LentStream::flush() { return std::fflush(stream_) == 0; }

}  // namespace qel::platform
