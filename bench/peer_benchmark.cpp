// The engine beside libraries that load a whole file: every key once in order and in random order,
// one raw read, one store.

#include <QELPROEngine/QELPROEngine.h>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <variant>
#include <vector>

#include "file/entries.h"
#include "file/typed.h"
#include "generated_file.h"
#include "peers.h"

namespace {

class GeneratedFile {
 public:
  explicit GeneratedFile(int inlets)
      : path_((std::filesystem::temp_directory_path() /
               (std::string("qelpro-peers-").append(std::to_string(::getpid()))))
                  .string()) {
    std::ofstream(path_, std::ios::binary) << generated_file(inlets);
  }
  GeneratedFile(const GeneratedFile&) = delete;
  GeneratedFile& operator=(const GeneratedFile&) = delete;
  ~GeneratedFile() { std::filesystem::remove(path_); }
  [[nodiscard]] const char* path() const { return path_.c_str(); }

 private:
  std::string path_;
};

using Reader = CQELPROReader_Manipulator;

// One key of a generated file: how the engine reads it, and under which names the others find it.
struct Question {
  bool (Reader::*real)(double&, int);
  bool (Reader::*integer)(int&, int);
  bool (Reader::*point)(double&, double&, int, int);
  int number;
  int inlet;
  std::string section;
  std::string key;
};

std::vector<Question> questions_of(int inlets) {
  std::vector<Question> all;
  for (int inlet = 1; inlet <= inlets; ++inlet) {
    const auto ask = [&all, inlet](const char* section, const std::string& key,
                                   bool (Reader::*real)(double&, int),
                                   bool (Reader::*integer)(int&, int),
                                   bool (Reader::*point)(double&, double&, int, int), int number) {
      all.push_back({real, integer, point, number, inlet,
                     std::string(section).append(std::to_string(inlet)), key});
    };
    const auto profile = [&ask](const char* section, const std::string& name,
                                bool (Reader::*count)(int&, int),
                                bool (Reader::*point)(double&, double&, int, int)) {
      ask(section, std::string(name).append("Set"), nullptr, count, nullptr, 0);
      for (int number = 1; number <= kProfilePoints; ++number) {
        ask(section, std::string(name).append("-").append(std::to_string(number)), nullptr, nullptr,
            point, number);
      }
    };
    ask("Flow-", "FillTime", &Reader::FlowX_ReadFillingTime, nullptr, nullptr, 0);
    ask("Flow-", "MaxFillingTime", &Reader::FlowX_ReadMaxFillingTime, nullptr, nullptr, 0);
    ask("Flow-", "MeltTemp", &Reader::FlowX_ReadMeltTemperature, nullptr, nullptr, 0);
    ask("Flow-", "MoldTemp", &Reader::FlowX_ReadMoldTemperature, nullptr, nullptr, 0);
    ask("Flow-", "InjectPres", &Reader::FlowX_ReadInjectPressure, nullptr, nullptr, 0);
    ask("Flow-", "PreFill", &Reader::FlowX_ReadPreFill, nullptr, nullptr, 0);
    profile("Flow-", "FR", &Reader::FlowX_ReadFRSection, &Reader::FlowX_ReadFRProfile);
    profile("Flow-", "IP", &Reader::FlowX_ReadIPSection, &Reader::FlowX_ReadIPProfile);
    profile("Flow-", "UserFR", &Reader::FlowX_ReadUserFRSection, &Reader::FlowX_ReadUserFRProfile);
    profile("Flow-", "UserIP", &Reader::FlowX_ReadUserIPSection, &Reader::FlowX_ReadUserIPProfile);
    ask("Pack-", "PackTime", &Reader::PackX_ReadPackTime, nullptr, nullptr, 0);
    ask("Pack-", "PackPres", &Reader::PackX_ReadPackPressure, nullptr, nullptr, 0);
    ask("Pack-", "PackSwch", &Reader::PackX_ReadPackSwitch, nullptr, nullptr, 0);
    profile("Pack-", "PP", &Reader::PackX_ReadPPSection, &Reader::PackX_ReadPPProfile);
    profile("Pack-", "UserPP", &Reader::PackX_ReadUserPPSection, &Reader::PackX_ReadUserPPProfile);
    ask("Cure-", "CureTime", &Reader::CureX_ReadCureTime, nullptr, nullptr, 0);
    profile("Cure-", "CP", &Reader::CureX_ReadCPSection, &Reader::CureX_ReadCPProfile);
  }
  return all;
}

void require(bool done) {
  if (!done) {
    std::abort();
  }
}

template <bool shuffled>
void engine_every_key(benchmark::State& state) {
  const GeneratedFile file(static_cast<int>(state.range(0)));
  std::vector<Question> questions = questions_of(static_cast<int>(state.range(0)));
  if (shuffled) {
    std::shuffle(questions.begin(), questions.end(), std::mt19937(1));
  }
  for (auto _ : state) {
    Reader reader;
    require(reader.SetFilePath(file.path()));
    double sum = 0;
    for (const Question& question : questions) {
      double x = 0;
      double y = 0;
      int count = 0;
      require(question.real != nullptr ? (reader.*question.real)(x, question.inlet)
              : question.integer != nullptr
                  ? (reader.*question.integer)(count, question.inlet)
                  : (reader.*question.point)(x, y, question.number, question.inlet));
      sum += x + y + count;
    }
    benchmark::DoNotOptimize(sum);
  }
}

// What reading each key's line from the file costs whoever does it: one read of a few bytes for
// each.
void one_system_call_a_key(benchmark::State& state) {
  const GeneratedFile file(static_cast<int>(state.range(0)));
  const std::size_t keys = questions_of(static_cast<int>(state.range(0))).size();
  const int descriptor = ::open(file.path(), O_RDONLY | O_CLOEXEC);
  char line[64];
  for (auto _ : state) {
    for (std::size_t key = 0; key < keys; ++key) {
      benchmark::DoNotOptimize(
          ::pread(descriptor, line, sizeof line, static_cast<off_t>(key * 24)));
    }
  }
  ::close(descriptor);
}

// The file read once and every entry of it typed, as an export, a check or a table does it.
void engine_one_pass(benchmark::State& state) {
  const GeneratedFile file(static_cast<int>(state.range(0)));
  const std::size_t asked = questions_of(static_cast<int>(state.range(0))).size();
  for (auto _ : state) {
    const qelpro::SectionedText document = qelpro::load_document(file.path());
    const qelpro::Entries entries(document);
    qelpro::TypedValue typed;
    double sum = 0;
    for (const qelpro::FileEntry& entry : entries.all()) {
      qelpro::read_typed(entries, entry, typed);
      for (const qel::Field& field : typed.fields) {
        const double* const real = std::get_if<double>(&field);
        const int* const integer = std::get_if<int>(&field);
        sum += real != nullptr ? *real : integer != nullptr ? *integer : 0;
      }
    }
    require(entries.all().size() > asked);
    benchmark::DoNotOptimize(sum);
  }
}

template <class Peer, bool shuffled>
void peer_every_key(benchmark::State& state) {
  const GeneratedFile file(static_cast<int>(state.range(0)));
  std::vector<Question> questions = questions_of(static_cast<int>(state.range(0)));
  if (shuffled) {
    std::shuffle(questions.begin(), questions.end(), std::mt19937(1));
  }
  for (auto _ : state) {
    Peer peer;
    require(peer.load(file.path()));
    double sum = 0;
    for (const Question& question : questions) {
      const char* text = peer.get(question.section.c_str(), question.key.c_str());
      require(text != nullptr);
      char* after = nullptr;
      sum += std::strtod(text, &after);
      if (question.point != nullptr) {
        sum += std::strtod(after, nullptr);
      }
    }
    benchmark::DoNotOptimize(sum);
  }
}

void engine_one_read(benchmark::State& state) {
  const GeneratedFile file(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    Reader reader;
    char* value = nullptr;
    require(reader.SetFilePath(file.path()) &&
            reader.ReadString("[Machine]", "Diameter", value, nullptr, 0));
  }
}

template <class Peer>
void peer_one_read(benchmark::State& state) {
  const GeneratedFile file(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    Peer peer;
    require(peer.load(file.path()) && peer.get("Machine", "Diameter") != nullptr);
  }
}

void engine_one_store(benchmark::State& state) {
  const GeneratedFile file(static_cast<int>(state.range(0)));
  const int middle = static_cast<int>(state.range(0) + 1) / 2;
  bool odd = false;
  for (auto _ : state) {
    CQELPROWriter_Manipulator writer;
    odd = !odd;
    require(writer.SetFilePath(file.path()) &&
            writer.PackX_WritePackTime(odd ? 1.25 : 1.25125, middle));
  }
}

template <class Peer>
void peer_one_store(benchmark::State& state) {
  const GeneratedFile file(static_cast<int>(state.range(0)));
  const std::string section = std::string("Pack-").append(std::to_string((state.range(0) + 1) / 2));
  bool odd = false;
  for (auto _ : state) {
    Peer peer;
    odd = !odd;
    require(peer.load(file.path()));
    peer.set(section.c_str(), "PackTime", odd ? "1.25" : "1.25125");
    require(peer.save(file.path()));
  }
}

void engine_new_keys(benchmark::State& state) {
  const GeneratedFile file(1);
  for (auto _ : state) {
    std::filesystem::resize_file(file.path(), 0);
    CQELPROWriter_Manipulator writer;
    require(writer.SetFilePath(file.path()));
    for (int key = 0; key < state.range(0); ++key) {
      require(
          writer.WriteString("[A]", std::string("k").append(std::to_string(key)).c_str(), "1.25"));
    }
  }
}

template <class Peer>
void peer_new_keys(benchmark::State& state) {
  const GeneratedFile file(1);
  for (auto _ : state) {
    std::filesystem::resize_file(file.path(), 0);
    Peer peer;
    for (int key = 0; key < state.range(0); ++key) {
      peer.set("A", std::string("k").append(std::to_string(key)).c_str(), "1.25");
      require(peer.save(file.path()));
    }
  }
}

void sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(1)->Arg(8)->Arg(64)->Arg(512)->ArgName("inlets")->MinTime(0.2);
}
void counts(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(500)->Arg(2000)->ArgName("keys")->MinTime(0.2);
}

#define BESIDE_PEERS(work)                                                       \
  BENCHMARK(engine_##work)->Name(#work "/engine")->Apply(sizes);                 \
  BENCHMARK(peer_##work<SimpleIniPeer>)->Name(#work "/SimpleIni")->Apply(sizes); \
  BENCHMARK(peer_##work<GLibPeer>)->Name(#work "/GLib")->Apply(sizes);           \
  BENCHMARK(peer_##work<PropertyTreePeer>)->Name(#work "/PropertyTree")->Apply(sizes)

BESIDE_PEERS(one_read);
BENCHMARK(peer_one_read<InihPeer>)->Name("one_read/inih")->Apply(sizes);
BESIDE_PEERS(one_store);
BENCHMARK(engine_new_keys)->Name("new_keys/engine")->Apply(counts);
BENCHMARK(peer_new_keys<SimpleIniPeer>)->Name("new_keys/SimpleIni")->Apply(counts);
BENCHMARK(peer_new_keys<GLibPeer>)->Name("new_keys/GLib")->Apply(counts);

#define EVERY_KEY(name, shuffled)                                                                  \
  BENCHMARK(one_system_call_a_key)->Name(name "/bare_reads")->Apply(sizes);                        \
  BENCHMARK(engine_every_key<shuffled>)->Name(name "/engine")->Apply(sizes);                       \
  BENCHMARK(peer_every_key<SimpleIniPeer, shuffled>)->Name(name "/SimpleIni")->Apply(sizes);       \
  BENCHMARK(peer_every_key<GLibPeer, shuffled>)->Name(name "/GLib")->Apply(sizes);                 \
  BENCHMARK(peer_every_key<PropertyTreePeer, shuffled>)->Name(name "/PropertyTree")->Apply(sizes); \
  BENCHMARK(peer_every_key<InihPeer, shuffled>)->Name(name "/inih")->Apply(sizes)

EVERY_KEY("every_key_in_order", false);
BENCHMARK(engine_one_pass)->Name("every_key_in_order/one_pass")->Apply(sizes);
EVERY_KEY("every_key_shuffled", true);

}  // namespace

BENCHMARK_MAIN();
