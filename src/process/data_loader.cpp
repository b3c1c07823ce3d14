#include <algorithm>
#include <limits>
#include <memory>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "QELG/QELG.h"
#include "QELPROEngine/CQELPROReader_Manipulator.h"
#include "QELPROEngine/CQELProcessData_Manipulator.h"
#include "blocks/cae_header.h"
#include "blocks/encoding.h"
#include "blocks/flow_ctl.h"
#include "blocks/flow_ctl_info.h"
#include "blocks/inlet_source.h"
#include "blocks/machine.h"
#include "blocks/mold_thermal_boundary_type.h"
#include "blocks/ram_position.h"
#include "blocks/summary.h"
#include "objects/attempt.h"
#include "platform/number.h"
#include "process/functions.h"
#include "process/steps.h"
#include "text/snapshot.h"

namespace {

using namespace qel;

// What a manipulator holds while it loads: a reader that is never given the file, and what the
// file held when the load began.
struct LoadingReader : CQELPROReader_Manipulator {
  Snapshot file;
};

Snapshot& file_of(CQELPROReader_Manipulator* reader) {
  return static_cast<LoadingReader*>(reader)->file;
}

int integer_of(const KeyInfo& key, const char* text) {
  if (!key.details.loads_second) {
    return platform::to_int(text);
  }
  int first = 0;
  int second = 0;
  IntegerPair::scan(text, first, second);
  return second;
}

template <class Object>
struct Convert {
  Object& object;
  const KeyInfo& key;
  const char* text;

  void operator()(void (*set)(Object&, unsigned int)) const {
    set(object, static_cast<unsigned int>(integer_of(key, text)));
  }
  void operator()(void (*set)(Object&, double)) const { set(object, platform::to_real(text)); }
  void operator()(void (*set)(Object&, const char*)) const { set(object, text); }
};

// A list that found no memory for a point says so; no process rather than one that lacks it.
template <class List, class Point>
void append_to(List& list, Point point) {
  if (!list.AppendDataPoint(point)) {
    throw std::bad_alloc();
  }
}

void append(QELG_Profile& profile, const char* text) {
  QELG_2dPoint point;
  RealPair::scan(text, point.x, point.y);
  append_to(profile, point);
}

void append(QELG_Array<double>& array, const char* text) {
  append_to(array, platform::to_real(text));
}

// The points of a list in order. Without a count, it ends before the first number that is missing;
// with one, numbers that the section lacks are passed over, and the count costs no more than what
// the section holds.
template <class List>
void load_list(Snapshot& file, std::string_view section, const LoadStep& step, List& list) {
  int most = std::numeric_limits<int>::max();
  if (!step.count.empty()) {
    const auto count = file.value(section, step.count);
    if (!count) {
      return;
    }
    most = platform::to_int(std::string(*count).c_str());
  }
  std::string text;
  int expected = 1;
  for (const Snapshot::Numbered& entry : file.numbered(section, step.text, most)) {
    if (step.count.empty() && entry.number != expected++) {
      return;
    }
    append(list, text.assign(entry.value).c_str());
  }
}

// What a section says of the object. `number` is that of numbered keys which are no points of a
// list.
template <class Object>
void load_section(Snapshot& file, const char* name, std::span<const LoadStep> steps, Object& object,
                  int number = 0) {
  const std::string_view section = name;
  if (!file.has_section(section)) {
    return;
  }
  using Of = Functions<Object>;
  for (const LoadStep& step : steps) {
    const Destination& destination = step.key->details.loader;
    if (const auto* item = std::get_if<typename Of::Item>(&destination)) {
      const auto value = step.numbered
                             ? file.value(section, NumberedName(step.key->text, number).str())
                             : file.value(section, step.text);
      if (value) {
        std::visit(Convert<Object>{object, *step.key, std::string(*value).c_str()},
                   Of::kSetters[static_cast<std::size_t>(*item)]);
      }
    } else if (const auto* list = std::get_if<typename Of::List>(&destination)) {
      std::visit([&](auto get) { load_list(file, section, step, *(object.*get)()); },
                 Of::kLists[static_cast<std::size_t>(*list)]);
    }
  }
}

const InletSource& source_of(const QELG_SimulatorProcess& process) {
  unsigned int project_type = 0;
  get_process_ProjectType(process, project_type);
  return inlet_source(project_type);
}

}  // namespace

CQELProcessData_Manipulator::CQELProcessData_Manipulator() = default;

// The reader lives no longer than a load: copies have none to share.
CQELProcessData_Manipulator::CQELProcessData_Manipulator(const CQELProcessData_Manipulator& other) =
    default;

CQELProcessData_Manipulator& CQELProcessData_Manipulator::operator=(
    const CQELProcessData_Manipulator& other) = default;

CQELProcessData_Manipulator::~CQELProcessData_Manipulator() { Dispose(); }

void CQELProcessData_Manipulator::Dispose() {
  give_back([this] {
    delete reader_;
    reader_ = nullptr;
  });
}

const QELG_SimulatorProcess* CQELProcessData_Manipulator::GetProcessDataStructure(
    const char* path) {
  const QELG_SimulatorProcess* loaded = nullptr;
  Dispose();
  attempt([&] {
    reader_ = new LoadingReader;
    std::unique_ptr<QELG_SimulatorProcess> process;
    if (path != nullptr && file_of(reader_).load(path)) {
      process = std::make_unique<QELG_SimulatorProcess>();
      LoadCAEHeader(*process);
      LoadSummary(*process);
      LoadFlowCTL(*process);
      MoldThermalBoundaryType(*process);
      LoadMachine(*process);
      LoadRamposition(*process);
      DetermineInletCount(*process);
      LoadInlets(*process);
    }
    loaded = process.release();
    return loaded != nullptr;
  });
  Dispose();
  return loaded;
}

void CQELProcessData_Manipulator::DetermineInletCount(QELG_SimulatorProcess& process) {
  unsigned int count = source_of(process).count;
  constexpr const KeyInfo& kCount = row_to(flow_ctl_info::kKeys, InletCount{});
  if (const auto total = file_of(reader_).value(flow_ctl_info::kSection, kCount.text)) {
    count = static_cast<unsigned int>(integer_of(kCount, std::string(*total).c_str()));
  }
  const unsigned int wanted = count;
  while (count-- != 0 && process.AppendFlowPackProcess() != nullptr) {
  }
  if (process.GetNumOfInlets() < std::min(wanted, QELG_SimulatorProcess::kMostInlets)) {
    throw std::bad_alloc();
  }
}

void CQELProcessData_Manipulator::LoadInlets(QELG_SimulatorProcess& process) {
  const InletSource& source = source_of(process);
  const int count = static_cast<int>(
      std::min(process.GetNumOfInlets(),
               source.fixed ? source.count : std::numeric_limits<unsigned int>::max()));
  const auto inlet = [&process](int number) -> QELG_SimulatorFlowPackProcess& {
    return *process.GetFlowPackOfInlet_mod(static_cast<unsigned int>(number - 1));
  };
  // Section by section, as the file hands them out; the stages of an inlet do not touch its
  // control type.
  for (int number = 1; number <= count && !source.fixed; ++number) {
    LoadFlowCTLInfo(inlet(number), number);
  }
  for (int number = 1; number <= count; ++number) {
    const auto section = [&source, number](const SectionInfo& stage) {
      return std::string(NumberedName(stage.name, source.section_of(number)).str());
    };
    LoadFlow(inlet(number), section(*source.flow).data());
    LoadPack(inlet(number), section(*source.pack).data());
    if (source.cure != nullptr) {
      LoadCure(inlet(number), section(*source.cure).data());
    }
  }
}

void CQELProcessData_Manipulator::LoadCAEHeader(QELG_SimulatorProcess& process) {
  load_section(file_of(reader_), cae_header::kSection, kSteps<cae_header::kKeys>, process);
}

void CQELProcessData_Manipulator::LoadSummary(QELG_SimulatorProcess& process) {
  load_section(file_of(reader_), summary::kSection, kSteps<summary::kKeys>, process);
}

void CQELProcessData_Manipulator::LoadFlowCTL(QELG_SimulatorProcess& process) {
  load_section(file_of(reader_), flow_ctl::kSection, kSteps<flow_ctl::kKeys>, process);
}

void CQELProcessData_Manipulator::MoldThermalBoundaryType(QELG_SimulatorProcess& process) {
  load_section(file_of(reader_), mold_thermal_boundary_type::kSection,
               kSteps<mold_thermal_boundary_type::kKeys>, process);
}

void CQELProcessData_Manipulator::LoadMachine(QELG_SimulatorProcess& process) {
  load_section(file_of(reader_), machine::kSection, kSteps<machine::kKeys>, process);
}

void CQELProcessData_Manipulator::LoadRamposition(QELG_SimulatorProcess& process) {
  load_section(file_of(reader_), ram_position::kSection, kSteps<ram_position::kKeys>, process);
}

void CQELProcessData_Manipulator::LoadFlowCTLInfo(QELG_SimulatorFlowPackProcess& inlet,
                                                  int number) {
  load_section(file_of(reader_), flow_ctl_info::kSection, kSteps<flow_ctl_info::kKeys>, inlet,
               number);
}

void CQELProcessData_Manipulator::LoadFlow(QELG_SimulatorFlowPackProcess& inlet, char* section) {
  load_section(file_of(reader_), section, kSteps<flow_x::kKeys>, inlet);
}

void CQELProcessData_Manipulator::LoadPack(QELG_SimulatorFlowPackProcess& inlet, char* section) {
  load_section(file_of(reader_), section, kSteps<pack_x::kKeys>, inlet);
}

void CQELProcessData_Manipulator::LoadCure(QELG_SimulatorFlowPackProcess& inlet, char* section) {
  load_section(file_of(reader_), section, kSteps<cure_x::kKeys>, inlet);
}
