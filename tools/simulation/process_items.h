#pragma once

#include <QELG/QELG.h>

#include <variant>

namespace qelpro {

/// The items and lists of a simulator process by name, from the simulator's own list of them.
template <class Source>
struct NamedItem {
  const char* name;
  std::variant<bool (*)(const Source&, unsigned int&), bool (*)(const Source&, double&),
               bool (*)(const Source&, const char*&)>
      get;
};

template <class Source>
struct NamedList {
  const char* title;
  std::variant<const QELG_Profile* (Source::*)() const,
               const QELG_Array<double>* (Source::*)() const>
      get;
};

inline constexpr NamedItem<QELG_SimulatorProcess> kProcessItems[] = {
#define QELG_PROCESS_ITEM(kind, name) {#name, get_process_##name},
#include "qelg/items.inc"
};
inline constexpr NamedList<QELG_SimulatorProcess> kProcessLists[] = {
#define QELG_PROCESS_LIST(type, name, title) {title, &QELG_SimulatorProcess::Get##name},
#include "qelg/items.inc"
};

inline constexpr NamedItem<QELG_SimulatorFlowPackProcess> kInletItems[] = {
#define QELG_INLET_ITEM(kind, name) {#name, get_process_##name},
#include "qelg/items.inc"
};
inline constexpr NamedList<QELG_SimulatorFlowPackProcess> kInletLists[] = {
#define QELG_INLET_LIST(type, name, title) {title, &QELG_SimulatorFlowPackProcess::Get##name},
#include "qelg/items.inc"
};

}  // namespace qelpro
