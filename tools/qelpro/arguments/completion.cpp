#include <CLI/CLI.hpp>
#include <memory>

#include "arguments/add.h"
#include "commands.h"

namespace qelpro {

void add_completion(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<CompletionArguments>();
  CLI::App* command = app.add_subcommand(
      name, "Print what makes a shell complete commands, options, sections and keys");
  command->add_option("SHELL", arguments->shell, "bash, zsh or fish")
      ->required()
      ->check(CLI::IsMember({"bash", "zsh", "fish"}));
  command->footer(
      "An installation has the three of them where the shells look for such.\n"
      "Example: source <(qelpro completion bash)");
  command->callback([arguments, &status] { status = run_completion(*arguments); });
}

}  // namespace qelpro
