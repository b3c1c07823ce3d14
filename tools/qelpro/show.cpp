#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "blocks/catalogue.h"
#include "commands.h"
#include "document_text.h"
#include "positional.h"
#include "status.h"

namespace {

using Json = nlohmann::ordered_json;

struct Arguments {
  std::string file;
  std::string section;
  bool json = false;
};

Json field_of(const qel::Field& field) {
  return std::visit(
      []<class Value>(const Value& value) {
        if constexpr (std::is_same_v<Value, std::monostate>) {
          return Json();
        } else {
          return Json(value);
        }
      },
      field);
}

std::string trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return std::string(text.substr(0, text.find_last_not_of(" \t") + 1));
}

// The text behind the "=", as a raw read gives it.
std::string value_text(std::string_view line) {
  const std::size_t equals = line.find('=');
  return equals == std::string_view::npos ? "" : trimmed(line.substr(equals + 1));
}

Json entry_of(const qel::SectionInfo* section, std::string_view line) {
  const std::string key(first_token(line));
  const std::string text = value_text(line);
  Json entry = {{"key", key}, {"text", text}};
  int number = 0;
  const qel::KeyInfo* known = section != nullptr ? qel::find_key(*section, key.c_str(), number) : nullptr;
  entry["known"] = known != nullptr;
  if (known != nullptr) {
    entry["meaning"] = known->meaning;
    entry["encoding"] = known->encoding;
    Json values = Json::array();
    for (const qel::Field& field : known->fields(text.c_str(), number)) {
      values.push_back(field_of(field));
    }
    entry["values"] = values;
  }
  return entry;
}

// The sections in the order of the file. What comes again under a name that came before is never read.
Json sections_of(const std::string& file, const std::string& text) {
  Json sections = Json::array();
  const qel::SectionInfo* known = nullptr;
  std::set<std::string> section_names;
  std::set<std::string> keys;
  for (const TextLine& line : lines_of(text)) {
    if (is_header(line.text)) {
      const std::string name = trimmed(line.text);
      int number = 0;
      known = qel::find_section(name.c_str(), number);
      keys.clear();
      Json section = {{"section", name}, {"known", known != nullptr}};
      if (known != nullptr) {
        section["subject"] = known->subject;
      }
      if (!section_names.insert(std::string(first_token(name))).second) {
        section["repeated"] = true;
      }
      section["entries"] = name == kPositionalSection && !section.contains("repeated") ? positional_lines(file) : Json::array();
      sections.push_back(section);
      continue;
    }
    const bool is_entry = line.text.find('=') != std::string_view::npos && !first_token(line.text).empty();
    if (sections.empty() || !is_entry || sections.back()["section"] == kPositionalSection) {
      continue;
    }
    Json entry = entry_of(known, line.text);
    if (!keys.insert(entry["key"]).second) {
      entry["repeated"] = true;
    }
    sections.back()["entries"].push_back(entry);
  }
  return sections;
}

std::string plain(const Json& values) {
  std::string line;
  for (const Json& value : values) {
    line += (line.empty() ? "" : "  ") + (value.is_string() ? value.get<std::string>() : value.dump());
  }
  return line;
}

void print(const Json& sections) {
  for (const Json& section : sections) {
    std::cout << section["section"].get<std::string>();
    std::cout << (section["known"] ? "  # " + section["subject"].get<std::string>() : "  # unknown section");
    std::cout << (section.contains("repeated") ? ", repeated: never read\n" : "\n");
    for (const Json& entry : section["entries"]) {
      const bool known = entry["known"];
      std::cout << "  " << entry["key"].get<std::string>() << " = " << (known ? plain(entry["values"]) : entry["text"].get<std::string>())
                << (known ? "  # " + entry["meaning"].get<std::string>() : "  # unknown key")
                << (entry.contains("repeated") ? ", repeated: never read\n" : "\n");
    }
  }
}

int show(const Arguments& arguments) {
  const std::string reason = why_unreadable(arguments.file);
  if (!reason.empty()) {
    return fail(kFileError, arguments.file + ": " + reason);
  }
  Json sections = sections_of(arguments.file, contents_of(arguments.file));
  if (!arguments.section.empty()) {
    const std::string wanted = with_brackets(arguments.section);
    Json chosen = Json::array();
    for (const Json& section : sections) {
      if (section["section"] == wanted) {
        chosen.push_back(section);
      }
    }
    if (chosen.empty()) {
      return fail(kNotFound, arguments.file + ": " + wanted + ": not found");
    }
    sections = chosen;
  }
  if (arguments.json) {
    std::cout << sections.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  } else {
    print(sections);
  }
  return kDone;
}

}  // namespace

void add_show(CLI::App& app, int& status) {
  auto arguments = std::make_shared<Arguments>();
  CLI::App* command = app.add_subcommand("show", "Print every entry with its meaning and its typed value");
  command->add_option("FILE", arguments->file, "The process file")->required();
  command->add_option("SECTION", arguments->section, "One section, with or without its brackets");
  command->add_flag("--json", arguments->json, "Print JSON");
  command->callback([arguments, &status] { status = show(*arguments); });
}
