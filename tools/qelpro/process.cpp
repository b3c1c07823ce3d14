#include <string>
#include <vector>

#include "commands.h"
#include "file/document_text.h"
#include "json/json_text.h"
#include "output.h"
#include "simulation/process_json.h"
#include "simulation/process_notes.h"
#include "system/failure.h"

namespace qelpro {

namespace {

std::string plain(const Json& value) {
  if (!value.is_array()) {
    return plain_text(value);
  }
  std::string line;
  for (const Json& part : value) {
    line += (line.empty() ? "" : "  ") + plain(part);
  }
  return line;
}

void print_lines(const Json& group, const std::string& indent) {
  for (const auto& [name, value] : group.items()) {
    if (value.is_array() && !value.empty() && value.front().is_array()) {
      answer() << indent << name << ":\n";
      for (const Json& point : value) {
        answer() << indent << "  " << plain(point) << '\n';
      }
    } else if (value.is_object()) {
      print_lines(value, indent);
    } else if (!value.empty()) {
      answer() << indent << name << ": " << plain(value) << '\n';
    }
  }
}

void print(const Json& process) {
  for (const auto& [name, group] : process.items()) {
    if (name == "inlets") {
      for (const Json& inlet : group) {
        answer() << "inlet " << plain(inlet["number"]) << '\n';
        Json rest = inlet;
        rest.erase("number");
        print_lines(rest, "  ");
      }
    } else if (!group.empty()) {
      answer() << (name == "values" ? "process" : name) << '\n';
      print_lines(group.is_array() ? Json{{"values", group}} : group, "  ");
    }
  }
}

}  // namespace

int run_process(const ProcessArguments& arguments) {
  const SectionedText document = load_document(arguments.file);
  Json result = process_json(arguments.file, document);
  const std::vector<ProcessNote> notes = process_notes(arguments.file, document);
  for (const ProcessNote& note : notes) {
    complain(at(note.where, note.what));
  }
  if (arguments.json) {
    result["notes"] = json_of(notes);
    write_json(answer(), result);
    answer() << '\n';
  } else {
    print(result);
  }
  return kDone;
}

}  // namespace qelpro
