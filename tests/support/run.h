#pragma once

#include <string>
#include <vector>

namespace qelpro_test {

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

/// Runs a program with arguments, which reach it as they are.
Outcome run(const std::string& program, const std::vector<std::string>& arguments);

}  // namespace qelpro_test
