#pragma once

#include <string_view>

namespace qel::platform {

/// How a line ends in a new file on this platform.
extern const std::string_view kLineBreak;

}  // namespace qel::platform
