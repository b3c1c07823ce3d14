#pragma once

#include <cstdarg>
#include <optional>
#include <string>

namespace qel::platform {

/// The platform's own printf over a caller's format, with "." as the decimal point whatever the
/// program's locale is. Nothing when the format cannot be applied.
std::optional<std::string> format(const char* format, std::va_list arguments);

}  // namespace qel::platform
