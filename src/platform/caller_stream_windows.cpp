#include "platform/caller_stream.h"

#include <io.h>

#include "platform/handle_windows.h"
#include "platform/store_lock.h"

// The bytes are read and written below the stream, which may have been opened in text mode and
// would translate them.

namespace qel::platform {
namespace {

HANDLE handle_of(std::FILE* stream) {
  const int descriptor = ::_fileno(stream);
  return descriptor >= 0 ? to_handle(::_get_osfhandle(descriptor)) : INVALID_HANDLE_VALUE;
}

#ifdef _IORW

// The runtime whose streams show what they hold. The newer one has another number where these have
// that of their file, 0 nearly always, which is here that of standard input alone.
bool looks_like_ours(const std::FILE* stream) {
  constexpr int kEveryFlag = 0x7fff;
  const bool is_open = (stream->_flag & (_IOREAD | _IOWRT | _IORW)) != 0;
  return is_open && (stream->_flag & ~kEveryFlag) == 0 && stream->_file > 0 &&
         to_handle(::_get_osfhandle(stream->_file)) != INVALID_HANDLE_VALUE;
}

#else

bool looks_like_ours(const std::FILE* /*stream*/) { return true; }

#endif

// What the stream holds back goes to the file, and what it read ahead is forgotten.
bool synchronize(std::FILE* stream) {
  std::clearerr(stream);
  return std::fflush(stream) == 0 && std::fseek(stream, 0, SEEK_SET) == 0;
}

}  // namespace

// The streams of a runtime stand in a table that is part of it, or in memory of their own. What
// stands in another library is not ours; what stands in memory has to look as ours do.
bool CallerStream::is_of_this_runtime(std::FILE* stream) {
  for (std::FILE* const standard : {stdin, stdout, stderr}) {
    if (stream == standard) {
      return true;
    }
  }
  HMODULE holder = nullptr;
  if (::GetModuleHandleExW(
          GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
          reinterpret_cast<const wchar_t*>(stream), &holder) != 0) {
    HMODULE own = nullptr;
    return ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                    GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                                reinterpret_cast<const wchar_t*>(stdin), &own) != 0 &&
           holder == own;
  }
  return looks_like_ours(stream);
}

CallerStream::CallerStream(std::FILE* stream)
    : stream_(stream), has_contents_(is_disk_file(handle_of(stream))), changes_(0, 0) {}

std::int64_t CallerStream::size() {
  return has_contents_ && synchronize(stream_) ? size_of(handle_of(stream_)) : -1;
}

std::int64_t CallerStream::read_at(std::int64_t offset, char* to, std::size_t count) {
  return has_contents_ && synchronize(stream_) ? read_from(handle_of(stream_), offset, to, count)
                                               : -1;
}

bool CallerStream::write_at(std::int64_t offset, const char* from, std::size_t count) {
  const CountedChange change(changes_);
  return has_contents_ && synchronize(stream_) &&
         write_to(handle_of(stream_), offset, from, count) && flush();
}

bool CallerStream::reserve(std::int64_t old_size, std::int64_t end) {
  return has_contents_ && (end <= old_size || reserve_length(handle_of(stream_), end));
}

bool CallerStream::truncate(std::int64_t size) {
  const CountedChange change(changes_);
  return has_contents_ && synchronize(stream_) && set_size(handle_of(stream_), size);
}

bool CallerStream::flush() { return synchronize(stream_); }

bool CallerStream::lock() {
  const LockAnswer answer =
      has_contents_ ? lock_for_store(handle_number(handle_of(stream_))) : LockAnswer::none;
  is_locked_ = answer == LockAnswer::held;
  return answer != LockAnswer::busy;
}

void CallerStream::unlock() {
  if (is_locked_) {
    unlock_after_store(handle_number(handle_of(stream_)));
    is_locked_ = false;
  }
}

bool CallerStream::begins_read() {
  return !has_contents_ || watch_.begins_read(handle_number(handle_of(stream_)));
}

ReadEnd CallerStream::ends_read() {
  return has_contents_ ? watch_.ends_read(handle_number(handle_of(stream_))) : ReadEnd::undisturbed;
}

void CallerStream::lock_for_read() { watch_.lock(handle_number(handle_of(stream_))); }

void CallerStream::unlock_after_read() { watch_.unlock(handle_number(handle_of(stream_))); }

}  // namespace qel::platform
