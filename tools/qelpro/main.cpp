#include <QELPROEngine/QELPROEngine.h>

#include <CLI/CLI.hpp>
#include <exception>

#include "commands.h"
#include "status.h"

int main(int count, char** arguments) try {
  CLI::App app("Reads and writes process files of injection-molding simulation.", "qelpro");
  app.allow_windows_style_options(false);  // a path may begin with a slash on every platform
  app.set_version_flag("--version", std::to_string(GetPRODLLVersion()));
  app.footer("Exit status: 0 done, 1 not found, 2 usage, 3 file error.");
  app.require_subcommand(1);
  app.failure_message(CLI::FailureMessage::help);

  int status = kDone;
  add_new(app, status);
  add_get(app, status);
  add_set(app, status);
  add_show(app, status);
  add_process(app, status);
  add_machines(app, status);
  add_coolant(app, status);
  try {
    app.parse(count, arguments);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kDone : kUsage;
  }
  return status;
} catch (const std::exception& error) {
  return fail(kFileError, error.what());
}
