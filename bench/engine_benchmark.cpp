// What the engine's work costs, beside the cost of reading the same bytes once: open, one read, a
// walk over the lines with memchr, close. "limits" is the ratio of the two, both taken in this run.
// A store is set beside a store's own limit, too: open, a scan of what stands before the line, one
// write of the line and all after it, close. That ratio is "store_limits"; beside the same calls
// without a look at the bytes that were read it is "store_calls", and "store_safe_calls" beside
// those and the three that a store makes to be safe: a look at what stands under the path, a lock
// between programs, a look at what was opened.

#include <QELG/QELG.h>
#include <QELPROEngine/QELPROEngine.h>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "generated_file.h"

namespace {

using Clock = std::chrono::steady_clock;

class GeneratedFile {
 public:
  explicit GeneratedFile(int inlets)
      : path_((std::filesystem::temp_directory_path() /
               ("qelpro-bench-" + std::to_string(::getpid())))
                  .string()) {
    std::ofstream(path_, std::ios::binary) << generated_file(inlets);
  }
  GeneratedFile(const GeneratedFile&) = delete;
  GeneratedFile& operator=(const GeneratedFile&) = delete;
  ~GeneratedFile() { std::filesystem::remove(path_); }
  [[nodiscard]] const char* path() const { return path_.c_str(); }
  [[nodiscard]] std::size_t size() const { return std::filesystem::file_size(path_); }

 private:
  std::string path_;
};

std::size_t count_lines(const char* at, ssize_t length) {
  std::size_t lines = 0;
  const char* const end = at + length;
  while (at != end) {
    const void* line_break = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
    if (line_break == nullptr) {
      break;
    }
    at = static_cast<const char*>(line_break) + 1;
    ++lines;
  }
  return lines;
}

std::size_t walk_once(const char* path, std::vector<char>& buffer) {
  const int file = ::open(path, O_RDONLY | O_CLOEXEC);
  const std::size_t lines = count_lines(buffer.data(), ::read(file, buffer.data(), buffer.size()));
  ::close(file);
  return lines;
}

enum class Kind { calls, calls_and_scan, safe_calls };

void store_once(const char* path, std::vector<char>& buffer, std::size_t line, Kind kind) {
  struct statx found {};
  if (kind == Kind::safe_calls && ::statx(AT_FDCWD, path, 0, STATX_TYPE, &found) != 0) {
    std::abort();
  }
  const int file = ::open(path, O_RDWR | O_CLOEXEC);
  if (kind == Kind::safe_calls) {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = off_t{1} << 62U;
    lock.l_len = 1;
    if (::fcntl(file, F_OFD_SETLK, &lock) != 0 ||
        ::statx(file, "", AT_EMPTY_PATH, STATX_SIZE, &found) != 0) {
      std::abort();
    }
  }
  const ssize_t before = ::pread(file, buffer.data(), line, 0);
  if (kind == Kind::calls_and_scan) {
    benchmark::DoNotOptimize(count_lines(buffer.data(), before));
  }
  const ssize_t after =
      ::pwrite(file, buffer.data() + line, buffer.size() - line, static_cast<off_t>(line));
  if (::close(file) != 0 || static_cast<std::size_t>(before + after) != buffer.size()) {
    std::abort();
  }
}

template <class Work>
double median_in_seconds(Work work) {
  std::vector<double> times;
  for (int round = 0; round < 101; ++round) {
    const auto start = Clock::now();
    work();
    times.push_back(std::chrono::duration<double>(Clock::now() - start).count());
  }
  std::nth_element(times.begin(), times.begin() + 50, times.end());
  return times[50];
}

double limit_in_seconds(const GeneratedFile& file) {
  std::vector<char> buffer(file.size());
  return median_in_seconds([&] { benchmark::DoNotOptimize(walk_once(file.path(), buffer)); });
}

// Of a store in the section.
double store_limit_in_seconds(int inlets, const std::string& section, Kind kind) {
  const GeneratedFile file(inlets);
  const std::string contents = generated_file(inlets);
  std::vector<char> buffer(contents.begin(), contents.end());
  const std::size_t line = contents.find("\nPackTime", contents.find(section)) + 1;
  return median_in_seconds([&] { store_once(file.path(), buffer, line, kind); });
}

// Runs the work and reports its time as a multiple of the limit.
template <class Work>
void measure(benchmark::State& state, Work work) {
  const GeneratedFile file(static_cast<int>(state.range(0)));
  const double limit = limit_in_seconds(file);
  std::chrono::duration<double> total{};
  for (auto _ : state) {
    const auto start = Clock::now();
    work(file);
    total += Clock::now() - start;
  }
  state.counters["limits"] = total.count() / static_cast<double>(state.iterations()) / limit;
  state.counters["KB"] = static_cast<double>(file.size()) / 1000;
}

void limit(benchmark::State& state) {
  std::vector<char> buffer(generated_file(static_cast<int>(state.range(0))).size());
  measure(state, [&buffer](const GeneratedFile& file) {
    benchmark::DoNotOptimize(walk_once(file.path(), buffer));
  });
}

void one_shot_raw_read(benchmark::State& state) {
  measure(state, [](const GeneratedFile& file) {
    CQELPROReader_Manipulator reader;
    char* value = nullptr;
    reader.SetFilePath(file.path());
    if (!reader.ReadString("[Machine]", "Diameter", value, nullptr, 0)) {
      std::abort();
    }
  });
}

void raw_read_of_an_open_reader(benchmark::State& state) {
  CQELPROReader_Manipulator reader;
  const char* opened = nullptr;
  measure(state, [&](const GeneratedFile& file) {
    if (opened == nullptr) {
      opened = file.path();
      reader.SetFilePath(opened);
    }
    char* value = nullptr;
    if (!reader.ReadString("[Machine]", "Diameter", value, nullptr, 0)) {
      std::abort();
    }
  });
}

using Point = bool (CQELPROReader_Manipulator::*)(double&, double&, int, int);

void read_points(CQELPROReader_Manipulator& reader, Point point, int inlet) {
  double x = 0;
  double y = 0;
  for (int number = 1; number <= kProfilePoints; ++number) {
    if (!(reader.*point)(x, y, number, inlet)) {
      std::abort();
    }
  }
}

void typed_read_in_order(benchmark::State& state) {
  using Reader = CQELPROReader_Manipulator;
  const int inlets = static_cast<int>(state.range(0));
  measure(state, [inlets](const GeneratedFile& file) {
    Reader reader;
    reader.SetFilePath(file.path());
    int count = 0;
    double value = 0;
    for (int inlet = 1; inlet <= inlets; ++inlet) {
      for (const auto member :
           {&Reader::FlowX_ReadFillingTime, &Reader::FlowX_ReadMaxFillingTime,
            &Reader::FlowX_ReadMeltTemperature, &Reader::FlowX_ReadMoldTemperature,
            &Reader::FlowX_ReadInjectPressure, &Reader::FlowX_ReadPreFill}) {
        (reader.*member)(value, inlet);
      }
      reader.FlowX_ReadFRSection(count, inlet);
      read_points(reader, &Reader::FlowX_ReadFRProfile, inlet);
      reader.FlowX_ReadIPSection(count, inlet);
      read_points(reader, &Reader::FlowX_ReadIPProfile, inlet);
      reader.FlowX_ReadUserFRSection(count, inlet);
      read_points(reader, &Reader::FlowX_ReadUserFRProfile, inlet);
      reader.FlowX_ReadUserIPSection(count, inlet);
      read_points(reader, &Reader::FlowX_ReadUserIPProfile, inlet);
      reader.PackX_ReadPackTime(value, inlet);
      reader.PackX_ReadPackPressure(value, inlet);
      reader.PackX_ReadPackSwitch(value, inlet);
      reader.PackX_ReadPPSection(count, inlet);
      read_points(reader, &Reader::PackX_ReadPPProfile, inlet);
      reader.PackX_ReadUserPPSection(count, inlet);
      read_points(reader, &Reader::PackX_ReadUserPPProfile, inlet);
      reader.CureX_ReadCureTime(value, inlet);
      reader.CureX_ReadCPSection(count, inlet);
      read_points(reader, &Reader::CureX_ReadCPProfile, inlet);
    }
  });
}

void store(benchmark::State& state, double first, double second) {
  const int inlets = static_cast<int>(state.range(0));
  const int middle = (inlets + 1) / 2;
  CQELPROWriter_Manipulator writer;
  bool odd = false;
  const char* opened = nullptr;
  measure(state, [&](const GeneratedFile& file) {
    if (opened == nullptr) {
      opened = file.path();
      writer.SetFilePath(opened);
    }
    odd = !odd;
    if (!writer.PackX_WritePackTime(odd ? first : second, middle)) {
      std::abort();
    }
  });
  const double seconds = state.counters["limits"] * limit_in_seconds(GeneratedFile(inlets));
  const std::string section = "[Pack-" + std::to_string(middle) + "]";
  const auto beside = [&](Kind kind) {
    return seconds / store_limit_in_seconds(inlets, section, kind);
  };
  state.counters["store_limits"] = beside(Kind::calls_and_scan);
  state.counters["store_calls"] = beside(Kind::calls);
  state.counters["store_safe_calls"] = beside(Kind::safe_calls);
}

void store_of_the_same_length(benchmark::State& state) { store(state, 1.25, 5.25); }
void store_three_bytes_longer_and_shorter(benchmark::State& state) { store(state, 1.25, 1.25125); }

void object_getter(benchmark::State& state) {
  measure(state, [](const GeneratedFile& file) {
    CPROIO_Manipulator object;
    double value = 0;
    if (!object.SetFilePath(file.path()) || !object.GetMachineScrewDiameter(value)) {
      std::abort();
    }
  });
}

// With its stamp: two scans, and two writes of what stands after them.
void object_setter(benchmark::State& state) {
  const int middle = static_cast<int>(state.range(0) + 1) / 2;
  bool odd = false;
  measure(state, [&](const GeneratedFile& file) {
    CPROIO_Manipulator object;
    odd = !odd;
    if (!object.SetFilePath(file.path()) || !object.SetPackTime(odd ? 1.25 : 5.25, middle)) {
      std::abort();
    }
  });
}

using Inlet = QELG_SimulatorFlowPackProcess;

template <class Point, class List>
void copy_points(const List& from, List& to) {
  Point point{};
  for (unsigned int index = 0; from.GetDataPoint(index, point); ++index) {
    to.AppendDataPoint(point);
  }
}

// Of the items those that a generated file has.
void copy_inlet(const Inlet& from, Inlet& to) {
  double value = 0;
  const auto copy = [&](bool (*get)(const Inlet&, double&), void (*set)(Inlet&, double)) {
    if (get(from, value)) {
      set(to, value);
    }
  };
  copy(&get_process_FillTime, &set_process_FillTime);
  copy(&get_process_MaxFillingTime, &set_process_MaxFillingTime);
  copy(&get_process_MeltTemp, &set_process_MeltTemp);
  copy(&get_process_MoldTemp, &set_process_MoldTemp);
  copy(&get_process_InjectPres, &set_process_InjectPres);
  copy(&get_process_PackTime, &set_process_PackTime);
  copy(&get_process_PackPres, &set_process_PackPres);
  copy(&get_process_PackSwch, &set_process_PackSwch);
  copy_points<QELG_2dPoint>(*from.GetFlowRateProfile(), *to.GetFlowRateProfile_mod());
  copy_points<QELG_2dPoint>(*from.GetInjectionPressureProfile(),
                            *to.GetInjectionPressureProfile_mod());
  copy_points<QELG_2dPoint>(*from.GetPackingPressureProfile(), *to.GetPackingPressureProfile_mod());
}

// What a load does with the simulator's process once it has read the file: make one with the same
// points, and take it down.
double process_in_seconds(const char* path) {
  CQELProcessData_Manipulator loader;
  const std::unique_ptr<const QELG_SimulatorProcess> loaded(loader.GetProcessDataStructure(path));
  return median_in_seconds([&loaded] {
    QELG_SimulatorProcess process;
    for (unsigned int inlet = 0; inlet < loaded->GetNumOfInlets(); ++inlet) {
      copy_inlet(*loaded->GetFlowPackOfInlet(inlet), *process.AppendFlowPackProcess());
    }
    benchmark::DoNotOptimize(process.GetNumOfInlets());
  });
}

// "reading_limits" is the load without the process that it makes.
void loader(benchmark::State& state) {
  measure(state, [](const GeneratedFile& file) {
    CQELProcessData_Manipulator loader;
    const std::unique_ptr<const QELG_SimulatorProcess> process(
        loader.GetProcessDataStructure(file.path()));
    benchmark::DoNotOptimize(process->GetNumOfInlets());
  });
  const GeneratedFile file(static_cast<int>(state.range(0)));
  state.counters["reading_limits"] =
      state.counters["limits"] - process_in_seconds(file.path()) / limit_in_seconds(file);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(1)->Arg(8)->Arg(64)->Arg(512)->ArgName("inlets");
}

BENCHMARK(limit)->Apply(sizes);
BENCHMARK(one_shot_raw_read)->Apply(sizes);
BENCHMARK(raw_read_of_an_open_reader)->Apply(sizes);
BENCHMARK(typed_read_in_order)->Apply(sizes);
BENCHMARK(store_of_the_same_length)->Apply(sizes);
BENCHMARK(store_three_bytes_longer_and_shorter)->Apply(sizes);
BENCHMARK(object_getter)->Apply(sizes);
BENCHMARK(object_setter)->Apply(sizes);
BENCHMARK(loader)->Apply(sizes);

}  // namespace

BENCHMARK_MAIN();
