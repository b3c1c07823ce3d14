#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace qelpro {

/// A positional argument of at least so many words, each as it was given, empty ones too.
inline CLI::Option* add_words(CLI::App& command, const std::string& name,
                              std::vector<std::string>& words, const std::string& description,
                              int at_least = 1) {
  return command
      .add_option(
          name,
          [&words](const CLI::results_t& given) {
            words = given;
            return true;
          },
          description)
      ->required(at_least > 0)
      ->expected(at_least, -1)
      ->allow_extra_args()
      ->type_name("...");
}

}  // namespace qelpro
