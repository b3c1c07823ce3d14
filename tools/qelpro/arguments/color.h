#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace qelpro {

inline void add_color(CLI::App& command, std::string& color) {
  command
      .add_option("--color", color,
                  "When to color: auto (on a terminal, without NO_COLOR), always or never")
      ->type_name("WHEN")
      ->check(CLI::IsMember({"auto", "always", "never"}));
}

}  // namespace qelpro
