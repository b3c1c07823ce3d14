#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/run.h"

namespace qelpro_test {

/// Runs a script of the shell, in which "$0" is the tool and "$1", "$2", ... are the arguments.
inline Outcome shell(const std::string& script, const std::vector<std::string>& arguments = {}) {
  std::vector<std::string> all = {"-c", script, QELPRO_TOOL_PATH};
  all.insert(all.end(), arguments.begin(), arguments.end());
  return run("/bin/sh", all);
}

}  // namespace qelpro_test
