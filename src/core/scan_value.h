#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/read_access.h"

namespace qel {

/// A lookup over the file's whole text. The section begins after the first line that contains its
/// name anywhere; from there to the end of the file, the entry is the first line with "=" whose
/// text before it, stripped at its end, is the key. The value is a part of `contents`.
std::optional<std::string_view> scan_value(platform::ReadAccess& file, std::string_view section,
                                           std::string_view key, std::string& contents);

}  // namespace qel
