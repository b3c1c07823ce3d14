#pragma once

#include <cstdint>
#include <limits>
#include <string_view>

#include "platform/random_access.h"
#include "proio/line_scanner.h"
#include "proio/scratch.h"

namespace qel::proio {

/// The results of the raw layer.
enum class Code { success = 1, no_file = -1001, not_found = -1002, refused = 0 };

/// What is looked for: with a negative index the line of a key, with one of 1 or more the line at that position behind the
/// section's header, whatever it holds.
struct Target {
  std::string_view section;
  std::string_view key;
  int index = kByKey;

  static constexpr int kByKey = -1;
  [[nodiscard]] bool by_key() const { return index < 0; }
};

/// Whether the leading word of a line, all up to the first tab, line feed, blank or "=", is exactly this name. A line that
/// begins with a blank has an empty leading word.
bool is_match(std::string_view line, std::string_view name);

/// Goes on behind the first line that the section's name leads.
bool seek_section(LineScanner& lines, std::string_view section);

/// From behind the section's header on: the first line with the key, or the line at the position. The search does not stop
/// at the next header. `contents_end` is where the file's padding begins, which is no line.
bool seek_line(LineScanner& lines, const Target& target, Line& line, std::int64_t contents_end = std::numeric_limits<std::int64_t>::max());

/// Reads the text behind the first "=" and the blanks that follow it, or a whole line by its position. The line feed stays.
/// A line of a key without "=" has an empty text.
Code read(platform::RandomAccess& file, const Target& target, Buffer& value);

/// Writes a line: in the place of the one that is found, or else at the end of the file, behind a new header where the
/// section is missing. False when the file could not take it; it is as it was then.
bool store(platform::RandomAccess& file, const Target& target, std::string_view value);

}  // namespace qel::proio
