#pragma once

#include <string>

namespace qel::platform {

/// Where the current user's settings are kept; empty when there is no such folder.
std::string user_folder();

extern const char kPathSeparator;

}  // namespace qel::platform
