#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

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
#include "text/text.h"

namespace {

using namespace qel;

// A numbered entry of a section.
struct NumberedLine {
  int number;
  std::string_view line;
};

// What a manipulator holds while it loads: a reader that is never given the file, what the file
// held when the load began, and the points of the section that is being loaded, key by key.
struct LoadingReader : CQELPROReader_Manipulator {
  Snapshot file;
  std::vector<std::vector<NumberedLine>> points;
};

LoadingReader& loading(CQELPROReader_Manipulator* reader) {
  return *static_cast<LoadingReader*>(reader);
}
Snapshot& file_of(CQELPROReader_Manipulator* reader) { return loading(reader).file; }

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
  void operator()(const TextItem<Object>& item) const {
    item.set(object, text);
    const char* kept = nullptr;
    if (!item.get(object, kept) || std::strcmp(kept, text) != 0) {
      throw std::bad_alloc();
    }
  }
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

// Each number once, ascending, of several lines the first. Most files have them so.
void put_in_order(std::vector<NumberedLine>& points) {
  const auto is_before = [](const NumberedLine& a, const NumberedLine& b) {
    return a.number < b.number;
  };
  const auto is_out_of_order = [](const NumberedLine& a, const NumberedLine& b) {
    return a.number >= b.number;
  };
  if (std::adjacent_find(points.begin(), points.end(), is_out_of_order) == points.end()) {
    return;
  }
  std::stable_sort(points.begin(), points.end(), is_before);
  points.erase(std::unique(points.begin(), points.end(),
                           [](const NumberedLine& a, const NumberedLine& b) {
                             return a.number == b.number;
                           }),
               points.end());
}

using Points = std::vector<NumberedLine>;

Points::const_iterator end_of_points_up_to(int most, const Points& points) {
  return std::find_if(points.begin(), points.end(),
                      [most](const NumberedLine& point) { return point.number > most; });
}

// Where the first number is missing.
Points::const_iterator end_of_consecutive(const Points& points) {
  int expected = 1;
  return std::find_if(points.begin(), points.end(), [&expected](const NumberedLine& point) {
    return point.number != expected++;
  });
}

// What a section says of an object, put there step by step.
template <class Object>
class SectionLoad {
  using Of = Functions<Object>;

 public:
  SectionLoad(LoadingReader& from, Object& object) : from_(from), object_(object) {}

  template <std::size_t count>
  void load(std::string_view section, const LoadPlan<count>& plan) {
    // The first line of each key that has no number.
    std::array<std::string_view, LoadPlan<count>::kKeys> lines{};
    std::vector<std::vector<NumberedLine>>& points = from_.points;
    if (points.size() < plan.keys.size()) {
      points.resize(plan.keys.size());
    }
    for (std::vector<NumberedLine>& of_key : points) {
      of_key.clear();
    }
    struct {
      std::string_view prefix;
      std::size_t of = 0;
    } last;  // the points that were met last
    const bool found = from_.file.visit_entries(
        section, [&plan, &lines, &points, &last](std::string_view key, std::string_view line) {
          // After a point most often comes the next one.
          if (const int number = number_behind(last.prefix, key); number >= 1) {
            points[last.of].push_back({number, line});
            return;
          }
          const NumberedKey numbered = numbered_key(key);
          const std::size_t of =
              numbered.number >= 1 ? plan.keys.find(0, numbered.prefix, true) : plan.keys.kNone;
          if (of != plan.keys.kNone) {
            points[of].push_back({numbered.number, line});
            last = {numbered.prefix, of};
          } else if (const std::size_t at = plan.keys.find(0, key, false); at != plan.keys.kNone) {
            lines[at] = lines[at].empty() ? line : lines[at];
          }
        });
    for (std::size_t at = 0; found && at < count; ++at) {
      const LoadStep& step = plan.steps[at];
      const std::size_t key = plan.key[at];
      if (const auto* item = std::get_if<typename Of::Item>(&step.key->details.loader)) {
        if (!lines[key].empty()) {
          set(*item, *step.key, text::entry_value(lines[key]));
        }
      } else if (const auto* list = std::get_if<typename Of::List>(&step.key->details.loader)) {
        const bool is_counted = !step.count.empty();
        const std::string_view counting =
            is_counted ? lines[plan.count_key[at]] : std::string_view();
        if (!is_counted || !counting.empty()) {
          put_in_order(points[key]);
          append_all(*list, points[key], is_counted ? std::optional(counting) : std::nullopt);
        }
      }
    }
  }

  void set(typename Of::Item item, const KeyInfo& key, std::string_view value) {
    from_.file.with_text(value, [&](const char* text) {
      std::visit(Convert<Object>{object_, key, text}, Of::kSetters[static_cast<std::size_t>(item)]);
    });
  }

 private:
  // The points in order. Without a count, the list ends before the first number that is missing;
  // with one, numbers that the section lacks are passed over, and the count costs no more than what
  // the section holds.
  void append_all(typename Of::List list, const std::vector<NumberedLine>& points,
                  std::optional<std::string_view> counting) {
    int most = std::numeric_limits<int>::max();
    if (counting) {
      from_.file.with_text(text::entry_value(*counting),
                           [&most](const char* text) { most = platform::to_int(text); });
    }
    const auto end = counting ? end_of_points_up_to(most, points) : end_of_consecutive(points);
    std::visit(
        [&](auto get) {
          auto& to = *(object_.*get)();
          std::for_each(points.begin(), end, [&](const NumberedLine& point) {
            from_.file.with_text(text::entry_value(point.line),
                                 [&to](const char* text) { append(to, text); });
          });
        },
        Of::kLists[static_cast<std::size_t>(list)]);
  }

  LoadingReader& from_;
  Object& object_;
};

template <class Object, std::size_t count>
void load_section(CQELPROReader_Manipulator* from, const char* section, const LoadPlan<count>& plan,
                  Object& object) {
  SectionLoad<Object>(loading(from), object).load(section, plan);
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
    std::unique_ptr<QELG_SimulatorProcess> process;
    reader_ = new LoadingReader;
    if (path != nullptr && file_of(reader_).load(path)) {
      process = std::make_unique<QELG_SimulatorProcess>();
      if (process->data() == nullptr) {
        throw std::bad_alloc();
      }
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
  load_section(reader_, cae_header::kSection, kPlan<cae_header::kKeys>, process);
}

void CQELProcessData_Manipulator::LoadSummary(QELG_SimulatorProcess& process) {
  load_section(reader_, summary::kSection, kPlan<summary::kKeys>, process);
}

void CQELProcessData_Manipulator::LoadFlowCTL(QELG_SimulatorProcess& process) {
  load_section(reader_, flow_ctl::kSection, kPlan<flow_ctl::kKeys>, process);
}

void CQELProcessData_Manipulator::MoldThermalBoundaryType(QELG_SimulatorProcess& process) {
  load_section(reader_, mold_thermal_boundary_type::kSection,
               kPlan<mold_thermal_boundary_type::kKeys>, process);
}

void CQELProcessData_Manipulator::LoadMachine(QELG_SimulatorProcess& process) {
  load_section(reader_, machine::kSection, kPlan<machine::kKeys>, process);
}

void CQELProcessData_Manipulator::LoadRamposition(QELG_SimulatorProcess& process) {
  load_section(reader_, ram_position::kSection, kPlan<ram_position::kKeys>, process);
}

// All inlets have their keys in this one section, numbered as they are.
void CQELProcessData_Manipulator::LoadFlowCTLInfo(QELG_SimulatorFlowPackProcess& inlet,
                                                  int number) {
  for (const LoadStep& step : kPlan<flow_ctl_info::kKeys>.steps) {
    const auto* const item = std::get_if<InletItem>(&step.key->details.loader);
    const auto value = item != nullptr
                           ? file_of(reader_).value(flow_ctl_info::kSection,
                                                    NumberedName(step.key->text, number).str())
                           : std::nullopt;
    if (value) {
      SectionLoad(loading(reader_), inlet).set(*item, *step.key, *value);
    }
  }
}

void CQELProcessData_Manipulator::LoadFlow(QELG_SimulatorFlowPackProcess& inlet, char* section) {
  load_section(reader_, section, kPlan<flow_x::kKeys>, inlet);
}

void CQELProcessData_Manipulator::LoadPack(QELG_SimulatorFlowPackProcess& inlet, char* section) {
  load_section(reader_, section, kPlan<pack_x::kKeys>, inlet);
}

void CQELProcessData_Manipulator::LoadCure(QELG_SimulatorFlowPackProcess& inlet, char* section) {
  load_section(reader_, section, kPlan<cure_x::kKeys>, inlet);
}
