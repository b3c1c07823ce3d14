#pragma once

#include <vector>

#include "file/document_text.h"

namespace qelpro {

/// The numbers of the inlets whose filling stage a file has, [Flow-1] and so on, ascending.
std::vector<int> inlets_of(const SectionedText& document);

}  // namespace qelpro
