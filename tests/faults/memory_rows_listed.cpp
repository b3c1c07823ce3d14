#include <algorithm>
#include <cstdio>
#include <map>

#include "QELPROEngine/QELPROEngine.h"
#include "faults/memory_rows.h"
#include "members/every_call.h"

namespace qelpro_test::memory {
namespace {

constexpr const char* kStdio =
    "stdio reads a lent stream without a buffer where it finds no memory for one";
constexpr const char* kStamp =
    "the value stands in the file: the date alone is missed, which is stamped after it";
constexpr const char* kStampedAgain = "a date that could not be stamped is stamped once more";
constexpr const char* kEach = "each of its entries is stored whatever became of those before it";

std::string joined(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) {
    all += text + ", ";
  }
  return all;
}

int planned_n = 0;
allocations::Failure planned = allocations::Failure::none;
allocations::Outcome outcome;
const Around kAround{[] { allocations::fail(planned_n, planned); },
                     [] { outcome = allocations::stop(); }};

template <class Object>
void try_call(Stage& stage, const EveryCall<Object>& call, Object& object) {
  Trial& trial = stage.trial;
  trial.before = joined(call.untouched.outputs);
  trial.old_bytes = stage.bytes();
  planned_n = stage.n();
  planned = stage.failure();
  Answer first;
  stage.without_memory([&] { first = call.make(object, kAround); });
  trial.memory = outcome;
  trial.threw = first.threw;
  trial.done = first.done;
  trial.outputs = joined(first.outputs);
  trial.bytes = stage.bytes();
  planned = allocations::Failure::none;
  const Answer again = call.make(object, kAround);
  trial.done_again = again.done;
  trial.outputs_again = joined(again.outputs);
  trial.bytes_again = stage.bytes();
}

template <class Object>
void over_path(Stage& stage, const EveryCall<Object>& call, const std::string& path) {
  Object object;
  object.SetFilePath(path.c_str());
  try_call(stage, call, object);
}

// The buffer of a stream that has not been read yet is an allocation of its own.
template <class Object>
void over_stream(Stage& stage, const EveryCall<Object>& call, const char* mode) {
  std::FILE* stream = std::fopen(stage.process_file().c_str(), mode);
  {
    Object object;
    object.SetFilePtr(stream);
    try_call(stage, call, object);
  }
  std::fclose(stream);
}

using Reader = EveryCall<CQELPROReader_Manipulator>;
using Writer = EveryCall<CQELPROWriter_Manipulator>;
using Older = EveryCall<CPROIO_Manipulator>;
using Adapter = EveryCall<CQEL_ProcessAdapter>;

void add_readers(std::vector<Row>& rows) {
  for (const Reader& call : reader_calls()) {
    const std::string member = "CQELPROReader_Manipulator::" + call.name;
    Row by_path{member, "by path",
                [&call](Stage& stage) { over_path(stage, call, stage.process_file()); }};
    // A session's second lookup by position goes by what the first one learnt, also where that
    // found no memory to end.
    by_path.same_again = call.name != "MoldTemperatureBCX_ReadBC";
    if (call.name == "PartInsertContactAngle_ReadAngle") {
      by_path.done_nevertheless = kCopy;
    }
    rows.push_back(by_path);
    Row by_stream{member, "over a lent stream",
                  [&call](Stage& stage) { over_stream(stage, call, "r"); }};
    by_stream.done_nevertheless = kStdio;
    by_stream.only_of_c_library = true;
    rows.push_back(by_stream);
  }
}

void add_writers(std::vector<Row>& rows) {
  for (const Writer& call : writer_calls()) {
    const std::string member = "CQELPROWriter_Manipulator::" + call.name;
    rows.push_back({member, "entries that are there",
                    [&call](Stage& stage) { over_path(stage, call, stage.process_file()); }});
    rows.push_back({member, "new entries", [&call](Stage& stage) {
                      over_path(stage, call,
                                stage.watch("[FileHeader]\nName = a file\n", "new.pro"));
                    }});
    Row by_stream{member, "over a lent stream",
                  [&call](Stage& stage) { over_stream(stage, call, "r+"); }};
    by_stream.done_nevertheless = kStdio;
    by_stream.only_of_c_library = true;
    rows.push_back(by_stream);
  }
}

void add_adapters(std::vector<Row>& rows) {
  // They say true whatever their writer said.
  static const std::vector<std::string> several = {
      "SetGateCount", "SetGateCTL_Time", "SetGateValveX_ControlPoint", "SetGateValveX_GateSetting",
      "SetCoolingChannelData"};
  for (const Adapter& call : adapter_calls()) {
    Row row{"CQEL_ProcessAdapter::" + call.name, "", [&call](Stage& stage) {
              const std::string path = stage.process_file();
              CQEL_ProcessAdapter adapter;
              if (call.name != "SetProcessPath") {
                adapter.SetProcessPath(path.c_str());
              }
              try_call(stage, call, adapter);
            }};
    // A second path is refused, also after a first one that failed.
    row.same_again = call.name != "SetProcessPath";
    if (std::find(several.begin(), several.end(), call.name) != several.end()) {
      row.leaves = Leaves::entries;
      row.done_nevertheless = kEach;
    }
    rows.push_back(row);
  }
}

void add_older(std::vector<Row>& rows) {
  // What a getter gives for a file that has no such entry, or is of an older layout.
  static const std::map<std::string, std::string> fallbacks = {
      {"GetPpackAsPeof", "PEOFasPPack"},         {"GetVPSwitch", "IsVPswitch"},
      {"GetAutoSetCoolTime", "AutoSetCoolTime"}, {"GetIsTransientInletConv", "FileVersion"},
      {"GetMoldClampingForce", "FileVersion"},   {"GetMoldOpenDirection", "FileVersion"},
      {"GetInitPelletConv", "FileVersion"},      {"GetPelletDiameter", "FileVersion"},
      {"GetPelletHeight", "FileVersion"},        {"GetPreHeatTime", "FileVersion"},
      {"GetMoldMetalMaterial", "FileVersion"},
  };
  for (const Older& call : object_calls()) {
    Row row{"CPROIO_Manipulator::" + call.name, "", [&call](Stage& stage) {
              std::string path = stage.process_file();
              CPROIO_Manipulator object;
              object.SetFilePath(path.data());
              try_call(stage, call, object);
            }};
    if (call.name.starts_with("Set") && call.name != "SetFilePath" && call.name != "SetFileDate") {
      row.done_nevertheless = kStamp;
    }
    if (call.name == "SetDefault") {
      row.leaves = Leaves::entries;
      row.done_nevertheless = kStampedAgain;
    }
    if (const auto lacks = fallbacks.find(call.name); lacks != fallbacks.end()) {
      row.leaves = Leaves::fallback;
      row.lacks = lacks->second;
    }
    rows.push_back(row);
  }
}

}  // namespace

std::vector<Row> listed_rows() {
  std::vector<Row> rows;
  add_readers(rows);
  add_writers(rows);
  add_adapters(rows);
  add_older(rows);
  return rows;
}

}  // namespace qelpro_test::memory
