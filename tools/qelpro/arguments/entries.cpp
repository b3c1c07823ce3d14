#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "arguments/add.h"
#include "arguments/words.h"
#include "commands.h"

namespace qelpro {

namespace {

constexpr const char* kFile = "The process file; - is standard input";
constexpr const char* kChangedFile = "The process file";
constexpr const char* kAddresses =
    "SECTION.KEY, or SECTION KEY in two words; quoted patterns with *, ? and [...]; lines that "
    "have "
    "a position are SECTION.#1";

}  // namespace

void add_get(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<GetArguments>();
  CLI::App* command = app.add_subcommand(name, "Print the value of a key, or of several");
  command->add_option("FILE", arguments->file, kFile)->required();
  add_words(*command, "ADDRESS", arguments->words, kAddresses);
  command->add_flag("--typed", arguments->typed,
                    "Print the fields as the reader gives them, a tab between two");
  command
      ->add_option("--default", arguments->otherwise, "What stands for a value that is not found")
      ->type_name("TEXT");
  command->add_flag("--json", arguments->json, "Print an object from address to typed value");
  command->footer(
      "One address is answered with its value alone, several or a pattern with ADDRESS = VALUE a "
      "line.\nExample: qelpro get Default.pro Flow-1.FillTime");
  command->callback([arguments, &status] { status = run_get(*arguments); });
}

void add_set(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<SetArguments>();
  CLI::App* command =
      app.add_subcommand(name, "Change the values of keys, or add keys; all of them or none");
  command->add_option("FILE", arguments->file, kChangedFile)->required();
  command
      ->add_option("ADDRESS=VALUE", arguments->words,
                   "The value as it is to stand in the file; or SECTION KEY VALUE in three words")
      ->type_name("...");
  command
      ->add_option("--from", arguments->from,
                   "An object from address to value; - is standard input")
      ->type_name("FILE.json");
  command->add_flag("--force", arguments->force,
                    "Store a value too that the key's encoding does not read back whole");
  command->add_flag("--dry-run", arguments->dry_run, "Print what diff would, and write nothing");
  command->footer(
      "A word that begins with a dash and is no number comes behind '--'.\nExample: qelpro set "
      "Default.pro Flow-1.FillTime=1.5 Flow-1.MeltTemp=230");
  command->callback([arguments, &status] { status = run_set(*arguments); });
}

void add_unset(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<UnsetArguments>();
  CLI::App* command = app.add_subcommand(name, "Remove entries, or sections");
  command->add_option("FILE", arguments->file, kChangedFile)->required();
  add_words(*command, "ADDRESS", arguments->words, kAddresses);
  command->add_flag("--dry-run", arguments->dry_run, "Print what diff would, and write nothing");
  command->footer(
      "SECTION.* removes the section with its header. What is not found is told, and the exit "
      "status is 1; the rest is removed.\nExample: qelpro unset Default.pro 'Flow-2.*'");
  command->callback([arguments, &status] { status = run_unset(*arguments); });
}

void add_list(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<ListArguments>();
  CLI::App* command = app.add_subcommand(name, "Print the addresses of a file, one a line");
  command->add_option("FILE", arguments->file, kFile)->required();
  command->add_option(
      "PATTERN", arguments->pattern,
      "Those that it matches: *, ?, [...]; the name of a section is all of its own");
  command->add_flag("--sections", arguments->sections, "Print the sections");
  command->add_flag("--json", arguments->json, "Print a list");
  command->footer("Example: qelpro list Default.pro 'Flow-*.MeltTemp'");
  command->callback([arguments, &status] { status = run_list(*arguments); });
}

}  // namespace qelpro
