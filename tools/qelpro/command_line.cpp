#include "command_line.h"

#include <QELPROEngine/version.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "arguments/add.h"
#include "complete.h"
#include "man_page.h"
#include "output.h"
#include "system/failure.h"

namespace qelpro {

std::string tool_version() {
  const int number = GetPRODLLVersion();
  return std::to_string(number / 1000) + "." + std::to_string(number / 100 % 10) + "." +
         std::to_string(number % 100);
}

namespace {

bool is_option(std::string_view word) { return word.size() > 1 && word.front() == '-'; }

// The parser takes a word in brackets for a list of its own, and leaves a command where "--" stands
// behind its last argument but one. With these at its ends a word is a word.
constexpr char kNoList = '\x1F';
constexpr char kNoOption = '\x1E';

std::vector<std::string> words_for_the_parser(int count, char** arguments) {
  std::vector<std::string> words(arguments + std::min(count, 1), arguments + count);
  const auto mark = std::find(words.begin(), words.end(), "--");
  for (auto word = mark; word != words.end(); ++word) {
    if (word->starts_with('-')) {
      word->insert(word->begin(), kNoOption);
    }
  }
  if (mark != words.end()) {
    words.erase(mark);
  }
  for (std::string& word : words) {
    if (word.starts_with('[') && word.ends_with(']')) {
      word += kNoList;
    }
  }
  std::reverse(words.begin(), words.end());  // as the parser wants them
  return words;
}

std::string as_given(std::string_view word) {
  word.remove_prefix(word.starts_with(kNoOption) ? 1 : 0);
  word.remove_suffix(word.ends_with(kNoList) ? 1 : 0);
  return std::string(word);
}

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
    return "\"" + as_given(extras.front()) +
           "\" is one word too many, or an option that is not known";
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

void take_words_as_given(CLI::App& app) {
  for (CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    for (CLI::Option* option : command->get_options()) {
      if (option->get_items_expected_max() > 0) {
        option->transform([](const std::string& word) { return as_given(word); });
      }
    }
  }
}

struct Command {
  const char* name;
  void (*add)(CLI::App& app, const char* name, int& status);
};

// In the order in which they are told.
constexpr Command kCommands[] = {
    {"get", add_get},           {"set", add_set},         {"unset", add_unset},
    {"list", add_list},         {"show", add_show},       {"export", add_export},
    {"import", add_import},     {"explain", add_explain}, {"new", add_new},
    {"check", add_check},       {"diff", add_diff},       {"report", add_report},
    {"plot", add_plot},         {"sweep", add_sweep},     {"process", add_process},
    {"machines", add_machines}, {"coolant", add_coolant}, {"completion", add_completion}};

// The command that the first word names; or else all of them: to declare them takes a third of the
// time of a start.
void add_commands(CLI::App& app, std::string_view first_word, int& status) {
  const auto* const named = std::ranges::find(kCommands, first_word, &Command::name);
  for (const Command& command : kCommands) {
    if (named == std::end(kCommands) || named == &command) {
      command.add(app, command.name, status);
    }
  }
}

// What the program says of itself to shells and manuals, for which there are no commands to see.
bool is_about_itself(const CLI::App& app, const std::vector<std::string>& words, int& status) {
  if (words.size() >= 2 && words[0] == "complete" && words[1] == "--") {
    status = complete(app, {words.begin() + 2, words.end()});
    return true;
  }
  if (!words.empty() && words.size() <= 2 && words[0] == "man") {
    status = print_man_page(app, words.size() == 2 ? words[1] : "", tool_version());
    return true;
  }
  return false;
}

}  // namespace

int run_command_line(int count, char** arguments) {
  CLI::App app("Reads and writes process files of injection-molding simulation.", "qelpro");
  app.allow_windows_style_options(false);  // a path may begin with a slash on every platform
  app.set_version_flag("--version", tool_version());
  app.footer(
      "Exit status: 0 done; 1 the answer is no: not found, different, findings; 2 usage; 3 file "
      "error.");
  app.require_subcommand(1);

  int status = kDone;
  add_commands(app, count > 1 ? arguments[1] : "", status);
  take_words_as_given(app);
  if (is_about_itself(app, {arguments + std::min(count, 1), arguments + count}, status)) {
    answer().finish();
    return status;
  }
  try {
    app.parse(words_for_the_parser(count, arguments));
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
