#pragma once

#include <string>
#include <string_view>

namespace qelpro {

/// Whether an answer is coloured: "always", "never", or "auto", which is where standard output is a
/// terminal and NO_COLOR is not set. Any other word is a `Failure` of usage.
bool wants_color(const std::string& when);

enum class Color { red, green };

/// Puts a text into the answer, coloured or not.
void put_colored(std::string_view text, Color color, bool is_colored);

}  // namespace qelpro
