#include <CLI/CLI.hpp>
#include <memory>

#include "arguments/add.h"
#include "arguments/color.h"
#include "arguments/words.h"
#include "commands.h"

namespace qelpro {

void add_diff(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<DiffArguments>();
  CLI::App* command =
      app.add_subcommand(name, "Compare two files by sections, entries and profiles");
  add_words(*command, "A B", arguments->words, "The two files; - for standard input");
  command
      ->add_option("--tolerance", arguments->relative,
                   "How far two reals may differ, relative to the larger one")
      ->type_name("REL");
  command
      ->add_option("--absolute", arguments->absolute,
                   "How far they may differ beside that, in their own unit")
      ->type_name("ABS");
  command->add_flag("--points", arguments->points,
                    "Compare the points of profiles, not the curves that they make");
  command->add_flag("--json", arguments->json, "Print JSON");
  add_color(*command, arguments->color);
  command->footer(
      "Order, spacing, comments and the spelling of numbers do not count. Exit status: 0 the same, "
      "1 different.\n"
      "Example: qelpro diff before.pro after.pro --tolerance 1e-6\n"
      "For git diff, once in a repository:\n"
      "  git config diff.process.command 'qelpro diff'\n"
      "  echo '*.pro diff=process' >> .gitattributes");
  command->callback([arguments, &status] { status = run_diff(*arguments); });
}

}  // namespace qelpro
