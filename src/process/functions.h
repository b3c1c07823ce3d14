#pragma once

#include <cstddef>
#include <type_traits>
#include <variant>

#include "QELG/QELG.h"
#include "blocks/destination.h"

/// The simulator's functions that the destinations of a load stand for.
namespace qel {

/// A text may find no memory in the object: its getter tells.
template <class Object>
struct TextItem {
  void (*set)(Object&, const char*);
  bool (*get)(const Object&, const char*&);
};

/// A setter's type says how the text is converted.
template <class Object>
using Setter =
    std::variant<void (*)(Object&, unsigned int), void (*)(Object&, double), TextItem<Object>>;

template <class Object, class Value>
constexpr Setter<Object> setter(void (*set)(Object&, Value), bool (*get)(const Object&, Value&)) {
  if constexpr (std::is_pointer_v<Value>) {
    return TextItem<Object>{set, get};
  } else {
    return set;
  }
}

template <class Object>
using ListGetter = std::variant<QELG_Profile* (Object::*)(), QELG_Array<double>* (Object::*)()>;

template <class Object>
struct Functions;

template <>
struct Functions<QELG_SimulatorProcess> {
  using Item = ProcessItem;
  using List = ProcessList;

  static constexpr Setter<QELG_SimulatorProcess> kSetters[] = {
#define QELG_PROCESS_ITEM(kind, name) setter(set_process_##name, get_process_##name),
#include "qelg/items.inc"
  };
  static constexpr ListGetter<QELG_SimulatorProcess> kLists[] = {
#define QELG_PROCESS_LIST(type, name, title) &QELG_SimulatorProcess::Get##name##_mod,
#include "qelg/items.inc"
  };
};

template <>
struct Functions<QELG_SimulatorFlowPackProcess> {
  using Item = InletItem;
  using List = InletList;

  static constexpr Setter<QELG_SimulatorFlowPackProcess> kSetters[] = {
#define QELG_INLET_ITEM(kind, name) setter(set_process_##name, get_process_##name),
#include "qelg/items.inc"
  };
  static constexpr ListGetter<QELG_SimulatorFlowPackProcess> kLists[] = {
#define QELG_INLET_LIST(type, name, title) &QELG_SimulatorFlowPackProcess::Get##name##_mod,
#include "qelg/items.inc"
  };
};

}  // namespace qel
