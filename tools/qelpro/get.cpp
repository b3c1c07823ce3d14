#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "commands.h"
#include "core/text.h"
#include "document_text.h"
#include "names.h"
#include "output.h"
#include "status.h"

namespace {

struct Arguments {
  std::string file;
  std::string section;
  std::string key;
};

// What a line behind a blank says is not found, though it stands there.
std::string why_not_found(const DocumentText& document, const TextSection* section, const std::string& key) {
  if (section == nullptr) {
    return "not found: the file has no such section";
  }
  for (std::size_t index = section->header + 1; index < section->behind; ++index) {
    std::string_view line = document.lines()[index].text;
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (qel::text::first_token_is(line, key) && kind_of(document.lines()[index]) == LineKind::indented) {
      return "not found: line " + std::to_string(document.lines()[index].number) + " begins with a blank and is never read";
    }
  }
  return "not found: the section has no such key";
}

int get(const Arguments& arguments) {
  const std::string section_wanted = section_name(arguments.section);
  const DocumentText document = load_document(arguments.file);
  Where where{arguments.file, 0, section_wanted, arguments.key};
  const TextSection* section = document.find(section_wanted);
  const TextLine* line = section != nullptr ? document.find(*section, arguments.key) : nullptr;
  if (line == nullptr) {
    throw Failure(kNotFound, at(where, why_not_found(document, section, arguments.key)));
  }
  where.line = line->number;
  if (line->whole.size() != line->text.size()) {
    complain(at(where, line->text.size() < qel::text::kLongestLine ? "a NUL byte stands in the line: the engine reads what is in front of it"
                                                                   : "line too long: the engine reads its first 4095 characters"));
  }
  answer() << whole_value(*line) << '\n';
  return kDone;
}

}  // namespace

void add_get(CLI::App& app, int& status) {
  auto arguments = std::make_shared<Arguments>();
  CLI::App* command = app.add_subcommand("get", "Print the value of a key");
  command->add_option("FILE", arguments->file, "The process file")->required();
  command->add_option("SECTION", arguments->section, "The section, with or without its brackets")->required();
  command->add_option("KEY", arguments->key, "The key")->required();
  command->footer("Example: qelpro get Default.pro Flow-1 FillTime");
  command->callback([arguments, &status] { status = get(*arguments); });
}
