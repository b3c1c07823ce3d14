#pragma once

#include <string>
#include <string_view>

namespace qelpro {

/// Colors of an answer on a terminal.
enum class Color { red, green, yellow, cyan, bold };

/// What `--color` says.
enum class ColorMode { automatic, always, never };

/// "auto", "always" or "never"; a `Failure` of usage for anything else.
ColorMode color_mode(const std::string& word);

/// Whether the answer is to have colors: always, never, or where standard output is a terminal that
/// knows them and the environment has no NO_COLOR.
bool is_colored(ColorMode mode);

/// The text in a color, or as it is.
std::string colored(std::string_view text, Color color, bool is_colored);

}  // namespace qelpro
