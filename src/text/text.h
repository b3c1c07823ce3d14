#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "text/dialect.h"
#include "text/word.h"

/// The text rules of a process file. A line is given without its line break.
namespace qel::text {

/// What an editor may put at a file's very start; it belongs to no line.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// A positional section is always created with this header; lookups find it by its first token.
inline constexpr std::string_view kPositionalHeader = "[SURFACE ELEMENT BOUNDARY CONDITION NAME]";

/// Which characters end a first token, and which are in none that a lookup finds.
enum class Ends : unsigned char { no, token, name };
inline constexpr auto kEndsToken = [] {
  std::array<Ends, 256> ends{};
  ends[' '] = ends['\t'] = ends['='] = Ends::token;
  ends['\r'] = ends['\n'] = ends['\0'] = Ends::name;
  return ends;
}();
constexpr bool ends_token(char c) {
  return kEndsToken[static_cast<unsigned char>(c)] == Ends::token;
}

/// The text up to the first blank, tab or "=". A line that begins with a blank has an empty first
/// token.
constexpr std::string_view first_token(std::string_view line) {
  // Where its first eight characters are there, the end is most often among them, and all are
  // looked at together: which one it is cannot be foretold.
  std::size_t length = 0;
  for (; line.size() - length >= kWordSize; length += kWordSize) {
    const std::uint64_t word = word_of(line.data() + length);
    const std::uint64_t ends = zeros_in(word ^ word_full_of(' ')) |
                               zeros_in(word ^ word_full_of('\t')) |
                               zeros_in(word ^ word_full_of('='));
    if (ends != 0) {
      return line.substr(0, length + static_cast<std::size_t>(std::countr_zero(ends)) / 8);
    }
  }
  while (length < line.size() && !ends_token(line[length])) {
    ++length;
  }
  return line.substr(0, length);
}

/// Whether the first token of the line is exactly this non-empty text.
bool first_token_is(std::string_view line, std::string_view token);

/// The text after the first "=", without leading blanks and trailing blanks, tabs and line breaks.
/// A line without "=" has an empty value.
std::string_view entry_value(std::string_view line);

/// The same with all that trails it.
std::string_view untrimmed_value(std::string_view line);

/// The whole line, trimmed as a value is.
std::string_view index_value(std::string_view line);

/// Whether a section begins at the line: it reads "[...]" once what trails it is removed, or words
/// stand after its "[...]". A "=" after the brackets makes it the entry of an odd key.
bool is_header_in_brackets(std::string_view line);  // of a line that begins with one
inline bool is_header(std::string_view line) {
  return !line.empty() && line.front() == '[' && is_header_in_brackets(line);
}

/// Whether the line is the header of the section of this name. A name that does not begin with a
/// bracket, under which nothing is ever stored, is found at any line that begins with it.
bool is_header_of(std::string_view line, std::string_view section);

std::string_view trim_blanks(std::string_view text);
std::string_view trim_end(std::string_view text, std::string_view characters);

/// Programs whose text mode knows an end mark stop reading at it.
inline constexpr char kEndMark = '\x1A';

/// What blanks and end marks at a file's very end are made of: no content, and room for the next
/// store.
inline constexpr std::string_view kPadding = " \x1A";

/// The last line of a file, which has no line break, without an end mark and the blanks around it;
/// a dialect may keep those in front of it.
std::string_view without_end_mark(std::string_view last_line, const Dialect& dialect = {});

/// The length of a file's contents without the padding that an earlier store left at their end:
/// after the last line break, or after the text of a last line that has none, where the dialect
/// keeps no blanks.
std::size_t length_without_padding(std::string_view contents, const Dialect& dialect = {});

/// Whether all of a name is first token, so that a line of it can be found.
bool is_findable(std::string_view name);

/// Whether a name reads as a section's, or as a key's, once it is written: a section's stands in
/// brackets, and a key begins with none.
bool is_section_name(std::string_view name);
bool is_key(std::string_view name);

/// What stands between the key and the value of an entry that is written.
inline constexpr std::string_view kAssignment = " = ";

/// "%-20s = %s", or as wide as the dialect has it: the layout of an entry that is appended or
/// replaced.
std::string padded_entry(std::string_view key, std::string_view value, const Dialect& dialect = {});

/// "%s = %s", the layout of an entry that is inserted into its section.
std::string plain_entry(std::string_view key, std::string_view value);

}  // namespace qel::text
