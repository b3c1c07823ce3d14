#pragma once

#include <string>
#include <vector>

#include "file/document_text.h"
#include "json/json_text.h"
#include "system/failure.h"

namespace qelpro {

/// Something that the file says and the simulator process does not: dropped, replaced, or read as
/// something else.
struct ProcessNote {
  Where where;
  std::string what;
};

/// [{"line", "section", "key", "message"}], without "line" where a note has none.
Json json_of(const std::vector<ProcessNote>& notes);

/// The notes of a file in the order in which the loader takes its sections. A diagnosis of its own,
/// from the rows that the loader has its keys from.
std::vector<ProcessNote> process_notes(const std::string& file, const SectionedText& document);

}  // namespace qelpro
