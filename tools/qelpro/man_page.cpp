#include "man_page.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>
#include <string_view>
#include <vector>

#include "output.h"
#include "system/failure.h"
#include "system/visible.h"

namespace qelpro {
namespace {

constexpr std::string_view kStatus = "Exit status: ";
constexpr std::string_view kExample = "Example: ";

std::vector<const CLI::App*> commands_of(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App*) { return true; });
}

// The number of a character of UTF-8 that is so many bytes long.
unsigned int code_point(std::string_view bytes) {
  constexpr unsigned int kBitsOfByte = 6;
  constexpr unsigned int kFirstBits = 0x7F;
  constexpr unsigned int kOtherBits = 0x3F;
  unsigned int code = static_cast<unsigned char>(bytes.front()) & (kFirstBits >> bytes.size());
  for (const char byte : bytes.substr(1)) {
    code = (code << kBitsOfByte) | (static_cast<unsigned char>(byte) & kOtherBits);
  }
  return code;
}

// A text as roff prints it: what is copied from the page is what was written here.
std::string escaped(std::string_view text) {
  std::ostringstream out;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = std::max<std::size_t>(1, utf8_length(text.substr(at)));
    const std::string_view character = text.substr(at, length);
    switch (character.front()) {
      case '\\':
        out << "\\(rs";
        break;
      case '-':
        out << "\\-";
        break;
      case '\'':
        out << "\\(aq";
        break;
      case '`':
        out << "\\(ga";
        break;
      case '"':
        out << "\\(dq";
        break;
      case '^':
        out << "\\(ha";
        break;
      case '~':
        out << "\\(ti";
        break;
      case '.':
        out << (at == 0 ? "\\&." : ".");
        break;
      default:
        if (length == 1) {
          out << character;
        } else {
          out << "\\[u" << std::hex << std::uppercase;
          out.width(4);
          out.fill('0');
          out << code_point(character) << std::dec << "]";
        }
    }
    at += length;
  }
  return out.str();
}

std::string bold(std::string_view text) { return "\\fB" + escaped(text) + "\\fR"; }
std::string italic(std::string_view text) { return "\\fI" + escaped(text) + "\\fR"; }

/// What a footer says, by what its lines begin with.
struct Footer {
  std::string notes;
  std::string status;
  std::vector<std::string> examples;
};

Footer footer_of(const CLI::App& app) {
  Footer footer;
  std::istringstream lines(app.get_footer());
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(kExample)) {
      footer.examples.push_back(line.substr(kExample.size()));
    } else if (line.starts_with(kStatus)) {
      footer.status = line.substr(kStatus.size());
    } else if (!line.empty()) {
      footer.notes += escaped(line) + "\n";
    }
  }
  return footer;
}

// What stands for an option's value; nothing for a flag.
std::string value_name(const CLI::Option& option) {
  if (option.get_items_expected_max() == 0) {
    return "";
  }
  std::string type = option.get_type_name();
  const std::size_t choices = type.find('{');
  if (choices != std::string::npos) {
    type = type.substr(choices + 1, type.find('}', choices) - choices - 1);
    std::ranges::replace(type, ',', '|');
  }
  return type;
}

std::string positional(const CLI::Option& option) {
  const std::string name = option.get_name();
  const bool repeats = option.get_items_expected_max() > 1 && name.find(' ') == std::string::npos;
  const std::string text = italic(name) + (repeats ? " ..." : "");
  return option.get_required() ? text : "[" + text + "]";
}

void print_synopsis(const CLI::App& command) {
  answer() << bold("qelpro " + command.get_name());
  bool has_options = false;
  for (const CLI::Option* option : command.get_options()) {
    has_options = has_options || !option->get_positional();
  }
  answer() << (has_options ? " [" + italic("OPTIONS") + "]" : "");
  for (const CLI::Option* option : command.get_options()) {
    if (!option->get_positional() && option->get_required()) {
      answer() << " " << bold(option->get_name()) << " " << italic(value_name(*option));
    }
  }
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_positional()) {
      answer() << " " << positional(*option);
    }
  }
  answer() << "\n";
}

void print_option(const CLI::Option& option) {
  answer() << ".TP\n";
  if (option.get_positional()) {
    answer() << italic(option.get_name());
  } else {
    std::string names;
    for (const std::string& name : option.get_snames()) {
      names += (names.empty() ? "" : ", ") + bold("-" + name);
    }
    for (const std::string& name : option.get_lnames()) {
      names += (names.empty() ? "" : ", ") + bold("--" + name);
    }
    const std::string value = value_name(option);
    answer() << names << (value.empty() ? "" : " " + italic(value));
  }
  answer() << "\n";
  std::string words = option.get_description();
  std::ranges::replace(words, '\n', ' ');
  answer() << escaped(words.empty() ? option.get_name() : words) << ".\n";
}

void print_options(const CLI::App& app, bool positionals, const char* heading) {
  bool any = false;
  for (const CLI::Option* option : app.get_options()) {
    if (option->get_positional() == positionals) {
      answer() << (any ? "" : std::string(".SH ") + heading + "\n");
      print_option(*option);
      any = true;
    }
  }
}

void print_head(const std::string& name, const std::string& description,
                const std::string& version) {
  std::string title = name;
  std::ranges::transform(title, title.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  answer() << ".TH \"" << escaped(title) << R"(" "1" "" "qelpro )" << version
           << "\" \"Process files\"\n.SH NAME\n"
           << escaped(name) << " \\- " << escaped(description) << "\n.SH SYNOPSIS\n";
}

void print_tail(const Footer& footer, const std::string& status) {
  if (!footer.examples.empty()) {
    answer() << ".SH EXAMPLES\n.EX\n";
    for (const std::string& example : footer.examples) {
      answer() << escaped(example) << "\n";
    }
    answer() << ".EE\n";
  }
  answer() << ".SH \"EXIT STATUS\"\n" << escaped(status) << "\n";
}

std::string without_dot(const std::string& text) {
  return text.ends_with('.') ? text.substr(0, text.size() - 1) : text;
}

void print_program(const CLI::App& app, const std::string& version) {
  print_head(app.get_name(), without_dot(app.get_description()), version);
  const Footer footer = footer_of(app);
  answer() << bold("qelpro") << " " << italic("COMMAND") << " [" << italic("OPTIONS") << "] "
           << italic("FILE") << " ...\n.SH DESCRIPTION\n"
           << escaped(app.get_description()) << "\n"
           << footer.notes << ".SH COMMANDS\n";
  for (const CLI::App* command : commands_of(app)) {
    answer() << ".TP\n"
             << bold("qelpro-" + command->get_name()) << "(1)\n"
             << escaped(without_dot(command->get_description())) << ".\n";
  }
  print_options(app, false, "OPTIONS");
  print_tail(footer, footer.status);
  answer() << ".SH \"SEE ALSO\"\n";
  std::string pages;
  for (const CLI::App* command : commands_of(app)) {
    pages += (pages.empty() ? "" : ",\n") + bold("qelpro-" + command->get_name()) + "(1)";
  }
  answer() << pages << "\n";
}

void print_command(const CLI::App& app, const CLI::App& command, const std::string& version) {
  const std::string words = without_dot(command.get_description());
  print_head("qelpro-" + command.get_name(), words, version);
  print_synopsis(command);
  const Footer footer = footer_of(command);
  answer() << ".SH DESCRIPTION\n" << escaped(words) << ".\n" << footer.notes;
  print_options(command, true, "ARGUMENTS");
  print_options(command, false, "OPTIONS");
  print_tail(footer, footer.status.empty() ? footer_of(app).status : footer.status);
  answer() << ".SH \"SEE ALSO\"\n" << bold("qelpro") << "(1)\n";
}

}  // namespace

int print_man_page(const CLI::App& app, const std::string& command, const std::string& version) {
  if (command.empty()) {
    print_program(app, version);
    return kDone;
  }
  for (const CLI::App* known : commands_of(app)) {
    if (known->get_name() == command) {
      print_command(app, *known, version);
      return kDone;
    }
  }
  throw Failure(kUsage, "man: \"" + command + "\" is no command; see qelpro --help");
}

}  // namespace qelpro
