#include <optional>

#include "QELG/QELG.h"
#include "faults/memory_rows.h"
#include "support/process_items.h"

namespace qelpro_test::memory {
namespace {

constexpr const char* kText = "a text that no string holds without memory";

template <class Value>
Value some_value() {
  if constexpr (std::is_pointer_v<Value>) {
    return kText;
  } else {
    return static_cast<Value>(3);
  }
}

std::string told(const char* text) { return text != nullptr ? text : "none"; }
std::string told(double value) { return std::to_string(value); }

// A setter that found no memory kept nothing.
template <class Object, class Value>
void add_item(std::vector<Row>& rows, const char* name, const Accessors<Object, Value>& access) {
  const auto value_of = [access](const Object& object) {
    Value value{};
    return access.get(object, value) ? told(value) : "none";
  };
  rows.push_back({std::string("set_process_") + name, "", [=](Stage& stage) {
                    Object object;
                    stage.call([&] { access.set(object, some_value<Value>()); },
                               [&] { return value_of(object); });
                  }});
  rows.push_back({std::string("get_process_") + name, "", [=](Stage& stage) {
                    Object object;
                    access.set(object, some_value<Value>());
                    Value value{};
                    stage.call([&] { return access.get(object, value); },
                               [&] { return told(value); });
                  }});
}

template <class Object>
void add_items(std::vector<Row>& rows, const std::vector<ProcessItem<Object>>& items) {
  for (const ProcessItem<Object>& item : items) {
    std::visit([&](const auto& access) { add_item(rows, item.name, access); }, item.access);
  }
}

// A list, or a profile.
template <class List, class Point>
void add_list(std::vector<Row>& rows, const std::string& type, const std::string& name,
              Point point) {
  rows.push_back({type + "::" + name, "", [](Stage& stage) {
                    std::optional<List> list;
                    stage.call([&] { list.emplace(); });
                  }});
  rows.push_back({type + "::~" + name, "", [=](Stage& stage) {
                    std::optional<List> list(std::in_place);
                    list->AppendDataPoint(point);
                    stage.call([&] { list.reset(); });
                  }});
  for (const unsigned int already : {0U, 8U}) {
    rows.push_back({type + "::AppendDataPoint", already == 0 ? "the first" : "one that needs room",
                    [=](Stage& stage) {
                      List list;
                      for (unsigned int i = 0; i < already; ++i) {
                        list.AppendDataPoint(point);
                      }
                      stage.call([&] { return list.AppendDataPoint(point); });
                      Point read{};
                      stage.trial.outputs_again =
                          list.GetDataPoint(already, read) ? "there" : "not there";
                    }});
  }
  rows.push_back({type + "::GetNumOfDataPoints", "", [=](Stage& stage) {
                    List list;
                    list.AppendDataPoint(point);
                    stage.call([&] { return list.GetNumOfDataPoints() == 1; });
                  }});
  rows.push_back({type + "::GetDataPoint", "", [=](Stage& stage) {
                    List list;
                    list.AppendDataPoint(point);
                    Point read{};
                    stage.call([&] { return list.GetDataPoint(0, read); });
                  }});
}

template <class Object>
void add_life(std::vector<Row>& rows, const std::string& name) {
  // What had no memory to be made is made whole by the first use that has.
  rows.push_back({name + "::" + name, "", [](Stage& stage) {
                    std::optional<Object> object;
                    stage.call([&] { object.emplace(); });
                    stage.trial.outputs_again = object->data() != nullptr ? "whole" : "empty";
                  }});
  rows.push_back({name + "::~" + name, "", [](Stage& stage) {
                    std::optional<Object> object(std::in_place);
                    stage.call([&] { object.reset(); });
                  }});
  rows.push_back({name + "::data", "", [](Stage& stage) {
                    Object object;
                    stage.call([&] { return object.data() != nullptr; });
                  }});
}

}  // namespace

std::vector<Row> simulator_rows() {
  std::vector<Row> rows;
  add_items(rows, process_items());
  add_items(rows, inlet_items());
  add_list<QELG_Array<double>>(rows, "QELG_Array<double>", "QELG_Array", 1.5);
  add_list<QELG_Array<QELG_2dPoint>>(rows, "QELG_Array<QELG_2dPoint>", "QELG_Array",
                                     QELG_2dPoint(1.5, 2.5));
  add_list<QELG_Profile>(rows, "QELG_Profile", "QELG_Profile", QELG_2dPoint(1.5, 2.5));
  add_life<QELG_SimulatorProcess>(rows, "QELG_SimulatorProcess");
  add_life<QELG_SimulatorFlowPackProcess>(rows, "QELG_SimulatorFlowPackProcess");

  const auto add_process = [&rows](const char* member, auto call) {
    rows.push_back({std::string("QELG_SimulatorProcess::") + member, "", [call](Stage& stage) {
                      QELG_SimulatorProcess process;
                      process.AppendFlowPackProcess();
                      stage.call([&] { return call(process); });
                    }});
  };
  using Process = QELG_SimulatorProcess;
  add_process("AppendFlowPackProcess",
              [](Process& p) { return p.AppendFlowPackProcess() != nullptr; });
  rows.back().done_nevertheless = "what an inlet holds is asked for once more";
  add_process("GetNumOfInlets", [](Process& p) { return p.GetNumOfInlets() == 1; });
  add_process("GetFlowPackOfInlet", [](Process& p) { return p.GetFlowPackOfInlet(0) != nullptr; });
  add_process("GetFlowPackOfInlet_mod",
              [](Process& p) { return p.GetFlowPackOfInlet_mod(0) != nullptr; });
#define LIST(name)                                                                            \
  add_process("Get" #name "_mod", [](Process& p) { return p.Get##name##_mod() != nullptr; }); \
  add_process("Get" #name, [](Process& p) { return p.Get##name() != nullptr; });
  LIST(FlowRateRamPosition)
  LIST(InjectionPressureRamPosition)
#undef LIST

  const auto add_inlet = [&rows](const char* member, auto call) {
    rows.push_back(
        {std::string("QELG_SimulatorFlowPackProcess::") + member, "", [call](Stage& stage) {
           QELG_SimulatorFlowPackProcess inlet;
           stage.call([&] { return call(inlet); });
         }});
  };
  using Inlet = QELG_SimulatorFlowPackProcess;
#define LIST(name)                                                                        \
  add_inlet("Get" #name "_mod", [](Inlet& i) { return i.Get##name##_mod() != nullptr; }); \
  add_inlet("Get" #name, [](Inlet& i) { return i.Get##name() != nullptr; });
  LIST(FlowRateProfile)
  LIST(InjectionPressureProfile)
  LIST(PackingPressureProfile)
  LIST(FluidPressureProfile)
  LIST(FlowRateTimeConstants)
  LIST(InjectionPressureTimeConstants)
  LIST(PackingPressureTimeConstants)
#undef LIST
  return rows;
}

}  // namespace qelpro_test::memory
