#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "faults/every_store.h"
#include "faults/io_calls.h"
#include "support/scratch.h"

// No file that the library opens is one that a program holds, too, which its user starts at any
// moment on any thread: the file is told so when it is opened, and not after it.

namespace qelpro_test {
namespace {

using io_calls::Failure;

struct Use {
  const char* name;
  std::function<bool(const std::string& path)> make;
};

const Use kUses[] = {
    {"Reader",
     [](const std::string& path) {
       CQELPROReader_Manipulator reader;
       double value = 0;
       return reader.SetFilePath(path.c_str()) && reader.FlowX_ReadFillingTime(value, 1);
     }},
    {"ReaderByWidePath",
     [](const std::string& path) {
       CQELPROReader_Manipulator reader;
       double value = 0;
       return reader.SetFilePath(std::wstring(path.begin(), path.end()).c_str()) &&
              reader.FlowX_ReadFillingTime(value, 1);
     }},
    {"RawRead",
     [](const std::string& path) {
       CQELPROReader_Manipulator reader;
       char* value = nullptr;
       return reader.SetFilePath(path.c_str()) &&
              reader.ReadString("[Flow-1]", "FillTime", value, nullptr, 0) &&
              reader.ReadValue("[Flow-1]", "FillTime", value, nullptr, 0);
     }},
    {"Loader",
     [](const std::string& path) {
       CQELProcessData_Manipulator loader;
       return std::unique_ptr<const QELG_SimulatorProcess>(
                  loader.GetProcessDataStructure(path.c_str())) != nullptr;
     }},
    {"OlderObject",
     [](const std::string& path) {
       CPROIO_Manipulator object;
       double value = 0;
       double y = 0;
       object.GetBCProfile(1, 1, value, y);
       return object.SetFilePath(path.c_str()) && object.GetFillTime(value, 1);
     }},
    {"MachineBank",
     [](const std::string& /*path*/) {
       CQELMachineIdentification machines;
       machines.SetMachineUserBankPath(data_path("machines.bank").c_str());
       return machines.LoadFileData();
     }},
    {"CoolantTables",
     [](const std::string& /*path*/) {
       CQELPCSInterpolator coolants;
       return coolants.LoadDataFromFile(data_path("coolants.pcs").c_str());
     }},
    {"NewFile",
     [](const std::string& path) {
       CQELPROWriter_Manipulator writer;
       return writer.SetFilePath((path + ".new").c_str()) && writer.Cool_WriteCoolTime(20);
     }},
    {"NewFileOfTheOlderObject",
     [](const std::string& path) {
       std::string other = path + ".newer";
       CPROIO_Manipulator object;
       object.SetFilePath(other.data());
       return object.SetDefault();
     }},
};

TEST(Descriptors, AreForThisProgramAloneFromTheirOpeningOn) {
  const Scratch scratch;
  for (const Use& use : kUses) {
    const std::string path = scratch.file(flow_file());
    io_calls::fail(0, Failure::none);
    EXPECT_TRUE(use.make(path)) << use.name;
    const io_calls::Outcome outcome = io_calls::stop();
    EXPECT_GT(outcome.find("open") + outcome.find(io_calls::kOpenToRead), 0) << use.name;
    EXPECT_EQ(outcome.inherited, 0) << use.name;
  }
}

// What a program that is started now finds open.
std::string open_in_a_child() {
  std::string found;
  std::FILE* child = ::popen("ls -l /proc/self/fd", "r");
  char line[512];
  while (std::fgets(line, sizeof line, child) != nullptr) {
    found += line;
  }
  ::pclose(child);
  return found;
}

TEST(Descriptors, ThatAreHeldAreNoneOfAProgramStartedMeanwhile) {
  const Scratch scratch;
  const std::string path = scratch.file(flow_file());
  CQELPROReader_Manipulator reader;
  CQELPROReader_Manipulator wide;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  ASSERT_TRUE(wide.SetFilePath(std::wstring(path.begin(), path.end()).c_str()));
  std::FILE* own = std::fopen(path.c_str(), "r");
  EXPECT_NE(open_in_a_child().find(path), std::string::npos) << "the caller's own is inherited";
  std::fclose(own);
  EXPECT_EQ(open_in_a_child().find(path), std::string::npos);
}

// However a member ends, no file stays open behind it.
TEST(Descriptors, AreClosedWhateverFails) {
  const Scratch scratch;
  const auto lowest_free = [] {
    const int fd = ::dup(STDIN_FILENO);
    ::close(fd);
    return fd;
  };
  const int before = lowest_free();
  for (const Use& use : kUses) {
    io_calls::fail(0, Failure::none);
    use.make(scratch.file(flow_file()));
    constexpr int kEnough = 60;  // a default document makes the same calls over and over
    const int calls = std::min(io_calls::stop().calls, kEnough);
    for (int n = 1; n <= calls; ++n) {
      const std::string path = scratch.file(flow_file());
      io_calls::fail(n, Failure::error);
      use.make(path);
      const io_calls::Outcome outcome = io_calls::stop();
      EXPECT_EQ(lowest_free(), before) << use.name << ": " << outcome.failed_call << ", " << n;
    }
  }
}

}  // namespace
}  // namespace qelpro_test
