#pragma once

#include <functional>
#include <string>
#include <vector>

namespace qelpro {

/// Numbers in a row.
struct Run {
  int first;
  int last;
};

/// The numbers from 1 to `most` that are not among these, which ascend.
std::vector<Run> missing_of(const std::vector<int>& numbers, int most);

/// How many numbers there are in all.
int count_of(const std::vector<Run>& runs);

/// For a message: "FR-2, FR-5 to FR-9". `name` gives the words for a number; of very many the last
/// ones are counted only.
std::string listed(const std::vector<Run>& runs, const std::function<std::string(int)>& name);

}  // namespace qelpro
