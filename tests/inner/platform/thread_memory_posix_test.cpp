#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

#include "platform/thread_memory.h"

namespace qel::platform {
namespace {

// The thread that forks goes on in the new process under another number, and keeps its memory:
// no thread of that process takes it over.
TEST(ThreadMemory, StaysWithTheThreadThatForks) {
  void* const memory = thread_memory();
  ASSERT_NE(memory, nullptr);
  const ::pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    bool right = thread_memory() == memory;
    for (int number = 0; number < 20; ++number) {
      std::thread([&right, memory] {
        void* const own = thread_memory();
        right = right && own != nullptr && own != memory;
      }).join();
    }
    ::_exit(right && thread_memory() == memory ? 0 : 1);
  }
  int status = -1;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

}  // namespace
}  // namespace qel::platform
