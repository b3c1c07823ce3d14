#pragma once

#include <string>

namespace qel::platform {

/// Where the current user's settings are kept; empty when there is no such folder.
std::string user_folder();

/// Makes a folder, and those above it, where they are missing; they are the user's alone. Whether
/// it worked shows at the first use of the folder.
void make_folder(const std::string& path);

extern const char kPathSeparator;

}  // namespace qel::platform
