#pragma once

#include <string>

namespace qel::platform {

/// The wide text as UTF-8, whatever the program's locale is. A unit that is no character becomes
/// U+FFFD.
std::string to_utf8(const wchar_t* text);

}  // namespace qel::platform
