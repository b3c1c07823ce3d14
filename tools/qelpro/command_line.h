#pragma once

#include <string>

namespace qelpro {

/// Takes a command line apart and runs its command. The exit status that the program ends with;
/// throws a `Failure` for a line that is wrong.
int run_command_line(int count, char** arguments);

/// "9.1.3"
std::string tool_version();

/// Whether a word is a number and nothing else, as it would be for an option.
bool reads_as(const std::string& word, int& number);
bool reads_as(const std::string& word, double& number);

}  // namespace qelpro
