#pragma once

#include <string>

namespace qel::platform {

/// A path as the system's own functions for wide text take it, however long it is: 260 characters
/// are the most that they take as it stands. A narrow one is in the code page that the C runtime
/// opens files by.
std::wstring system_path(const char* path);
std::wstring system_path(const wchar_t* path);

/// A path in that code page; empty where it has characters that the code page lacks, and the file
/// no short name without them.
std::string narrow_path(const std::wstring& path);

}  // namespace qel::platform
