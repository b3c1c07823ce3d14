#include "platform/handle_windows.h"

#include <algorithm>

namespace qel::platform {
namespace {

constexpr std::size_t kMostAtOnce = std::size_t{1} << 30U;

DWORD piece(std::size_t left) { return static_cast<DWORD>(std::min(left, kMostAtOnce)); }

OVERLAPPED at(std::int64_t offset) {
  constexpr unsigned kHalf = 32;
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(static_cast<std::uint64_t>(offset));
  place.OffsetHigh = static_cast<DWORD>(static_cast<std::uint64_t>(offset) >> kHalf);
  return place;
}

}  // namespace

bool is_disk_file(HANDLE handle) { return ::GetFileType(handle) == FILE_TYPE_DISK; }

std::int64_t size_of(HANDLE handle) {
  LARGE_INTEGER size{};
  return ::GetFileSizeEx(handle, &size) != 0 ? size.QuadPart : -1;
}

std::int64_t read_from(HANDLE handle, std::int64_t offset, char* to, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    OVERLAPPED place = at(offset + static_cast<std::int64_t>(done));
    DWORD got = 0;
    if (::ReadFile(handle, to + done, piece(count - done), &got, &place) == 0) {
      if (::GetLastError() != ERROR_HANDLE_EOF) {
        return -1;
      }
      break;
    }
    if (got == 0) {
      break;
    }
    done += got;
  }
  return static_cast<std::int64_t>(done);
}

bool write_to(HANDLE handle, std::int64_t offset, const char* from, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    OVERLAPPED place = at(offset + static_cast<std::int64_t>(done));
    DWORD put = 0;
    if (::WriteFile(handle, from + done, piece(count - done), &put, &place) == 0 || put == 0) {
      return false;
    }
    done += put;
  }
  return true;
}

bool reserve_length(HANDLE handle, std::int64_t size) {
  FILE_ALLOCATION_INFO room{};
  room.AllocationSize.QuadPart = size;
  if (::SetFileInformationByHandle(handle, FileAllocationInfo, &room, sizeof room) != 0) {
    return true;
  }
  // A file system that cannot set room aside is asked for it by the write itself, which puts the
  // old bytes back when it fails.
  const DWORD error = ::GetLastError();
  return error != ERROR_DISK_FULL && error != ERROR_HANDLE_DISK_FULL &&
         error != ERROR_ACCESS_DENIED;
}

bool set_size(HANDLE handle, std::int64_t size) {
  FILE_END_OF_FILE_INFO end{};
  end.EndOfFile.QuadPart = size;
  return ::SetFileInformationByHandle(handle, FileEndOfFileInfo, &end, sizeof end) != 0;
}

}  // namespace qel::platform
