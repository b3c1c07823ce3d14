#include "simulation/process_json.h"

#include <QELG/QELG.h>
#include <QELPROEngine/CQELProcessData_Manipulator.h>

#include <memory>
#include <utility>
#include <variant>

#include "simulation/process_items.h"
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

}  // namespace

Json process_json(const std::string& file, const SectionedText& document) {
  if (document.sections().empty()) {
    throw Failure(kFileError,
                  at(file, "no process file: it has no section (a line such as [Flow-1])"));
  }
  const EngineFile engine_file(file, document.contents());
  CQELProcessData_Manipulator loader;
  const std::unique_ptr<const QELG_SimulatorProcess> process(
      loader.GetProcessDataStructure(engine_file.path().c_str()));
  if (!process) {
    throw Failure(kFileError, at(file, "cannot be loaded: out of memory, or changed meanwhile"));
  }
  return process_of(*process);
}

}  // namespace qelpro
