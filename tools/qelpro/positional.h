#pragma once

#include <nlohmann/json.hpp>
#include <string>

/// The section whose lines are addressed by position.
inline constexpr const char* kPositionalSection = "[SURFACE ELEMENT BOUNDARY CONDITION NAME]";

/// Its lines: header lines first, then each condition's setting lines. The file is read through a lent stream, which reads
/// several lines of one section through one reader.
nlohmann::ordered_json positional_lines(const std::string& file);
