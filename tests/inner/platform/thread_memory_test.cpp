#include "platform/thread_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <set>
#include <thread>
#include <vector>

namespace qel::platform {
namespace {

bool is_zero(const void* memory) {
  const auto* bytes = static_cast<const char*>(memory);
  return std::all_of(bytes, bytes + kThreadMemory, [](char byte) { return byte == 0; });
}

TEST(ThreadMemory, IsTheSameForAThreadAndAnotherForEach) {
  constexpr int kThreads = 8;
  std::vector<void*> pieces(kThreads);
  std::atomic<int> ready{0};
  std::vector<std::thread> threads;
  for (int number = 0; number < kThreads; ++number) {
    threads.emplace_back([&, number] {
      void* const memory = thread_memory();
      pieces[static_cast<std::size_t>(number)] = memory;
      ++ready;
      while (ready < kThreads) {  // all of them live at once
        std::this_thread::yield();
      }
      EXPECT_EQ(thread_memory(), memory);
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(std::set<void*>(pieces.begin(), pieces.end()).size(), pieces.size());
  EXPECT_EQ(std::count(pieces.begin(), pieces.end(), nullptr), 0);
}

TEST(ThreadMemory, IsZeroAtFirstWhateverAThreadBeforeLeft) {
  for (int number = 0; number < 100; ++number) {
    std::thread([] {
      void* const memory = thread_memory();
      ASSERT_NE(memory, nullptr);
      EXPECT_TRUE(is_zero(memory));
      std::memset(memory, 'x', kThreadMemory);
    }).join();
  }
}

TEST(ThreadMemory, LeavesTheErrorAlone) {
  std::thread([] {
    errno = EDOM;
    EXPECT_NE(thread_memory(), nullptr);
    EXPECT_EQ(errno, EDOM);
  }).join();
}

}  // namespace
}  // namespace qel::platform
