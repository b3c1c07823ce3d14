#pragma once

#include <string_view>

#include "platform/random_access.h"
#include "proio/scratch.h"
#include "text/file_edit.h"
#include "text/line_scanner.h"
#include "text/target.h"

namespace qel::proio {

/// The results of the raw layer.
enum class Code { success = 1, no_file = -1001, not_found = -1002, refused = 0 };

/// Whether a section begins at this line, and the one before it ends: it is a header, or its first
/// token leads the positional section. What goes on a long line is none.
bool is_header(const Line& line);

/// Goes on after the first line whose first token is the section's name, whatever else it holds.
bool seek_section(LineScanner& lines, std::string_view section);

/// From after the section's header on: the first line with the key, or the line at the position.
/// The search for a key does not stop at the next header; positions end there.
bool seek_line(LineScanner& lines, const Target& target, Line& line);

/// Reads the text after the first "=" and the blanks that follow it, or a whole line by its
/// position. The line feed stays. A line of a key without "=" has an empty text. The scanner stands
/// at the start of its file.
Code read(LineScanner& lines, const Target& target, Buffer& value);

/// Writes a line.
///
/// - A line that is found is replaced, with all of it that stands after the 127 characters that a
///   scan sees.
/// - A position after its section's last line becomes the new last line of that section.
/// - A new key goes to the end of the file. Where the positional section stands there it would be
///   one of its lines: it becomes the last line of its own section instead.
/// - Where the section is missing a new header comes first, at the end of the file.
///
/// False when the file could not take it; it is as it was then.
bool store(FileEdit& edit, const Target& target, std::string_view value);

}  // namespace qel::proio
