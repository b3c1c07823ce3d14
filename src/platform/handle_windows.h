#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>

/// Reads and writes at offsets through a handle of the operating system, whoever opened it.
namespace qel::platform {

inline HANDLE to_handle(std::intptr_t number) { return reinterpret_cast<HANDLE>(number); }
inline std::intptr_t handle_number(HANDLE handle) {
  return reinterpret_cast<std::intptr_t>(handle);
}

/// Whether it has contents at offsets: a device, a pipe or a console has none.
bool is_disk_file(HANDLE handle);

/// -1 when it cannot be told.
std::int64_t size_of(HANDLE handle);

/// Up to `count` bytes; fewer only at the end of the file. -1 on failure.
std::int64_t read_from(HANDLE handle, std::int64_t offset, char* to, std::size_t count);

/// All of the bytes, or false.
bool write_to(HANDLE handle, std::int64_t offset, const char* from, std::size_t count);

/// Sets room aside on the disk; the size stays.
bool reserve_length(HANDLE handle, std::int64_t size);

bool set_size(HANDLE handle, std::int64_t size);

}  // namespace qel::platform
