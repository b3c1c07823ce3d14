#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qel {

/// The non-empty pieces between the separator characters.
std::vector<std::string> split(std::string_view text, std::string_view separators);

std::string join(const std::vector<std::string>& words, std::string_view separator);

}  // namespace qel
