#pragma once

#include <string>

#include "text/sectioned_text.h"

namespace qelpro {

using qel::LineKind;
using qel::SectionedText;
using qel::TextLine;
using qel::TextSection;

/// The contents of a process file. Throws a `Failure` for UTF-16.
SectionedText document_text(const std::string& file, std::string contents);
SectionedText load_document(const std::string& file);

/// What of the line the engine does not read as it stands, for a message; or empty.
std::string limit_of(const TextLine& line);

}  // namespace qelpro
