#pragma once

#include <string>
#include <string_view>
#include <vector>

/// One line of a process file with what it is.
struct TextLine {
  std::string_view text;  ///< Without its line break.
  std::size_t begin;      ///< Where it stands in the file.
  std::size_t end;        ///< Behind its line break.
};

/// The lines of a file's text, without a byte order mark at its start.
std::vector<TextLine> lines_of(std::string_view text);

/// Whether the line is a section's header, which ends the section before it.
bool is_header(std::string_view line);

/// The text up to the first blank, tab or "=".
std::string_view first_token(std::string_view line);

/// The bytes of a file; empty when it cannot be read.
std::string contents_of(const std::string& file);
