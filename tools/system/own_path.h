#pragma once

#include <filesystem>
#include <string>

namespace qelpro {

/// A path as the standard library takes it, which on Windows neither knows the code page of narrow
/// text nor takes more than 260 characters as they stand.
std::filesystem::path own_path(const std::string& file);

/// The text of such a path.
std::string text_of(const std::filesystem::path& path);

}  // namespace qelpro
