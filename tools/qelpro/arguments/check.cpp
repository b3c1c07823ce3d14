#include <CLI/CLI.hpp>
#include <memory>

#include "arguments/add.h"
#include "arguments/color.h"
#include "arguments/words.h"
#include "commands.h"

namespace qelpro {

void add_check(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<CheckArguments>();
  CLI::App* command = app.add_subcommand(name, "Find what is wrong in process files, line by line");
  add_words(*command, "FILE", arguments->files, "The process files; - is standard input");
  command->add_flag("--strict", arguments->strict, "End with 1 where there is a warning, too");
  CLI::Option* json = command->add_flag("--json", arguments->json, "Print JSON");
  CLI::Option* sarif = command->add_flag("--sarif", arguments->sarif, "Print SARIF 2.1.0");
  command->add_option("--disable", arguments->disabled, "Leave out a code; may be repeated")
      ->type_name("CODE")
      ->allow_extra_args(false);
  CLI::Option* quiet =
      command->add_flag("--quiet", arguments->quiet, "Print the number of findings alone");
  add_color(*command, arguments->color);
  json->excludes(sarif, quiet);
  sarif->excludes(json, quiet);
  command->footer(
      "A finding is FILE:LINE:COLUMN: SEVERITY: message [CODE]. The exit status is 1 where there "
      "is an error.\nExample: qelpro check --strict Default.pro");
  command->callback([arguments, &status] { status = run_check(*arguments); });
}

}  // namespace qelpro
