#pragma once

#include <string>
#include <vector>

#include "document_text.h"
#include "json_text.h"

/// The section whose lines are addressed by position. Lookups find it by its first word.
bool is_positional(const TextSection& section);

struct PositionalLines {
  std::vector<Json> entries;
  std::vector<std::size_t> passed_over;  ///< The indexes of the lines that nobody counts as a setting.
  std::vector<std::string> notes;
};

/// Its lines: header lines first, then as many setting lines for each condition as its header line says and the section holds.
PositionalLines positional_lines(const DocumentText& document, const TextSection& section);
