#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <iostream>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"
#include "load/memory.h"
#include "load/scale.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

using Clock = std::chrono::steady_clock;

// One thread's work on its own file: stores through the engine and the self-contained object in
// turn, each read back at once through the other, and all of them at the end.
class Worker {
 public:
  Worker(std::string path, unsigned seed) : path_(std::move(path)), random_(seed) {}

  void step() {
    const int inlet = 1 + static_cast<int>(random_() % 20);
    const double value = static_cast<double>(random_() % 1000000) / 8;
    ++stores_;
    bool done = false;
    double read = -1;
    if (random_() % 2 == 0) {
      CQELPROWriter_Manipulator writer;
      done = writer.SetFilePath(path_.c_str()) && writer.FlowX_WriteFillingTime(value, inlet);
      CPROIO_Manipulator object;
      done = done && object.SetFilePath(path_.c_str()) && object.GetFillTime(read, inlet);
    } else {
      CPROIO_Manipulator object;
      done = object.SetFilePath(path_.c_str()) && object.SetFillTime(value, inlet);
      CQELPROReader_Manipulator reader;
      done = done && reader.SetFilePath(path_.c_str()) && reader.FlowX_ReadFillingTime(read, inlet);
    }
    expected_[inlet] = printed(value);
    wrong_ += done && read == expected_[inlet] ? 0 : 1;
  }
  int wrong_in_the_end() {
    CQELPROReader_Manipulator reader;
    wrong_ += reader.SetFilePath(path_.c_str()) ? 0 : 1;
    for (const auto& [inlet, value] : expected_) {
      double read = -1;
      wrong_ += reader.FlowX_ReadFillingTime(read, inlet) && read == value ? 0 : 1;
    }
    return wrong_;
  }
  [[nodiscard]] long stores() const { return stores_; }

 private:
  // Six significant digits are written.
  static double printed(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return std::stod(text);
  }

  std::string path_;
  std::mt19937 random_;
  std::map<int, double> expected_;
  int wrong_ = 0;
  long stores_ = 0;
};

TEST(Load, OfManyThreadsOnFilesOfTheirOwnLosesNothing) {
  constexpr unsigned kThreads = 32;
  const auto end = Clock::now() + std::chrono::seconds(load(1, 60));
  const Scratch scratch;
  std::atomic<int> wrong = 0;
  std::atomic<long> stores = 0;
  std::vector<std::thread> threads;
  for (unsigned number = 0; number < kThreads; ++number) {
    threads.emplace_back([&, number] {
      Worker worker(scratch.file("", std::to_string(number) + ".pro"), number);
      do {
        worker.step();
      } while (Clock::now() < end);
      wrong += worker.wrong_in_the_end();
      stores += worker.stores();
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(wrong, 0);
  EXPECT_GT(stores, kThreads);
  std::cout << "[ measured ] " << stores << " stores, each read back, on " << kThreads
            << " threads; " << most_resident_bytes() / kMiB << " MiB at most\n";
}

}  // namespace
}  // namespace qelpro_test
