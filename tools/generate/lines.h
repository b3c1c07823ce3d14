#pragma once

#include <cstddef>
#include <string>

inline constexpr std::size_t kColumns = 100;

/// The words of the text in lines that begin with `start`.
std::string wrapped(const std::string& text, const std::string& start);
