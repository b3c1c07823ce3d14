#include <CLI/CLI.hpp>
#include <memory>

#include "arguments/add.h"
#include "arguments/words.h"
#include "commands.h"

namespace qelpro {

void add_report(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<ReportArguments>();
  CLI::App* command = app.add_subcommand(
      name, "Make a page of HTML about a process file, or about several side by side");
  add_words(*command, "FILE", arguments->files, "The process files; - is standard input");
  command
      ->add_option("-o,--output", arguments->output,
                   "The page; one that exists is replaced (standard output where it is left out)")
      ->type_name("OUT.html");
  command->footer(
      "The page needs no network and no script. Of two or more files it overlays the profiles and "
      "marks the entries that differ.\nExample: qelpro report Default.pro -o report.html");
  command->callback([arguments, &status] { status = run_report(*arguments); });
}

}  // namespace qelpro
