#include <CLI/CLI.hpp>
#include <memory>

#include "arguments/add.h"
#include "arguments/words.h"
#include "commands.h"

namespace qelpro {

void add_plot(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<PlotArguments>();
  CLI::App* command =
      app.add_subcommand(name, "Draw profiles of a process file, overlaid, as a picture");
  command->add_option("FILE", arguments->file, "The process file; - is standard input")->required();
  add_words(*command, "SECTION.PROFILE", arguments->profiles,
            "The profiles, such as Flow-1.FR; or patterns, such as 'Flow-*.FR'");
  command
      ->add_option("-o,--output", arguments->output,
                   "The picture, as SVG; one that exists is replaced, and - is standard output. "
                   "Without it the plot is made of characters")
      ->type_name("OUT.svg");
  command->footer(
      "Profiles of different quantities stand one under the other.\nExample: qelpro plot "
      "Default.pro Flow-1.FR Flow-2.FR -o flow.svg");
  command->callback([arguments, &status] { status = run_plot(*arguments); });
}

}  // namespace qelpro
