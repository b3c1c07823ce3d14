#pragma once

#include <string>

namespace CLI {
class App;
}

namespace qelpro {

/// Prints the manual page of the program, or of one of its commands, as roff.
int print_man_page(const CLI::App& app, const std::string& command, const std::string& version);

}  // namespace qelpro
