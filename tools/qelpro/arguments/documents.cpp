#include <CLI/CLI.hpp>
#include <memory>

#include "arguments/add.h"
#include "commands.h"

namespace qelpro {

void add_new(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<NewArguments>();
  CLI::App* command = app.add_subcommand(name, "Make a process file with default values");
  command->add_option("FILE", arguments->file, "The process file; one that exists is left alone")
      ->required();
  command->footer("Example: qelpro new Default.pro");
  command->callback([arguments, &status] { status = run_new(*arguments); });
}

void add_show(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<ShowArguments>();
  CLI::App* command = app.add_subcommand(
      name,
      "Print every entry with its meaning and its typed value, and the lines that are never read");
  command->add_option("FILE", arguments->file, "The process file")->required();
  command->add_option("SECTION", arguments->section, "One section, with or without its brackets");
  command->add_flag("--json", arguments->json, "Print JSON");
  command->footer("Example: qelpro show Default.pro Flow-1");
  command->callback([arguments, &status] { status = run_show(*arguments); });
}

void add_export(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<ExportArguments>();
  CLI::App* command = app.add_subcommand(
      name, "Print a process file as JSON: sections, keys, and values typed by the catalogue");
  command->add_option("FILE", arguments->file, "The process file; - is standard input")->required();
  command->add_option("-o,--output", arguments->out, "The file to write, not standard output")
      ->type_name("OUT");
  command->add_flag("--exact", arguments->exact,
                    "Print a document from which import makes the same bytes, any bytes");
  command->footer(
      "What is never read - comments, indented lines, second sections and entries of a name - is "
      "in the exact form alone.\nExample: qelpro export Default.pro -o Default.json");
  command->callback([arguments, &status] { status = run_export(*arguments); });
}

void add_import(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<ImportArguments>();
  CLI::App* command =
      app.add_subcommand(name, "Make a process file of JSON, or set its entries in one");
  command
      ->add_option("JSON", arguments->form,
                   "What export printed, in either form; - is standard input")
      ->required();
  CLI::Option* out = command->add_option("-o,--output", arguments->out, "The process file to write")
                         ->type_name("FILE");
  command->add_option("--onto", arguments->onto, "The process file whose entries are set")
      ->type_name("FILE")
      ->excludes(out);
  command->add_flag(
      "--force", arguments->force,
      "With --onto: store a value too that the key's encoding does not read back whole");
  command->add_flag("--dry-run", arguments->dry_run,
                    "With --onto: print what diff would, and write nothing");
  command->footer("Example: qelpro import Default.json -o Copy.pro");
  command->callback([arguments, &status] { status = run_import(*arguments); });
}

}  // namespace qelpro
