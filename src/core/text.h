#pragma once

#include <string>
#include <string_view>

/// The text rules of a process file. A line is given without its line break.
namespace qel::text {

/// The longest line, its line break counted as one character. A longer one is seen as several lines.
inline constexpr std::size_t kLongestLine = 4095;

/// A positional section is always created with this header; lookups find it by its first token.
inline constexpr std::string_view kPositionalHeader = "[SURFACE ELEMENT BOUNDARY CONDITION NAME]";

/// The text up to the first blank, tab or "=". A line that begins with a blank has an empty first token.
std::string_view first_token(std::string_view line);

/// Whether the first token of the line is exactly this non-empty text.
bool first_token_is(std::string_view line, std::string_view token);

/// The text behind the first "=", without leading blanks and trailing blanks, tabs and line breaks.
/// A line without "=" has an empty value.
std::string_view entry_value(std::string_view line);

/// The whole line, trimmed as a value is.
std::string_view index_value(std::string_view line);

/// Whether the line reads "[...]" once what trails it is removed: the header as a section ends at it.
/// (A section is found by first token alone.)
bool is_header(std::string_view line);

std::string_view trim_blanks(std::string_view text);
std::string_view trim_end(std::string_view text, std::string_view characters);

bool only_blanks(std::string_view text);

/// Whether a section name or key can be found again once it is written: not empty, and all of it first token.
bool is_findable(std::string_view name);

/// "%-20s = %s", the layout of an entry that is appended or replaced.
std::string padded_entry(std::string_view key, std::string_view value);

/// "%s = %s", the layout of an entry that is inserted into its section.
std::string plain_entry(std::string_view key, std::string_view value);

}  // namespace qel::text
