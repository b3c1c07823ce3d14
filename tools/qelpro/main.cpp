#include <QELPROEngine/QELPROEngine.h>

#include <CLI/CLI.hpp>
#include <exception>
#include <new>
#include <sstream>
#include <string>
#include <vector>

#include "commands.h"
#include "output.h"
#include "platform/streams.h"
#include "status.h"

namespace {

// 9103 is 9.1.3.
std::string version() {
  const int number = GetPRODLLVersion();
  return std::to_string(number / 1000) + "." + std::to_string(number / 100 % 10) + "." + std::to_string(number % 100);
}

// The first word that is no option, where no command was found; else what the parser says, behind the command's name.
std::string what_is_wrong(const CLI::App& app, const CLI::ParseError& error, int count, char** arguments) {
  const auto commands = app.get_subcommands();
  if (!commands.empty()) {
    const std::string& name = commands.front()->get_name();
    const std::vector<std::string> extras = commands.front()->remaining();
    const std::string what = extras.empty() ? error.what() : "\"" + extras.front() + "\" is one word too many, or an option that is not known";
    return name + ": " + what + "; see qelpro " + name + " --help";
  }
  std::string names;
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    names += (names.empty() ? "" : ", ") + command->get_name();
  }
  if (count < 2) {
    return "a command is missing; there are " + names;
  }
  const std::string word = arguments[1];
  return "\"" + word + (!word.empty() && word.front() == '-' ? "\" is no option" : "\" is no command") + "; there are " + names +
         "; see qelpro --help";
}

int run(int count, char** arguments) {
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

}  // namespace

int main(int count, char** arguments) try {
  platform::prepare_streams();
  return run(count, arguments);
} catch (const Failure& failure) {
  complain(failure.what());
  return failure.status();
} catch (const std::bad_alloc&) {
  complain("out of memory");
  return kFileError;
} catch (const std::exception& error) {
  complain(error.what());
  return kFileError;
}
