#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "support/scratch.h"

// Different objects on different threads, each with a file of its own, need no lock.

namespace qelpro_test {
namespace {

constexpr int kThreads = 8;
constexpr int kRounds = 200;

template <class Work>
void on_threads(Work work) {
  std::vector<std::thread> threads;
  for (int number = 1; number <= kThreads; ++number) {
    threads.emplace_back(work, number);
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
}

std::string file_of(int number) {
  const std::string n = std::to_string(number);
  return "[FileHeader]\nName = mold-" + n +
         ".pro\n[CaeHeader]\nProjectType = 1 0\n[Summary]\nTotalNodeEM = 1\n[Flow-1]\nFillTime = " +
         n + ".5\nFRSet = 2\nFR-1 = 0 " + n + "\nFR-2 = 100 " + n + "0\n[Pack-1]\nPackTime = " + n +
         "\n";
}

TEST(Threads, ReadFilesOfTheirOwn) {
  const Scratch scratch;
  std::atomic<int> wrong = 0;
  on_threads([&](int number) {
    const std::string path = scratch.file(file_of(number), std::to_string(number) + ".pro");
    for (int round = 0; round < kRounds; ++round) {
      CQELPROReader_Manipulator reader;
      double time = 0;
      double x = 0;
      double y = 0;
      char* name = nullptr;
      char buffer[64];
      char* raw = nullptr;
      const std::string expected = "mold-" + std::to_string(number) + ".pro";
      const bool right =
          reader.SetFilePath(path.c_str()) && reader.FlowX_ReadFillingTime(time, 1) &&
          time == number + 0.5 && reader.FlowX_ReadFRProfile(x, y, 2, 1) && x == 100 &&
          y == number * 10 && reader.FileHeader_ReadName(name) && expected == name &&
          reader.ReadString("[FileHeader]", "Name", raw, buffer, sizeof buffer) &&
          expected == raw && reader.ReadValue("[FileHeader]", "Name", raw, buffer, sizeof buffer) &&
          expected == raw;
      wrong += right ? 0 : 1;
    }
  });
  EXPECT_EQ(wrong, 0);
}

TEST(Threads, TextsLiveUntilTheNextReadOfTheSameThread) {
  const Scratch scratch;
  std::atomic<int> wrong = 0;
  std::atomic<int> ready = 0;
  on_threads([&](int number) {
    const std::string path = scratch.file(file_of(number), std::to_string(number) + ".pro");
    CQELPROReader_Manipulator reader;
    char* name = nullptr;
    const bool read = reader.SetFilePath(path.c_str()) && reader.FileHeader_ReadName(name);
    for (++ready; ready < kThreads;) {
      std::this_thread::yield();
    }
    wrong += read && "mold-" + std::to_string(number) + ".pro" == name ? 0 : 1;
  });
  EXPECT_EQ(wrong, 0);
}

TEST(Threads, WriteFilesOfTheirOwn) {
  const Scratch scratch;
  std::atomic<int> wrong = 0;
  on_threads([&](int number) {
    const std::string path = scratch.path(std::to_string(number) + ".pro");
    CQELPROWriter_Manipulator writer;
    bool right = writer.SetFilePath(path.c_str());
    for (int round = 1; round <= kRounds; ++round) {
      right = right && writer.FlowX_WriteFillingTime(number + round, 1) &&
              writer.FlowX_WriteFRProfile(round, number, round, 1) &&
              writer.WriteItems("[Flow-1]", "Note", "%d of %d", round, number);
    }
    CQELPROReader_Manipulator reader;
    double time = 0;
    right = right && reader.SetFilePath(path.c_str()) && reader.FlowX_ReadFillingTime(time, 1) &&
            time == number + kRounds;
    for (int round = 1; round <= kRounds; ++round) {
      double x = 0;
      double y = 0;
      right = right && reader.FlowX_ReadFRProfile(x, y, round, 1) && x == round && y == number;
    }
    wrong += right ? 0 : 1;
  });
  EXPECT_EQ(wrong, 0);
}

TEST(Threads, NamesOfLinesAreTheirOwn) {
  const Scratch scratch;
  std::atomic<int> wrong = 0;
  std::atomic<int> ready = 0;
  on_threads([&](int number) {
    const std::string n = std::to_string(number);
    const std::string path = scratch.file("[Coolant]\n1 = 1 2 3 4 5 Water-" + n +
                                              " 6 7\n[Moldbase]\n1 = 1 2 3 Steel-" + n + " 4 5 6\n",
                                          n + ".pro");
    CQELPROReader_Manipulator reader;
    double d[6] = {};
    int i[2] = {};
    char* coolant = nullptr;
    char* base = nullptr;
    const bool read =
        reader.SetFilePath(path.c_str()) &&
        reader.Coolant_ReadCoolant(d[0], d[1], d[2], d[3], i[0], coolant, d[4], i[1], 1) &&
        reader.Moldbase_ReadMoldbase(d[0], d[1], d[2], base, d[3], d[4], d[5], 1);
    for (++ready; ready < kThreads;) {
      std::this_thread::yield();
    }
    wrong += read && "Water-" + n == coolant && "Steel-" + n == base ? 0 : 1;
  });
  EXPECT_EQ(wrong, 0);
}

// Copies of one object that come and go on different threads; what they share is released once, by
// the last of them.
template <class Object>
void copy_on_threads(Object& object) {
  on_threads([&object](int /*number*/) {
    for (int round = 0; round < kRounds; ++round) {
      Object copy(object);
      Object other;
      other = copy;
    }
  });
}

TEST(Threads, CopyAndForgetOneObject) {
  const Scratch scratch;
  const std::string path = scratch.file(file_of(1));
  CQELPROReader_Manipulator reader;
  CQELPROWriter_Manipulator writer;
  CQEL_ProcessAdapter adapter;
  CQELMachineIdentification machines;
  CQELPCSInterpolator coolants;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()) && writer.SetFilePath(path.c_str()) &&
              adapter.SetProcessPath(path.c_str()));
  machines.SetMachineUserBankPath(data_path("machines.bank").c_str());
  ASSERT_TRUE(machines.LoadFileData() &&
              coolants.LoadDataFromFile(data_path("coolants.pcs").c_str()));
  copy_on_threads(reader);
  copy_on_threads(writer);
  copy_on_threads(adapter);
  copy_on_threads(machines);
  copy_on_threads(coolants);
  double time = 0;
  double p[4] = {};
  EXPECT_TRUE(writer.FlowX_WriteFillingTime(7.5, 1) &&
              adapter.SetCoolCTL_WriteCoolantTemperature(60, 1));
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(time, 1));
  EXPECT_EQ(machines.GetMakerCount(), 4);
  EXPECT_TRUE(coolants.InterpolateCoolantProperties(6, 10, p[0], p[1], p[2], p[3]));
}

TEST(Threads, LoadProcessesOfTheirOwn) {
  const Scratch scratch;
  std::atomic<int> wrong = 0;
  on_threads([&](int number) {
    const std::string path = scratch.file(file_of(number), std::to_string(number) + ".pro");
    for (int round = 0; round < kRounds; ++round) {
      CQELProcessData_Manipulator loader;
      double time = 0;
      const std::unique_ptr<const QELG_SimulatorProcess> process(
          loader.GetProcessDataStructure(path.c_str()));
      const bool right = process != nullptr && process->GetNumOfInlets() == 1 &&
                         get_process_FillTime(*process->GetFlowPackOfInlet(0), time) &&
                         time == number + 0.5;
      wrong += right ? 0 : 1;
    }
  });
  EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace qelpro_test
