#include <QELG/QELG.h>
#include <QELPROEngine/CQELProcessData_Manipulator.h>

#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "commands.h"
#include "file/document_text.h"
#include "json/json_text.h"
#include "output.h"
#include "process_items.h"
#include "process_notes.h"
#include "system/engine_file.h"
#include "system/failure.h"

namespace qelpro {

namespace {

template <class Source>
Json value_of(const Source& source, const NamedItem<Source>& item) {
  return std::visit(
      [&source]<class Value>(bool (*get)(const Source&, Value&)) {
        Value value{};
        return get(source, value) ? Json(value) : Json();
      },
      item.get);
}

// The items that are set.
template <class Source, std::size_t count>
Json items_of(const Source& source, const NamedItem<Source> (&items)[count]) {
  Json result = Json::object();
  for (const NamedItem<Source>& item : items) {
    const Json value = value_of(source, item);
    if (!value.is_null()) {
      result[item.name] = value;
    }
  }
  return result;
}

Json values_of(const QELG_Profile& profile) {
  Json result = Json::array();
  QELG_2dPoint point;
  for (unsigned int index = 0; profile.GetDataPoint(index, point); ++index) {
    result.push_back({point.x, point.y});
  }
  return result;
}

Json values_of(const QELG_Array<double>& array) {
  Json result = Json::array();
  double value = 0;
  for (unsigned int index = 0; array.GetDataPoint(index, value); ++index) {
    result.push_back(value);
  }
  return result;
}

// After what `object` holds already.
template <class Source, std::size_t count>
void add_lists(Json& object, const Source& source, const NamedList<Source> (&lists)[count]) {
  for (const NamedList<Source>& list : lists) {
    object[list.title] =
        std::visit([&source](auto get) { return values_of(*(source.*get)()); }, list.get);
  }
}

Json inlet_of(const QELG_SimulatorFlowPackProcess& inlet, unsigned int number) {
  Json result{{"number", number}, {"values", items_of(inlet, kInletItems)}};
  add_lists(result, inlet, kInletLists);
  return result;
}

// Moves the items whose names begin with the prefix into a group of their own, without the prefix.
Json take_group(Json& values, const std::string& prefix) {
  Json group = Json::object();
  for (auto item = values.begin(); item != values.end();) {
    if (item.key().rfind(prefix, 0) == 0) {
      group[item.key().substr(prefix.size())] = item.value();
      item = values.erase(item);
    } else {
      ++item;
    }
  }
  return group;
}

Json process_of(const QELG_SimulatorProcess& process) {
  Json values = items_of(process, kProcessItems);
  const Json machine = take_group(values, "machine_");
  const Json heat_transfer = take_group(values, "HTC_");
  Json inlets = Json::array();
  for (unsigned int index = 0; index < process.GetNumOfInlets(); ++index) {
    inlets.push_back(inlet_of(*process.GetFlowPackOfInlet(index), index + 1));
  }
  Json result{{"values", values}, {"machine", machine}, {"heat transfer", heat_transfer}};
  add_lists(result, process, kProcessLists);
  result["inlets"] = std::move(inlets);
  return result;
}

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

Json notes_as_json(const std::vector<ProcessNote>& notes) {
  Json list = Json::array();
  for (const ProcessNote& note : notes) {
    Json entry = Json::object();
    if (note.where.line != 0) {
      entry["line"] = note.where.line;
    }
    entry["section"] = note.where.section;
    entry["key"] = note.where.key;
    entry["message"] = note.what;
    list.push_back(std::move(entry));
  }
  return list;
}

}  // namespace

int run_process(const ProcessArguments& arguments) {
  const SectionedText document = load_document(arguments.file);
  if (document.sections().empty()) {
    throw Failure(kFileError, at(arguments.file,
                                 "no process file: it has no section (a line such as [Flow-1])"));
  }
  const EngineFile file(arguments.file, document.contents());
  CQELProcessData_Manipulator loader;
  const std::unique_ptr<const QELG_SimulatorProcess> process(
      loader.GetProcessDataStructure(file.path().c_str()));
  if (!process) {
    throw Failure(kFileError,
                  at(arguments.file, "cannot be loaded: out of memory, or changed meanwhile"));
  }
  const std::vector<ProcessNote> notes = process_notes(arguments.file, document);
  for (const ProcessNote& note : notes) {
    complain(at(note.where, note.what));
  }
  Json result = process_of(*process);
  if (arguments.json) {
    result["notes"] = notes_as_json(notes);
    write_json(answer(), result);
    answer() << '\n';
  } else {
    print(result);
  }
  return kDone;
}

}  // namespace qelpro
