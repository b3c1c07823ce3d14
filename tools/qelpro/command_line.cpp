#include "command_line.h"

#include <QELPROEngine/version.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "arguments/add.h"
#include "commands.h"
#include "output.h"
#include "system/failure.h"

namespace qelpro {

namespace {

// 9103 is 9.1.3.
std::string version() {
  const int number = GetPRODLLVersion();
  return std::to_string(number / 1000) + "." + std::to_string(number / 100 % 10) + "." +
         std::to_string(number % 100);
}

bool is_option(std::string_view word) { return word.size() > 1 && word.front() == '-'; }

// Which word of a command's line is wrong, or which one is missing.
std::string what_is_wrong(const CLI::App& command, const CLI::ParseError& error,
                          const std::vector<std::string>& words) {
  const std::vector<std::string> extras = command.remaining();
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_required() && option->count() == 0 &&
        (extras.empty() || extras.front() == "--")) {
      return option->get_name() + " is missing";
    }
  }
  if (!extras.empty()) {
    return "\"" + extras.front() + "\" is one word too many, or an option that is not known";
  }
  for (const CLI::Option* option : command.get_options()) {
    const std::string name = option->get_name();
    const bool takes_a_value = option->get_items_expected_min() > 0 && !option->get_positional();
    // A value that is missing: nothing, or another option, stands after it.
    const auto word = takes_a_value ? std::find(words.begin(), words.end(), name) : words.end();
    if (word != words.end() &&
        (word + 1 == words.end() || command.get_option_no_throw(*(word + 1)) != nullptr)) {
      return name + ": " + option->get_type_name() + " is missing";
    }
  }
  return error.what();
}

// What the parser refused, after the command's name where there is one.
std::string what_is_wrong(const CLI::App& app, const CLI::ParseError& error, int count,
                          char** arguments) {
  const std::vector<std::string> words(arguments + std::min(count, 1), arguments + count);
  std::string names;
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    names += (names.empty() ? "" : ", ") + command->get_name();
  }
  if (words.empty()) {
    return "a command is missing; there are " + names;
  }
  const std::string& word = words.front();
  const auto commands = app.get_subcommands();
  if (commands.empty() || word != commands.front()->get_name()) {
    const bool is_of_command = !commands.empty() && is_option(word) &&
                               commands.front()->get_option_no_throw(word) != nullptr;
    if (is_of_command) {
      return "\"" + word + "\" belongs behind the command: qelpro " + commands.front()->get_name() +
             " " + word + " ...";
    }
    return "\"" + word + (is_option(word) ? "\" is no option" : "\" is no command") +
           "; there are " + names + "; see qelpro --help";
  }
  const std::string& name = commands.front()->get_name();
  return name + ": " + what_is_wrong(*commands.front(), error, words) + "; see qelpro " + name +
         " --help";
}

// Each declares the arguments of a command and, when it is given, runs it.

void add_new(CLI::App& app, int& status) {
  auto arguments = std::make_shared<NewArguments>();
  CLI::App* command = app.add_subcommand("new", "Make a process file with default values");
  command->add_option("FILE", arguments->file, "The process file; one that exists is left alone")
      ->required();
  command->footer("Example: qelpro new Default.pro");
  command->callback([arguments, &status] { status = run_new(*arguments); });
}

void add_get(CLI::App& app, int& status) {
  auto arguments = std::make_shared<GetArguments>();
  CLI::App* command = app.add_subcommand("get", "Print the value of a key");
  command->add_option("FILE", arguments->file, "The process file")->required();
  command->add_option("SECTION", arguments->section, "The section, with or without its brackets")
      ->required();
  command->add_option("KEY", arguments->key, "The key")->required();
  command->footer("Example: qelpro get Default.pro Flow-1 FillTime");
  command->callback([arguments, &status] { status = run_get(*arguments); });
}

void add_set(CLI::App& app, int& status) {
  auto arguments = std::make_shared<SetArguments>();
  CLI::App* command = app.add_subcommand("set", "Change the value of a key, or add it");
  command->add_option("FILE", arguments->file, "The process file")->required();
  command->add_option("SECTION", arguments->section, "The section, with or without its brackets")
      ->required();
  command->add_option("KEY", arguments->key, "The key")->required();
  command->add_option("VALUE", arguments->value, "The value, as it is to stand in the file")
      ->required();
  command->add_flag("--force", arguments->force,
                    "Store a value too that the key's encoding does not read back whole");
  command->footer(
      "A value that begins with a dash comes behind '--'.\nExample: qelpro set Default.pro Flow-1 "
      "FillTime 1.5");
  command->callback([arguments, &status] { status = run_set(*arguments); });
}

void add_show(CLI::App& app, int& status) {
  auto arguments = std::make_shared<ShowArguments>();
  CLI::App* command = app.add_subcommand(
      "show",
      "Print every entry with its meaning and its typed value, and the lines that are never read");
  command->add_option("FILE", arguments->file, "The process file")->required();
  command->add_option("SECTION", arguments->section, "One section, with or without its brackets");
  command->add_flag("--json", arguments->json, "Print JSON");
  command->footer("Example: qelpro show Default.pro Flow-1");
  command->callback([arguments, &status] { status = run_show(*arguments); });
}

void add_process(CLI::App& app, int& status) {
  auto arguments = std::make_shared<ProcessArguments>();
  CLI::App* command =
      app.add_subcommand("process", "Build the simulator process of a file and print it");
  command->add_option("FILE", arguments->file, "The process file")->required();
  command->add_flag("--json", arguments->json, "Print JSON");
  command->footer(
      "What of the file does not reach the process as it stands is told on stderr, and under "
      "\"notes\" in JSON.\nExample: qelpro process Default.pro "
      "--json");
  command->callback([arguments, &status] { status = run_process(*arguments); });
}

void add_machines(CLI::App& app, int& status) {
  auto arguments = std::make_shared<MachinesArguments>();
  CLI::App* command = app.add_subcommand(
      "machines",
      "List the makers of a machine bank with their numbers of grades, or the grades of one maker");
  command->add_option("FILE", arguments->bank, "The machine bank")->required();
  command->add_option("MAKER", arguments->maker, "The maker whose grades are listed");
  command->add_flag("--json", arguments->json, "Print JSON");
  command->footer("Example: qelpro machines machines.bank 'Any Maker'");
  command->callback([arguments, &status] { status = run_machines(*arguments); });
}

void add_coolant(CLI::App& app, int& status) {
  auto arguments = std::make_shared<CoolantArguments>();
  CLI::App* command = app.add_subcommand(
      "coolant", "Print the four properties of a coolant at a temperature, or a table of them");
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

}  // namespace

int run_command_line(int count, char** arguments) {
  CLI::App app("Reads and writes process files of injection-molding simulation.", "qelpro");
  app.allow_windows_style_options(false);  // a path may begin with a slash on every platform
  app.set_version_flag("--version", version());
  app.footer("Exit status: 0 done, 1 not found, 2 usage, 3 file error.");
  app.require_subcommand(1);

  int status = kDone;
  add_new(app, status);
  add_get(app, status);
  add_set(app, status);
  add_show(app, status);
  add_process(app, status);
  add_machines(app, status);
  add_coolant(app, status);
  add_report(app, status);
  add_plot(app, status);
  try {
    app.parse(count, arguments);
  } catch (const CLI::ParseError& error) {
    std::ostringstream out;
    std::ostringstream ignored;
    if (app.exit(error, out, ignored) != 0) {
      throw Failure(kUsage, what_is_wrong(app, error, count, arguments));
    }
    answer() << out.str();
  }
  answer().finish();
  return status;
}

bool reads_as(const std::string& word, int& number) {
  return CLI::detail::lexical_cast(word, number);
}

bool reads_as(const std::string& word, double& number) {
  return CLI::detail::lexical_cast(word, number);
}

}  // namespace qelpro
