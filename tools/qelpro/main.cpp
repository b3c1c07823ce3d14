#include <QELPROEngine/QELPROEngine.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <new>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "commands.h"
#include "output.h"
#include "platform/streams.h"
#include "status.h"

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
    // A value that is missing: nothing, or another option, stands behind it.
    const auto word = takes_a_value ? std::find(words.begin(), words.end(), name) : words.end();
    if (word != words.end() &&
        (word + 1 == words.end() || command.get_option_no_throw(*(word + 1)) != nullptr)) {
      return name + ": " + option->get_type_name() + " is missing";
    }
  }
  return error.what();
}

// What the parser refused, behind the command's name where there is one.
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
