#pragma once

#include <string>
#include <string_view>

namespace qelpro {

/// Which characters are made visible.
enum class Controls {
  line_breaks,     ///< "\n" and "\r": what is to be one line is one line.
  all,             ///< Every control character.
  all_but_layout,  ///< Every control character but "\n" and "\t", which the tool itself prints.
};

/// The text with escapes such as "\x1B" in the place of control characters, those of eight bits and
/// of Unicode among them.
std::string visible(std::string_view text, Controls controls);

/// Between double quotes, for a message.
std::string in_quotes(std::string_view text);

/// How many bytes the UTF-8 character has with which the text begins; 0 where it begins with none.
std::size_t utf8_length(std::string_view text);

}  // namespace qelpro
