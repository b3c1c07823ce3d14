#include <CLI/CLI.hpp>
#include <memory>

#include "arguments/add.h"
#include "commands.h"

namespace qelpro {

void add_process(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<ProcessArguments>();
  CLI::App* command =
      app.add_subcommand(name, "Build the simulator process of a file and print it");
  command->add_option("FILE", arguments->file, "The process file")->required();
  command->add_flag("--json", arguments->json, "Print JSON");
  command->footer(
      "What of the file does not reach the process as it stands is told on stderr, and under "
      "\"notes\" in JSON.\nExample: qelpro process Default.pro "
      "--json");
  command->callback([arguments, &status] { status = run_process(*arguments); });
}

void add_machines(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<MachinesArguments>();
  CLI::App* command = app.add_subcommand(
      name,
      "List the makers of a machine bank with their numbers of grades, or the grades of one maker");
  command->add_option("FILE", arguments->bank, "The machine bank")->required();
  command->add_option("MAKER", arguments->maker, "The maker whose grades are listed");
  command->add_flag("--json", arguments->json, "Print JSON");
  command->footer("Example: qelpro machines machines.bank 'Any Maker'");
  command->callback([arguments, &status] { status = run_machines(*arguments); });
}

void add_coolant(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<CoolantArguments>();
  CLI::App* command = app.add_subcommand(
      name, "Print the four properties of a coolant at a temperature, or a table of them");
  command
      ->add_option("FILE ID TEMPERATURE", arguments->words,
                   "The coolant settings file (the user's own where it is left out), the coolant's "
                   "identifier, the temperature")
      ->type_name("...")
      ->expected(0, -1);
  command
      ->add_option("--table", arguments->table,
                   "The coolant whose properties are printed as a table, a row a temperature")
      ->type_name("ID");
  command->add_option("--from", arguments->from, "The table's first temperature")->type_name("T");
  command->add_option("--to", arguments->to, "The temperature that the table does not exceed")
      ->type_name("T");
  command->add_option("--step", arguments->step, "The step between two temperatures")
      ->type_name("D");
  command->add_flag("--json", arguments->json, "Print JSON");
  command->footer(
      "ID is 0, 1 or 2 for the section [Coolant-0], [Coolant-1] or [Coolant-2], and from 6 on the "
      "section's number plus 3: 6 is [Coolant-3], 7 is\n"
      "[Coolant-4]. 3, 4 and 5 identify no coolant. An ID that is not found is answered with those "
      "that are there.\n"
      "Example: qelpro coolant coolants.pcs 6 25");
  command->callback([arguments, &status] { status = run_coolant(*arguments); });
}

}  // namespace qelpro
