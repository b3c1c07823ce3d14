#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qel {

/// Takes the next non-empty piece between the separator characters off the text; empty at its end.
std::string_view take_word(std::string_view& text, std::string_view separators);

/// The non-empty pieces between the separator characters.
std::vector<std::string> split(std::string_view text, std::string_view separators);

/// All pieces between the separators, the empty ones too.
std::vector<std::string> pieces_of(std::string_view text, char separator);

std::string join(const std::vector<std::string>& words, std::string_view separator);

}  // namespace qel
