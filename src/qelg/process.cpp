#include <optional>
#include <string>
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

void set(std::optional<std::string>& item, const char* value) {
  if (value != nullptr) {
    item = value;
  }
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

#define QELG_ITEM(object, kind, name)                                                             \
  void set_process_##name(object& target, passed::kind value) { set(target.data().name, value); } \
  bool get_process_##name(const object& source, passed::kind& value) {                            \
    return get(source.data().name, value);                                                        \
  }
#define QELG_LIST(object, type, name)                      \
  type* object::Get##name##_mod() { return &data_->name; } \
  const type* object::Get##name() const { return &data_->name; }

#define QELG_PROCESS_ITEM(kind, name) QELG_ITEM(QELG_SimulatorProcess, kind, name)
#define QELG_PROCESS_LIST(type, name, title) QELG_LIST(QELG_SimulatorProcess, type, name)
#define QELG_INLET_ITEM(kind, name) QELG_ITEM(QELG_SimulatorFlowPackProcess, kind, name)
#define QELG_INLET_LIST(type, name, title) QELG_LIST(QELG_SimulatorFlowPackProcess, type, name)
#include "items.inc"

QELG_SimulatorFlowPackProcess::QELG_SimulatorFlowPackProcess() : data_(std::make_unique<Data>()) {}

QELG_SimulatorFlowPackProcess::~QELG_SimulatorFlowPackProcess() = default;

QELG_SimulatorProcess::QELG_SimulatorProcess() : data_(std::make_unique<Data>()) {}

QELG_SimulatorProcess::~QELG_SimulatorProcess() = default;

QELG_SimulatorFlowPackProcess* QELG_SimulatorProcess::AppendFlowPackProcess() {
  if (data_->inlets.size() >= kMostInlets) {
    return nullptr;
  }
  try {
    data_->inlets.push_back(std::make_unique<QELG_SimulatorFlowPackProcess>());
  } catch (...) {
    return nullptr;
  }
  return data_->inlets.back().get();
}

unsigned int QELG_SimulatorProcess::GetNumOfInlets() const {
  return static_cast<unsigned int>(data_->inlets.size());
}

QELG_SimulatorFlowPackProcess* QELG_SimulatorProcess::GetFlowPackOfInlet_mod(unsigned int inlet) {
  return inlet < data_->inlets.size() ? data_->inlets[inlet].get() : nullptr;
}

const QELG_SimulatorFlowPackProcess* QELG_SimulatorProcess::GetFlowPackOfInlet(
    unsigned int inlet) const {
  return inlet < data_->inlets.size() ? data_->inlets[inlet].get() : nullptr;
}
