#include <QELPROEngine/CPROIO_Manipulator.h>

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "commands.h"
#include "platform/files.h"
#include "status.h"

namespace {

// Somewhat more than a default document has.
constexpr std::size_t kRoom = std::size_t{16} * 1024;

int make(const std::string& path) {
  platform::NewFile file(path, kRoom);
  CPROIO_Manipulator document;
  document.SetFilePath(file.temporary_path().data());
  document.SetDefault();
  // It never tells a failure; its last entry does.
  double x = 0;
  double y = 0;
  if (!document.GetFRProfile(2, x, y, 1)) {
    throw Failure(kFileError, at(path, "cannot be written: no room for the default values"));
  }
  file.publish();
  return kDone;
}

}  // namespace

void add_new(CLI::App& app, int& status) {
  auto file = std::make_shared<std::string>();
  CLI::App* command = app.add_subcommand("new", "Make a process file with default values");
  command->add_option("FILE", *file, "The process file; one that exists is left alone")->required();
  command->footer("Example: qelpro new Default.pro");
  command->callback([file, &status] { status = make(*file); });
}
