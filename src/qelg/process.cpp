#include <optional>
#include <string>
#include <vector>

#include "QELG/QELG.h"

#define QELG_INTEGER(name) std::optional<unsigned int> name;
#define QELG_REAL(name) std::optional<double> name;
#define QELG_TEXT(name) std::optional<std::string> name;

struct QELG_SimulatorFlowPackProcess::Data {
#include "inlet_items.inc"
  QELG_Profile flow_rate;
  QELG_Profile injection_pressure;
  QELG_Profile packing_pressure;
  QELG_Profile fluid_pressure;
  QELG_Array<double> flow_rate_time_constants;
  QELG_Array<double> injection_pressure_time_constants;
  QELG_Array<double> packing_pressure_time_constants;
};

struct QELG_SimulatorProcess::Data {
#include "process_items.inc"
  std::vector<std::unique_ptr<QELG_SimulatorFlowPackProcess>> inlets;
  QELG_Array<double> flow_rate_ram_position;
  QELG_Array<double> injection_pressure_ram_position;
};

#undef QELG_INTEGER
#undef QELG_REAL
#undef QELG_TEXT

namespace {

template <class T>
bool get(const std::optional<T>& item, T& value) {
  if (item) {
    value = *item;
  }
  return item.has_value();
}

void set(std::optional<std::string>& item, const char* value) {
  if (value != nullptr) {
    item = value;
  }
}

bool get(const std::optional<std::string>& item, const char*& value) {
  if (item) {
    value = item->c_str();
  }
  return item.has_value();
}

}  // namespace

#define QELG_ITEM(object, type, name)                                                 \
  void set_process_##name(object& target, type value) { target.data().name = value; } \
  bool get_process_##name(const object& source, type& value) {                        \
    return get(source.data().name, value);                                            \
  }
#define QELG_TEXT_ITEM(object, name)                                                             \
  void set_process_##name(object& target, const char* value) { set(target.data().name, value); } \
  bool get_process_##name(const object& source, const char*& value) {                            \
    return get(source.data().name, value);                                                       \
  }

#define QELG_INTEGER(name) QELG_ITEM(QELG_SimulatorProcess, unsigned int, name)
#define QELG_REAL(name) QELG_ITEM(QELG_SimulatorProcess, double, name)
#define QELG_TEXT(name) QELG_TEXT_ITEM(QELG_SimulatorProcess, name)
#include "process_items.inc"
#undef QELG_INTEGER
#undef QELG_REAL
#undef QELG_TEXT

#define QELG_INTEGER(name) QELG_ITEM(QELG_SimulatorFlowPackProcess, unsigned int, name)
#define QELG_REAL(name) QELG_ITEM(QELG_SimulatorFlowPackProcess, double, name)
#define QELG_TEXT(name) QELG_TEXT_ITEM(QELG_SimulatorFlowPackProcess, name)
#include "inlet_items.inc"

QELG_SimulatorFlowPackProcess::QELG_SimulatorFlowPackProcess() : data_(std::make_unique<Data>()) {}

QELG_SimulatorFlowPackProcess::~QELG_SimulatorFlowPackProcess() = default;

QELG_Profile* QELG_SimulatorFlowPackProcess::GetFlowRateProfile_mod() { return &data_->flow_rate; }
QELG_Profile* QELG_SimulatorFlowPackProcess::GetInjectionPressureProfile_mod() {
  return &data_->injection_pressure;
}
QELG_Profile* QELG_SimulatorFlowPackProcess::GetPackingPressureProfile_mod() {
  return &data_->packing_pressure;
}
QELG_Profile* QELG_SimulatorFlowPackProcess::GetFluidPressureProfile_mod() {
  return &data_->fluid_pressure;
}
const QELG_Profile* QELG_SimulatorFlowPackProcess::GetFlowRateProfile() const {
  return &data_->flow_rate;
}
const QELG_Profile* QELG_SimulatorFlowPackProcess::GetInjectionPressureProfile() const {
  return &data_->injection_pressure;
}
const QELG_Profile* QELG_SimulatorFlowPackProcess::GetPackingPressureProfile() const {
  return &data_->packing_pressure;
}
const QELG_Profile* QELG_SimulatorFlowPackProcess::GetFluidPressureProfile() const {
  return &data_->fluid_pressure;
}

QELG_Array<double>* QELG_SimulatorFlowPackProcess::GetFlowRateTimeConstants_mod() {
  return &data_->flow_rate_time_constants;
}
QELG_Array<double>* QELG_SimulatorFlowPackProcess::GetInjectionPressureTimeConstants_mod() {
  return &data_->injection_pressure_time_constants;
}
QELG_Array<double>* QELG_SimulatorFlowPackProcess::GetPackingPressureTimeConstants_mod() {
  return &data_->packing_pressure_time_constants;
}
const QELG_Array<double>* QELG_SimulatorFlowPackProcess::GetFlowRateTimeConstants() const {
  return &data_->flow_rate_time_constants;
}
const QELG_Array<double>* QELG_SimulatorFlowPackProcess::GetInjectionPressureTimeConstants() const {
  return &data_->injection_pressure_time_constants;
}
const QELG_Array<double>* QELG_SimulatorFlowPackProcess::GetPackingPressureTimeConstants() const {
  return &data_->packing_pressure_time_constants;
}

QELG_SimulatorProcess::QELG_SimulatorProcess() : data_(std::make_unique<Data>()) {}

QELG_SimulatorProcess::~QELG_SimulatorProcess() = default;

QELG_SimulatorFlowPackProcess* QELG_SimulatorProcess::AppendFlowPackProcess() {
  constexpr std::size_t kMostInlets = 4096;
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

QELG_Array<double>* QELG_SimulatorProcess::GetFlowRateRamPosition_mod() {
  return &data_->flow_rate_ram_position;
}
QELG_Array<double>* QELG_SimulatorProcess::GetInjectionPressureRamPosition_mod() {
  return &data_->injection_pressure_ram_position;
}
const QELG_Array<double>* QELG_SimulatorProcess::GetFlowRateRamPosition() const {
  return &data_->flow_rate_ram_position;
}
const QELG_Array<double>* QELG_SimulatorProcess::GetInjectionPressureRamPosition() const {
  return &data_->injection_pressure_ram_position;
}
