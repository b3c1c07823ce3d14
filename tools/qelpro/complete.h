#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace qelpro {

/// Answers what may stand in the place of the last of the words behind "qelpro", a candidate a
/// line; one that ends with "." or "=" goes on. Status 1 where the name of a file goes, which a
/// shell knows itself.
int complete(const CLI::App& app, const std::vector<std::string>& words);

}  // namespace qelpro
