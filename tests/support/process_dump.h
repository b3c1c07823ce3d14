#pragma once

#include <charconv>
#include <string>
#include <variant>

#include "QELG/QELG.h"
#include "support/process_items.h"

/// A simulator process as text: a line for each item that is set and each list that is not empty,
/// inlets after the process, their lines indented. Numbers stand in the shortest form that reads
/// back as the same number.
namespace qelpro_test {

inline std::string as_text(double value) {
  char text[64];
  return {text, std::to_chars(text, text + sizeof text, value).ptr};
}
inline std::string as_text(unsigned int value) { return std::to_string(value); }
inline std::string as_text(const char* value) { return std::string("'") + value + "'"; }
inline std::string as_text(QELG_2dPoint point) {
  return "(" + as_text(point.x) + " " + as_text(point.y) + ")";
}

template <class Object>
void dump_items(const std::vector<ProcessItem<Object>>& items, const Object& object,
                const std::string& indent, std::string& text) {
  for (const ProcessItem<Object>& item : items) {
    std::visit(
        [&]<class Value>(const Accessors<Object, Value>& access) {
          Value value{};
          if (access.get(object, value)) {
            text += indent + item.name + " " + as_text(value) + "\n";
          }
        },
        item.access);
  }
}

template <class Point, class List>
void dump_list(const std::string& name, const List& list, std::string& text) {
  if (list.GetNumOfDataPoints() == 0) {
    return;
  }
  text += name;
  for (unsigned int i = 0; i < list.GetNumOfDataPoints(); ++i) {
    Point point{};
    text += " " + (list.GetDataPoint(i, point) ? as_text(point) : std::string("missing"));
  }
  text += "\n";
}

inline std::string dump(const QELG_SimulatorFlowPackProcess& inlet) {
  std::string text;
  dump_items(inlet_items(), inlet, "  ", text);
  dump_list<QELG_2dPoint>("  FlowRateProfile", *inlet.GetFlowRateProfile(), text);
  dump_list<QELG_2dPoint>("  InjectionPressureProfile", *inlet.GetInjectionPressureProfile(), text);
  dump_list<QELG_2dPoint>("  PackingPressureProfile", *inlet.GetPackingPressureProfile(), text);
  dump_list<QELG_2dPoint>("  FluidPressureProfile", *inlet.GetFluidPressureProfile(), text);
  dump_list<double>("  FlowRateTimeConstants", *inlet.GetFlowRateTimeConstants(), text);
  dump_list<double>("  InjectionPressureTimeConstants", *inlet.GetInjectionPressureTimeConstants(),
                    text);
  dump_list<double>("  PackingPressureTimeConstants", *inlet.GetPackingPressureTimeConstants(),
                    text);
  return text;
}

inline std::string dump(const QELG_SimulatorProcess& process) {
  std::string text;
  dump_items(process_items(), process, "", text);
  dump_list<double>("FlowRateRamPosition", *process.GetFlowRateRamPosition(), text);
  dump_list<double>("InjectionPressureRamPosition", *process.GetInjectionPressureRamPosition(),
                    text);
  for (unsigned int i = 0; i < process.GetNumOfInlets(); ++i) {
    text += "inlet " + std::to_string(i + 1) + "\n" + dump(*process.GetFlowPackOfInlet(i));
  }
  return text;
}

}  // namespace qelpro_test
