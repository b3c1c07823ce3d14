#include <algorithm>
#include <limits>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "QELG/QELG.h"
#include "QELPROEngine/CQELPROReader_Manipulator.h"
#include "QELPROEngine/CQELProcessData_Manipulator.h"
#include "platform/number.h"
#include "process/items.h"
#include "text/snapshot.h"

namespace {

using qel::Snapshot;
using qel::loading::Item;
using qel::platform::scan_int;
using qel::platform::scan_real;
using qel::platform::to_int;
using qel::platform::to_real;

// The reader that a manipulator holds while it loads, with what it reads from.
struct LoadingReader : CQELPROReader_Manipulator {
  Snapshot file;

  bool Open(const char* path) { return SetFilePath(path) && file.load(path); }
};

LoadingReader* loading(CQELPROReader_Manipulator* reader) {
  return static_cast<LoadingReader*>(reader);
}

Snapshot& file_of(CQELPROReader_Manipulator* reader) { return loading(reader)->file; }

// A list that found no memory for a point says so; no process rather than one that lacks it.
template <class List, class Point>
void append_to(List& list, Point point) {
  if (!list.AppendDataPoint(point)) {
    throw std::bad_alloc();
  }
}

template <class Target>
struct Convert {
  Target& target;
  const char* text;

  void operator()(void (*set)(Target&, unsigned int)) const {
    set(target, static_cast<unsigned int>(to_int(text)));
  }
  void operator()(void (*set)(Target&, double)) const { set(target, to_real(text)); }
  void operator()(void (*set)(Target&, const char*)) const { set(target, text); }
};

template <class Target, std::size_t count>
void load_items(Snapshot& file, const char* section, const Item<Target> (&items)[count],
                Target& target) {
  const std::string_view name = section;
  if (!file.has_section(name)) {
    return;
  }
  for (const Item<Target>& item : items) {
    if (const auto value = file.value(name, item.key)) {
      std::visit(Convert<Target>{target, std::string(*value).c_str()}, item.set);
    }
  }
}

// Hands the texts of a counted list to `append`, in order. Numbers that the section lacks are
// passed over; the count costs no more than what the section holds.
template <class Append>
void load_list(Snapshot& file, const char* section, std::string_view count_key,
               std::string_view prefix, Append append) {
  const auto count = file.value(section, count_key);
  if (!count) {
    return;
  }
  std::string text;
  for (const Snapshot::Numbered& entry :
       file.numbered(section, prefix, to_int(std::string(*count).c_str()))) {
    append(text.assign(entry.value));
  }
}

void load_profile(Snapshot& file, const char* section, std::string_view count_key,
                  std::string_view prefix, QELG_Profile& profile) {
  load_list(file, section, count_key, prefix, [&profile](const std::string& text) {
    QELG_2dPoint point;
    const char* at = text.c_str();
    if (scan_real(at, point.x)) {
      scan_real(at, point.y);
    }
    append_to(profile, point);
  });
}

void load_array(Snapshot& file, const char* section, std::string_view count_key,
                std::string_view prefix, QELG_Array<double>& array) {
  load_list(file, section, count_key, prefix,
            [&array](const std::string& text) { append_to(array, to_real(text.c_str())); });
}

// A list without a count ends before the first number that is missing.
void load_open_list(Snapshot& file, const char* section, std::string_view prefix,
                    QELG_Array<double>& array) {
  int expected = 1;
  for (const Snapshot::Numbered& entry :
       file.numbered(section, prefix, std::numeric_limits<int>::max())) {
    if (entry.number != expected++) {
      return;
    }
    append_to(array, to_real(std::string(entry.value).c_str()));
  }
}

// The two integers of a pair; what the text does not supply is 0.
std::pair<int, int> scan_pair(std::string_view text) {
  const std::string copy(text);
  std::pair<int, int> pair;
  const char* at = copy.c_str();
  if (scan_int(at, pair.first)) {
    scan_int(at, pair.second);
  }
  return pair;
}

constexpr unsigned int kCoInjection = 8;
constexpr unsigned int kTwoMeltEntrances = 11;

unsigned int project_type(const QELG_SimulatorProcess& process) {
  unsigned int type = 0;
  get_process_ProjectType(process, type);
  return type;
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
  delete reader_;
  reader_ = nullptr;
}

const QELG_SimulatorProcess* CQELProcessData_Manipulator::GetProcessDataStructure(
    const char* path) {
  Dispose();
  try {
    reader_ = new LoadingReader;
    std::unique_ptr<QELG_SimulatorProcess> process;
    if (path != nullptr && loading(reader_)->Open(path)) {
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
    Dispose();
    return process.release();
  } catch (...) {
    Dispose();
    return nullptr;
  }
}

void CQELProcessData_Manipulator::DetermineInletCount(QELG_SimulatorProcess& process) {
  const unsigned int type = project_type(process);
  unsigned int count = type == kCoInjection || type == kTwoMeltEntrances ? 2 : 1;
  if (const auto total = file_of(reader_).value("[FlowCTLInfo]", "TotalInlet")) {
    count = static_cast<unsigned int>(to_int(std::string(*total).c_str()));
  }
  const unsigned int wanted = count;
  while (count-- != 0 && process.AppendFlowPackProcess() != nullptr) {
  }
  if (process.GetNumOfInlets() < std::min(wanted, QELG_SimulatorProcess::kMostInlets)) {
    throw std::bad_alloc();
  }
}

void CQELProcessData_Manipulator::LoadInlets(QELG_SimulatorProcess& process) {
  const auto load = [this, &process](unsigned int number, std::string flow, std::string pack) {
    QELG_SimulatorFlowPackProcess* inlet = process.GetFlowPackOfInlet_mod(number - 1);
    if (inlet != nullptr) {
      LoadFlow(*inlet, flow.data());
      LoadPack(*inlet, pack.data());
    }
    return inlet;
  };
  switch (project_type(process)) {
    case kCoInjection:
      // Both inlets come from the sections numbered 1.
      load(1, "[Flow-1-Skin]", "[Pack-1-Skin]");
      load(2, "[Flow-1-Skin]", "[Pack-1-Skin]");
      break;
    case kTwoMeltEntrances:
      load(1, "[Flow-EM1]", "[Pack-EM1]");
      load(2, "[Flow-EM2]", "[Pack-EM2]");
      break;
    default:
      // Section by section, as the file hands them out; the stages of an inlet do not touch its
      // control type.
      for (unsigned int number = 1; number - 1 < process.GetNumOfInlets(); ++number) {
        LoadFlowCTLInfo(*process.GetFlowPackOfInlet_mod(number - 1), static_cast<int>(number));
      }
      for (unsigned int number = 1; number - 1 < process.GetNumOfInlets(); ++number) {
        const std::string bracket = std::to_string(number) + "]";
        std::string cure = "[Cure-" + bracket;
        LoadCure(*load(number, "[Flow-" + bracket, "[Pack-" + bracket), cure.data());
      }
  }
}

void CQELProcessData_Manipulator::LoadCAEHeader(QELG_SimulatorProcess& process) {
  constexpr const char* kSection = "[CaeHeader]";
  if (const auto value = file_of(reader_).value(kSection, "ProjectType")) {
    set_process_ProjectType(process, static_cast<unsigned int>(scan_pair(*value).first));
  }
  load_items(file_of(reader_), kSection, qel::loading::kCaeHeader, process);
}

void CQELProcessData_Manipulator::LoadSummary(QELG_SimulatorProcess& process) {
  load_items(file_of(reader_), "[Summary]", qel::loading::kSummary, process);
}

void CQELProcessData_Manipulator::LoadFlowCTL(QELG_SimulatorProcess& process) {
  load_items(file_of(reader_), "[FlowCTL]", qel::loading::kFlowCTL, process);
}

void CQELProcessData_Manipulator::MoldThermalBoundaryType(QELG_SimulatorProcess& process) {
  load_items(file_of(reader_), "[MoldThermalBoundaryType]", qel::loading::kMoldThermalBoundaryType,
             process);
}

void CQELProcessData_Manipulator::LoadMachine(QELG_SimulatorProcess& process) {
  load_items(file_of(reader_), "[Machine]", qel::loading::kMachine, process);
}

void CQELProcessData_Manipulator::LoadRamposition(QELG_SimulatorProcess& process) {
  constexpr const char* kSection = "[RamPosition]";
  load_items(file_of(reader_), kSection, qel::loading::kRamPosition, process);
  load_array(file_of(reader_), kSection, "RP_FRSet", "RP_FR-",
             *process.GetFlowRateRamPosition_mod());
  load_array(file_of(reader_), kSection, "RP_IPSet", "RP_IP-",
             *process.GetInjectionPressureRamPosition_mod());
}

void CQELProcessData_Manipulator::LoadFlowCTLInfo(QELG_SimulatorFlowPackProcess& inlet,
                                                  int number) {
  // The closing bracket belongs to the key: the loader looks for it, unlike
  // FlowCTLInfo_ReadFlowCTL.
  if (const auto value =
          file_of(reader_).value("[FlowCTLInfo]", "FlowCTL-" + std::to_string(number) + "]")) {
    set_process_InletControlType(inlet, static_cast<unsigned int>(scan_pair(*value).second));
  }
}

void CQELProcessData_Manipulator::LoadFlow(QELG_SimulatorFlowPackProcess& inlet, char* section) {
  Snapshot& file = file_of(reader_);
  load_items(file, section, qel::loading::kFlow, inlet);
  load_profile(file, section, "FRSet", "FR-", *inlet.GetFlowRateProfile_mod());
  load_profile(file, section, "IPSet", "IP-", *inlet.GetInjectionPressureProfile_mod());
  // Transfer pressure points come behind the injection pressure points of the same profile.
  load_profile(file, section, "TPSet", "TP-", *inlet.GetInjectionPressureProfile_mod());
  load_open_list(file, section, "TimeConstFR-", *inlet.GetFlowRateTimeConstants_mod());
  load_open_list(file, section, "TimeConstIP-", *inlet.GetInjectionPressureTimeConstants_mod());
  load_open_list(file, section, "TimeConstPP-", *inlet.GetPackingPressureTimeConstants_mod());
}

void CQELProcessData_Manipulator::LoadPack(QELG_SimulatorFlowPackProcess& inlet, char* section) {
  Snapshot& file = file_of(reader_);
  load_items(file, section, qel::loading::kPack, inlet);
  load_profile(file, section, "PPSet", "PP-", *inlet.GetPackingPressureProfile_mod());
  load_profile(file, section, "FluidSet", "Fluid-", *inlet.GetFluidPressureProfile_mod());
}

void CQELProcessData_Manipulator::LoadCure(QELG_SimulatorFlowPackProcess& inlet, char* section) {
  Snapshot& file = file_of(reader_);
  load_items(file, section, qel::loading::kCure, inlet);
  load_profile(file, section, "CPSet", "CP-", *inlet.GetPackingPressureProfile_mod());
}
