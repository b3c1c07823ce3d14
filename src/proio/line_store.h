#pragma once

#include <cstdint>
#include <limits>
#include <string_view>

#include "platform/random_access.h"
#include "proio/contents.h"
#include "proio/line_scanner.h"
#include "proio/scratch.h"

namespace qel::proio {

/// The results of the raw layer.
enum class Code { success = 1, no_file = -1001, not_found = -1002, refused = 0 };

/// What is looked for: with a negative index the line of a key, with one of 1 or more the line at
/// that position behind the section's header, whatever it holds.
struct Target {
  std::string_view section;
  std::string_view key;
  int index = kByKey;

  static constexpr int kByKey = -1;
  [[nodiscard]] bool by_key() const { return index < 0; }
};

/// Whether the leading word of a line, all up to the first tab, line feed, blank or "=", is exactly
/// this name. A line that begins with a blank has an empty leading word.
bool is_match(std::string_view line, std::string_view name);

/// Whether a section begins at this line, and the one before it ends: its leading word reads
/// "[...]" and no "=" follows, or all of it does, or it leads the positional section. A search for
/// a section looks at the leading word alone.
bool is_header(const Line& line);

/// Goes on behind the first line that the section's name leads.
bool seek_section(LineScanner& lines, std::string_view section);

/// From behind the section's header on: the first line with the key, or the line at the position.
/// The search for a key does not stop at the next header; positions end there. `contents_end` is
/// where the file's padding begins, which is no line.
bool seek_line(LineScanner& lines, const Target& target, Line& line,
               std::int64_t contents_end = std::numeric_limits<std::int64_t>::max());

/// Reads the text behind the first "=" and the blanks that follow it, or a whole line by its
/// position. The line feed stays. A line of a key without "=" has an empty text. The scanner stands
/// at the start of its file.
Code read(LineScanner& lines, const Target& target, Buffer& value,
          std::int64_t contents_end = std::numeric_limits<std::int64_t>::max());
Code read(platform::RandomAccess& file, const Target& target, Buffer& value);

/// Writes a line.
///
/// - A line that is found is replaced, with all of it that stands behind the 127 characters that a
/// scan sees.
/// - A position behind its section's last line becomes the new last line of that section.
/// - A new key goes to the end of the file. Where the positional section stands there it would be
/// one of its lines: it becomes the
///   last line of its own section instead.
/// - Where the section is missing a new header comes first, at the end of the file.
///
/// False when the file could not take it; it is as it was then.
bool store(Contents& contents, const Target& target, std::string_view value);

}  // namespace qel::proio
