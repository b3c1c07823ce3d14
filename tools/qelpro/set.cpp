#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "commands.h"
#include "own_section.h"
#include "status.h"

namespace {

struct Arguments {
  std::string file;
  std::string section;
  std::string key;
  std::string value;
};

int set(const Arguments& arguments) {
  const std::string reason = why_unreadable(arguments.file);
  if (!reason.empty()) {
    return fail(kFileError, arguments.file + ": " + reason);
  }
  const std::string section = with_brackets(arguments.section);
  const std::string error = store_in_own_section(arguments.file, section, arguments.key, arguments.value);
  return error.empty() ? kDone : fail(kFileError, place(arguments.file, section, arguments.key) + ": " + error);
}

}  // namespace

void add_set(CLI::App& app, int& status) {
  auto arguments = std::make_shared<Arguments>();
  CLI::App* command = app.add_subcommand("set", "Change the value of a key, or add it");
  command->add_option("FILE", arguments->file, "The process file")->required();
  command->add_option("SECTION", arguments->section, "The section, with or without its brackets")->required();
  command->add_option("KEY", arguments->key, "The key")->required();
  command->add_option("VALUE", arguments->value, "The value, as it is to stand in the file")->required();
  command->footer("A value that begins with a dash comes behind '--'.");
  command->callback([arguments, &status] { status = set(*arguments); });
}
