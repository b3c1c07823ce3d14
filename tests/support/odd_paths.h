#pragma once

#include <filesystem>
#include <optional>
#include <string>

/// A path in the forms in which the members take one, on either platform.
namespace qelpro_test {

/// Null where this platform's narrow text has not all of its characters.
std::optional<std::string> narrow_of(const std::filesystem::path& path);
std::wstring wide_of(const std::filesystem::path& path);
/// The same for calls of this program's own, which may take no path of any length as it stands.
std::filesystem::path own_path(const std::filesystem::path& path);

}  // namespace qelpro_test
