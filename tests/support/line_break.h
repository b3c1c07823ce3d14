#pragma once

#include <string>
#include <string_view>

namespace qelpro_test {

/// The lines as a new file on this platform holds them.
std::string native(std::string_view lines);

/// The bytes without the "\r" of every "\r\n".
std::string without_returns(std::string_view bytes);

}  // namespace qelpro_test
