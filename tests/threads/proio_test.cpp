#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

TEST(Threads, ServeFilesOfTheirOwnThroughSelfContainedObjects) {
  const Scratch scratch;
  std::atomic<int> wrong = 0;
  std::vector<std::thread> threads;
  for (int number = 1; number <= 8; ++number) {
    threads.emplace_back([&scratch, &wrong, number] {
      std::string path = scratch.path(std::to_string(number) + ".pro");
      std::string remark = "remark " + std::to_string(number);
      CPROIO_Manipulator object;
      object.SetFilePath(path.data());
      bool right = object.SetDefault();
      for (int round = 1; round <= 60; ++round) {
        double time = 0;
        double x = 0;
        double y = 0;
        char* text = nullptr;
        right = right && object.SetFillTime(number + round, number) &&
                object.GetFillTime(time, number) && time == number + round &&
                object.SetFRProfile(round, round, number, number) &&
                object.GetFRProfile(round, x, y, number) && y == number &&
                object.SetMachineRemark(remark.data()) && object.GetMachineRemark(text) &&
                remark + "\n" == text;
      }
      wrong += right ? 0 : 1;
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(wrong, 0);
}

TEST(Threads, InterpolateAndListWithTheirOwnObjects) {
  std::atomic<int> wrong = 0;
  std::vector<std::thread> threads;
  for (int number = 1; number <= 8; ++number) {
    threads.emplace_back([&wrong] {
      for (int round = 0; round < 20; ++round) {
        CQELPCSInterpolator tables;
        CQELMachineIdentification machines;
        machines.SetMachineUserBankPath(data_path("machines.bank").c_str());
        double p[4] = {};
        const bool right = tables.LoadDataFromFile(data_path("coolants.pcs").c_str()) &&
                           tables.InterpolateCoolantProperties(6, 10, p[0], p[1], p[2], p[3]) &&
                           p[0] == 1 && machines.LoadFileData() && machines.GetMakerCount() == 4;
        wrong += right ? 0 : 1;
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace qelpro_test
