#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "QELG/QELG.h"

namespace {

// What an item of each kind is kept in, and what setters and getters pass.
namespace kept {
using integer = unsigned int;
using real = double;
using text = std::string;
}  // namespace kept
namespace passed {
using integer = unsigned int;
using real = double;
using text = const char*;
}  // namespace passed

template <class Value>
void set(std::optional<Value>& item, Value value) {
  item = value;
}

// Without memory for it the text before stays.
void set(std::optional<std::string>& item, const char* value) {
  if (value == nullptr) {
    return;
  }
  try {
    std::string text(value);
    item = std::move(text);
  } catch (...) {
    return;
  }
}

// What an object holds, made where it has none yet.
template <class Data>
Data* made(std::unique_ptr<Data>& data) {
  if (data == nullptr) {
    try {
      data = std::make_unique<Data>();
    } catch (...) {
      return nullptr;
    }
  }
  return data.get();
}

template <class Value>
bool get(const std::optional<Value>& item, Value& value) {
  if (item) {
    value = *item;
  }
  return item.has_value();
}

bool get(const std::optional<std::string>& item, const char*& value) {
  if (item) {
    value = item->c_str();
  }
  return item.has_value();
}

}  // namespace

struct QELG_SimulatorFlowPackProcess::Data {
#define QELG_INLET_ITEM(kind, name) std::optional<kept::kind> name;
#define QELG_INLET_LIST(type, name, title) type name;
#include "items.inc"
};

struct QELG_SimulatorProcess::Data {
#define QELG_PROCESS_ITEM(kind, name) std::optional<kept::kind> name;
#define QELG_PROCESS_LIST(type, name, title) type name;
#include "items.inc"
  std::vector<std::unique_ptr<QELG_SimulatorFlowPackProcess>> inlets;
};

#define QELG_ITEM(object, kind, name)                                   \
  void set_process_##name(object& target, passed::kind value) {         \
    if (object::Data* const data = target.data()) {                     \
      set(data->name, value);                                           \
    }                                                                   \
  }                                                                     \
  bool get_process_##name(const object& source, passed::kind& value) {  \
    return source.data() != nullptr && get(source.data()->name, value); \
  }
#define QELG_LIST(object, type, name)                                                    \
  type* object::Get##name##_mod() { return data() != nullptr ? &data_->name : nullptr; } \
  const type* object::Get##name() const {                                                \
    static const type none;                                                              \
    return data_ != nullptr ? &data_->name : &none;                                      \
  }

#define QELG_PROCESS_ITEM(kind, name) QELG_ITEM(QELG_SimulatorProcess, kind, name)
#define QELG_PROCESS_LIST(type, name, title) QELG_LIST(QELG_SimulatorProcess, type, name)
#define QELG_INLET_ITEM(kind, name) QELG_ITEM(QELG_SimulatorFlowPackProcess, kind, name)
#define QELG_INLET_LIST(type, name, title) QELG_LIST(QELG_SimulatorFlowPackProcess, type, name)
#include "items.inc"

QELG_SimulatorFlowPackProcess::QELG_SimulatorFlowPackProcess() { data(); }

QELG_SimulatorFlowPackProcess::~QELG_SimulatorFlowPackProcess() = default;

QELG_SimulatorProcess::QELG_SimulatorProcess() { data(); }

QELG_SimulatorProcess::~QELG_SimulatorProcess() = default;

QELG_SimulatorFlowPackProcess::Data* QELG_SimulatorFlowPackProcess::data() { return made(data_); }

QELG_SimulatorProcess::Data* QELG_SimulatorProcess::data() { return made(data_); }

QELG_SimulatorFlowPackProcess* QELG_SimulatorProcess::AppendFlowPackProcess() {
  if (data() == nullptr || data_->inlets.size() >= kMostInlets) {
    return nullptr;
  }
  try {
    auto inlet = std::make_unique<QELG_SimulatorFlowPackProcess>();
    if (inlet->data() == nullptr) {
      return nullptr;
    }
    data_->inlets.push_back(std::move(inlet));
  } catch (...) {
    return nullptr;
  }
  return data_->inlets.back().get();
}

unsigned int QELG_SimulatorProcess::GetNumOfInlets() const {
  return data_ != nullptr ? static_cast<unsigned int>(data_->inlets.size()) : 0;
}

QELG_SimulatorFlowPackProcess* QELG_SimulatorProcess::GetFlowPackOfInlet_mod(unsigned int inlet) {
  return inlet < GetNumOfInlets() ? data_->inlets[inlet].get() : nullptr;
}

const QELG_SimulatorFlowPackProcess* QELG_SimulatorProcess::GetFlowPackOfInlet(
    unsigned int inlet) const {
  return inlet < GetNumOfInlets() ? data_->inlets[inlet].get() : nullptr;
}
