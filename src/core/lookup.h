#pragma once

#include <optional>
#include <string_view>

#include "core/lookup_room.h"
#include "core/section_index.h"
#include "platform/read_access.h"
#include "text/line_scanner.h"
#include "text/target.h"

namespace qel {

/// The plain scan: a key is searched for from the section's first header to the end of the file,
/// later sections included.
std::optional<Line> find_plainly(LineScanner& lines, const Target& target);

/// The first header of the section.
bool find_plain_header(LineScanner& lines, std::string_view section, Line& header);

/// Whether the line at a position (counted from 1 after the header) is the one the plain scan
/// looks for.
bool is_target(const Target& target, const Line& line, int position);

/// The indexed scan, as one-shot raw reads use it: the section ends at the next header line. The
/// section index is not consulted, and left as it is.
std::optional<Line> find_in_section(LineScanner& lines, const Target& target);

/// The indexed lookup of a reading session. A line or header that is known is taken from where it
/// was seen, if it still stands there; where it does not, the file was changed, and all that was
/// learnt is forgotten. What was learnt of an earlier file is taken as it is.
std::optional<Line> find_indexed(platform::ReadAccess& file, const Target& target,
                                 SectionIndex& index, LookupRoom& room);

}  // namespace qel
