#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "blocks/key.h"

#include "file/document_text.h"
#include "json/json_text.h"

namespace qelpro {

/// Who takes the lines of a section that are addressed by position, one at a time: there may be
/// very many.
struct PositionalVisitor {
  std::function<void(const Json&)> entry;
  std::function<void(std::size_t line)>
      passed_over;  ///< The index of a line that nobody counts as a setting.
  std::function<void(const std::string&)> note;
};

/// How such a line is read by itself: as a setting where it has the form of one, else as a header.
const qel::KeyInfo& positional_kind(std::string_view line);

/// Its lines: header lines first, then as many setting lines for each condition as its header line
/// says and the section holds.
void visit_positional_lines(const SectionedText& document, const TextSection& section,
                            const PositionalVisitor& visitor);

}  // namespace qelpro
