#include <QELPROEngine/CPROIO_Manipulator.h>

#include <CLI/CLI.hpp>
#include <filesystem>
#include <memory>
#include <string>

#include "commands.h"
#include "status.h"

namespace {

int make(std::string file) {
  if (std::filesystem::exists(file)) {
    return fail(kFileError, file + ": exists already");
  }
  CPROIO_Manipulator document;
  document.SetFilePath(file.data());
  document.SetDefault();
  // It never tells a failure; its last entry does.
  double x = 0;
  double y = 0;
  return document.GetFRProfile(2, x, y, 1) ? kDone : fail(kFileError, file + ": cannot be written");
}

}  // namespace

void add_new(CLI::App& app, int& status) {
  auto file = std::make_shared<std::string>();
  CLI::App* command = app.add_subcommand("new", "Make a process file with default values");
  command->add_option("FILE", *file, "The process file; one that exists is left alone")->required();
  command->callback([file, &status] { status = make(*file); });
}
