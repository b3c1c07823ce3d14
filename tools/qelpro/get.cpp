#include <QELPROEngine/CQELPROReader_Manipulator.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <string>

#include "commands.h"
#include "status.h"

namespace {

struct Arguments {
  std::string file;
  std::string section;
  std::string key;
};

int get(const Arguments& arguments) {
  CQELPROReader_Manipulator reader;
  if (!reader.SetFilePath(arguments.file.c_str())) {
    return fail(kFileError, arguments.file + ": " + why_unreadable(arguments.file));
  }
  const std::string section = with_brackets(arguments.section);
  char* value = nullptr;
  if (!reader.ReadString(section.c_str(), arguments.key.c_str(), value, nullptr, 0)) {
    return fail(kNotFound, place(arguments.file, section, arguments.key) + ": not found");
  }
  std::cout << value << '\n';
  return kDone;
}

}  // namespace

void add_get(CLI::App& app, int& status) {
  auto arguments = std::make_shared<Arguments>();
  CLI::App* command = app.add_subcommand("get", "Print the value of a key");
  command->add_option("FILE", arguments->file, "The process file")->required();
  command->add_option("SECTION", arguments->section, "The section, with or without its brackets")->required();
  command->add_option("KEY", arguments->key, "The key")->required();
  command->callback([arguments, &status] { status = get(*arguments); });
}
