#pragma once

#include <functional>
#include <string>
#include <vector>

#include "file/change.h"

namespace qelpro {

/// Makes the changes of a file, or prints the differences that they would make.
void make_changes(const std::string& file, bool dry_run,
                  const std::function<std::vector<Change>(const SectionedText&)>& make);

}  // namespace qelpro
