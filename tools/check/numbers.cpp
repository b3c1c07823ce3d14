#include "check/numbers.h"

namespace qelpro {

std::vector<Run> missing_of(const std::vector<int>& numbers, int most) {
  std::vector<Run> missing;
  int seen = 0;
  for (const int number : numbers) {
    if (number < 1 || number > most) {
      continue;
    }
    if (number > seen + 1) {
      missing.push_back({seen + 1, number - 1});
    }
    seen = number;
  }
  if (seen < most) {
    missing.push_back({seen + 1, most});
  }
  return missing;
}

int count_of(const std::vector<Run>& runs) {
  int count = 0;
  for (const Run& run : runs) {
    count += run.last - run.first + 1;
  }
  return count;
}

std::string listed(const std::vector<Run>& runs, const std::function<std::string(int)>& name) {
  constexpr std::size_t kMostRuns = 8;
  std::string text;
  for (std::size_t index = 0; index < runs.size(); ++index) {
    if (index == kMostRuns) {
      const std::vector<Run> rest(runs.begin() + kMostRuns, runs.end());
      return text + " and " + std::to_string(count_of(rest)) + " more";
    }
    const Run& run = runs[index];
    text += (index == 0 ? "" : ", ") + name(run.first);
    if (run.last > run.first) {
      text += (run.last == run.first + 1 ? ", " : " to ") + name(run.last);
    }
  }
  return text;
}

}  // namespace qelpro
